#include "Cards/CardFindings.h"

#include "Lines/LinePieces.h"
#include "Lines/LineScanner.h"
#include "Lines/ValueEscapes.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactDiagnosticCode;
using Oddity = PimContactOddity;

static_assert( static_cast<int>( Code::UnknownEscape ) - static_cast<int>( Code::LineJoined ) == s_kOddities - 1 );

// An oddity of a line, with its position.
struct Finding
{
    Code m_code = Code::LineJoined;
    quint32 m_place = 0;
    qint64 m_count = 1;
};

Code CodeOfOddity( int a_bit )
{
    return static_cast<Code>( static_cast<int>( Code::LineJoined ) + a_bit );
}

Code CodeOf( DropReason a_reason )
{
    switch ( a_reason )
    {
    case DropReason::Comment:
        return Code::Comment;
    case DropReason::LineTooLong:
        return Code::LineTooLong;
    case DropReason::NestingTooDeep:
        return Code::NestingTooDeep;
    case DropReason::BoundaryText:
        return Code::BoundaryText;
    default:
        return Code::NotAProperty;
    }
}

PimContactExtentKind ExtentKindOf( EntryKind a_kind )
{
    switch ( a_kind )
    {
    case EntryKind::Boundary:
        return PimContactExtentKind::Boundary;
    case EntryKind::Blank:
        return PimContactExtentKind::Blank;
    case EntryKind::Dropped:
        return PimContactExtentKind::Dropped;
    case EntryKind::Filtered:
        return PimContactExtentKind::Filtered;
    case EntryKind::Mark:
        return PimContactExtentKind::Mark;
    default:
        return PimContactExtentKind::Line;
    }
}

// The text after the first join of a kind; the line itself if there is none.
quint32 PlaceBehind( const IndexEntry& a_entry, std::initializer_list<PimContactJoin> a_kinds )
{
    JoinReader joins( a_entry );
    for ( LineJoin join; joins.Next( join ); )
    {
        if ( std::find( a_kinds.begin(), a_kinds.end(), join.m_kind ) != a_kinds.end() )
            return join.End();
    }
    return 0;
}

// The first soft line break that covers more than "=", a line ending and a blank.
quint32 PlaceOfOddBreak( std::string_view a_line, const IndexEntry& a_entry )
{
    JoinReader joins( a_entry );
    LineJoin join;
    while ( joins.Next( join ) )
    {
        const bool isPlain =
            join.m_begin + 1 < a_line.size() && IsLineEndByte( a_line[join.m_begin + 1] ) && join.m_length <= 4;
        if ( join.m_kind != PimContactJoin::LineFeed && !isPlain )
            return join.m_begin;
    }
    return join.m_begin;
}

Finding FindingOf( Oddity a_oddity, std::string_view a_line, const IndexEntry& a_entry )
{
    const auto isControl = []( char a_byte ) { return IsControlByte( a_byte ) && !IsLineEndByte( a_byte ); };
    Finding finding;
    switch ( a_oddity )
    {
    case Oddity::LineJoined:
        finding.m_place = PlaceBehind( a_entry, { PimContactJoin::LineFeed, PimContactJoin::Direct } );
        break;
    case Oddity::Base64Lines:
        finding.m_place = PlaceBehind( a_entry, { PimContactJoin::Direct } );
        break;
    case Oddity::SoftLineBreak:
        finding.m_place = PlaceOfOddBreak( a_line, a_entry );
        break;
    case Oddity::ControlCharacters:
        finding.m_place =
            static_cast<quint32>( std::find_if( a_line.begin(), a_line.end(), isControl ) - a_line.begin() );
        finding.m_count = std::count_if( a_line.begin(), a_line.end(), isControl );
        break;
    case Oddity::UnknownEscape:
    {
        const UnknownEscapes escapes = UnknownEscapesIn( a_line, a_entry );
        finding.m_place = escapes.m_first;
        finding.m_count = escapes.m_count;
        break;
    }
    default:
        break;
    }
    return finding;
}

} // namespace

CardFindings::CardFindings( Ledger& a_ledger, const CardIndex& a_index, std::string_view a_bytes,
                            const TextPlace& a_begin, qint64 a_number ) :
    m_ledger( a_ledger ),
    m_index( a_index ),
    m_bytes( a_bytes ),
    m_offset( a_begin.m_offset ),
    m_number( a_number ),
    m_reported( a_begin )
{
}

void CardFindings::Count( Ledger& a_ledger, const CardFacts& a_facts )
{
    a_ledger.CountFindings( Code::BoundaryLine, a_facts.m_mendedBoundaries );
    for ( int bit = 0; bit < s_kOddities; ++bit )
        a_ledger.CountFindings( CodeOfOddity( bit ), a_facts.m_oddLines[static_cast<size_t>( bit )] );
}

void CardFindings::Tell( bool a_isEndOfFile )
{
    m_isEndOfFile = a_isEndOfFile;
    TellCard( 0 );
}

// Recursive for nested cards, so the nesting limit bounds the depth.
void CardFindings::TellCard( quint32 a_record )
{
    const CardRecord record = CardRecord::At( m_index.Base() + a_record );
    TellStart( record );
    IndexReader reader = EntriesOf( m_index.Base(), a_record );
    IndexEntry entry;
    while ( !reader.AtEnd() )
    {
        reader.Next( entry, true );
        if ( entry.m_kind == EntryKind::Nested )
        {
            ++m_ledger.Data().m_cardsNested;
            TellCard( entry.m_indexBegin );
        }
        else
            TellEntry( entry, record );
    }
    if ( !record.Has( CardRecord::HasEnd ) )
        Report( m_isEndOfFile ? Code::EndOfFile : Code::MissingEnd, m_place );
}

void CardFindings::TellStart( const CardRecord& a_record )
{
    if ( !a_record.Has( CardRecord::HasBegin ) )
        Report( Code::MissingBegin, m_place );
    if ( a_record.Has( CardRecord::IsOtherCharset ) )
        Report( Code::Charset, m_place );
    if ( a_record.Has( CardRecord::IsIndented ) )
        Report( Code::IndentedCard, m_place );
    if ( a_record.Has( CardRecord::FoldsByLength ) )
        Report( Code::FoldsByLength, m_place );
}

void CardFindings::TellEntry( const IndexEntry& a_entry, const CardRecord& a_record )
{
    switch ( a_entry.m_kind )
    {
    case EntryKind::Line:
        TellLine( a_entry );
        break;
    case EntryKind::Boundary:
        if ( a_entry.m_isMended && !a_record.Has( CardRecord::IsIndented ) )
            Report( Code::BoundaryLine, m_place );
        break;
    case EntryKind::Dropped:
        Report( CodeOf( a_entry.m_reason ), m_place );
        break;
    case EntryKind::Mark:
        Report( Code::StrayByteOrderMark, m_place, a_entry.m_length / static_cast<quint32>( s_kByteOrderMark.size() ) );
        break;
    default:
        break;
    }
    m_ledger.Add( ExtentKindOf( a_entry.m_kind ), m_bytes.substr( m_place, a_entry.m_length ), m_number );
    m_place += a_entry.m_length;
}

void CardFindings::TellLine( const IndexEntry& a_entry )
{
    const PimContactOddities oddities = a_entry.AllOddities();
    if ( !oddities )
        return;
    if ( m_ledger.IsOnlyCounting() )
    {
        ForEachOddity( oddities, [this]( int a_bit ) { m_ledger.CountFindings( CodeOfOddity( a_bit ), 1 ); } );
        return;
    }
    const std::string_view line = WithoutLineEnd( m_bytes.substr( m_place, a_entry.m_length ) );
    std::array<Finding, s_kOddities> findings;
    size_t count = 0;
    ForEachOddity( oddities,
                   [&]( int a_bit )
                   {
                       findings[count] = FindingOf( static_cast<Oddity>( 1 << a_bit ), line, a_entry );
                       findings[count++].m_code = CodeOfOddity( a_bit );
                   } );
    Finding* const end = findings.data() + count;
    if ( count > 1 )
        std::stable_sort( findings.data(), end,
                          []( const Finding& a_first, const Finding& a_second )
                          { return a_first.m_place < a_second.m_place; } );
    for ( const Finding* finding = findings.data(); finding != end; ++finding )
        Report( finding->m_code, m_place + finding->m_place, finding->m_count );
}

void CardFindings::Report( Code a_code, quint32 a_place, qint64 a_count )
{
    if ( m_ledger.IsOnlyCounting() )
    {
        m_ledger.CountFindings( a_code, 1 );
        return;
    }
    const char* const begin = m_bytes.data() + ( m_reported.m_offset - m_offset );
    const char* const end = m_bytes.data() + m_bytes.size();
    const char* const place = m_bytes.data() + a_place;
    for ( const char* next = begin; next < place; )
    {
        next = LineEndSearch().Find( next, place );
        if ( next == place )
            break;
        next += LineEndSearch::LengthOfEnd( next, end, true );
        ++m_reported.m_line;
        m_reported.m_lineOffset = m_offset + ( next - m_bytes.data() );
    }
    m_reported.m_offset = m_offset + a_place;
    m_ledger.Report( a_code, m_number, m_reported, a_count );
}

} // namespace PimManager::Contacts
