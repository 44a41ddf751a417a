#include "Lines/NamedCharset.h"

#include "Text/CharsetChoice.h"

namespace PimManager::Contacts
{

std::string_view NamedCharset( const LineHead& a_head, std::string_view a_line )
{
    if ( a_head.m_charset.m_length > 0 )
        return a_head.m_charset.In( a_line );
    ParameterSplitter splitter( a_head.m_parameters.In( a_line ) );
    for ( std::string_view parameter; splitter.Next( parameter ); )
    {
        if ( IsKnownCharset( parameter ) )
            return parameter;
    }
    return std::string_view();
}

} // namespace PimManager::Contacts
