#include "Contact/DecodedParts.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/PercentEncoding.h"
#include "Text/WhiteSpace.h"

namespace PimManager::Contacts
{

DecodedParts::DecodedParts( std::string_view a_text, QByteArray& a_buffer ) :
    m_buffer( a_buffer )
{
    Empty( m_buffer );
    if ( a_text.find_first_of( "%\\" ) != std::string_view::npos )
        m_buffer.reserve( static_cast<int>( 2 * a_text.size() ) );
}

std::string_view DecodedParts::PercentDecoded( std::string_view a_part )
{
    if ( a_part.find( '%' ) == std::string_view::npos )
        return WithoutOuterSpace( a_part );
    const qsizetype place = m_buffer.size();
    AppendPercentDecoded( a_part, m_buffer );
    return WithoutOuterSpace( From( place ) );
}

std::string_view DecodedParts::Unescaped( std::string_view a_part )
{
    size_t backslash = a_part.find( '\\' );
    if ( backslash == std::string_view::npos )
        return a_part;
    const qsizetype place = m_buffer.size();
    size_t copied = 0;
    while ( backslash < a_part.size() - 1 )
    {
        Append( m_buffer, a_part.substr( copied, backslash - copied ) );
        copied = backslash + 1;
        backslash = a_part.find( '\\', copied + 1 );
    }
    Append( m_buffer, a_part.substr( copied ) );
    return From( place );
}

std::string_view DecodedParts::From( qsizetype a_place ) const
{
    return ViewOf( m_buffer ).substr( static_cast<size_t>( a_place ) );
}

} // namespace PimManager::Contacts
