/// \file
/// The decisions about a card at its END.

#pragma once

#include "Cards/CardRecord.h"
#include "Lines/LogicalLines.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Completes the record and the index of a card: its version, its fold style, and the character set of each line.
///
/// \param a_facts   the facts from the lines of the card.
/// \param a_entries the index of the lines.
/// \param a_record  begin, length, and the flags that do not depend on the lines.
/// \param a_bytes   the bytes of the outermost card.
/// \param a_isDefaultKnown the caller's default character set is known, and not UTF-8.
/// \param[out] a_index the record and the index.
void SealCard( const CardFacts& a_facts, IndexBytes a_entries, CardRecord a_record, std::string_view a_bytes,
               bool a_isDefaultKnown, CardIndex& a_index );

/// A card without its filtered lines.
struct FilteredCard
{
    CardIndex m_index;
    QByteArray m_bytes;
};

/// \param a_index the index of an outermost card, and its bytes.
FilteredCard WithoutFilteredLines( const CardIndex& a_index, std::string_view a_bytes );

} // namespace PimManager::Contacts
