/// \file
/// Delivers complete cards.

#pragma once

#include "Cards/CardRecord.h"
#include "Cards/Ledger.h"
#include "Lines/CardFacts.h"
#include "Lines/LineScanner.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <functional>
#include <string_view>

namespace PimManager::Contacts
{

/// Delivers cards and counts them. A card that exceeds a limit of the book is refused instead. In both cases its bytes
/// are added to the ledger and released.
class CardDelivery
{
public:
    /// Receives a complete card. Its extents have been added before.
    using CardTaker = std::function<void( PimContactCard a_card )>;

    /// The scanner and the ledger must outlive this object.
    CardDelivery( LineScanner& a_scanner, Ledger& a_ledger, const PimContactOptions& a_options, CardTaker a_taker );

    /// Forgets the text.
    void Reset( bool a_isConverted );
    /// All lines have been taken. If a card without END reaches to the end of the text, the file is reported as cut off
    /// and END not as missing.
    void EndText() { m_isEndOfText = true; }

    /// The caller's default character set is known, and not UTF-8.
    bool IsDefaultKnown() const { return m_isDefaultKnown; }
    /// The limit for the number of cards is reached. All further cards are refused.
    bool IsFull() const
    {
        const ReportData& data = m_ledger.Data();
        return m_mostCards > 0 && data.m_cardsWhole + data.m_cardsInPart >= m_mostCards;
    }

    /// Delivers or refuses a card.
    /// \param a_index the record and the index of the outermost card.
    /// \param a_facts the facts from its lines.
    /// \param a_begin its position in the text.
    void Deliver( const CardIndex& a_index, const CardFacts& a_facts, const TextPlace& a_begin );
    /// Counts and reports a refused card. The caller adds its extents.
    void ReportRefused( PimContactDiagnosticCode a_code, const TextPlace& a_begin );

private:
    bool IsTooLong( qint64 a_length ) const { return m_mostBookBytes > 0 && m_bookBytes + a_length > m_mostBookBytes; }
    void Refuse( PimContactDiagnosticCode a_code, const TextPlace& a_begin, std::string_view a_bytes );
    PimContactCard CardOf( const CardIndex& a_index, const TextPlace& a_begin, std::string_view a_bytes ) const;
    void Report( const CardIndex& a_index, const CardFacts& a_facts, const TextPlace& a_begin,
                 std::string_view a_bytes );
    void AddExtents( const CardFacts& a_facts );
    void Count( const CardIndex& a_index, const CardFacts& a_facts );
    void NoteEvidence( const CardIndex& a_index, const CardFacts& a_facts );

    LineScanner& m_scanner;
    Ledger& m_ledger;
    CardTaker m_taker;
    qint64 m_mostCards;
    qint64 m_mostBookBytes;
    QByteArray m_defaultCharset;
    bool m_isDefaultKnown;
    bool m_isConverted = false;
    bool m_isEndOfText = false;
    qint64 m_bookBytes = 0;
};

} // namespace PimManager::Contacts
