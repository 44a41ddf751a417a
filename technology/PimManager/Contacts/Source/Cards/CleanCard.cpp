#include "Cards/CleanCard.h"

#include "Cards/CardBoundaries.h"
#include "Lines/LineScanner.h"
#include "Lines/ValueEscapes.h"
#include "Text/Bytes.h"

#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kBegin = "BEGIN:VCARD";
constexpr std::string_view s_kEnd = "END:VCARD";
constexpr std::string_view s_kAgent = "AGENT";

int LengthOf( PimContactLineEnd a_lineEnd )
{
    switch ( a_lineEnd )
    {
    case PimContactLineEnd::CrLf:
        return 2;
    case PimContactLineEnd::CrCrLf:
        return 3;
    default:
        return 1;
    }
}

// The index of a clean line says nothing about gaps, such as that before the name in `.TEL:1`.
bool HasGaps( const LineHead& a_head )
{
    const quint32 nameBegin = a_head.m_group.m_length == 0 ? 0 : a_head.m_group.m_length + 1;
    const bool hasParameters = a_head.m_parameters.m_length > 0;
    const quint32 colon = hasParameters ? a_head.m_parameters.End() : a_head.m_name.End();
    return a_head.m_group.m_begin != 0 || a_head.m_name.m_begin != nameBegin ||
           ( hasParameters && a_head.m_parameters.m_begin != a_head.m_name.End() ) || a_head.m_valueBegin != colon + 1;
}

bool IsClean( const LineHead& a_head )
{
    return a_head.m_hasColon && !a_head.m_oddities && !a_head.m_hasWordsForParameters && !HasGaps( a_head );
}

bool IsAgent( const LineHead& a_head, std::string_view a_line )
{
    return a_head.m_name.m_length == s_kAgent.size() && IsSameWord( a_head.m_name.In( a_line ), s_kAgent );
}

} // namespace

// Notes a soft line break. Blanks behind the "=", and an encoded one in a value that is not encoded, are not clean.
bool CleanCard::EndsCleanly( std::string_view a_line )
{
    m_lastTextEnd = static_cast<quint32>( a_line.data() + a_line.size() - m_text.data() );
    const char last = a_line.back();
    m_isSoftBreakOpen = last == '=' && m_head.m_encoding == PimContactEncoding::QuotedPrintable;
    if ( last == '=' )
        return m_head.m_encoding != PimContactEncoding::None;
    return !IsBlank( last ) || !EndsWith( TrimmedRight( a_line ), "=" );
}

CleanCard::Step CleanCard::TakeContinuation( std::string_view a_line, quint32 a_end, bool a_isWide )
{
    const bool mayBeBoundary = CardBoundary::MayEndAsOne( a_line );
    if ( !m_isOpen || m_isSoftBreakOpen ||
         ( mayBeBoundary && CardBoundary::Of( a_line ).m_kind != CardBoundary::Kind::None ) )
        return Step::Stop;
    m_hasFolds = true;
    // An ASCII character ends one that was not finished.
    if ( a_isWide || m_isWide )
        m_census.Take( a_line.substr( 1, a_isWide ? std::string_view::npos : 1 ) );
    m_isWide = m_isWide || a_isWide;
    m_end = a_end;
    return EndsCleanly( a_line ) ? Step::Next : Step::Stop;
}

CleanCard::Step CleanCard::TakeSoftBreak( std::string_view a_line, quint32 a_begin, quint32 a_end, bool a_isWide )
{
    const quint32 equals = m_lastTextEnd - 1;
    // No name begins with "=".
    const bool mayBeProperty = a_line.front() != '=';
    if ( a_isWide || m_isWide ||
         ( mayBeProperty && LooksOf( LineHead::Of( a_line ), a_line ) == LineLooks::ClearlyProperty ) )
        return Step::Stop;
    m_joins.Add( { equals - m_begin, a_begin - equals, PimContactJoin::SoftBreak } );
    m_end = a_end;
    return EndsCleanly( a_line ) ? Step::Next : Step::Stop;
}

CleanCard::Step CleanCard::TakeProperty( std::string_view a_line, quint32 a_begin, quint32 a_end, bool a_isWide )
{
    const bool isPlain = m_head.Read( a_line );
    if ( ( !isPlain && !IsClean( m_head ) ) || IsAgent( m_head, a_line ) )
        return Step::Stop;
    WriteBlankUpTo( a_begin );
    m_isOpen = true;
    m_begin = a_begin;
    m_end = a_end;
    m_hasFolds = false;
    m_isWide = a_isWide;
    if ( a_isWide )
        m_census.Take( a_line );
    m_joins.Clear();
    return EndsCleanly( a_line ) ? Step::Next : Step::Stop;
}

CleanCard::Step CleanCard::TakeLine( std::string_view a_line, quint32 a_begin, quint32 a_end, bool a_isWide )
{
    if ( a_line.empty() )
        return m_isSoftBreakOpen || !CloseLine() ? Step::Stop : Step::Next;
    if ( IsBlank( a_line.front() ) )
        return TakeContinuation( a_line, a_end, a_isWide );
    const bool mayBeBoundary = CardBoundary::MayBe( a_line );
    if ( mayBeBoundary && a_line == s_kEnd )
    {
        if ( m_isSoftBreakOpen || !CloseLine() )
            return Step::Stop;
        WriteBlankUpTo( a_begin );
        m_index.AddBoundary( a_end - a_begin, false );
        Wrote( EntryKind::Boundary, a_end - a_begin );
        return Step::End;
    }
    if ( mayBeBoundary && CardBoundary::Of( a_line ).m_kind != CardBoundary::Kind::None )
        return Step::Stop;
    if ( m_isOpen && m_isSoftBreakOpen )
        return TakeSoftBreak( a_line, a_begin, a_end, a_isWide );
    return CloseLine() ? TakeProperty( a_line, a_begin, a_end, a_isWide ) : Step::Stop;
}

quint32 CleanCard::Read( std::string_view a_text, PimContactLineEnd a_lineEnd )
{
    const int endLength = LengthOf( a_lineEnd );
    const char endByte = a_lineEnd == PimContactLineEnd::Lf ? '\n' : '\r';
    const char* const end = a_text.data() + a_text.size();
    m_text = a_text;
    m_facts = CardFacts();
    m_index.Clear();
    m_isOpen = false;
    m_written = 0;
    const auto beginLength = static_cast<quint32>( s_kBegin.size() ) + static_cast<quint32>( endLength );
    m_index.AddBoundary( beginLength, false );
    Wrote( EntryKind::Boundary, beginLength );
    m_physicalLines = 1;
    for ( const char* place = a_text.data() + beginLength; place < end; )
    {
        LineEndSearch search;
        const char* const lineEnd = search.Find( place, end );
        if ( lineEnd == end || *lineEnd != endByte || search.HasControls() ||
             LineEndSearch::LengthOfEnd( lineEnd, end, false ) != endLength )
            return 0;
        const char* const next = lineEnd + endLength;
        ++m_physicalLines;
        const std::string_view line( place, static_cast<size_t>( lineEnd - place ) );
        const Step step = TakeLine( line, static_cast<quint32>( place - a_text.data() ),
                                    static_cast<quint32>( next - a_text.data() ), search.IsWide() );
        if ( step != Step::Next )
            return step == Step::End ? static_cast<quint32>( next - a_text.data() ) : 0;
        place = next;
    }
    return 0;
}

bool CleanCard::CloseLine()
{
    if ( !m_isOpen )
        return true;
    m_isOpen = false;
    if ( m_isWide && !IsValidUtf8() )
        return false;
    const std::string_view line = m_text.substr( m_begin, m_lastTextEnd - m_begin );
    const std::string_view value = line.substr( m_head.m_valueBegin );
    if ( m_facts.m_version == PimContactVersion::Unknown )
        m_facts.m_version = VersionOf( m_head.m_name.In( line ), value );
    const bool mayHaveEscapes = m_facts.m_version != PimContactVersion::V21 &&
                                m_head.m_encoding != PimContactEncoding::Base64 &&
                                std::memchr( value.data(), '\\', value.size() ) != nullptr;
    if ( mayHaveEscapes && UnknownEscapesIn( line, Entry() ).m_count > 0 )
        return false;
    m_index.AddClean( m_head, m_end - m_begin, m_hasFolds, m_joins.Bytes() );
    Wrote( EntryKind::Line, m_end - m_begin );
    if ( m_hasFolds && MayFoldByLength( m_facts.m_version ) )
        m_facts.m_folds.Take( line, Entry(), !m_isWide );
    return true;
}

bool CleanCard::IsValidUtf8()
{
    m_facts.m_isWide = true;
    m_census.EndText();
    const bool isValid = m_census.IsValid();
    m_census = isValid ? m_census : Utf8Census();
    return isValid;
}

// What the checks of a line need of its entry.
IndexEntry CleanCard::Entry() const
{
    IndexEntry entry;
    entry.m_valueBegin = m_head.m_valueBegin;
    entry.m_encoding = m_head.m_encoding;
    entry.m_hasFolds = m_hasFolds;
    entry.m_joins = m_joins.Bytes();
    return entry;
}

void CleanCard::WriteBlank( quint32 a_length )
{
    m_index.AddPart( EntryKind::Blank, a_length );
    Wrote( EntryKind::Blank, a_length );
}

void CleanCard::Wrote( EntryKind a_kind, quint32 a_length )
{
    m_written += a_length;
    ++m_facts.m_parts[static_cast<size_t>( a_kind )];
    m_facts.m_bytes[static_cast<size_t>( a_kind )] += a_length;
}

} // namespace PimManager::Contacts
