#include "Values/ParameterReader.h"

#include "Lines/ParameterTable.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/Charset.h"
#include "Values/EncodedLabel.h"
#include "Values/Findings.h"
#include "Values/PartReader.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::string_view s_kLabelParameter = "LABEL";

constexpr std::array s_kPlainEncodings = { "7BIT"sv, "8BIT"sv, "BINARY"sv };
constexpr std::array s_kValueKinds = { "INLINE"sv, "URL"sv, "CID"sv, "CONTENT-ID"sv };

template <size_t s_kSize>
bool IsOneOf( std::string_view a_word, const std::array<std::string_view, s_kSize>& a_words )
{
    return std::any_of( a_words.begin(), a_words.end(),
                        [a_word]( std::string_view a_other ) { return IsSameWord( a_word, a_other ); } );
}

// PREF is a type in versions 2.1 and 3.0.
bool IsParameter( std::string_view a_name )
{
    const StandardParameter parameter = StandardParameterOf( a_name );
    return parameter != StandardParameter::Other && parameter != StandardParameter::Pref;
}

bool IsCharset( std::string_view a_word )
{
    return Charset::Of( a_word ).IsKnown();
}

/// \return the position of the quote that closes the one at the start: a comma or the end follows it.
size_t FindClosingQuote( std::string_view a_text )
{
    size_t quote = a_text.find( '"', 1 );
    while ( quote != std::string_view::npos )
    {
        const size_t next = a_text.find_first_not_of( " \t", quote + 1 );
        if ( next == std::string_view::npos || a_text[next] == ',' )
            return quote;
        quote = a_text.find( '"', next );
    }
    return quote;
}

bool IsQuoteOrBlank( char a_byte )
{
    return a_byte == '"' || IsBlank( a_byte );
}

bool EndsParameterName( char a_byte )
{
    return a_byte == '=' || a_byte == ',' || a_byte == '"';
}

std::string_view WithoutOpenQuotes( std::string_view a_text )
{
    const auto* const begin = std::find_if_not( a_text.begin(), a_text.end(), IsQuoteOrBlank );
    return a_text.substr( static_cast<size_t>( begin - a_text.begin() ) );
}

/// Reads the part before the first comma. \return false if there is no comma.
bool TakeUpToComma( std::string_view& a_rest, std::string_view& a_element )
{
    const size_t comma = a_rest.find( ',' );
    a_element = Trimmed( a_rest.substr( 0, comma ) );
    a_rest = comma == std::string_view::npos ? std::string_view() : a_rest.substr( comma + 1 );
    return comma != std::string_view::npos;
}

std::string_view WithoutName( std::string_view a_element, std::string_view a_name )
{
    const bool hasName = a_element.size() > a_name.size() && a_element[a_name.size()] == '=' &&
                         IsSameWord( a_element.substr( 0, a_name.size() ), a_name );
    return hasName ? a_element.substr( a_name.size() + 1 ) : a_element;
}

/// Undoes the escapes of RFC 6868. Any other caret is kept.
void RemoveCarets( std::string_view a_text, QByteArray& a_out )
{
    Empty( a_out );
    size_t copied = 0;
    for ( size_t caret = a_text.find( '^' ); caret < a_text.size() - 1; caret = a_text.find( '^', caret ) )
    {
        const char escaped = a_text[caret + 1];
        const bool isEscape = escaped == 'n' || escaped == '\'' || escaped == '^';
        if ( isEscape )
        {
            Append( a_out, a_text.substr( copied, caret - copied ) );
            a_out.append( escaped == 'n' ? '\n' : escaped == '\'' ? '"' : '^' );
            copied = caret + 2;
        }
        caret += isEscape ? 2 : 1;
    }
    Append( a_out, a_text.substr( copied ) );
}

} // namespace

std::string_view NameOfBare( std::string_view a_word )
{
    if ( EncodingOf( a_word ) != PimContactEncoding::None || IsOneOf( a_word, s_kPlainEncodings ) )
        return s_kEncodingParameter;
    if ( IsOneOf( a_word, s_kValueKinds ) )
        return s_kValueParameter;
    return IsCharset( a_word ) ? s_kCharsetParameter : s_kTypeParameter;
}

ParameterReader::ParameterReader( std::string_view a_parameters, PimContactVersion a_version ) :
    m_splitter( a_parameters ),
    m_areCaretsText( a_version == PimContactVersion::V21 )
{
}

bool ParameterReader::Next()
{
    bool isFound = false;
    m_isFirst = false;
    while ( !isFound )
    {
        std::string_view parameter;
        if ( m_hasElement )
            isFound = TakeValue();
        else if ( m_splitter.Next( parameter ) )
            BeginParameter( parameter );
        else
            return false;
    }
    return true;
}

void ParameterReader::BeginParameter( std::string_view a_parameter )
{
    m_isFirst = true;
    m_hasElement = true;
    m_isLabel = IsEncodedLabel( a_parameter );
    if ( m_isLabel )
    {
        m_parameterName = a_parameter.substr( 0, s_kCustomParameter.size() );
        m_rest = a_parameter;
        return;
    }
    const bool isQuoted = !a_parameter.empty() && a_parameter.front() == '"';
    m_isNoQuoteClosed = isQuoted && FindClosingQuote( a_parameter ) == std::string_view::npos;
    const std::string_view parameter = m_isNoQuoteClosed ? WithoutOpenQuotes( a_parameter ) : a_parameter;
    const auto equals = static_cast<size_t>( std::find_if( parameter.begin(), parameter.end(), EndsParameterName ) -
                                             parameter.begin() );
    const bool hasName = equals < parameter.size() && parameter[equals] == '=';
    m_parameterName = hasName ? TrimmedRight( parameter.substr( 0, equals ) ) : std::string_view();
    m_rest = m_parameterName.empty() ? parameter : parameter.substr( equals + 1 );
    if ( !m_parameterName.empty() && IsWhiteSpace( m_rest ) && !IsParameter( m_parameterName ) )
    {
        m_rest = m_parameterName;
        m_parameterName = std::string_view();
    }
    m_isType = m_parameterName.empty() || IsSameWord( m_parameterName, s_kTypeParameter );
}

/// \return false if the next element is not a value.
bool ParameterReader::TakeValue()
{
    if ( m_isLabel )
        return TakeLabel();
    const std::string_view repeated = m_parameterName.empty() ? s_kTypeParameter : m_parameterName;
    const std::string_view element = WithoutName( TakeElement(), repeated );
    m_name = m_parameterName.empty() ? NameOfBare( element ) : m_parameterName;
    m_value = Decoded( element );
    return !element.empty() || !m_isType;
}

bool ParameterReader::TakeLabel()
{
    m_hasElement = false;
    DecodeLabel( m_rest, m_text );
    m_name = m_parameterName;
    m_value = ViewOf( m_text );
    return true;
}

std::string_view ParameterReader::TakeElement()
{
    std::string_view element;
    if ( m_isInQuotes )
    {
        m_isInQuotes = TakeUpToComma( m_quoted, element );
        m_hasElement = m_isInQuotes || m_hasRest;
        return element;
    }
    m_rest = TrimmedLeft( m_rest );
    if ( !m_rest.empty() && m_rest.front() == '"' && TakeQuoted() )
    {
        element = m_quoted;
        m_isInQuotes = m_isType && TakeUpToComma( m_quoted, element );
    }
    else
        m_hasRest = TakeUpToComma( m_rest, element );
    m_hasElement = m_isInQuotes || m_hasRest;
    return element;
}

/// \return false if the quote is never closed.
bool ParameterReader::TakeQuoted()
{
    const size_t close = m_isNoQuoteClosed ? std::string_view::npos : FindClosingQuote( m_rest );
    if ( close == std::string_view::npos )
    {
        m_isNoQuoteClosed = true;
        m_rest = WithoutOpenQuotes( m_rest );
        return false;
    }
    m_quoted = m_rest.substr( 1, close - 1 );
    m_rest.remove_prefix( close + 1 );
    std::string_view blanks;
    m_hasRest = TakeUpToComma( m_rest, blanks );
    return true;
}

std::string_view ParameterReader::Decoded( std::string_view a_element )
{
    std::string_view element = a_element;
    if ( !m_areCaretsText && element.find( '^' ) != std::string_view::npos )
    {
        RemoveCarets( element, m_buffer );
        element = ViewOf( m_buffer );
    }
    if ( element.find( '\\' ) == std::string_view::npos || !IsSameWord( m_name, s_kLabelParameter ) )
        return element;
    Findings findings;
    PartReader text( { element }, Delimiters::None, m_text, findings );
    text.Next();
    return text.Text();
}

} // namespace PimManager::Contacts
