#include "Json/PropertyJson.h"

#include "Contact/CallTime.h"
#include "Text/WhiteSpace.h"
#include "Json/BinaryJson.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array s_kNameParts = {
    R"(,"parts":{"family":)"sv, R"(,"given":)"sv, R"(,"additional":)"sv, R"(,"prefixes":)"sv, R"(,"suffixes":)"sv,
};
constexpr std::array s_kAddressParts = {
    R"(,"parts":{"postOfficeBox":)"sv,
    R"(,"extended":)"sv,
    R"(,"street":)"sv,
    R"(,"locality":)"sv,
    R"(,"region":)"sv,
    R"(,"postalCode":)"sv,
    R"(,"country":)"sv,
};

template <size_t s_kSize>
void WriteParts( const std::array<std::string_view, s_kSize>& a_names, const NamedParts& a_parts, JsonText& a_json )
{
    static_assert( s_kSize <= std::tuple_size<NamedParts>::value );
    for ( size_t i = 0; i < s_kSize; ++i )
    {
        a_json.Raw( a_names[i] );
        a_json.String( WithoutOuterSpace( a_parts[i] ) );
    }
    a_json.Raw( "}" );
}

} // namespace

void PropertyJson::Write( const IndexedLine& a_line, const GroupLabels& a_labels, bool a_holdsCard,
                          ContactHead& a_contact, JsonText& a_json )
{
    const HeadJson& head = m_heads.Of( a_line );
    a_json.Raw( "{" );
    m_label.Clear();
    if ( a_line.m_entry.m_group.m_length > 0 )
        WriteGroupAndHead( a_line, head, a_labels, a_json );
    else
        a_json.Raw( head.All() );
    m_decoder.DecodeBase64Text( a_line );
    const BinaryJson binary = WriteBinary( a_line, head, m_decoder, a_json );
    if ( binary.m_isWritten )
        return;
    if ( !m_decoder.IsBase64Text() )
        m_decoder.Decode( a_line );
    if ( a_holdsCard && m_decoder.Escaped().m_text.empty() )
        return;
    WriteValues( head, a_contact, a_json );
    if ( binary.m_faultPlace >= 0 )
    {
        a_json.Raw( R"(,"fault":)" );
        a_json.Number( binary.m_faultPlace );
    }
    WriteMeaning( head, a_contact, a_json );
}

void PropertyJson::WriteGroupAndHead( const IndexedLine& a_line, const HeadJson& a_head, const GroupLabels& a_labels,
                                      JsonText& a_json )
{
    a_json.Raw( a_head.Name() );
    a_json.Raw( R"(,"group":)" );
    a_json.String( GroupText( a_line ) );
    a_json.Raw( a_head.Types() );
    const std::string_view label = a_labels.Of( a_line.Group( m_group ) );
    if ( !label.empty() )
    {
        m_label.Raw( R"(,"label":)" );
        m_label.String( label );
        a_json.Raw( m_label.From( 0 ) );
    }
    a_json.Raw( a_head.Rest() );
}

// Most groups need no decoding.
std::string_view PropertyJson::GroupText( const IndexedLine& a_line )
{
    const ByteRange group = a_line.m_entry.m_group;
    if ( a_line.IsContinued() || a_line.m_entry.m_charset != LineCharset::Utf8 )
        return m_decoder.Written( a_line, group );
    return group.In( a_line.m_text );
}

void PropertyJson::WriteValues( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json )
{
    a_json.Raw( R"(,"values":[)" );
    switch ( a_head.ValueDelimiters() )
    {
    case Delimiters::None:
        WriteText( a_head, a_contact, a_json );
        break;
    case Delimiters::Commas:
        WriteElements( a_head, a_contact, a_json );
        break;
    default:
        WriteComponents( a_head, a_contact, a_json );
        break;
    }
    a_json.Raw( "]" );
}

void PropertyJson::WriteText( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json )
{
    const std::string_view text = m_decoder.Text();
    a_json.String( text );
    a_contact.TakeText( a_head.Property(), text, a_head, m_label.From( 0 ) );
}

void PropertyJson::WriteElements( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json )
{
    std::string_view before;
    for ( PartReader reader = m_decoder.Parts( Delimiters::Commas ); reader.Next(); )
    {
        a_json.Raw( before );
        a_json.String( reader.Text() );
        before = ",";
    }
    a_contact.TakeText( a_head.Property(), m_decoder.Text(), a_head, m_label.From( 0 ) );
}

void PropertyJson::WriteComponents( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json )
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
        if ( a_head.Property() == PropertyName::Org )
            a_contact.TakeUnit( reader.Text() );
        else if ( part < m_parts.size() )
            m_parts[part] = m_texts.Keep( reader.Text() );
    }
}

void PropertyJson::WriteMeaning( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json )
{
    switch ( a_head.Property() )
    {
    case PropertyName::N:
        WriteParts( s_kNameParts, m_parts, a_json );
        a_contact.TakeName( m_parts );
        break;
    case PropertyName::Adr:
        WriteParts( s_kAddressParts, m_parts, a_json );
        break;
    case PropertyName::Org:
        a_contact.EndUnits();
        break;
    case PropertyName::CallTime:
        WriteCall( a_head, a_json );
        break;
    default:
        break;
    }
}

void PropertyJson::WriteCall( const HeadJson& a_head, JsonText& a_json )
{
    a_json.Raw( R"(,"call":{"direction":")" );
    a_json.Raw( a_head.Direction() );
    a_json.Raw( R"(")" );
    const CallTime time( m_decoder.Text() );
    if ( !time.Text().empty() )
    {
        a_json.Raw( R"(,"time":")" );
        a_json.Raw( time.Text() );
        a_json.Raw( R"(")" );
    }
    a_json.Raw( "}" );
}

} // namespace PimManager::Contacts
