#include "Lines/LinePieces.h"

#include "Lines/LineScanner.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <cstring>

namespace PimManager::Contacts
{

LinePieces::LinePieces( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style,
                        ByteRange a_range ) :
    m_line( a_line ),
    m_joins( a_entry ),
    m_style( a_style ),
    m_range( a_range ),
    m_place( a_range.m_begin )
{
    for ( ReadJoin(); m_hasNext && m_next.m_begin < m_range.m_begin; ReadJoin() )
        m_place = std::clamp( m_next.End(), m_place, m_range.End() );
}

void LinePieces::ReadJoin()
{
    m_hasNext = m_joins.Next( m_next );
}

quint32 LinePieces::FindBreak() const
{
    const quint32 end = m_hasNext ? std::min( m_next.m_begin, m_range.End() ) : m_range.End();
    const char* const begin = m_line.data() + m_place;
    return static_cast<quint32>( LineEndSearch().Find( begin, m_line.data() + end ) - m_line.data() );
}

bool LinePieces::Next()
{
    if ( m_isAtEnd )
        return false;
    const quint32 end = FindBreak();
    m_text = m_line.substr( m_place, end - m_place );
    m_lineFeeds = m_lineFeedsBefore;
    m_join = m_joinBefore;
    m_isAtEnd = end >= m_range.End();
    if ( !m_isAtEnd )
        StepOver( end );
    return true;
}

void LinePieces::StepOver( quint32 a_break )
{
    if ( m_hasNext && a_break == m_next.m_begin )
    {
        m_place = std::min( m_next.End(), m_range.End() );
        m_lineFeedsBefore = m_next.m_lineFeeds;
        m_joinBefore = m_next.m_kind;
        ReadJoin();
        return;
    }
    const char* const end = m_line.data() + m_line.size();
    const char* const place = AfterFold( m_line.data() + a_break, end, m_style );
    m_place = std::min( static_cast<quint32>( place - m_line.data() ), m_range.End() );
    m_lineFeedsBefore = 0;
    m_joinBefore = PimContactJoin::Fold;
}

const char* LinePieces::AfterFold( const char* a_break, const char* a_lineEnd, PimContactFoldStyle a_style )
{
    const char* const place = a_break + LineEndSearch::LengthOfEnd( a_break, a_lineEnd, true );
    const bool doesBlankGo = a_style == PimContactFoldStyle::BlankRemoved && place < a_lineEnd && IsBlank( *place );
    return doesBlankGo ? place + 1 : place;
}

namespace
{

char* Copy( std::string_view a_text, char* a_out )
{
    if ( !a_text.empty() )
        std::memcpy( a_out, a_text.data(), a_text.size() );
    return a_out + a_text.size();
}

// Most continued lines have nothing but plain folds.
char* CopyFolded( std::string_view a_line, PimContactFoldStyle a_style, ByteRange a_range, char* a_out )
{
    const char* place = a_line.data() + a_range.m_begin;
    const char* const end = a_line.data() + a_range.End();
    const char* const lineEnd = a_line.data() + a_line.size();
    for ( ;; )
    {
        const char* const textEnd = LineEndSearch().Find( place, end );
        a_out = Copy( std::string_view( place, static_cast<size_t>( textEnd - place ) ), a_out );
        if ( textEnd == end )
            return a_out;
        place = std::min( LinePieces::AfterFold( textEnd, lineEnd, a_style ), end );
    }
}

// Nor do most lines with soft line breaks have other breaks.
char* CopyJoined( std::string_view a_line, const IndexEntry& a_entry, ByteRange a_range, char* a_out )
{
    JoinReader joins( a_entry );
    quint32 place = a_range.m_begin;
    for ( LineJoin join; joins.Next( join ) && join.m_begin < a_range.End(); )
    {
        if ( join.m_begin >= a_range.m_begin )
        {
            a_out = Copy( a_line.substr( place, join.m_begin - place ), a_out );
            a_out = std::fill_n( a_out, join.m_lineFeeds, '\n' );
        }
        place = std::clamp( join.End(), place, a_range.End() );
    }
    return Copy( a_line.substr( place, a_range.End() - place ), a_out );
}

char* CopyPieces( LinePieces a_pieces, char* a_out )
{
    while ( a_pieces.Next() )
    {
        a_out = std::fill_n( a_out, a_pieces.LineFeeds(), '\n' );
        a_out = Copy( a_pieces.Text(), a_out );
    }
    return a_out;
}

} // namespace

QByteArray Unfolded( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style,
                     ByteRange a_range )
{
    QByteArray text;
    AppendUnfolded( a_line, a_entry, a_style, a_range, text );
    return text;
}

// A break has at least as many bytes as line feeds, unless the part ends inside the break.
void AppendUnfolded( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style, ByteRange a_range,
                     QByteArray& a_out )
{
    constexpr int s_kMostLineFeeds = 3;
    const auto before = a_out.size();
    a_out.resize( before + static_cast<int>( a_range.m_length ) + s_kMostLineFeeds );
    char* const begin = a_out.data();
    char* end = begin + before;
    if ( a_entry.m_joins.m_size == 0 )
        end = CopyFolded( a_line, a_style, a_range, end );
    else if ( !a_entry.m_hasFolds )
        end = CopyJoined( a_line, a_entry, a_range, end );
    else
        end = CopyPieces( LinePieces( a_line, a_entry, a_style, a_range ), end );
    a_out.resize( static_cast<int>( end - begin ) );
}

} // namespace PimManager::Contacts
