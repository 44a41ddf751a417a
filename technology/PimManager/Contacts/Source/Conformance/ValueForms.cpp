#include "Conformance/ValueForms.h"

#include "Text/Bytes.h"

#include <algorithm>
#include <charconv>

namespace PimManager::Contacts
{

namespace
{

bool IsLetterOrDigit( char a_byte )
{
    return IsLetter( a_byte ) || IsDigit( a_byte );
}

template <typename Test>
bool AreAll( std::string_view a_text, Test a_test )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), a_test );
}

std::string_view WithoutSign( std::string_view a_text )
{
    const bool hasSign = !a_text.empty() && ( a_text.front() == '+' || a_text.front() == '-' );
    return a_text.substr( hasSign ? 1 : 0 );
}

// The parts before and after the first occurrence of a byte. Without the byte, the second part is empty.
struct Halves
{
    Halves( std::string_view a_text, char a_byte ) :
        m_place( a_text.find( a_byte ) ),
        m_first( a_text.substr( 0, m_place ) ),
        m_second( IsDivided() ? a_text.substr( m_place + 1 ) : std::string_view() )
    {
    }

    bool IsDivided() const { return m_place != std::string_view::npos; }

    size_t m_place;
    std::string_view m_first;
    std::string_view m_second;
};

} // namespace

bool AreLetters( std::string_view a_text )
{
    return AreAll( a_text, IsLetter );
}

bool AreLettersAndDigits( std::string_view a_text )
{
    return AreAll( a_text, IsLetterOrDigit );
}

bool IsInteger( std::string_view a_text )
{
    return AreDigits( WithoutSign( a_text ) );
}

bool IsFloat( std::string_view a_text )
{
    const Halves number( WithoutSign( a_text ), '.' );
    return AreDigits( number.m_first ) && ( !number.IsDivided() || AreDigits( number.m_second ) );
}

bool IsBetween( std::string_view a_text, int a_least, int a_most )
{
    int number = 0;
    const auto result = std::from_chars( a_text.data(), a_text.data() + a_text.size(), number );
    return AreDigits( a_text ) && result.ec == std::errc() && number >= a_least && number <= a_most;
}

bool IsBoolean( std::string_view a_text )
{
    return IsSameWord( a_text, "TRUE" ) || IsSameWord( a_text, "FALSE" );
}

bool IsPid( std::string_view a_text )
{
    const Halves pid( a_text, '.' );
    return AreDigits( pid.m_first ) && ( !pid.IsDivided() || AreDigits( pid.m_second ) );
}

} // namespace PimManager::Contacts
