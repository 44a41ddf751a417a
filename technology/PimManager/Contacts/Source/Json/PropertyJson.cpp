#include "Json/PropertyJson.h"

#include "Contact/CallTime.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Json/BinaryJson.h"
#include "Json/PurposeJson.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array s_kNameParts = { "family"sv, "given"sv, "additional"sv, "prefixes"sv, "suffixes"sv };
constexpr std::array s_kAddressParts = { "postOfficeBox"sv, "extended"sv,   "street"sv, "locality"sv,
                                         "region"sv,        "postalCode"sv, "country"sv };
constexpr std::array s_kDirections = { "dialed"sv, "received"sv, "missed"sv };

template <size_t s_kSize>
void WriteParts( const std::array<std::string_view, s_kSize>& a_names, const NamedParts& a_parts, JsonText& a_json )
{
    static_assert( s_kSize <= std::tuple_size<NamedParts>::value );
    std::string_view before = ",\"parts\":{\"";
    for ( size_t i = 0; i < s_kSize; ++i )
    {
        a_json.Raw( before );
        a_json.Raw( a_names[i] );
        a_json.Raw( "\":" );
        a_json.String( WithoutOuterSpace( a_parts[i] ) );
        before = ",\"";
    }
    a_json.Raw( "}" );
}

std::string_view DirectionOf( const WordGroups& a_types )
{
    for ( const std::string_view direction : s_kDirections )
    {
        if ( a_types.Find( direction ) != WordGroups::s_kNone )
            return direction;
    }
    return "unknown";
}

} // namespace

void PropertyJson::Write( const IndexedLine& a_line, const GroupLabels& a_labels, bool a_holdsCard, ContactHead& a_head,
                          JsonText& a_json )
{
    WriteName( a_line, a_json );
    m_label = std::string_view();
    if ( a_line.m_entry.m_group.m_length > 0 )
        WriteGroup( a_line, a_labels, a_json );
    m_parameters.Read( a_line );
    WritePurpose( m_parameters, m_label, InternetType::Written, a_json );
    if ( m_parameters.Names().Size() > 0 )
        WriteParameters( a_json );
    const BinaryJson binary = WriteBinary( a_line, m_parameters, a_json );
    if ( binary.m_isWritten )
        return;
    m_decoder.Decode( a_line );
    if ( a_holdsCard && m_decoder.Escaped().m_text.empty() )
        return;
    WriteValues( a_head, a_json );
    if ( binary.m_faultPlace >= 0 )
    {
        a_json.Raw( ",\"fault\":" );
        a_json.Number( binary.m_faultPlace );
    }
    WriteMeaning( a_head, a_json );
}

// Most parts need no decoding.
std::string_view PropertyJson::HeadText( const IndexedLine& a_line, ByteRange a_part )
{
    if ( a_line.IsContinued() || a_line.m_entry.m_charset != LineCharset::Utf8 )
        return m_decoder.Head( a_line, a_part );
    return a_part.In( a_line.m_text );
}

void PropertyJson::WriteName( const IndexedLine& a_line, JsonText& a_json )
{
    const std::string_view name = HeadText( a_line, a_line.m_entry.m_name );
    m_property = PropertyNameOf( name );
    m_delimiters = DelimitersOf( name, a_line.m_card.m_record.Version() );
    a_json.Raw( "{\"name\":" );
    a_json.UpperString( name );
}

void PropertyJson::WriteGroup( const IndexedLine& a_line, const GroupLabels& a_labels, JsonText& a_json )
{
    a_json.Raw( ",\"group\":" );
    a_json.String( HeadText( a_line, a_line.m_entry.m_group ) );
    m_label = a_labels.Of( a_line.Group( m_group ) );
}

void PropertyJson::WriteParameters( JsonText& a_json ) const
{
    const WordGroups& names = m_parameters.Names();
    std::string_view before = ",\"parameters\":[{\"name\":";
    for ( size_t first = 0; first < names.Size(); ++first )
    {
        if ( !names.IsFirst( first ) )
            continue;
        a_json.Raw( before );
        a_json.UpperString( names.Word( first ) );
        before = ",\"values\":[";
        for ( size_t i = first; i != WordGroups::s_kNone; i = names.Next( i ) )
        {
            a_json.Raw( before );
            a_json.String( m_parameters.Value( i ) );
            before = ",";
        }
        before = "]},{\"name\":";
    }
    a_json.Raw( "]}]" );
}

void PropertyJson::WriteValues( ContactHead& a_head, JsonText& a_json )
{
    a_json.Raw( ",\"values\":[" );
    switch ( m_delimiters )
    {
    case Delimiters::None:
        WriteText( a_head, a_json );
        break;
    case Delimiters::Commas:
        WriteElements( a_head, a_json );
        break;
    default:
        WriteComponents( a_head, a_json );
        break;
    }
    a_json.Raw( "]" );
}

void PropertyJson::WriteText( ContactHead& a_head, JsonText& a_json )
{
    const std::string_view text = m_decoder.Text();
    a_json.String( text );
    a_head.TakeText( m_property, text, m_parameters, m_label );
}

void PropertyJson::WriteElements( ContactHead& a_head, JsonText& a_json )
{
    std::string_view before;
    for ( PartReader reader = m_decoder.Parts( Delimiters::Commas ); reader.Next(); )
    {
        a_json.Raw( before );
        a_json.String( reader.Text() );
        before = ",";
    }
    a_head.TakeText( m_property, m_decoder.Text(), m_parameters, m_label );
}

void PropertyJson::WriteComponents( ContactHead& a_head, JsonText& a_json )
{
    m_parts = {};
    m_texts.Begin( m_decoder.Escaped().m_text );
    size_t part = 0;
    std::string_view before;
    for ( PartReader reader = m_decoder.Parts( Delimiters::Semicolons ); reader.Next(); ++part )
    {
        a_json.Raw( before );
        a_json.String( reader.Text() );
        before = ",";
        if ( m_property == PropertyName::Org )
            a_head.TakeUnit( reader.Text() );
        else if ( part < m_parts.size() )
            m_parts[part] = m_texts.Keep( reader.Text() );
    }
}

void PropertyJson::WriteMeaning( ContactHead& a_head, JsonText& a_json )
{
    switch ( m_property )
    {
    case PropertyName::N:
        WriteParts( s_kNameParts, m_parts, a_json );
        a_head.TakeName( m_parts );
        break;
    case PropertyName::Adr:
        WriteParts( s_kAddressParts, m_parts, a_json );
        break;
    case PropertyName::Org:
        a_head.EndUnits();
        break;
    case PropertyName::CallTime:
        WriteCall( a_json );
        break;
    default:
        break;
    }
}

void PropertyJson::WriteCall( JsonText& a_json )
{
    a_json.Raw( ",\"call\":{\"direction\":\"" );
    a_json.Raw( DirectionOf( m_parameters.Types() ) );
    a_json.Raw( "\"" );
    const CallTime time( m_decoder.Text() );
    if ( !time.Text().empty() )
    {
        a_json.Raw( ",\"time\":\"" );
        a_json.Raw( time.Text() );
        a_json.Raw( "\"" );
    }
    a_json.Raw( "}" );
}

} // namespace PimManager::Contacts
