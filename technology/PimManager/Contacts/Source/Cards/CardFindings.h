/// \file
/// What is told about a card when it is delivered.

#pragma once

#include "Cards/CardRecord.h"
#include "Cards/Ledger.h"
#include "Lines/CardFacts.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Goes over the index of a card once. Each entry becomes an extent, and each oddity a finding at its place. So the
/// extents are the card, and the findings are in the order of the file.
class CardFindings
{
public:
    /// \param a_bytes the bytes of the outermost card.
    /// \param a_begin where the card is in the text.
    CardFindings( Ledger& a_ledger, const CardIndex& a_index, std::string_view a_bytes, const TextPlace& a_begin,
                  qint64 a_number );

    /// Counts the findings of a card that has no other oddities than those of its lines and boundaries.
    static void Count( Ledger& a_ledger, const CardFacts& a_facts );

    /// \param a_isEndOfFile the card is the last one, and nothing follows it.
    void Tell( bool a_isEndOfFile );

private:
    using Code = PimContactDiagnosticCode;

    void TellCard( quint32 a_record );
    void TellStart( const CardRecord& a_record );
    void TellEntry( const IndexEntry& a_entry, const CardRecord& a_record );
    void TellLine( const IndexEntry& a_entry );
    void Report( Code a_code, quint32 a_place, qint64 a_count = 1 );

    Ledger& m_ledger;
    const CardIndex& m_index;
    std::string_view m_bytes;
    qint64 m_offset;
    qint64 m_number;
    bool m_isEndOfFile = false;
    // The place of the next entry in the bytes.
    quint32 m_place = 0;
    // The last place that was reported, so that the lines before it are counted once.
    TextPlace m_reported;
};

} // namespace PimManager::Contacts
