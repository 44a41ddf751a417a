#include "Numbers/DialledNumber.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

constexpr std::string_view s_kSanMarinoArea = "0549";
constexpr size_t s_kSanMarinoSize = 6;

/// \return true if the digits mean nothing else than they are.
bool IsAsWritten( std::string_view a_digits, uint a_form, const Home& a_home )
{
    const bool isNumber = ( a_form & ( WrittenNumber::Code | WrittenNumber::TooLong ) ) == 0 && !a_digits.empty();
    const bool hasCode = ( a_form & WrittenNumber::International ) != 0;
    return !isNumber || ( !hasCode && a_home.m_code == nullptr );
}

/// \return true if the number is complete, not one of a place in a region.
bool IsComplete( const CallingCode& a_code, std::string_view a_written, std::string_view a_national )
{
    return !a_code.HasTrunkPrefix() || a_national.size() != a_written.size() || a_national.size() == a_code.m_complete;
}

/// \return true if the number may begin with a calling code that lacks its `+`.
bool MayHaveCode( const CallingCode& a_code, std::string_view a_written, std::string_view a_national )
{
    return a_national.size() == a_written.size() && a_national.size() != a_code.m_complete &&
           CallingCodeOf( a_national ) == &a_code && a_code.IsLength( a_national.size() - a_code.Size() );
}

} // namespace

DialledNumber::DialledNumber( std::string_view a_digits, uint a_form, const Home& a_home ) :
    m_isTooLong( ( a_form & WrittenNumber::TooLong ) != 0 )
{
    if ( IsAsWritten( a_digits, a_form, a_home ) )
        m_digits.Add( a_digits );
    else if ( ( a_form & WrittenNumber::International ) != 0 )
        AddInternational( a_digits );
    else if ( const std::string_view rest = WithoutInternationalPrefix( *a_home.m_code, a_digits ); !rest.empty() )
        AddInternational( rest );
    else
        AddNational( a_digits, a_home );
}

std::string_view DialledNumber::Ending( size_t a_digits ) const
{
    const std::string_view digits = Digits();
    return digits.substr( digits.size() - std::min( digits.size(), a_digits ) );
}

void DialledNumber::AddInternational( std::string_view a_digits )
{
    const CallingCode* const code = CallingCodeOf( a_digits );
    m_country = Country::Written;
    if ( code == nullptr )
        m_digits.Add( a_digits );
    else
        AddWithCode( *code, 0, WithoutTrunkPrefix( *code, a_digits.substr( code->Size() ) ) );
}

void DialledNumber::AddNational( std::string_view a_digits, const Home& a_home )
{
    const CallingCode& code = *a_home.m_code;
    const std::string_view digits = WithoutTrunkPrefix( code, a_digits );
    if ( digits.size() == a_home.m_localSize )
    {
        m_country = Country::OfRegion;
        AddWithCode( code, a_home.m_area, digits );
    }
    else if ( code.IsLength( digits.size() ) && !MayHaveCode( code, a_digits, digits ) )
    {
        m_country = IsComplete( code, a_digits, digits ) ? Country::OfRegion : Country::Likely;
        AddWithCode( code, 0, digits );
    }
    else
        m_digits.Add( a_digits );
}

void DialledNumber::AddNumber( int a_number )
{
    constexpr int s_kBase = 10;
    if ( a_number >= s_kBase )
        AddNumber( a_number / s_kBase );
    m_digits.Add( static_cast<char>( '0' + a_number % s_kBase ) );
}

void DialledNumber::AddWithCode( const CallingCode& a_code, int a_area, std::string_view a_digits )
{
    AddNumber( a_code.m_code );
    m_codeSize = static_cast<uchar>( a_code.Size() );
    if ( a_area != 0 )
        AddNumber( a_area );
    if ( a_code.Is( CallingCode::SanMarino ) && a_digits.size() == s_kSanMarinoSize )
        m_digits.Add( s_kSanMarinoArea );
    if ( a_code.Is( CallingCode::Argentina ) )
        AddArgentinian( a_digits );
    else
        m_digits.Add( a_digits );
}

// Mobile numbers: 11 15 2345-6789 within the country is 9 11 2345-6789 after the calling code.
void DialledNumber::AddArgentinian( std::string_view a_digits )
{
    constexpr std::string_view s_kMobile = "15";
    constexpr size_t s_kSize = 12;
    constexpr size_t s_kLongestArea = 4;
    size_t area = a_digits.substr( 0, s_kMobile.size() ) == "11" ? s_kMobile.size() : s_kMobile.size() + 1;
    while ( area <= s_kLongestArea &&
            a_digits.substr( std::min( area, a_digits.size() ), s_kMobile.size() ) != s_kMobile )
        ++area;
    if ( a_digits.size() != s_kSize || area > s_kLongestArea )
    {
        m_digits.Add( a_digits );
        return;
    }
    m_digits.Add( '9' );
    m_digits.Add( a_digits.substr( 0, area ) );
    m_digits.Add( a_digits.substr( area + s_kMobile.size() ) );
}

// FNV-1a.
quint32 HashOf( std::string_view a_digits )
{
    constexpr quint32 s_kStart = 2166136261U;
    constexpr quint32 s_kFactor = 16777619U;
    quint32 hash = s_kStart;
    for ( const char digit : a_digits )
        hash = ( hash ^ static_cast<uchar>( digit ) ) * s_kFactor;
    return hash;
}

PimPhoneBookGrade GradeOf( const DialledNumber& a_number, const DialledNumber& a_other, size_t a_endingDigits )
{
    using Country = DialledNumber::Country;
    if ( a_number.Ending( a_endingDigits ) != a_other.Ending( a_endingDigits ) || a_number.m_digits.IsEmpty() )
        return PimPhoneBookGrade::None;
    if ( a_number.Digits() != a_other.Digits() || a_number.m_isTooLong || a_other.m_isTooLong )
        return PimPhoneBookGrade::Ending;
    if ( a_number.m_country == Country::Written && a_other.m_country == Country::Written )
        return PimPhoneBookGrade::Exact;
    const bool isSure = std::min( a_number.m_country, a_other.m_country ) >= Country::OfRegion;
    return isSure || a_number.m_country == a_other.m_country ? PimPhoneBookGrade::National : PimPhoneBookGrade::Ending;
}

PimPhoneBookGrade GradeWithExtensions( PimPhoneBookGrade a_grade, std::string_view a_extension,
                                       std::string_view a_other )
{
    if ( a_extension == a_other )
        return a_grade;
    const bool isOnlyOne = a_extension.empty() || a_other.empty();
    return isOnlyOne ? std::min( a_grade, PimPhoneBookGrade::Ending ) : PimPhoneBookGrade::None;
}

} // namespace PimManager::PhoneBook
