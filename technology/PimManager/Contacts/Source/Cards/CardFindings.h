/// \file
/// The extents and findings of a card when it is delivered.

#pragma once

#include "Cards/CardRecord.h"
#include "Cards/Ledger.h"
#include "Lines/CardFacts.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Reads the index of a card once. Each entry becomes an extent, and each oddity a finding at its position. So the
/// extents cover the card, and the findings are in the order of the file.
class CardFindings
{
public:
    /// \param a_bytes the bytes of the outermost card.
    /// \param a_begin the position of the card in the text.
    CardFindings( Ledger& a_ledger, const CardIndex& a_index, std::string_view a_bytes, const TextPlace& a_begin,
                  qint64 a_number );

    /// Counts the findings of a card whose only oddities are those of its lines and boundaries.
    static void Count( Ledger& a_ledger, const CardFacts& a_facts );

    /// \param a_isEndOfFile true if the card ends at the end of the file.
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
    // The position of the next entry in the bytes.
    quint32 m_place = 0;
    // The last reported position, so that the lines before it are counted only once.
    TextPlace m_reported;
};

} // namespace PimManager::Contacts
