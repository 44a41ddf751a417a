#include "Conformance/LayoutCheck.h"

#include "Lines/LineScanner.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactFindingCode;

constexpr size_t s_kLongestLine = 75;

StandardSection SectionOfLines( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return { Standard::VCard21, "2.1.3" };
    case PimContactVersion::V30:
        return { Standard::Rfc2426, "2.6" };
    default:
        return { Standard::Rfc6350, "3.2" };
    }
}

bool IsTailOfCharacter( char a_byte )
{
    return ( static_cast<uchar>( a_byte ) & 0xC0U ) == 0x80;
}

} // namespace

void LayoutCheck::Check( const IndexedLine& a_part )
{
    const EntryKind kind = a_part.m_entry.m_kind;
    const bool isOwn = kind == EntryKind::Line || kind == EntryKind::Boundary;
    m_isFirst = true;
    m_isLong = false;
    m_isDivided = false;
    const char* place = a_part.m_bytes.data();
    const char* const end = place + a_part.m_bytes.size();
    while ( place < end )
    {
        const char* const lineEnd = LineEndSearch().Find( place, end );
        const auto length = lineEnd == end ? 0 : LineEndSearch::LengthOfEnd( lineEnd, end, true );
        if ( isOwn )
        {
            CheckPiece( a_part, std::string_view( place, static_cast<size_t>( lineEnd - place ) ) );
            CheckLineEnd( std::string_view( lineEnd, static_cast<size_t>( length ) ) );
        }
        place = lineEnd + length;
        m_line += length > 0 ? 1 : 0;
    }
    Flush();
}

// What follows a fold must not continue with a character that precedes it.
void LayoutCheck::CheckPiece( const IndexedLine& a_part, std::string_view a_text )
{
    m_isLong = m_isLong || a_text.size() > s_kLongestLine;
    const bool isFold = !m_isFirst && a_text.size() > 1 && IsBlank( a_text.front() );
    if ( isFold && a_part.m_entry.m_charset == LineCharset::Utf8 && !m_piece.empty() )
        m_isDivided = m_isDivided || ( IsTailOfCharacter( a_text[1] ) && !IsAsciiByte( m_piece.back() ) );
    m_isFirst = false;
    m_piece = a_text;
}

void LayoutCheck::CheckLineEnd( std::string_view a_lineEnd )
{
    if ( a_lineEnd == "\r\n" || m_isLineEndReported )
        return;
    m_isLineEndReported = true;
    m_violations.AddOfCard( Code::NotCrLf, m_line, SectionOfLines( m_version ) );
}

// Version 2.1 has no limit for lines.
void LayoutCheck::Flush()
{
    if ( m_isLong && m_version != PimContactVersion::V21 )
        m_violations.Add( Code::LongLine, SectionOfLines( m_version ) );
    if ( m_isDivided )
        m_violations.Add( Code::FoldInCharacter, SectionOfLines( m_version ) );
}

} // namespace PimManager::Contacts
