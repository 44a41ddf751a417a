#include "JCard/PropertyConverter.h"

#include "JCard/BasicForms.h"
#include "JCard/PlainNumber.h"
#include "Lines/KnownNames.h"
#include "Text/Bytes.h"
#include "Text/Uri.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr PimContactVersion s_kVersion = PimContactVersion::V40;
constexpr std::string_view s_kVersionText = "4.0"sv;
constexpr std::string_view s_kValue = ";VALUE="sv;
constexpr std::string_view s_kUriType = ";VALUE=uri"sv;

bool IsNumber( std::string_view a_word )
{
    const auto isPart = []( char a_byte )
    { return ( a_byte >= '0' && a_byte <= '9' ) || "+-.eE"sv.find( a_byte ) != std::string_view::npos; };
    return !a_word.empty() && std::all_of( a_word.begin(), a_word.end(), isPart );
}

bool IsBoolean( std::string_view a_word )
{
    return a_word == "true"sv || a_word == "false"sv;
}

void AppendUpper( std::string_view a_text, std::string& a_out )
{
    std::transform( a_text.begin(), a_text.end(), std::back_inserter( a_out ), Upper );
}

bool IsDateOrTime( ValueType a_type )
{
    constexpr EnumSet<ValueType> s_kTypes = { ValueType::Date,          ValueType::Time,      ValueType::DateTime,
                                              ValueType::DateAndOrTime, ValueType::Timestamp, ValueType::UtcOffset };
    return s_kTypes.Has( a_type );
}

} // namespace

bool PropertyConverter::Convert( std::string_view a_json, std::string& a_out )
{
    JsonCursor json( a_json );
    const size_t begin = a_out.size();
    const bool isHead = json.Take( '[' ) && TakeName( json ) && json.Take( ',' ) && TakeParameters( json ) &&
                        json.Take( ',' ) && TakeType( json );
    if ( isHead )
        AppendHead( a_out );
    const size_t value = a_out.size();
    if ( !isHead || !TakeValues( json, a_out ) || !IsAllowed( std::string_view( a_out ).substr( value ) ) )
    {
        a_out.resize( begin );
        return false;
    }
    CompleteType( value, a_out );
    if ( m_property == PropertyId::Version )
    {
        a_out.resize( value );
        a_out += s_kVersionText;
    }
    a_out += "\r\n"sv;
    m_length = json.Length();
    m_errors = json.Errors();
    m_firstError = json.FirstError();
    return true;
}

// BEGIN and END are separate lines. The version is that of the vCard that the jCard was converted from (section
// 3.3.1.1).
bool PropertyConverter::IsAllowed( std::string_view a_value ) const
{
    switch ( m_property )
    {
    case PropertyId::Begin:
    case PropertyId::End:
        return false;
    case PropertyId::Version:
        return ( a_value == s_kVersionText || a_value == "3.0"sv || a_value == "2.1"sv ) && m_group.empty();
    default:
        return true;
    }
}

bool PropertyConverter::TakeName( JsonCursor& a_json )
{
    m_buffer.clear();
    m_name.clear();
    m_group.clear();
    m_parameters.clear();
    if ( !a_json.AppendString( m_buffer, StringForm::Decoded ) || !IsName( m_buffer ) )
        return false;
    AppendUpper( m_buffer, m_name );
    m_property = PropertyOf( m_name );
    return true;
}

bool PropertyConverter::TakeParameters( JsonCursor& a_json )
{
    if ( !a_json.Take( '{' ) )
        return false;
    if ( a_json.Take( '}' ) )
        return true;
    do
    {
        if ( !TakeParameter( a_json ) )
            return false;
    } while ( a_json.Take( ',' ) );
    return a_json.Take( '}' );
}

bool PropertyConverter::TakeParameter( JsonCursor& a_json )
{
    const size_t begin = m_parameters.size();
    m_buffer.clear();
    if ( !a_json.AppendString( m_buffer, StringForm::Decoded ) || !IsName( m_buffer ) || !a_json.Take( ':' ) )
        return false;
    const bool isGroup = IsSameWord( m_buffer, "group"sv );
    m_parameters += isGroup || IsSameWord( m_buffer, "value"sv ) ? ";X-"sv : ";"sv;
    AppendUpper( m_buffer, m_parameters );
    m_parameters += '=';
    m_isLabel = IsSameWord( m_buffer, "label"sv );
    if ( !a_json.Take( '[' ) )
    {
        if ( !TakeParameterValue( a_json ) )
            return false;
        if ( isGroup )
            KeepGroup( begin );
        return true;
    }
    if ( a_json.Take( ']' ) )
        return true;
    for ( ;; )
    {
        if ( !TakeParameterValue( a_json ) )
            return false;
        if ( !a_json.Take( ',' ) )
            return a_json.Take( ']' );
        m_parameters += ',';
    }
}

bool PropertyConverter::TakeParameterValue( JsonCursor& a_json )
{
    m_buffer.clear();
    if ( a_json.Peek() == '"' )
    {
        if ( !a_json.AppendString( m_buffer, StringForm::Decoded ) )
            return false;
    }
    else
    {
        m_buffer = a_json.TakeWord();
        if ( !IsNumber( m_buffer ) && !IsBoolean( m_buffer ) )
            return false;
    }
    AppendParameterValue( m_buffer );
    return true;
}

// A LABEL may have the escapes of a text (RFC 6350, section 6.3.1).
void PropertyConverter::AppendParameterValue( std::string_view a_value )
{
    const bool isQuoted = NeedsQuotes( a_value );
    if ( isQuoted )
        m_parameters += '"';
    if ( a_value.find_first_of( "^\n\"\\"sv ) == std::string_view::npos )
        m_parameters.append( a_value );
    else
    {
        for ( const char byte : a_value )
        {
            if ( byte == '^' )
                m_parameters += "^^"sv;
            else if ( byte == '\n' )
                m_parameters += "^n"sv;
            else if ( byte == '"' )
                m_parameters += "^'"sv;
            else
                m_parameters.append( byte == '\\' && m_isLabel ? 2 : 1, byte );
        }
    }
    if ( isQuoted )
        m_parameters += '"';
}

// What cannot be a group remains a parameter, under another name.
void PropertyConverter::KeepGroup( size_t a_begin )
{
    if ( !IsName( m_buffer ) || !m_group.empty() )
        return;
    m_group = m_buffer;
    m_parameters.resize( a_begin );
}

bool PropertyConverter::TakeType( JsonCursor& a_json )
{
    m_typeName.clear();
    if ( !a_json.AppendString( m_typeName, StringForm::Decoded ) || !IsName( m_typeName ) )
        return false;
    m_isUnknown = IsSameWord( m_typeName, "unknown"sv );
    m_type = ValueTypeOf( m_typeName, s_kVersion );
    const PropertyRule* const rule = FindRule( StandardPropertyOf( m_name ), s_kVersion );
    const bool isDefault = rule != nullptr && m_type != ValueType::Other && rule->m_defaultType == m_type;
    if ( m_isUnknown || isDefault )
        m_typeName.clear();
    m_mayBeText = isDefault && rule->m_types.Has( ValueType::Text );
    return true;
}

void PropertyConverter::AppendHead( std::string& a_out ) const
{
    if ( !m_group.empty() )
    {
        a_out += m_group;
        a_out += '.';
    }
    a_out += m_name;
    a_out += m_parameters;
    if ( !m_typeName.empty() )
    {
        a_out += s_kValue;
        a_out += m_typeName;
    }
    a_out += ':';
}

// Without VALUE, a reader treats a value that is not a URI as a text, even in a picture.
void PropertyConverter::CompleteType( size_t a_value, std::string& a_out ) const
{
    const std::string_view text = std::string_view( a_out ).substr( a_value );
    const bool isUri = IsUri( text ) && text.find( R"(\n)"sv ) == std::string_view::npos;
    const bool isMedia = IsMediaProperty( m_property );
    if ( text.empty() || isUri || m_isUnknown || ( !isMedia && !m_mayBeText ) )
        return;
    const size_t nameLength = m_typeName.empty() ? 0 : s_kValue.size() + m_typeName.size();
    if ( m_type == ValueType::Uri )
        a_out.insert( a_value - 1, s_kUriType );
    else if ( isMedia && m_type == ValueType::Text )
        a_out.erase( a_value - 1 - nameLength, nameLength );
}

bool PropertyConverter::TakeValues( JsonCursor& a_json, std::string& a_out )
{
    for ( char delimiter = ':'; a_json.Take( ',' ); delimiter = ',' )
    {
        if ( delimiter == ',' )
            a_out += delimiter;
        if ( !TakeValue( a_json, a_out ) )
            return false;
        if ( a_json.Take( ']' ) )
            return true;
    }
    return false;
}

bool PropertyConverter::TakeValue( JsonCursor& a_json, std::string& a_out )
{
    if ( a_json.Take( '[' ) )
        return TakeComponents( a_json, a_out );
    const StringForm form = m_type == ValueType::Uri ? StringForm::Uri : StringForm::Escaped;
    return TakeText( a_json, a_out, m_isUnknown ? StringForm::OneLine : form );
}

// Reads the rest of an array.
bool PropertyConverter::TakeComponents( JsonCursor& a_json, std::string& a_out )
{
    if ( a_json.Take( ']' ) )
        return true;
    for ( ;; )
    {
        if ( !( a_json.Take( '[' ) ? TakeTexts( a_json, a_out ) : TakeText( a_json, a_out, StringForm::Escaped ) ) )
            return false;
        if ( !a_json.Take( ',' ) )
            return a_json.Take( ']' );
        a_out += ';';
    }
}

// Reads the rest of the array of a component.
bool PropertyConverter::TakeTexts( JsonCursor& a_json, std::string& a_out )
{
    if ( a_json.Take( ']' ) )
        return true;
    for ( ;; )
    {
        if ( !TakeText( a_json, a_out, StringForm::Escaped ) )
            return false;
        if ( !a_json.Take( ',' ) )
            return a_json.Take( ']' );
        a_out += ',';
    }
}

bool PropertyConverter::TakeText( JsonCursor& a_json, std::string& a_out, StringForm a_form )
{
    if ( a_json.Peek() != '"' )
        return TakeWord( a_json, a_out );
    const bool isDate = IsDateOrTime( m_type ) && !m_isUnknown;
    return isDate ? TakeDate( a_json, a_out ) : a_json.AppendString( a_out, a_form );
}

// A value that is not a date is written as text.
bool PropertyConverter::TakeDate( JsonCursor& a_json, std::string& a_out )
{
    m_buffer.clear();
    if ( !a_json.AppendString( m_buffer, StringForm::Escaped ) )
        return false;
    const bool isTime = m_type == ValueType::Time || m_type == ValueType::UtcOffset;
    if ( !AppendBasicForm( m_buffer, isTime, a_out ) )
        a_out += m_buffer;
    return true;
}

bool PropertyConverter::TakeWord( JsonCursor& a_json, std::string& a_out ) const
{
    const std::string_view word = a_json.TakeWord();
    if ( !IsNumber( word ) && !IsBoolean( word ) )
        return false;
    const bool isInteger = m_type == ValueType::Integer;
    if ( isInteger || m_type == ValueType::Float )
        return AppendPlainNumber( word, isInteger, a_out );
    if ( m_type == ValueType::Boolean )
        AppendUpper( word, a_out );
    else
        a_out.append( word );
    return true;
}

} // namespace PimManager::Contacts
