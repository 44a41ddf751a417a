/// \file
/// The limits of a card.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

#include <QtGlobal>

namespace PimManager::Contacts
{

/// The effective limits of a card: those of the options, and those that always apply. The latter bound the memory of an
/// index and the depth of calls.
struct CardLimits
{
    explicit CardLimits( const PimContactOptions& a_options );

    qint64 m_bytes;
    /// The number of physical lines.
    qint64 m_lines;
    /// The number of cards that may be open inside a card.
    int m_nesting;
};

} // namespace PimManager::Contacts
