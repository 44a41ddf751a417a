#include "PimVCardLineCutter.h"

#include "PimVCardBytes.h"
#include "PimVCardUtf8.h"

#include <QtEndian>

namespace PimManager::vCardImport
{

namespace
{

// The bytes of a word that are below 0x0E have their high bit set; so have some beyond ASCII.
quint64 LowBytesOf( quint64 a_word )
{
    return ( a_word - 0x0E0E0E0E0E0E0E0E ) & ~a_word & 0x8080808080808080;
}

} // namespace

void PimVCardLineCutter::Begin( qint64 a_offset, bool a_isUtf16 )
{
    m_offset = a_offset;
    m_isUtf16 = a_isUtf16;
}

void PimVCardLineCutter::Feed( const QByteArray& a_piece )
{
    m_buffer.remove( 0, m_next );
    m_searched -= m_next;
    m_next = 0;
    m_buffer += a_piece;
}

const char* PimVCardLineCutter::FindEnd( const char* a_from ) const
{
    const char* const end = BufferEnd();
    const char* place = a_from;
    for ( ; end - place >= 8 && LowBytesOf( qFromLittleEndian<quint64>( place ) ) == 0; place += 8 )
    {
    }
    while ( place != end && *place != '\n' && *place != '\r' )
        ++place;
    return place;
}

// Empty while it is not certain where the line end ends.
std::string_view PimVCardLineCutter::LineEndAt( const char* a_place ) const
{
    const std::string_view rest( a_place, static_cast<size_t>( BufferEnd() - a_place ) );
    if ( rest.front() == '\n' )
        return rest.substr( 0, 1 );
    if ( rest.substr( 0, 2 ) == "\r\n" )
        return rest.substr( 0, 2 );
    if ( rest.substr( 0, 3 ) == "\r\r\n" )
        return rest.substr( 0, 3 );
    const bool isOpen = rest == "\r" || rest == "\r\r";
    return isOpen && !m_isFinished ? std::string_view() : rest.substr( 0, 1 );
}

bool PimVCardLineCutter::Next( PimVCardPhysicalLine& a_line )
{
    const char* const begin = m_buffer.constData() + m_next;
    const char* place = m_buffer.constData() + m_searched;
    do
    {
        place = FindEnd( place );
    } while ( place != BufferEnd() && *place != '\n' && *place != '\r' );
    m_searched = static_cast<int>( place - m_buffer.constData() );
    const std::string_view end = place == BufferEnd() ? std::string_view() : LineEndAt( place );
    if ( end.empty() && ( !m_isFinished || ( place == begin && !m_isLong ) ) )
        return false;

    a_line.m_text = std::string_view( begin, static_cast<size_t>( place - begin ) );
    a_line.m_end = end;
    a_line.m_position = { m_number++, 1, m_offset };
    a_line.m_isLong = m_isLong;
    m_offset += m_lengthLetGo + LengthInFile( a_line.m_text ) + LengthInFile( end );
    m_next = static_cast<int>( place - m_buffer.constData() + static_cast<qint64>( end.size() ) );
    m_searched = m_next;
    m_isLong = false;
    m_lengthLetGo = 0;
    return true;
}

std::string_view PimVCardLineCutter::Open() const
{
    return std::string_view( m_buffer.constData() + m_next, static_cast<size_t>( m_searched - m_next ) );
}

void PimVCardLineCutter::LetGo()
{
    m_lengthLetGo += LengthInFile( Open() );
    m_next = m_searched;
    m_isLong = true;
}

qint64 PimVCardLineCutter::LengthInFile( std::string_view a_text ) const
{
    return m_isUtf16 ? 2 * Utf16Units( a_text ) : static_cast<qint64>( a_text.size() );
}

} // namespace PimManager::vCardImport
