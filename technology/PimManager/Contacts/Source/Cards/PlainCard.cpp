#include "Cards/PlainCard.h"

#include "Lines/LineScanner.h"
#include "Lines/ValueEscapes.h"
#include "Text/Bytes.h"
#include "Text/CharsetChoice.h"

#include <algorithm>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kBegin = "BEGIN:VCARD";
constexpr std::string_view s_kEnd = "END:VCARD";
constexpr std::string_view s_kAgent = "AGENT";
constexpr size_t s_kLongestBegin = CardBoundary::s_kLongest;

// True if the neighbouring lines cannot change the kind of the line. A line with an odd name or with words for
// parameters may be text.
bool IsSurelyProperty( const LineHead& a_head )
{
    return a_head.m_hasColon && !a_head.m_hasWordsForParameters && !( a_head.m_oddities & PimContactOddity::OddName );
}

// A fold may close a quote.
bool MayContinueInFold( const LineHead& a_head, std::string_view a_line )
{
    return ( a_head.m_oddities & ( PimContactOddity::OpenQuote | PimContactOddity::OddParameter ) ) != 0 &&
           a_line.substr( 0, a_head.m_valueBegin ).find( '"' ) != std::string_view::npos;
}

bool IsBareBoundary( const CardBoundary& a_boundary )
{
    return a_boundary.m_mark.m_length + a_boundary.m_group.m_length + a_boundary.m_parameters.m_length +
               a_boundary.m_rest.m_length ==
           0;
}

bool IsAgent( const LineHead& a_head, std::string_view a_line )
{
    return a_head.m_name.m_length == s_kAgent.size() && IsSameWord( a_head.m_name.In( a_line ), s_kAgent );
}

} // namespace

// Notes a soft line break. Blanks after the "=", and an encoded one in a value that is not encoded, are not plain.
bool PlainCard::EndsPlainly( std::string_view a_line )
{
    m_lastTextEnd = static_cast<quint32>( a_line.data() + a_line.size() - m_text.data() );
    const char last = a_line.back();
    m_isSoftBreakOpen = last == '=' && Head().m_encoding == PimContactEncoding::QuotedPrintable;
    if ( last == '=' )
        return Head().m_encoding != PimContactEncoding::None;
    return !IsBlank( last ) || !EndsWith( TrimmedRight( a_line ), "=" );
}

PlainCard::Step PlainCard::TakeContinuation( const Line& a_line )
{
    const bool mayBeBoundary = CardBoundary::MayEndAsOne( a_line.m_text );
    if ( !m_isOpen || m_isSoftBreakOpen || m_isBehindEmptyLine ||
         ( !m_head->m_isPlain && MayContinueInFold( Head(), m_text.substr( m_begin ) ) ) ||
         ( mayBeBoundary && CardBoundary::Of( a_line.m_text ).m_kind != CardBoundary::Kind::None ) )
        return Step::Stop;
    if ( HoldsFoldEvidence() )
        NoteFold( a_line );
    m_hasFolds = true;
    m_lastBegin = a_line.m_begin + 1;
    // An ASCII character ends an unfinished one.
    if ( a_line.m_isWide || m_isWide )
        m_census.Take( a_line.m_text.substr( 1, a_line.m_isWide ? std::string_view::npos : 1 ) );
    m_isWide = m_isWide || a_line.m_isWide;
    m_hasControls = m_hasControls || a_line.m_hasControls;
    m_end = a_line.m_end;
    return EndsPlainly( a_line.m_text ) ? Step::Next : Step::Stop;
}

PlainCard::Step PlainCard::TakeSoftBreak( const Line& a_line )
{
    const quint32 equals = m_lastTextEnd - 1;
    // No name begins with "=".
    const bool mayBeProperty = a_line.m_text.front() != '=';
    if ( a_line.m_isWide || m_isWide ||
         ( mayBeProperty && LooksOf( LineHead::Of( a_line.m_text ), a_line.m_text ) == LineLooks::ClearlyProperty ) )
        return Step::Stop;
    m_joins.Add( { equals - m_begin, a_line.m_begin - equals, PimContactJoin::SoftBreak } );
    m_hasControls = m_hasControls || a_line.m_hasControls;
    m_end = a_line.m_end;
    return EndsPlainly( a_line.m_text ) ? Step::Next : Step::Stop;
}

void PlainCard::CloseLine()
{
    if ( !m_isOpen )
        return;
    m_isOpen = false;
    const std::string_view line( m_text.data() + m_begin, m_lastTextEnd - m_begin );
    const std::string_view value( line.data() + Head().m_valueBegin, line.size() - Head().m_valueBegin );
    if ( m_isWide )
        CloseCharacters();
    if ( m_facts.m_version == PimContactVersion::Unknown )
        m_facts.m_version = VersionOf( Head().m_name.In( line ), value );
    const bool mayHaveEscapes = m_facts.m_version != PimContactVersion::V21 &&
                                Head().m_encoding != PimContactEncoding::Base64 &&
                                std::memchr( value.data(), '\\', value.size() ) != nullptr;
    if ( mayHaveEscapes && HasUnknownEscapes( line, Entry() ) )
        NoteOddity( PimContactOddity::UnknownEscape );
    if ( m_hasControls )
    {
        NoteOddity( PimContactOddity::ControlCharacters );
        m_facts.m_mayBeShifted = m_facts.m_mayBeShifted || MayBeShifted( line );
    }
    if ( m_head->m_entry.IsNull() )
        WriteEntry();
    else
        m_index.AddPlain( m_head->m_entry, m_end - m_begin, m_hasFolds, m_joins.Bytes() );
    Wrote( EntryKind::Line, m_end - m_begin );
}

const KnownHead* PlainCard::ReadHead( std::string_view a_line )
{
    if ( const KnownHead* const known = m_sequence.Next( a_line ) )
        return known;
    KnownHead& read = m_head == m_heads.data() ? m_heads.back() : m_heads.front();
    LineHead& head = read.m_head;
    read.m_isPlain = head.Read( a_line );
    head.m_property = PropertyOf( head.m_name.In( a_line ) );
    m_sequence.Learn( a_line, head, read.m_isPlain );
    return &read;
}

PlainCard::Step PlainCard::TakeProperty( const Line& a_line )
{
    const KnownHead* const head = ReadHead( a_line.m_text );
    if ( ( !head->m_isPlain && !IsSurelyProperty( head->m_head ) ) || IsAgent( head->m_head, a_line.m_text ) )
        return Step::Stop;
    CloseLine();
    WriteBlankUpTo( a_line.m_begin );
    m_linesClosed = m_physicalLines - 1;
    m_head = head;
    m_isOpen = true;
    m_isBehindEmptyLine = false;
    m_begin = a_line.m_begin;
    m_end = a_line.m_end;
    m_lastBegin = a_line.m_begin;
    m_hasFolds = false;
    m_isWide = a_line.m_isWide;
    m_hasControls = a_line.m_hasControls;
    if ( a_line.m_isWide )
        m_census.Take( a_line.m_text );
    m_joins.Clear();
    return EndsPlainly( a_line.m_text ) ? Step::Next : Step::Stop;
}

PlainCard::Step PlainCard::TakeEnd( const Line& a_line, bool a_isMended )
{
    if ( m_isSoftBreakOpen )
        return Step::Stop;
    CloseLine();
    WriteBlankUpTo( a_line.m_begin );
    WriteBoundary( a_line.m_end - a_line.m_begin, a_isMended );
    return Step::End;
}

PlainCard::Step PlainCard::TakeLine( const Line& a_line )
{
    if ( a_line.m_text.empty() )
    {
        m_isBehindEmptyLine = true;
        return m_isSoftBreakOpen ? Step::Stop : Step::Next;
    }
    if ( IsBlank( a_line.m_text.front() ) )
        return TakeContinuation( a_line );
    if ( CardBoundary::MayBe( a_line.m_text ) )
    {
        if ( a_line.m_text == s_kEnd )
            return TakeEnd( a_line, false );
        const CardBoundary boundary = CardBoundary::Of( a_line.m_text );
        if ( boundary.m_kind == CardBoundary::Kind::End && IsBareBoundary( boundary ) )
            return TakeEnd( a_line, boundary.m_isMended );
        if ( boundary.m_kind != CardBoundary::Kind::None )
            return Step::Stop;
    }
    return m_isSoftBreakOpen ? TakeSoftBreak( a_line ) : TakeProperty( a_line );
}

bool PlainCard::Begin( std::string_view a_text )
{
    if ( a_text.size() <= s_kBegin.size() || Upper( a_text.front() ) != s_kBegin.front() )
        return false;
    const char* const begin = a_text.data();
    const char* const end = begin + a_text.size();
    const char* lineEnd = begin + s_kBegin.size();
    bool isMended = false;
    if ( !IsLineEndByte( *lineEnd ) || a_text.substr( 0, s_kBegin.size() ) != s_kBegin )
    {
        lineEnd = LineEndSearch().Find( begin, begin + std::min( a_text.size(), s_kLongestBegin ) );
        const CardBoundary boundary = CardBoundary::Of( a_text.substr( 0, static_cast<size_t>( lineEnd - begin ) ) );
        if ( lineEnd == end || boundary.m_kind != CardBoundary::Kind::Begin || !IsBareBoundary( boundary ) )
            return false;
        isMended = boundary.m_isMended;
    }
    const int endLength = LineEndSearch::LengthOfEnd( lineEnd, end, false );
    if ( endLength == 0 )
        return false;
    m_lineEnd = LineEndSearch::KindOf( lineEnd, endLength );
    m_endLength = endLength;
    m_facts = CardFacts();
    m_sequence.Restart();
    m_index.Clear();
    if ( m_isOpen )
        m_census = Utf8Census();
    m_isOpen = false;
    m_isSoftBreakOpen = false;
    m_isBehindEmptyLine = false;
    m_written = 0;
    m_physicalLines = m_linesClosed = 1;
    WriteBoundary( static_cast<quint32>( lineEnd - begin ) + static_cast<quint32>( endLength ), isMended );
    WaitForLineEnd( LineEndSearch(), m_written, m_written );
    return true;
}

PlainCard::Result PlainCard::Read( std::string_view a_text )
{
    const int endLength = m_endLength;
    const char endByte = m_lineEnd == PimContactLineEnd::Lf ? '\n' : '\r';
    const char* const begin = a_text.data();
    const char* const end = begin + a_text.size();
    m_text = a_text;
    LineEndSearch search = m_search;
    const char* searched = begin + m_searched;
    for ( const char* place = begin + m_next;; search = LineEndSearch() )
    {
        const char* const lineEnd = search.Find( searched, end );
        const int length = lineEnd == end ? 0 : LineEndSearch::LengthOfEnd( lineEnd, end, false );
        if ( length == 0 )
        {
            WaitForLineEnd( search, static_cast<size_t>( place - begin ), static_cast<size_t>( lineEnd - begin ) );
            return Result::Open;
        }
        if ( *lineEnd != endByte || length != endLength )
            return Result::NotPlain;
        const char* const next = lineEnd + endLength;
        ++m_physicalLines;
        const Step step = TakeLine( { std::string_view( place, static_cast<size_t>( lineEnd - place ) ),
                                      static_cast<quint32>( place - begin ), static_cast<quint32>( next - begin ),
                                      search.IsWide(), search.HasControls() } );
        if ( step != Step::Next )
            return step == Step::End ? Result::Whole : Result::NotPlain;
        place = searched = next;
    }
}

void PlainCard::WaitForLineEnd( const LineEndSearch& a_search, size_t a_next, size_t a_searched )
{
    m_search = a_search;
    m_next = a_next;
    m_searched = a_searched;
}

// The folds of a line that is not closed are not counted if another reader continues.
void PlainCard::NoteFold( const Line& a_line )
{
    if ( !m_hasFolds )
        m_foldsClosed = m_facts.m_folds;
    const std::string_view before( m_text.data() + m_lastBegin, m_lastTextEnd - m_lastBegin );
    const std::string_view behind = a_line.m_text.substr( 1 );
    if ( !behind.empty() )
        m_facts.m_folds.TakeFold( before, m_hasFolds, behind, !m_isWide && !a_line.m_isWide );
}

CardFacts PlainCard::FactsClosed() const
{
    CardFacts facts = m_facts;
    if ( m_isOpen && m_hasFolds && HoldsFoldEvidence() )
        facts.m_folds = m_foldsClosed;
    return facts;
}

void PlainCard::CloseCharacters()
{
    m_facts.m_isWide = true;
    m_census.EndText();
    if ( m_census.IsValid() )
        return;
    m_facts.m_isValidUtf8 = false;
    m_census = Utf8Census();
}

void PlainCard::NoteOddity( PimContactOddity a_oddity )
{
    m_oddHead = { Head(), false, HeadEntry() };
    m_oddHead.m_head.m_oddities |= a_oddity;
    m_head = &m_oddHead;
}

void PlainCard::WriteEntry()
{
    const IndexEntry entry = Entry();
    m_index.Add( entry );
    m_facts.CountOddities( entry.m_oddities );
}

// A plain card has no joins that take blanks.
IndexEntry PlainCard::Entry() const
{
    IndexEntry entry;
    entry.m_length = m_end - m_begin;
    entry.SetHead( Head() );
    entry.m_hasFolds = m_hasFolds;
    entry.m_joins = m_joins.Bytes();
    return entry;
}

void PlainCard::WriteBlank( quint32 a_length )
{
    m_index.AddPart( EntryKind::Blank, a_length );
    Wrote( EntryKind::Blank, a_length );
}

} // namespace PimManager::Contacts
