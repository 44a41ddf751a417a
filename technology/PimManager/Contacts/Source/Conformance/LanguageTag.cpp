#include "Conformance/LanguageTag.h"

#include "Conformance/ValueForms.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// Old tags that the grammar does not produce. The other old tags follow it.
constexpr std::array s_kIrregular = {
    "en-GB-oed"sv, "i-ami"sv, "i-bnn"sv,     "i-default"sv, "i-enochian"sv, "i-hak"sv,
    "i-klingon"sv, "i-lux"sv, "i-mingo"sv,   "i-navajo"sv,  "i-pwn"sv,      "i-tao"sv,
    "i-tay"sv,     "i-tsu"sv, "sgn-BE-FR"sv, "sgn-BE-NL"sv, "sgn-CH-DE"sv,
};

/// Reads the subtags of a tag, one after the other.
class Subtags
{
public:
    explicit Subtags( std::string_view a_tag ) :
        m_rest( a_tag )
    {
        Next();
    }

    bool AtEnd() const { return m_isAtEnd; }
    std::string_view Text() const { return m_subtag; }

    void Next()
    {
        m_isAtEnd = m_isLast;
        const size_t hyphen = m_rest.find( '-' );
        m_subtag = m_rest.substr( 0, hyphen );
        m_isLast = hyphen == std::string_view::npos;
        m_rest = m_isLast ? std::string_view() : m_rest.substr( hyphen + 1 );
    }

    /// Steps over a subtag of letters.
    bool TakeLetters( size_t a_least, size_t a_most )
    {
        return Take( HasLength( a_least, a_most ) && AreLetters( m_subtag ) );
    }

    /// Steps over a subtag of letters and digits.
    bool TakeWord( size_t a_least, size_t a_most )
    {
        return Take( HasLength( a_least, a_most ) && AreLettersAndDigits( m_subtag ) );
    }

    bool Take( bool a_fits )
    {
        const bool isTaken = !m_isAtEnd && a_fits;
        if ( isTaken )
            Next();
        return isTaken;
    }

private:
    bool HasLength( size_t a_least, size_t a_most ) const
    {
        return m_subtag.size() >= a_least && m_subtag.size() <= a_most;
    }

    std::string_view m_rest;
    std::string_view m_subtag;
    bool m_isLast = false;
    bool m_isAtEnd = false;
};

bool IsPrivateMark( std::string_view a_subtag )
{
    return IsSameWord( a_subtag, "x" );
}

bool TakePrivateUse( Subtags& a_tags )
{
    if ( !a_tags.Take( IsPrivateMark( a_tags.Text() ) ) )
        return false;
    bool isComplete = false;
    while ( a_tags.TakeWord( 1, 8 ) )
        isComplete = true;
    return isComplete;
}

bool TakeLanguage( Subtags& a_tags )
{
    if ( a_tags.TakeLetters( 4, 8 ) )
        return true;
    if ( !a_tags.TakeLetters( 2, 3 ) )
        return false;
    for ( int i = 0; i < 3 && a_tags.TakeLetters( 3, 3 ); ++i )
        continue;
    return true;
}

bool TakeVariant( Subtags& a_tags )
{
    const std::string_view subtag = a_tags.Text();
    const bool isYear = subtag.size() == 4 && IsDigit( subtag.front() ) && AreLettersAndDigits( subtag );
    return a_tags.Take( isYear ) || a_tags.TakeWord( 5, 8 );
}

/// \return false if an extension begins and has no end.
bool TakeExtensions( Subtags& a_tags )
{
    while ( !a_tags.AtEnd() && !IsPrivateMark( a_tags.Text() ) && a_tags.TakeWord( 1, 1 ) )
    {
        if ( !a_tags.TakeWord( 2, 8 ) )
            return false;
        while ( a_tags.TakeWord( 2, 8 ) )
            continue;
    }
    return true;
}

bool IsRegular( std::string_view a_text )
{
    Subtags tags( a_text );
    if ( !IsPrivateMark( tags.Text() ) )
    {
        if ( !TakeLanguage( tags ) )
            return false;
        tags.TakeLetters( 4, 4 );
        const bool isNumber = tags.Text().size() == 3 && AreDigits( tags.Text() );
        if ( !tags.TakeLetters( 2, 2 ) )
            tags.Take( isNumber );
        while ( TakeVariant( tags ) )
            continue;
        if ( !TakeExtensions( tags ) )
            return false;
    }
    return tags.AtEnd() || ( TakePrivateUse( tags ) && tags.AtEnd() );
}

} // namespace

bool IsLanguageTag( std::string_view a_text )
{
    return IsRegular( a_text ) ||
           std::any_of( s_kIrregular.begin(), s_kIrregular.end(),
                        [a_text]( std::string_view a_tag ) { return IsSameWord( a_tag, a_text ); } );
}

} // namespace PimManager::Contacts
