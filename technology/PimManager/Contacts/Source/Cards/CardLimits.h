/// \file
/// The limits of a card.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

#include <QtGlobal>

namespace PimManager::Contacts
{

/// The limits of a card as they apply: those of the options, and those that always apply. The latter bound the memory
/// of an index and the depth of calls.
struct CardLimits
{
    explicit CardLimits( const PimContactOptions& a_options );

    qint64 m_bytes;
    /// Physical lines.
    qint64 m_lines;
    /// How many cards may be open inside a card.
    int m_nesting;
};

} // namespace PimManager::Contacts
