#include "Text/Uri.h"

#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

bool IsSchemeByte( char a_byte )
{
    return IsNameByte( a_byte ) || a_byte == '+' || a_byte == '.';
}

bool IsLetter( char a_byte )
{
    return Upper( a_byte ) >= 'A' && Upper( a_byte ) <= 'Z';
}

bool IsNoUriByte( char a_byte )
{
    return static_cast<unsigned char>( a_byte ) <= ' ';
}

} // namespace

size_t LengthOfScheme( std::string_view a_text )
{
    if ( a_text.empty() || !IsLetter( a_text[0] ) )
        return 0;
    const auto* const end = std::find_if_not( a_text.begin(), a_text.end(), IsSchemeByte );
    const auto length = static_cast<size_t>( end - a_text.begin() );
    return length > 1 && length < a_text.size() && a_text[length] == ':' ? length : 0;
}

bool IsUri( std::string_view a_text )
{
    return LengthOfScheme( a_text ) > 0 && std::none_of( a_text.begin(), a_text.end(), IsNoUriByte );
}

} // namespace PimManager::Contacts
