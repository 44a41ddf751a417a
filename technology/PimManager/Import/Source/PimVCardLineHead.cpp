#include "PimVCardLineHead.h"

#include "PimVCardBytes.h"
#include "PimVCardKnownNames.h"

#include <algorithm>

namespace PimManager::vCardImport
{

namespace
{

// Only the first makes what stands before it a name.
constexpr std::string_view s_kEndOfParameterName = "=\",";

bool EndsElement( char a_byte )
{
    return a_byte == ',' || a_byte == ';' || a_byte == ':';
}

/// Finds delimiters that are not quoted, in linear time: where one quote is not closed, no later one is.
class QuoteReader
{
public:
    /// \return the place of the first of the delimiters, or the length of the text. A quote opens only at the start of
    ///         an element.
    /// \param a_isNamed the text may begin with a name and "=".
    size_t FindUnquoted( std::string_view a_text, std::string_view a_delimiters, bool a_isNamed )
    {
        bool isAtStart = true;
        bool isNameOpen = a_isNamed;
        for ( size_t place = 0; place < a_text.size(); ++place )
        {
            const char byte = a_text[place];
            const size_t quoted = isAtStart && byte == '"' ? LengthOfQuoted( a_text.substr( place ) ) : 0;
            if ( quoted > 0 )
                place += quoted - 1;
            else if ( a_delimiters.find( byte ) != std::string_view::npos )
                return place;
            isAtStart = byte == ',' || ( byte == '=' && isNameOpen ) || ( isAtStart && IsBlank( byte ) );
            isNameOpen = isNameOpen && s_kEndOfParameterName.find( byte ) == std::string_view::npos;
        }
        return a_text.size();
    }

private:
    size_t LengthOfQuoted( std::string_view a_text )
    {
        const size_t length = m_isNoneClosed ? 0 : EndOfQuoted( a_text );
        m_isNoneClosed = length == 0;
        return length;
    }

    bool m_isNoneClosed = false;
};

PimVCardLineHead::Parameter ParameterOf( std::string_view a_text )
{
    PimVCardLineHead::Parameter parameter;
    parameter.m_text = a_text;
    const std::string_view text = WithoutOpenQuotes( Trimmed( a_text ) );
    const size_t equals = std::min( text.find_first_of( s_kEndOfParameterName ), text.size() );
    if ( text.substr( equals, 1 ) != "=" || Trimmed( text.substr( 0, equals ) ).empty() )
        parameter.m_value = text;
    else
    {
        parameter.m_name = Trimmed( text.substr( 0, equals ) );
        parameter.m_value = Trimmed( text.substr( equals + 1 ) );
    }
    return parameter;
}

PimVCardEncoding EncodingOfWord( std::string_view a_word )
{
    const std::string_view word = Unquoted( a_word );
    if ( IsSameWord( word, "QUOTED-PRINTABLE" ) || IsSameWord( word, "QUOTEDPRINTABLE" ) )
        return PimVCardEncoding::QuotedPrintable;
    if ( IsSameWord( word, "BASE64" ) || IsSameWord( word, "B" ) )
        return PimVCardEncoding::Base64;
    return PimVCardEncoding::None;
}

bool ContainsWord( std::string_view a_text, std::string_view a_upperCaseWord )
{
    const auto isSame = []( char a_first, char a_second )
    { return ( a_first >= 'a' && a_first <= 'z' ? a_first - 32 : a_first ) == a_second; };
    return std::search( a_text.begin(), a_text.end(), a_upperCaseWord.begin(), a_upperCaseWord.end(), isSame ) !=
           a_text.end();
}

// Also a list may name an encoding, as the component reads it.
PimVCardEncoding EncodingOfNamed( std::string_view a_value )
{
    const PimVCardEncoding encoding = EncodingOfWord( a_value );
    if ( encoding != PimVCardEncoding::None )
        return encoding;
    if ( ContainsWord( a_value, "QUOTED-PRINTABLE" ) )
        return PimVCardEncoding::QuotedPrintable;
    return ContainsWord( a_value, "BASE64" ) ? PimVCardEncoding::Base64 : PimVCardEncoding::None;
}

} // namespace

bool IsPlainGroup( std::string_view a_groups )
{
    return std::all_of( a_groups.begin(), a_groups.end(),
                        []( char a_byte ) { return a_byte == '.' || IsBlank( a_byte ) || IsNameByte( a_byte ); } );
}

size_t EndOfQuoted( std::string_view a_text )
{
    for ( size_t place = a_text.find( '"', 1 ); place != std::string_view::npos; place = a_text.find( '"', place + 1 ) )
    {
        const std::string_view rest = TrimmedLeft( a_text.substr( place + 1 ) );
        if ( rest.empty() || EndsElement( rest.front() ) )
            return place + 1;
    }
    return 0;
}

std::string_view WithoutOpenQuotes( std::string_view a_text )
{
    while ( !a_text.empty() && a_text.front() == '"' && EndOfQuoted( a_text ) == 0 )
        a_text = TrimmedLeft( a_text.substr( 1 ) );
    return a_text;
}

std::string_view Unquoted( std::string_view a_text )
{
    const bool isQuoted = a_text.size() >= 2 && a_text.front() == '"' && a_text.back() == '"';
    return isQuoted ? a_text.substr( 1, a_text.size() - 2 ) : a_text;
}

std::vector<std::string_view> ElementsOf( std::string_view a_value )
{
    std::vector<std::string_view> elements;
    std::string_view rest = a_value;
    QuoteReader quotes;
    for ( ;; )
    {
        const size_t comma = quotes.FindUnquoted( rest, ",", false );
        elements.push_back( Trimmed( rest.substr( 0, comma ) ) );
        if ( comma == rest.size() )
            return elements;
        rest.remove_prefix( comma + 1 );
    }
}

PimVCardLineHead PimVCardLineHead::Of( std::string_view a_line )
{
    PimVCardLineHead head;
    size_t place = std::min( a_line.find_first_of( ":;" ), a_line.size() );
    head.m_fullName = a_line.substr( 0, place );
    QuoteReader quotes;
    while ( place < a_line.size() && a_line[place] == ';' )
    {
        const std::string_view rest = a_line.substr( place + 1 );
        const size_t end = quotes.FindUnquoted( rest, ";:", true );
        head.m_parameters.push_back( ParameterOf( rest.substr( 0, end ) ) );
        place += 1 + end;
    }
    head.m_hasColon = place < a_line.size();
    head.m_value = a_line.substr( std::min( place + 1, a_line.size() ) );
    return head;
}

// A group of other characters is believed before a name that is surely one.
std::string_view PimVCardLineHead::Groups() const
{
    const size_t dot = m_fullName.rfind( '.' );
    if ( dot == std::string_view::npos )
        return std::string_view();
    const std::string_view name = Trimmed( m_fullName.substr( dot + 1 ) );
    if ( name.empty() )
        return std::string_view();
    const std::string_view groups = m_fullName.substr( 0, dot + 1 );
    return IsPlainGroup( groups ) || IsKnownName( name ) || IsExtensionName( name ) ? groups : std::string_view();
}

std::string_view PimVCardLineHead::Name() const
{
    return Trimmed( m_fullName.substr( Groups().size() ) );
}

PimVCardEncoding PimVCardLineHead::Encoding() const
{
    for ( const Parameter& parameter : m_parameters )
    {
        PimVCardEncoding encoding = PimVCardEncoding::None;
        if ( parameter.IsBare() )
            encoding = EncodingOfWord( parameter.m_value );
        else if ( IsSameWord( parameter.m_name, "ENCODING" ) )
            encoding = EncodingOfNamed( parameter.m_value );
        if ( encoding != PimVCardEncoding::None )
            return encoding;
    }
    return PimVCardEncoding::None;
}

bool PimVCardLineHead::IsEncodingNamed() const
{
    return std::any_of( m_parameters.begin(), m_parameters.end(),
                        []( const Parameter& a_parameter )
                        {
                            return !a_parameter.IsBare() && IsSameWord( a_parameter.m_name, "ENCODING" ) &&
                                   EncodingOfNamed( a_parameter.m_value ) != PimVCardEncoding::None;
                        } );
}

bool PimVCardLineHead::HasTwoEncodings() const
{
    bool isQuotedPrintable = false;
    bool isBase64 = false;
    for ( const Parameter& parameter : m_parameters )
    {
        if ( parameter.IsBare() || !IsSameWord( parameter.m_name, "ENCODING" ) )
            continue;
        isQuotedPrintable = isQuotedPrintable || ContainsWord( parameter.m_value, "QUOTED-PRINTABLE" );
        isBase64 = isBase64 || ContainsWord( parameter.m_value, "BASE64" ) || IsSameWord( parameter.m_value, "B" );
    }
    return isQuotedPrintable && isBase64;
}

std::string_view PimVCardLineHead::Charset() const
{
    for ( const Parameter& parameter : m_parameters )
    {
        if ( !parameter.IsBare() && IsSameWord( parameter.m_name, "CHARSET" ) )
            return Unquoted( parameter.m_value );
    }
    return std::string_view();
}

} // namespace PimManager::vCardImport
