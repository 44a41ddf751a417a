#include "Json/ContactHead.h"

#include "Contact/DateParser.h"
#include "Contact/DateText.h"
#include "Contact/NumberAndMail.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/Uri.h"
#include "Text/WhiteSpace.h"
#include "Json/DeferredMembers.h"
#include "Json/FieldNames.h"

#include <QtAlgorithms>

#include <algorithm>
#include <optional>

namespace PimManager::Contacts
{

namespace
{

void WriteText( std::string_view a_head, std::string_view a_text, JsonText& a_json )
{
    a_json.Raw( a_head );
    a_json.String( a_text );
}

/// Appends a member, unless it is empty.
void WriteAny( std::string_view a_head, std::string_view a_text, JsonText& a_json )
{
    if ( !a_text.empty() )
        WriteText( a_head, a_text, a_json );
}

/// Appends the text without white space at both ends. JSON that has none of it is copied.
void WriteTrimmed( const FieldText& a_text, JsonText& a_json )
{
    const std::string_view trimmed = WithoutOuterSpace( a_text.m_text );
    if ( trimmed.size() == a_text.m_text.size() )
        a_json.Raw( a_text.m_json );
    else
        a_json.String( trimmed );
}

void BeginEntry( std::string_view a_name, std::string_view a_text, JsonText& a_json )
{
    a_json.Raw( a_json.Place() == 0 ? "{" : ",{" );
    WriteText( a_name, a_text, a_json );
}

void EndEntry( const FieldHead& a_head, JsonText& a_json )
{
    a_json.Raw( a_head.m_head.TypesOfEntry() );
    a_json.Raw( a_head.m_common );
    a_json.Raw( "}" );
}

/// Appends an object with the lists of texts.
template <size_t s_kSize>
void WriteParts( const std::array<std::string_view, s_kSize>& a_names, const FieldParts& a_parts,
                 std::string_view a_common, JsonText& a_json )
{
    std::string_view between = "{";
    size_t component = s_kSize;
    for ( const FieldParts::Part& part : a_parts.m_parts )
    {
        if ( part.m_component == component )
            a_json.Raw( "," );
        else
        {
            a_json.Raw( between );
            a_json.Raw( a_names[part.m_component] );
        }
        a_json.Raw( a_parts.TextOf( part ) );
        component = part.m_component;
        between = "],";
    }
    a_json.Raw( "]" );
    a_json.Raw( a_common );
    a_json.Raw( "}" );
}

std::string_view EventBegin( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Bday:
        return R"({"kind":"birth",)";
    case PropertyId::Anniversary:
        return R"({"kind":"anniversary",)";
    case PropertyId::DeathDate:
        return R"({"kind":"death",)";
    default:
        return R"({"kind":"other",)";
    }
}

void WriteDate( const DateFields& a_date, JsonText& a_json )
{
    a_json.Raw( "\"" );
    a_json.Raw( DateText( a_date, DateFormat::Extended ).Text() );
    a_json.Raw( "\"" );
}

} // namespace

void ContactHead::Clear()
{
    m_name.Clear();
    m_hasVersion = false;
    m_hasFormattedName = false;
    m_numbers.Clear();
    m_mails.Clear();
    m_members.Clear();
    m_deferred = 0;
    m_sortName.Clear();
    for ( QByteArray* text : { &m_version, &m_organisation, &m_units } )
        Empty( *text );
}

void ContactHead::TakeText( const FieldHead& a_head, const FieldText& a_text )
{
    const PropertyId property = a_head.m_head.Property();
    if ( property == PropertyId::Tel )
        TakeNumber( a_head, a_text.m_text );
    else if ( property == PropertyId::Email )
        TakeMail( a_head, a_text.m_text );
    else if ( property == PropertyId::Version && !m_hasVersion )
    {
        Append( m_version, WithoutOuterSpace( a_text.m_text ) );
        m_hasVersion = true;
    }
    else
    {
        TakeOnlyText( property, a_text.m_text );
        TakeField( a_head, a_text );
    }
}

void ContactHead::TakeNumber( const FieldHead& a_head, std::string_view a_text )
{
    const NumberParts parts = NumberPartsOf( a_text, m_buffer );
    std::string_view number = parts.m_isUri ? parts.m_number : WithoutOuterSpace( a_text );
    if ( parts.m_isUri && !parts.m_extension.empty() )
    {
        m_number = BytesOf( number ) + ";ext=" + BytesOf( parts.m_extension );
        number = ViewOf( m_number );
    }
    if ( number.empty() )
        return;
    BeginEntry( R"("number":)", number, m_numbers );
    WriteAny( R"(,"extension":)", parts.m_extension, m_numbers );
    WriteAny( R"(,"context":)", parts.m_context, m_numbers );
    EndEntry( a_head, m_numbers );
    TakeOnlyText( PropertyId::Tel, number );
}

void ContactHead::TakeMail( const FieldHead& a_head, std::string_view a_text )
{
    const MailParts parts = MailPartsOf( a_text, m_buffer );
    if ( parts.m_address.empty() )
        return;
    BeginEntry( R"("mail":)", parts.m_address, m_mails );
    WriteAny( R"(,"name":)", parts.m_name, m_mails );
    EndEntry( a_head, m_mails );
    TakeOnlyText( PropertyId::Email, parts.m_address );
}

void ContactHead::TakeOnlyText( PropertyId a_property, std::string_view a_text )
{
    if ( m_name.Wants( a_property ) )
        m_name.Take( a_property, { a_text } );
}

void ContactHead::TakeField( const FieldHead& a_head, const FieldText& a_text )
{
    const FieldRule& rule = a_head.m_head.Rule();
    if ( rule.m_way == FieldWay::None || a_head.m_isDamaged || WithoutOuterSpace( a_text.m_text ).empty() )
        return;
    switch ( rule.m_way )
    {
    case FieldWay::Text:
        AddText( rule.m_member, a_text, a_head.m_common );
        break;
    case FieldWay::OnlyText:
        if ( !m_members.Has( rule.m_member ) )
            WriteTrimmed( a_text, m_members.Begin( rule.m_member ) );
        break;
    case FieldWay::OnlyDate:
    case FieldWay::Event:
        TakeEvent( a_head, a_text );
        break;
    case FieldWay::FormattedName:
        TakeFormattedName( a_head );
        break;
    case FieldWay::Media:
        TakeLinkedMedia( a_head, a_text );
        break;
    default:
        break;
    }
}

void ContactHead::TakeElement( const FieldHead& a_head, const FieldText& a_element )
{
    if ( a_head.m_head.Rule().m_way == FieldWay::Elements && !WithoutOuterSpace( a_element.m_text ).empty() )
        AddText( a_head.m_head.Rule().m_member, a_element, a_head.m_common );
}

void ContactHead::AddText( ContactMember a_member, const FieldText& a_text, std::string_view a_common )
{
    JsonText& json = m_members.Begin( a_member );
    json.Raw( R"({"text":)" );
    WriteTrimmed( a_text, json );
    json.Raw( a_common );
    json.Raw( "}" );
}

// One FN is the name of the contact.
void ContactHead::TakeFormattedName( const FieldHead& a_head )
{
    if ( m_hasFormattedName )
        Defer( a_head.m_head.Rule().m_members );
    m_hasFormattedName = true;
}

void ContactHead::TakeEvent( const FieldHead& a_head, const FieldText& a_text )
{
    const FieldRule& rule = a_head.m_head.Rule();
    const bool isEvent = rule.m_way == FieldWay::Event;
    if ( !isEvent && m_members.Has( rule.m_member ) )
        return;
    const std::optional<DateFields> date = ReadDate( a_text.m_text );
    JsonText& json = m_members.Begin( rule.m_member );
    if ( isEvent )
    {
        json.Raw( EventBegin( a_head.m_head.Property() ) );
        json.Raw( date ? R"("date":)" : R"("text":)" );
    }
    if ( date )
        WriteDate( *date, json );
    else
        WriteTrimmed( a_text, json );
    if ( !isEvent )
        return;
    json.Raw( a_head.m_common );
    json.Raw( "}" );
}

void ContactHead::TakeMedia( const FieldHead& a_head, std::string_view a_members, size_t a_property )
{
    constexpr std::string_view s_kNoType = R"(,"mediaType":"")";
    JsonText& json = m_members.Begin( a_head.m_head.Rule().m_member );
    json.Raw( R"({"property":)" );
    json.Number( static_cast<qint64>( a_property ) );
    std::string_view members = a_members;
    if ( a_members.empty() )
        json.Raw( R"(,"damaged":true)" );
    if ( a_members.empty() || a_members.substr( 0, s_kNoType.size() ) == s_kNoType )
    {
        WriteAny( R"(,"mediaType":)", a_head.m_head.FieldMediaType(), json );
        members.remove_prefix( std::min( members.size(), s_kNoType.size() ) );
    }
    json.Raw( members );
    EndMedia( a_head );
}

void ContactHead::TakeLinkedMedia( const FieldHead& a_head, const FieldText& a_text )
{
    JsonText& json = m_members.Begin( a_head.m_head.Rule().m_member );
    const bool isAddress = a_head.m_head.IsUri() || IsUri( WithoutOuterSpace( a_text.m_text ) );
    json.Raw( isAddress ? R"({"address":)" : R"({"text":)" );
    WriteTrimmed( a_text, json );
    WriteAny( R"(,"mediaType":)", a_head.m_head.FieldMediaType(), json );
    EndMedia( a_head );
}

void ContactHead::EndMedia( const FieldHead& a_head )
{
    JsonText& json = m_members.Last();
    if ( const std::optional<QRect>& crop = a_head.m_head.Crop() )
    {
        const auto add = [&json]( std::string_view a_name, int a_number )
        {
            json.Raw( a_name );
            json.Number( a_number );
        };
        add( R"(,"crop":{"x":)", crop->x() );
        add( R"(,"y":)", crop->y() );
        add( R"(,"width":)", crop->width() );
        add( R"(,"height":)", crop->height() );
        json.Raw( "}" );
    }
    json.Raw( a_head.m_common );
    json.Raw( "}" );
}

void ContactHead::TakeName( const FieldHead& a_head, const NamedParts& a_components, const FieldParts& a_parts )
{
    if ( m_name.Wants( PropertyId::N ) )
        m_name.TakeParts( a_components );
    const bool isFirst = !m_members.Has( ContactMember::NameParts );
    if ( !isFirst || a_parts.m_parts.empty() )
        return;
    WriteParts( s_kNameComponents, a_parts, a_head.m_common, m_members.Begin( ContactMember::NameParts ) );
    for ( const FieldParts::Part& part : a_parts.m_parts )
    {
        if ( part.m_component > static_cast<size_t>( PimContactNamePart::Given ) )
            break;
        if ( m_sortName.Place() > 0 )
            m_sortName.Raw( " " );
        m_sortName.Raw( a_parts.TextOf( part ).substr( 1, part.m_length - 2 ) );
    }
}

void ContactHead::TakeAddress( const FieldHead& a_head, const FieldParts& a_parts )
{
    if ( !a_parts.m_parts.empty() )
        WriteParts( s_kAddressComponents, a_parts, a_head.m_common, m_members.Begin( ContactMember::Addresses ) );
}

void ContactHead::TakeUnit( const FieldText& a_unit )
{
    const std::string_view unit = WithoutOuterSpace( a_unit.m_text );
    if ( !unit.empty() )
    {
        if ( !m_units.isEmpty() )
            Append( m_units, ", " );
        Append( m_units, unit );
        AddUnit( a_unit );
    }
    ++m_unitCount;
}

void ContactHead::AddUnit( const FieldText& a_unit )
{
    JsonText& json = m_hasOrganisation ? m_members.Last() : m_members.Begin( ContactMember::Organisations );
    if ( m_unitCount == 0 )
        json.Raw( R"({"name":)" );
    else if ( m_hasUnits )
        json.Raw( "," );
    else
        json.Raw( m_hasOrganisation ? R"(,"units":[)" : R"({"units":[)" );
    m_hasUnits = m_unitCount > 0;
    m_hasOrganisation = true;
    WriteTrimmed( a_unit, json );
}

void ContactHead::EndUnits( const FieldHead& a_head )
{
    if ( m_hasOrganisation )
    {
        if ( m_hasUnits )
            m_members.Last().Raw( "]" );
        m_members.Last().Raw( a_head.m_common );
        m_members.Last().Raw( "}" );
    }
    m_hasOrganisation = false;
    m_hasUnits = false;
    m_unitCount = 0;
    TakeOnlyText( PropertyId::Org, ViewOf( m_units ) );
    if ( m_organisation.isEmpty() )
        m_organisation.swap( m_units );
    Empty( m_units );
}

/// \param a_name JSON: the name of the contact.
void ContactHead::AddSortName( std::string_view a_name )
{
    const bool isKnown = m_sortName.Place() > 0 && ( m_deferred & BitOf( ContactMember::SortName ) ) == 0;
    if ( !isKnown || a_name.substr( 1, a_name.size() - 2 ) == m_sortName.From( 0 ) )
        return;
    JsonText& json = m_members.Begin( ContactMember::SortName );
    json.Raw( "\"" );
    json.Raw( m_sortName.From( 0 ) );
    json.Raw( "\"" );
}

void ContactHead::WriteTo( const PimContact& a_contact, JsonText& a_json )
{
    WriteText( R"(,"version":)", ViewOf( m_version ), a_json );
    a_json.Raw( R"(,"name":)" );
    const size_t namePlace = a_json.Place();
    a_json.String( m_name.Text() );
    AddSortName( a_json.From( namePlace ) );
    a_json.Raw( R"(,"numbers":[)" );
    a_json.Raw( m_numbers.From( 0 ) );
    a_json.Raw( R"(],"mails":[)" );
    a_json.Raw( m_mails.From( 0 ) );
    WriteText( R"(],"organisation":)", ViewOf( m_organisation ), a_json );
    for ( ContactMembers left = m_members.Members() | m_deferred; left != 0; left &= left - 1 )
    {
        const auto member = static_cast<ContactMember>( qCountTrailingZeroBits( left ) );
        if ( ( m_deferred & BitOf( member ) ) != 0 )
            WriteDeferred( member, a_contact, a_json );
        else
            m_members.Write( member, a_json );
    }
}

} // namespace PimManager::Contacts
