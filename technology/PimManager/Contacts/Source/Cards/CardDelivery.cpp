#include "Cards/CardDelivery.h"

#include "Cards/CardFindings.h"
#include "Cards/CardSeal.h"
#include "Text/Bytes.h"
#include "Text/CharsetChoice.h"

#include <utility>

namespace PimManager::Contacts
{

using Code = PimContactDiagnosticCode;
using Extent = PimContactExtentKind;

CardDelivery::CardDelivery( LineScanner& a_scanner, Ledger& a_ledger, const PimContactOptions& a_options,
                            CardTaker a_taker ) :
    m_scanner( a_scanner ),
    m_ledger( a_ledger ),
    m_taker( std::move( a_taker ) ),
    m_mostCards( a_options.Cards() ),
    m_mostBookBytes( a_options.BookBytes() ),
    m_defaultCharset( a_options.DefaultCharset() ),
    m_isDefaultKnown( IsKnownCharset( ViewOf( m_defaultCharset ) ) )
{
}

void CardDelivery::Reset( bool a_isConverted )
{
    m_isConverted = a_isConverted;
    m_isEndOfText = false;
    m_bookBytes = 0;
}

void CardDelivery::Deliver( const CardIndex& a_index, const CardFacts& a_facts, const TextPlace& a_begin )
{
    const qint64 length = a_index.Record().m_length;
    const std::string_view bytes = m_scanner.View( a_begin.m_offset, length );
    const bool isFull = IsFull();
    if ( isFull || IsTooLong( length ) )
    {
        Refuse( isFull ? Code::TooManyCards : Code::BookTooLong, a_begin, bytes );
        return;
    }
    PimContactCard card = CardOf( a_index, a_begin, bytes );
    ++m_ledger.Data().m_cards;
    Report( a_index, a_facts, a_begin, bytes );
    m_ledger.FlushUpTo( a_begin.m_offset + length );
    m_scanner.Release( a_begin.m_offset + length );
    m_bookBytes += length;
    Count( a_index, a_facts );
    m_taker( std::move( card ) );
}

void CardDelivery::Refuse( Code a_code, const TextPlace& a_begin, std::string_view a_bytes )
{
    ReportRefused( a_code, a_begin );
    m_ledger.Add( Extent::Refused, a_bytes, m_ledger.Data().m_cards );
    const qint64 end = a_begin.m_offset + static_cast<qint64>( a_bytes.size() );
    m_ledger.FlushUpTo( end );
    m_scanner.Release( end );
}

void CardDelivery::ReportRefused( Code a_code, const TextPlace& a_begin )
{
    ReportData& data = m_ledger.Data();
    ++data.m_cards;
    ++data.m_cardsRefused;
    m_ledger.Report( a_code, data.m_cards, a_begin );
}

PimContactCard CardDelivery::CardOf( const CardIndex& a_index, const TextPlace& a_begin,
                                     std::string_view a_bytes ) const
{
    const PimContactCardPrivate::Origin origin = { m_ledger.Data().m_cards + 1, a_begin.m_offset, a_begin.m_line,
                                                   m_isConverted, m_defaultCharset };
    if ( !a_index.Record().Has( CardRecord::IsFiltered ) )
        return PimContactCardPrivate::Create( origin, a_index.Bytes(), a_bytes );
    const FilteredCard filtered = WithoutFilteredLines( a_index, a_bytes );
    return PimContactCardPrivate::Create( origin, filtered.m_index.Bytes(), ViewOf( filtered.m_bytes ) );
}

// For most cards only numbers are added.
void CardDelivery::Report( const CardIndex& a_index, const CardFacts& a_facts, const TextPlace& a_begin,
                           std::string_view a_bytes )
{
    constexpr quint8 s_kUsualFlags = CardRecord::HasBegin | CardRecord::HasEnd | CardRecord::IsWhole;
    const bool isUsual =
        a_index.Record().m_flags == s_kUsualFlags && !a_facts.HasOddParts() && !m_ledger.HasExtentHandler();
    const bool isOdd = a_facts.HasOddLines() || a_facts.m_mendedBoundaries > 0;
    if ( !isUsual || ( isOdd && !m_ledger.IsOnlyCounting() ) )
    {
        const qint64 end = a_begin.m_offset + static_cast<qint64>( a_bytes.size() );
        CardFindings( m_ledger, a_index, a_bytes, a_begin, m_ledger.Data().m_cards )
            .Tell( m_isEndOfText && end == m_scanner.NextOffset() );
        return;
    }
    AddExtents( a_facts );
    if ( isOdd )
        CardFindings::Count( m_ledger, a_facts );
}

void CardDelivery::AddExtents( const CardFacts& a_facts )
{
    const auto add = [this, &a_facts]( Extent a_extent, EntryKind a_kind )
    {
        const auto kind = static_cast<size_t>( a_kind );
        m_ledger.AddMany( a_extent, a_facts.m_parts[kind], a_facts.m_bytes[kind] );
    };
    add( Extent::Line, EntryKind::Line );
    add( Extent::Boundary, EntryKind::Boundary );
    add( Extent::Blank, EntryKind::Blank );
}

void CardDelivery::Count( const CardIndex& a_index, const CardFacts& a_facts )
{
    const CardRecord record = a_index.Record();
    ReportData& data = m_ledger.Data();
    ++( record.Has( CardRecord::IsWhole ) ? data.m_cardsWhole : data.m_cardsInPart );
    ++data.m_versions[record.m_version];
    if ( data.m_evidence == PimContactEvidence::None || data.m_evidence == PimContactEvidence::ValidUtf8 )
        NoteEvidence( a_index, a_facts );
}

// The first card that is not UTF-8 determines the character set of the report.
void CardDelivery::NoteEvidence( const CardIndex& a_index, const CardFacts& a_facts )
{
    ReportData& data = m_ledger.Data();
    if ( !a_index.Record().Has( CardRecord::IsOtherCharset ) )
    {
        if ( a_facts.m_isWide )
            data.m_evidence = PimContactEvidence::ValidUtf8;
        return;
    }
    const std::string_view named = CharsetOf( a_index.Base(), 0 );
    data.m_evidence = named.empty() ? PimContactEvidence::Default : PimContactEvidence::CharsetNamed;
    if ( !named.empty() )
        data.m_charset = BytesOf( named );
    else if ( m_isDefaultKnown )
        data.m_charset = m_defaultCharset;
}

} // namespace PimManager::Contacts
