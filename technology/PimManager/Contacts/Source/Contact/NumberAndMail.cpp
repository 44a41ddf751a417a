#include "Contact/NumberAndMail.h"

#include "Contact/DecodedParts.h"
#include "Contact/UriPieces.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array s_kExtensionWords = { "X"sv, "EXT"sv, "EXTN"sv, "EXTENSION"sv };
constexpr std::string_view s_kDigits = "0123456789";
constexpr std::string_view s_kNumberBytes = "0123456789+-.()/*#,;pPwW \t";

bool IsExtensionWord( std::string_view a_word )
{
    return std::any_of( s_kExtensionWords.begin(), s_kExtensionWords.end(),
                        [a_word]( std::string_view a_other ) { return IsSameWord( a_word, a_other ); } );
}

// The characters allowed between the word and the digits of an extension.
bool IsBetween( char a_byte )
{
    return a_byte == ' ' || a_byte == '\t' || a_byte == '.' || a_byte == ':' || a_byte == '=';
}

bool IsLetter( char a_byte )
{
    return Upper( a_byte ) >= 'A' && Upper( a_byte ) <= 'Z';
}

/// \return true if an extension can follow.
bool IsNumber( std::string_view a_text )
{
    return !a_text.empty() && ( s_kDigits.find( a_text.back() ) != std::string_view::npos || a_text.back() == ')' ) &&
           a_text.find_first_of( s_kDigits ) != std::string_view::npos &&
           a_text.find_first_not_of( s_kNumberBytes ) == std::string_view::npos;
}

/// Removes all bytes of a kind from the end. \return the removed bytes.
template <bool ( *a_isOfKind )( char )>
std::string_view TakeLastOf( std::string_view& a_text )
{
    size_t size = a_text.size();
    while ( size > 0 && a_isOfKind( a_text[size - 1] ) )
        --size;
    const std::string_view last = a_text.substr( size );
    a_text = a_text.substr( 0, size );
    return last;
}

NumberParts PartsOfText( std::string_view a_text )
{
    std::string_view number = a_text;
    const std::string_view extension = TakeLastOf<IsDigit>( number );
    if ( extension.empty() || number.empty() || !( IsBetween( number.back() ) || IsLetter( number.back() ) ) )
        return { a_text, {}, {}, false };
    TakeLastOf<IsBetween>( number );
    const std::string_view word = TakeLastOf<IsLetter>( number );
    number = TrimmedRight( number );
    if ( !number.empty() && ( number.back() == ',' || number.back() == ';' ) )
        number = TrimmedRight( number.substr( 0, number.size() - 1 ) );
    if ( !IsExtensionWord( word ) || !IsNumber( number ) )
        return { a_text, {}, {}, false };
    return { number, extension, {}, false };
}

/// \param a_uri the text after `tel:`.
NumberParts PartsOfUri( std::string_view a_uri, DecodedParts& a_decoder )
{
    std::string_view rest = a_uri;
    NumberParts parts;
    parts.m_isUri = true;
    parts.m_number = a_decoder.PercentDecoded( TakeUpTo( ';', rest ) );
    bool hasExtension = false;
    bool hasContext = false;
    while ( !rest.empty() )
    {
        std::string_view value = TakeUpTo( ';', rest );
        const std::string_view name = TakeUpTo( '=', value );
        if ( !hasExtension && IsSameWord( name, "EXT" ) )
        {
            hasExtension = true;
            parts.m_extension = a_decoder.PercentDecoded( value );
        }
        else if ( !hasContext && IsSameWord( name, "PHONE-CONTEXT" ) )
        {
            hasContext = true;
            parts.m_context = a_decoder.PercentDecoded( value );
        }
    }
    return parts;
}

/// \return the text between matching quotes; the whole text if there are none.
std::string_view NameOf( std::string_view a_phrase, DecodedParts& a_decoder )
{
    const std::string_view phrase = WithoutOuterSpace( a_phrase );
    if ( phrase.empty() || phrase.front() != '"' )
        return phrase;
    size_t place = phrase.find_first_of( "\"\\", 1 );
    while ( place != std::string_view::npos && phrase[place] == '\\' )
        place = phrase.find_first_of( "\"\\", place + 2 );
    if ( place != phrase.size() - 1 )
        return phrase;
    return WithoutOuterSpace( a_decoder.Unescaped( phrase.substr( 1, place - 1 ) ) );
}

} // namespace

NumberParts NumberPartsOf( std::string_view a_text, QByteArray& a_buffer )
{
    std::string_view number = WithoutOuterSpace( a_text );
    if ( !RemoveScheme( number, "tel:" ) )
        return PartsOfText( number );
    DecodedParts decoder( number, a_buffer );
    return PartsOfUri( number, decoder );
}

std::string_view NumberOf( std::string_view a_text, QByteArray& a_buffer )
{
    const NumberParts parts = NumberPartsOf( a_text, a_buffer );
    if ( !parts.m_isUri )
        return WithoutOuterSpace( a_text );
    if ( parts.m_extension.empty() )
        return parts.m_number;
    a_buffer = BytesOf( parts.m_number ) + ";ext=" + BytesOf( parts.m_extension );
    return ViewOf( a_buffer );
}

MailParts MailPartsOf( std::string_view a_text, QByteArray& a_buffer )
{
    std::string_view mail = WithoutOuterSpace( a_text );
    // The usual case: only an address.
    if ( mail.find( '<' ) == std::string_view::npos && mail.find( ':' ) == std::string_view::npos )
        return { mail, {} };
    DecodedParts decoder( mail, a_buffer );
    if ( RemoveScheme( mail, "mailto:" ) )
        mail = decoder.PercentDecoded( mail.substr( 0, mail.find( '?' ) ) );
    const size_t open = mail.rfind( '<' );
    if ( open == std::string_view::npos || mail.back() != '>' )
        return { mail, {} };
    const std::string_view address = WithoutOuterSpace( mail.substr( open + 1, mail.size() - open - 2 ) );
    if ( address.find( '@' ) == std::string_view::npos )
        return { mail, {} };
    return { address, NameOf( mail.substr( 0, open ), decoder ) };
}

std::string_view MailOf( std::string_view a_text, QByteArray& a_buffer )
{
    return MailPartsOf( a_text, a_buffer ).m_address;
}

} // namespace PimManager::Contacts
