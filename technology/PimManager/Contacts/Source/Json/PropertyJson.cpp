#include "Json/PropertyJson.h"

#include "Contact/DateParser.h"
#include "Contact/DateText.h"
#include "Contact/LabelMarks.h"
#include "Text/WhiteSpace.h"
#include "Values/BinaryValue.h"
#include "Json/FieldNames.h"
#include "Json/KindJson.h"

#include <array>
#include <optional>

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

} // namespace

void PropertyJson::Write( const IndexedLine& a_line, const GroupLabels& a_labels, bool a_holdsCard, size_t a_place,
                          ContactHead& a_contact, JsonText& a_json )
{
    const HeadJson& head = m_heads.Of( a_line );
    a_json.Raw( "{" );
    m_hasLabel = false;
    if ( a_line.m_entry.m_group.m_length > 0 )
        WriteGroupAndHead( a_line, head, a_labels, a_json );
    else
        a_json.Raw( head.All() );
    FieldHead field = { head, m_hasLabel ? m_common.From( 0 ) : head.Common(), false };
    if ( head.IsDeferred() )
        a_contact.Defer( head.Rule().m_members );
    const BinaryJson binary = DecodeOrWrite( a_line, head, a_json );
    if ( binary.m_isWritten )
        return TakeBinary( a_line, field, binary, a_place, a_contact, a_json );
    if ( a_holdsCard && m_decoder.Escaped().m_text.empty() )
        return;
    field.m_isDamaged = binary.m_faultPlace >= 0;
    WriteValues( field, a_contact, a_json );
    if ( field.m_isDamaged )
        TakeBinary( a_line, field, binary, a_place, a_contact, a_json );
    if ( binary.m_faultPlace >= 0 )
    {
        a_json.Raw( R"(,"fault":)" );
        a_json.Number( binary.m_faultPlace );
    }
    WriteMeaning( field, a_contact, a_json );
}

/// Writes a binary value, and decodes any other value.
BinaryJson PropertyJson::DecodeOrWrite( const IndexedLine& a_line, const HeadJson& a_head, JsonText& a_json )
{
    BinaryJson binary;
    bool isDecoded = false;
    if ( MayBeBinary( a_line, a_head.IsMedia() ) )
    {
        isDecoded = m_decoder.DecodeBase64Text( a_line );
        binary = WriteBinary( a_line, a_head, m_decoder, a_json );
    }
    if ( !binary.m_isWritten && !isDecoded )
        m_decoder.Decode( a_line );
    return binary;
}

void PropertyJson::TakeBinary( const IndexedLine& a_line, const FieldHead& a_head, const BinaryJson& a_binary,
                               size_t a_place, ContactHead& a_contact, const JsonText& a_json )
{
    if ( a_head.m_head.Rule().m_way != FieldWay::Media )
        a_contact.Defer( a_head.m_head.Rule().m_members );
    else if ( !a_line.IsBlankValue() )
        a_contact.TakeMedia( a_head, a_json.From( a_binary.m_place ).substr( 0, a_binary.m_length ), a_place );
}

void PropertyJson::WriteGroupAndHead( const IndexedLine& a_line, const HeadJson& a_head, const GroupLabels& a_labels,
                                      JsonText& a_json )
{
    a_json.Raw( a_head.Name() );
    a_json.Raw( R"(,"group":)" );
    a_json.String( GroupText( a_line ) );
    a_json.Raw( a_head.Types() );
    const std::string_view label = a_labels.LabelOf( a_line.Group( m_group ) ).m_text;
    if ( !label.empty() )
        WriteLabel( a_head, label, a_json );
    a_json.Raw( a_head.Rest() );
}

/// \param a_label the label with its marks.
void PropertyJson::WriteLabel( const HeadJson& a_head, std::string_view a_label, JsonText& a_json )
{
    const std::string_view text = WithoutLabelMarks( a_label );
    const std::string_view builtIn = BuiltInLabel( a_label );
    quint32 kinds = a_head.Kinds();
    if ( !builtIn.empty() )
        kinds |= WordReaderOf( a_head.SetOfKinds() )( builtIn );
    m_common.Clear();
    WriteKinds( a_head.SetOfKinds(), kinds, m_common );
    if ( text.empty() )
        m_common.Raw( a_head.OwnLabel() );
    else
    {
        const size_t place = m_common.Place();
        m_common.Raw( R"(,"label":)" );
        m_common.String( text );
        a_json.Raw( m_common.From( place ) );
    }
    m_common.Raw( a_head.CommonBehindLabel() );
    m_hasLabel = true;
}

// Most groups need no decoding.
std::string_view PropertyJson::GroupText( const IndexedLine& a_line )
{
    const ByteRange group = a_line.m_entry.m_group;
    if ( a_line.IsContinued() || a_line.m_entry.m_charset != LineCharset::Utf8 )
        return m_decoder.Written( a_line, group );
    return group.In( a_line.m_text );
}

void PropertyJson::WriteValues( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json )
{
    a_json.Raw( R"(,"values":[)" );
    switch ( a_head.m_head.ValueDelimiters() )
    {
    case Delimiters::None:
        WriteText( a_head, a_contact, a_json );
        break;
    case Delimiters::Commas:
        WriteElements( a_head, a_contact, a_json );
        break;
    default:
        WriteComponents( a_head.m_head, a_contact, a_json );
        break;
    }
    a_json.Raw( "]" );
}

void PropertyJson::WriteText( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json )
{
    const std::string_view text = m_decoder.Text();
    const size_t place = a_json.Place();
    a_json.String( text );
    a_contact.TakeText( a_head, { text, a_json.From( place ) } );
}

void PropertyJson::WriteElements( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json )
{
    std::string_view before;
    for ( PartReader reader = m_decoder.Parts( Delimiters::Commas ); reader.Next(); )
    {
        a_json.Raw( before );
        const size_t place = a_json.Place();
        a_json.String( reader.Text() );
        a_contact.TakeElement( a_head, { reader.Text(), a_json.From( place ) } );
        before = ",";
    }
    a_contact.TakeText( a_head, { m_decoder.Text(), {} } );
}

void PropertyJson::WriteComponents( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json )
{
    m_parts = {};
    m_written = {};
    m_texts.Begin( m_decoder.Escaped().m_text );
    m_partCount = 0;
    std::string_view before;
    for ( PartReader reader = m_decoder.Parts( Delimiters::Semicolons ); reader.Next(); ++m_partCount )
    {
        a_json.Raw( before );
        const size_t place = a_json.Place();
        a_json.String( reader.Text() );
        before = ",";
        if ( a_head.Property() == PropertyId::Org )
            a_contact.TakeUnit( { reader.Text(), a_json.From( place ) } );
        else if ( m_partCount < m_parts.size() && !reader.Text().empty() )
            TakeComponent( reader.Text(), place, a_head.Property(), a_json );
    }
}

void PropertyJson::TakeComponent( std::string_view a_text, size_t a_place, PropertyId a_property,
                                  const JsonText& a_json )
{
    const std::string_view trimmed = WithoutOuterSpace( a_text );
    const bool isSame = trimmed.size() == a_text.size();
    if ( isSame )
        m_written[m_partCount] = { m_partCount, a_place, a_json.Place() - a_place };
    if ( !isSame || a_property == PropertyId::N )
        m_parts[m_partCount] = m_texts.Keep( trimmed );
}

template <size_t s_kSize>
void PropertyJson::WriteParts( const std::array<std::string_view, s_kSize>& a_names, JsonText& a_json )
{
    static_assert( s_kSize <= std::tuple_size<NamedParts>::value );
    constexpr size_t s_kQuotes = 2;
    m_places.clear();
    for ( size_t i = 0; i < s_kSize; ++i )
    {
        a_json.Raw( a_names[i] );
        const size_t place = a_json.Place();
        if ( m_written[i].m_length > 0 )
            a_json.Again( m_written[i].m_begin, m_written[i].m_length );
        else
            a_json.String( m_parts[i] );
        if ( a_json.Place() - place > s_kQuotes )
            m_places.push_back( { i, place, a_json.Place() - place } );
    }
    a_json.Raw( "}" );
}

/// \param a_written the number of components that WriteParts() has written.
/// \param a_most    the largest number of components.
FieldParts PropertyJson::ListsOf( const HeadJson& a_head, size_t a_written, size_t a_most, const JsonText& a_json )
{
    const bool mayHaveLists = a_head.ValueDelimiters() == Delimiters::SemicolonsAndCommas &&
                              m_decoder.Escaped().m_text.find( ',' ) != std::string_view::npos;
    if ( m_partCount <= a_written && !mayHaveLists )
        return { a_json, m_places };
    ReadLists( a_head, a_most );
    return { m_lists, m_places };
}

void PropertyJson::ReadLists( const HeadJson& a_head, size_t a_most )
{
    m_places.clear();
    m_lists.Clear();
    size_t component = 0;
    for ( PartReader reader = m_decoder.Parts( a_head.ValueDelimiters() ); reader.Next(); )
    {
        const size_t place = m_lists.Place();
        const std::string_view text = WithoutOuterSpace( reader.Text() );
        if ( !text.empty() )
        {
            m_lists.String( text );
            m_places.push_back( { component, place, m_lists.Place() - place } );
        }
        if ( reader.Delimiter() == ';' && component + 1 < a_most )
            ++component;
    }
}

void PropertyJson::WriteMeaning( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json )
{
    switch ( a_head.m_head.Property() )
    {
    case PropertyId::N:
        WriteParts( s_kNameParts, a_json );
        a_contact.TakeName( a_head, m_parts,
                            ListsOf( a_head.m_head, s_kNameParts.size(), s_kPimContactNameParts, a_json ) );
        break;
    case PropertyId::Adr:
        WriteParts( s_kAddressParts, a_json );
        a_contact.TakeAddress( a_head,
                               ListsOf( a_head.m_head, s_kAddressParts.size(), s_kPimContactAddressParts, a_json ) );
        break;
    case PropertyId::Org:
        a_contact.EndUnits( a_head );
        break;
    case PropertyId::CallTime:
        WriteCall( a_head.m_head, a_json );
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
    if ( const std::optional<DateFields> time = ReadCallTime( m_decoder.Text() ) )
    {
        a_json.Raw( R"(,"time":")" );
        a_json.Raw( DateText( *time, DateFormat::Extended ).Text() );
        a_json.Raw( R"(")" );
    }
    a_json.Raw( "}" );
}

} // namespace PimManager::Contacts
