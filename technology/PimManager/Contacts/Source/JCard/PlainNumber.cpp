#include "JCard/PlainNumber.h"

#include "Text/Bytes.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>

namespace PimManager::Contacts
{

namespace
{

// A larger exponent would make a short text long.
constexpr int s_kGreatestExponent = 30;

// The longest exponent, with the letter before it.
std::optional<int> ExponentIn( std::string_view a_text )
{
    if ( a_text.empty() )
        return 0;
    const bool isPositive = a_text.size() > 1 && a_text[1] == '+';
    const std::string_view digits = a_text.substr( isPositive ? 2 : 1 );
    const bool isNegative = !isPositive && !digits.empty() && digits.front() == '-';
    int exponent = 0;
    const auto result = std::from_chars( digits.data(), digits.data() + digits.size(), exponent );
    if ( !AreDigits( digits.substr( isNegative ? 1 : 0 ) ) || result.ec != std::errc() )
        return std::nullopt;
    return std::abs( exponent ) > s_kGreatestExponent ? std::nullopt : std::optional<int>( exponent );
}

void AppendDigits( const std::string& a_digits, int a_point, bool a_isInteger, std::string& a_out )
{
    const size_t first = std::min( a_digits.find_first_not_of( '0' ), a_digits.size() );
    const size_t point = a_point > 0 ? static_cast<size_t>( a_point ) : 0;
    if ( first < point )
        a_out.append( a_digits, first, point - first );
    else
        a_out += '0';
    if ( a_isInteger || point >= a_digits.size() )
        return;
    a_out += '.';
    a_out.append( a_digits, point );
}

} // namespace

bool AppendPlainNumber( std::string_view a_number, bool a_isInteger, std::string& a_out )
{
    const size_t sign = !a_number.empty() && a_number.front() == '-' ? 1 : 0;
    const size_t end = std::min( a_number.find_first_of( "eE" ), a_number.size() );
    const size_t dot = std::min( a_number.find( '.' ), end );
    const std::string_view whole = a_number.substr( sign, dot - sign );
    const std::string_view decimals = dot < end ? a_number.substr( dot + 1, end - dot - 1 ) : std::string_view();
    const std::optional<int> exponent = ExponentIn( a_number.substr( end ) );
    if ( !AreDigits( whole ) || ( dot < end && !AreDigits( decimals ) ) || !exponent )
        return false;
    const bool isPlain = end == a_number.size() && ( dot == end || !a_isInteger );
    if ( isPlain )
    {
        a_out.append( a_number );
        return true;
    }
    std::string digits( whole );
    digits += decimals;
    int point = static_cast<int>( whole.size() ) + *exponent;
    if ( point < 0 )
    {
        digits.insert( 0, static_cast<size_t>( -point ), '0' );
        point = 0;
    }
    digits.resize( std::max( digits.size(), static_cast<size_t>( point ) ), '0' );
    a_out.append( a_number.substr( 0, sign ) );
    AppendDigits( digits, point, a_isInteger, a_out );
    return true;
}

} // namespace PimManager::Contacts
