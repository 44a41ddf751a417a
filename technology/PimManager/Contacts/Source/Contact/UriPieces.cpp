#include "Contact/UriPieces.h"

#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

bool RemoveScheme( std::string_view& a_text, std::string_view a_scheme )
{
    if ( a_text.size() < a_scheme.size() || Upper( a_text.front() ) != Upper( a_scheme.front() ) ||
         !IsSameText( a_text.substr( 0, a_scheme.size() ), a_scheme ) )
        return false;
    a_text.remove_prefix( a_scheme.size() );
    return true;
}

std::string_view TakeUpTo( char a_delimiter, std::string_view& a_rest )
{
    const size_t place = std::min( a_rest.find( a_delimiter ), a_rest.size() );
    const std::string_view taken = a_rest.substr( 0, place );
    a_rest.remove_prefix( std::min( place + 1, a_rest.size() ) );
    return taken;
}

} // namespace PimManager::Contacts
