#include "Contact/ParameterValues.h"

#include "Contact/LabelMarks.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kLeastPreference = 100;

bool IsQuoteOrBackslash( char a_byte )
{
    return a_byte == '"' || a_byte == '\\';
}

} // namespace

std::string_view TypeWordIn( std::string_view a_value, QByteArray& a_buffer )
{
    if ( IsName( a_value ) )
        return a_value;
    std::string_view type = a_value;
    if ( std::any_of( type.begin(), type.end(), IsQuoteOrBackslash ) )
    {
        Empty( a_buffer );
        std::copy_if( type.begin(), type.end(), std::back_inserter( a_buffer ),
                      []( char a_byte ) { return !IsQuoteOrBackslash( a_byte ); } );
        type = ViewOf( a_buffer );
    }
    type.remove_prefix( std::min( type.find_first_not_of( '=' ), type.size() ) );
    return WithoutLabelMarks( Unwrapped( Trimmed( type ), "'", "'" ) );
}

bool IsPreferredType( std::string_view a_word )
{
    return IsSameWord( a_word, "PREF" );
}

int PreferenceIn( std::string_view a_value )
{
    const std::string_view value = Trimmed( a_value );
    int preference = 0;
    const auto result = std::from_chars( value.data(), value.data() + value.size(), preference );
    const bool isNumber = result.ec == std::errc() && result.ptr == value.data() + value.size();
    return isNumber && preference >= 1 && preference <= s_kLeastPreference ? preference : 0;
}

} // namespace PimManager::Contacts
