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
    do
        ReadJoin();
    while ( m_hasNext && m_next.m_begin < m_place );
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
    m_place = a_break + static_cast<quint32>( LineEndSearch::LengthOfEnd( m_line.data() + a_break, end, true ) );
    const bool doesBlankGo = m_style == PimContactFoldStyle::BlankRemoved && m_place < m_line.size();
    m_place += doesBlankGo && IsBlank( m_line[m_place] ) ? 1 : 0;
    m_place = std::min( m_place, m_range.End() );
    m_lineFeedsBefore = 0;
    m_joinBefore = PimContactJoin::Fold;
}

QByteArray Unfolded( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style,
                     ByteRange a_range )
{
    QByteArray text;
    AppendUnfolded( LinePieces( a_line, a_entry, a_style, a_range ), a_range.m_length, text );
    return text;
}

// A break has at least as many bytes as line feeds, unless the part ends inside the break.
void AppendUnfolded( LinePieces a_pieces, quint32 a_length, QByteArray& a_out )
{
    constexpr int s_kMostLineFeeds = 3;
    const auto before = a_out.size();
    a_out.resize( before + static_cast<int>( a_length ) + s_kMostLineFeeds );
    char* out = a_out.data() + before;
    while ( a_pieces.Next() )
    {
        for ( int i = 0; i < a_pieces.LineFeeds(); ++i )
            *out++ = '\n';
        const std::string_view text = a_pieces.Text();
        if ( !text.empty() )
            std::memcpy( out, text.data(), text.size() );
        out += text.size();
    }
    a_out.resize( static_cast<int>( out - a_out.constData() ) );
}

} // namespace PimManager::Contacts
