#include "Conformance/Uri.h"

#include "Conformance/ValueForms.h"
#include "Contact/GeoValue.h"
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

bool IsScheme( std::string_view a_text )
{
    return !a_text.empty() && IsLetter( a_text.front() ) && std::all_of( a_text.begin(), a_text.end(), IsSchemeByte );
}

// Any character of RFC 3986, section 2, except "%".
bool IsUriByte( char a_byte )
{
    return a_byte > ' ' && IsAsciiByte( a_byte ) &&
           std::string_view( "\"<>\\^`{|}%\x7F" ).find( a_byte ) == std::string_view::npos;
}

bool HasOnlyUriCharacters( std::string_view a_text )
{
    for ( size_t i = 0; i < a_text.size(); ++i )
    {
        const bool isEscape =
            a_text[i] == '%' && i + 2 < a_text.size() && IsHexDigit( a_text[i + 1] ) && IsHexDigit( a_text[i + 2] );
        if ( !isEscape && !IsUriByte( a_text[i] ) )
            return false;
    }
    return true;
}

// Positions in another reference system cannot be checked.
bool IsGeo( std::string_view a_uri )
{
    const size_t parameters = std::min( a_uri.find( ';' ), a_uri.size() );
    return a_uri.substr( parameters ).substr( 0, 5 ) == ";crs=" || GeoPositionOf( a_uri, PimContactVersion::V40 );
}

} // namespace

bool IsConformingUri( std::string_view a_text )
{
    const size_t colon = a_text.find( ':' );
    if ( colon == std::string_view::npos )
        return false;
    const std::string_view scheme = a_text.substr( 0, colon );
    return IsScheme( scheme ) && HasOnlyUriCharacters( a_text.substr( colon + 1 ) ) &&
           ( !IsSameWord( scheme, "geo" ) || IsGeo( a_text ) );
}

} // namespace PimManager::Contacts
