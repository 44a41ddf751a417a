#include "Writing/JCardSink.h"

#include "Contact/UriPieces.h"
#include "JCard/ExtendedForms.h"
#include "Lines/KnownNames.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Writing/VCardText.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr PimContactVersion s_kVersion = PimContactVersion::V40;
// With more parameters, repeated ones are not searched for.
constexpr size_t s_kFewParameters = 8;

bool IsBefore( const ParameterText* a_left, const ParameterText* a_right )
{
    return std::lexicographical_compare(
        a_left->m_name.begin(), a_left->m_name.end(), a_right->m_name.begin(), a_right->m_name.end(),
        []( char a_first, char a_second ) { return Lower( a_first ) < Lower( a_second ); } );
}

bool HaveSameName( const ParameterText& a_left, const ParameterText& a_right )
{
    return a_left.m_parameter == a_right.m_parameter &&
           ( !a_left.Is( StandardParameter::Other ) || IsSameWord( a_left.m_name, a_right.m_name ) );
}

// \return true if two equal names have another one between them.
bool AreParted( const std::vector<const ParameterText*>& a_parameters )
{
    for ( size_t i = 2; i < a_parameters.size(); ++i )
    {
        const ParameterText& parameter = *a_parameters[i];
        if ( HaveSameName( parameter, *a_parameters[i - 1] ) )
            continue;
        const auto hasName = [&parameter]( const ParameterText* a_other )
        { return HaveSameName( *a_other, parameter ); };
        const auto begin = a_parameters.begin();
        if ( std::any_of( begin, begin + static_cast<qptrdiff>( i ) - 1, hasName ) )
            return true;
    }
    return false;
}

void PassDigits( std::string_view& a_text )
{
    a_text.remove_prefix(
        static_cast<size_t>( std::find_if_not( a_text.begin(), a_text.end(), IsDigit ) - a_text.begin() ) );
}

bool PassOne( std::string_view& a_text, std::string_view a_bytes )
{
    if ( a_text.empty() || a_bytes.find( a_text.front() ) == std::string_view::npos )
        return false;
    a_text.remove_prefix( 1 );
    return true;
}

// \return the number without its sign, and without zeros that JSON does not have before it.
std::string_view WithoutPadding( std::string_view a_number )
{
    std::string_view text = a_number;
    PassOne( text, "+-"sv );
    while ( text.size() > 1 && text[0] == '0' && IsDigit( text[1] ) )
        text.remove_prefix( 1 );
    return text;
}

// RFC 8259, section 6, except for the sign.
bool IsJsonNumber( std::string_view a_text )
{
    if ( a_text.empty() || !IsDigit( a_text.front() ) )
        return false;
    if ( !PassOne( a_text, "0"sv ) )
        PassDigits( a_text );
    const auto passPart = [&a_text]
    {
        const bool hasDigit = !a_text.empty() && IsDigit( a_text.front() );
        PassDigits( a_text );
        return hasDigit;
    };
    if ( PassOne( a_text, "."sv ) && !passPart() )
        return false;
    if ( PassOne( a_text, "eE"sv ) )
    {
        PassOne( a_text, "+-"sv );
        if ( !passPart() )
            return false;
    }
    return a_text.empty();
}

std::string_view NameOfType( ValueType a_type )
{
    switch ( a_type )
    {
    case ValueType::Uri:
    case ValueType::Date:
    case ValueType::Time:
    case ValueType::DateTime:
    case ValueType::DateAndOrTime:
    case ValueType::Timestamp:
    case ValueType::Boolean:
    case ValueType::Integer:
    case ValueType::Float:
    case ValueType::UtcOffset:
    case ValueType::LanguageTag:
        return NameOf( a_type );
    default:
        return "text"sv;
    }
}

} // namespace

void JCardSink::BeginCard()
{
    m_json.emplace( m_out );
    m_json->Raw( R"(["vcard",[["version",{},"text","4.0"])"sv );
}

void JCardSink::EndCard()
{
    m_json->Raw( "]]"sv );
    m_json->Finish();
    m_json.reset();
}

void JCardSink::Take( const Property& a_property )
{
    ForgetLosses();
    m_rule = IsExtensionName( a_property.m_name ) ? nullptr : FindRule( a_property.m_property, s_kVersion );
    m_json->Raw( ",["sv );
    m_json->LowerName( a_property.m_name );
    m_json->Raw( ",{"sv );
    const std::string_view type = TypeNameOf( a_property );
    if ( !a_property.m_parameters.empty() || !a_property.m_group.empty() )
        AppendParameters( a_property );
    m_json->Raw( R"(},")"sv );
    m_json->Raw( type );
    m_json->Raw( R"(",)"sv );
    if ( a_property.m_isBinary )
        AppendBytes( a_property );
    else if ( type == "unknown"sv )
        AppendUnknown( a_property );
    else
        AppendTexts( a_property );
    m_json->Raw( "]"sv );
}

void JCardSink::AppendParameters( const Property& a_property )
{
    SortParameters( a_property );
    bool isFirst = true;
    if ( !a_property.m_group.empty() )
    {
        m_json->Raw( R"("group":)"sv );
        m_json->LowerName( a_property.m_group );
        isFirst = false;
    }
    for ( size_t i = 0; i < m_parameters.size(); )
    {
        const ParameterText& parameter = *m_parameters[i];
        size_t end = i + 1;
        while ( end < m_parameters.size() && HaveSameName( *m_parameters[end], parameter ) )
            ++end;
        m_values.clear();
        for ( ; i < end; ++i )
            AddValues( *m_parameters[i] );
        if ( m_values.empty() )
            continue;
        if ( !isFirst )
            m_json->Raw( ","sv );
        isFirst = false;
        m_json->LowerName( parameter.m_name );
        m_json->Raw( ":"sv );
        AppendValues();
        // A carriage return became a line feed.
        if ( m_isTextLost )
            m_lostParameter = parameter.m_name;
        m_isTextLost = false;
    }
}

// Commas divide SORT-AS even in quotes (RFC 6350, section 5.9).
void JCardSink::AddValues( const ParameterText& a_parameter )
{
    if ( a_parameter.Is( StandardParameter::Type ) )
    {
        // A reader removes white space around a type.
        const std::string_view type = WithoutOuterSpace( a_parameter.m_value );
        if ( !type.empty() )
            m_values.push_back( type );
        return;
    }
    m_values.push_back( a_parameter.m_value );
    if ( !a_parameter.Is( StandardParameter::SortAs ) )
        return;
    const size_t first = m_values.size() - 1;
    std::string_view rest = a_parameter.m_value;
    bool isList = false;
    do
    {
        const std::string_view text = WithoutOuterSpace( TakeUpTo( ',', rest ) );
        isList = !text.empty();
        m_values.push_back( text );
    } while ( isList && !rest.empty() );
    // An empty text would be lost in a list.
    if ( isList )
        m_values.erase( m_values.begin() + static_cast<qptrdiff>( first ) );
    else
        m_values.resize( first + 1 );
}

void JCardSink::AppendValues()
{
    if ( m_values.size() == 1 )
        return AppendString( m_values.front() );
    std::string_view before = "["sv;
    for ( const std::string_view value : m_values )
    {
        m_json->Raw( before );
        AppendString( value );
        before = ","sv;
    }
    m_json->Raw( "]"sv );
}

// An object has each name once. All values of a name follow each other, in their order.
void JCardSink::SortParameters( const Property& a_property )
{
    m_parameters.clear();
    for ( const ParameterText& parameter : a_property.m_parameters )
    {
        if ( !parameter.Is( StandardParameter::Value ) )
            m_parameters.push_back( &parameter );
    }
    if ( m_parameters.size() > s_kFewParameters || AreParted( m_parameters ) )
        std::stable_sort( m_parameters.begin(), m_parameters.end(), IsBefore );
}

// A non-standard type is a parameter.
std::string_view JCardSink::TypeNameOf( const Property& a_property )
{
    const std::string_view named = a_property.First( StandardParameter::Value );
    if ( !named.empty() && IsName( named ) )
    {
        m_buffer.clear();
        std::transform( named.begin(), named.end(), std::back_inserter( m_buffer ), Lower );
        return m_buffer;
    }
    if ( !a_property.m_isBinary && NeedsTypeName( a_property, s_kVersion ) )
        return NameOfType( a_property.m_type );
    if ( m_rule == nullptr || ( a_property.m_isBinary && m_rule->m_defaultType != ValueType::Uri ) )
        return "unknown"sv;
    // A vCard need not declare a date of another type, or a text in place of a picture.
    const bool isDay = IsDay( m_rule->m_defaultType ) && IsDay( a_property.m_type );
    const bool isMediaText =
        IsMediaProperty( a_property.m_property ) && a_property.m_type == ValueType::Text && !a_property.Text().empty();
    return NameOfType( isDay || isMediaText ? a_property.m_type : m_rule->m_defaultType );
}

// Includes the components that the property must have, even if they are empty.
quint32 JCardSink::ComponentsOf( const Property& a_property ) const
{
    const quint32 least = m_rule == nullptr ? 1 : m_rule->m_leastComponents;
    return a_property.m_texts.empty() ? least : std::max( least, a_property.m_texts.back().m_component + 1 );
}

void JCardSink::AppendBytes( const Property& a_property )
{
    const QByteArray bytes =
        QByteArray::fromRawData( a_property.m_bytes.data(), static_cast<int>( a_property.m_bytes.size() ) );
    const QByteArray uri = "data:" + BytesOf( a_property.m_mediaType ) + ";base64," + bytes.toBase64();
    m_json->String( ViewOf( uri ) );
}

// All texts as one text with the delimiters of a vCard.
template <class AddText>
void JCardSink::Join( const Property& a_property, AddText a_addText )
{
    m_buffer.clear();
    quint32 component = 0;
    bool isFirst = true;
    for ( const ValueText& text : a_property.m_texts )
    {
        if ( !isFirst && text.m_component == component )
            m_buffer += ',';
        m_buffer.append( text.m_component - component, ';' );
        component = text.m_component;
        isFirst = false;
        a_addText( text.m_text );
    }
}

// The value of version 4.0.
void JCardSink::AppendUnknown( const Property& a_property )
{
    const std::string_view escaped = IsEscapedType( a_property.m_type ) ? R"(\,;)"sv : R"(\)"sv;
    const auto addEscaped = [this, escaped]( std::string_view a_text )
    {
        for ( const char byte : WithLineFeeds( a_text ) )
        {
            if ( byte == '\n' || escaped.find( byte ) != std::string_view::npos )
                m_buffer += '\\';
            m_buffer += byte == '\n' ? 'n' : byte;
        }
    };
    Join( a_property, addEscaped );
    m_json->String( m_buffer );
}

// All line breaks are the same.
std::string_view JCardSink::WithLineFeeds( std::string_view a_text )
{
    if ( a_text.find( '\r' ) == std::string_view::npos )
        return a_text;
    m_isTextLost = true;
    m_text.clear();
    for ( size_t i = 0; i < a_text.size(); ++i )
    {
        const bool isReturn = a_text[i] == '\r';
        if ( !isReturn || i + 1 == a_text.size() || a_text[i + 1] != '\n' )
            m_text += isReturn ? '\n' : a_text[i];
    }
    return m_text;
}

void JCardSink::AppendString( std::string_view a_text )
{
    if ( !m_json->PlainString( a_text ) )
        m_json->EscapedString( WithLineFeeds( a_text ) );
}

// Most texts are plain.
inline void JCardSink::AppendText( std::string_view a_text, ValueType a_type )
{
    constexpr EnumSet<ValueType> s_kPlain = { ValueType::Text, ValueType::PhoneNumber, ValueType::Uri };
    if ( !s_kPlain.Has( a_type ) || !m_json->PlainString( a_text ) )
        AppendOtherText( a_text, a_type );
}

// Several texts of one component are several values.
void JCardSink::AppendTexts( const Property& a_property )
{
    const std::vector<ValueText>& texts = a_property.m_texts;
    const quint32 components = ComponentsOf( a_property );
    if ( components > 1 && m_rule != nullptr && m_rule->m_shape == ValueShape::Single )
        return AppendJoined( a_property );
    if ( components > 1 )
        return AppendComponents( a_property, components );
    if ( texts.empty() )
        return m_json->String( ""sv );
    AppendRun( a_property, 0, texts.size() );
}

// From another version, which has components for it, if it could not be changed.
void JCardSink::AppendJoined( const Property& a_property )
{
    Join( a_property, [this]( std::string_view a_text ) { m_buffer += a_text; } );
    AppendString( m_buffer );
}

void JCardSink::AppendComponents( const Property& a_property, quint32 a_count )
{
    const std::vector<ValueText>& texts = a_property.m_texts;
    size_t begin = 0;
    for ( quint32 component = 0; component < a_count; ++component )
    {
        m_json->Raw( component > 0 ? ","sv : "["sv );
        size_t end = begin;
        while ( end < texts.size() && texts[end].m_component == component )
            ++end;
        if ( end == begin )
            m_json->String( ""sv );
        else if ( end == begin + 1 )
            AppendText( texts[begin].m_text, a_property.m_type );
        else
        {
            m_json->Raw( "["sv );
            AppendRun( a_property, begin, end );
            m_json->Raw( "]"sv );
        }
        begin = end;
    }
    m_json->Raw( "]"sv );
}

// The texts of one component, from one index to another.
void JCardSink::AppendRun( const Property& a_property, size_t a_begin, size_t a_end )
{
    for ( size_t i = a_begin; i < a_end; ++i )
    {
        if ( i > a_begin )
            m_json->Raw( ","sv );
        AppendText( a_property.m_texts[i].m_text, a_property.m_type );
    }
}

void JCardSink::AppendOtherText( std::string_view a_text, ValueType a_type )
{
    switch ( a_type )
    {
    case ValueType::Date:
    case ValueType::DateTime:
    case ValueType::DateAndOrTime:
    case ValueType::Timestamp:
        return AppendExtended( a_text, false );
    case ValueType::Time:
    case ValueType::UtcOffset:
        return AppendExtended( a_text, true );
    case ValueType::Boolean:
        if ( IsSameWord( a_text, "TRUE"sv ) || IsSameWord( a_text, "FALSE"sv ) )
            return m_json->Raw( Lower( a_text.front() ) == 't' ? "true"sv : "false"sv );
        break;
    case ValueType::Integer:
    case ValueType::Float:
        if ( IsJsonNumber( WithoutPadding( a_text ) ) )
        {
            m_json->Raw( a_text.front() == '-' ? "-"sv : ""sv );
            return m_json->Raw( WithoutPadding( a_text ) );
        }
        break;
    default:
        break;
    }
    m_json->EscapedString( WithLineFeeds( a_text ) );
}

void JCardSink::AppendExtended( std::string_view a_text, bool a_isTime )
{
    m_buffer.clear();
    AppendExtendedForm( a_text, a_isTime, m_buffer );
    m_json->String( m_buffer );
}

} // namespace PimManager::Contacts
