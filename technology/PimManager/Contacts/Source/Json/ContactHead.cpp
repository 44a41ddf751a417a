#include "Json/ContactHead.h"

#include "Contact/NumberAndMail.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Values/Buffer.h"

namespace PimManager::Contacts
{

namespace
{

void AddEntry( std::string_view a_name, std::string_view a_text, const HeadJson& a_head, std::string_view a_label,
               JsonText& a_json )
{
    if ( a_text.empty() )
        return;
    a_json.Raw( a_json.Place() == 0 ? "{" : ",{" );
    a_json.Raw( a_name );
    a_json.String( a_text );
    a_json.Raw( a_head.TypesOfEntry() );
    a_json.Raw( a_label );
    a_json.Raw( a_head.Preference() );
    a_json.Raw( "}" );
}

void WriteText( std::string_view a_head, std::string_view a_text, JsonText& a_json )
{
    a_json.Raw( a_head );
    a_json.String( a_text );
}

} // namespace

void ContactHead::Clear()
{
    m_name.Clear();
    m_hasVersion = false;
    m_numbers.Clear();
    m_mails.Clear();
    for ( QByteArray* text : { &m_version, &m_organisation, &m_units } )
        Empty( *text );
}

void ContactHead::TakeText( PropertyName a_property, std::string_view a_text, const HeadJson& a_head,
                            std::string_view a_label )
{
    if ( a_property == PropertyName::Tel )
    {
        const std::string_view number = NumberOf( a_text, m_buffer );
        AddEntry( R"("number":)", number, a_head, a_label, m_numbers );
        TakeOnlyText( a_property, number );
    }
    else if ( a_property == PropertyName::Email )
    {
        const std::string_view mail = MailOf( a_text, m_buffer );
        AddEntry( R"("mail":)", mail, a_head, a_label, m_mails );
        TakeOnlyText( a_property, mail );
    }
    else if ( a_property == PropertyName::Version && !m_hasVersion )
    {
        Append( m_version, WithoutOuterSpace( a_text ) );
        m_hasVersion = true;
    }
    else
        TakeOnlyText( a_property, a_text );
}

void ContactHead::TakeOnlyText( PropertyName a_property, std::string_view a_text )
{
    if ( m_name.Wants( a_property ) )
        m_name.Take( a_property, { a_text } );
}

void ContactHead::TakeName( const NamedParts& a_parts )
{
    if ( m_name.Wants( PropertyName::N ) )
        m_name.TakeParts( a_parts );
}

void ContactHead::TakeUnit( std::string_view a_unit )
{
    const std::string_view unit = WithoutOuterSpace( a_unit );
    if ( !m_units.isEmpty() && !unit.empty() )
        Append( m_units, ", " );
    Append( m_units, unit );
}

void ContactHead::EndUnits()
{
    TakeOnlyText( PropertyName::Org, ViewOf( m_units ) );
    if ( m_organisation.isEmpty() )
        m_organisation.swap( m_units );
    Empty( m_units );
}

void ContactHead::WriteTo( JsonText& a_json ) const
{
    WriteText( R"(,"version":)", ViewOf( m_version ), a_json );
    WriteText( R"(,"name":)", m_name.Text(), a_json );
    a_json.Raw( R"(,"numbers":[)" );
    a_json.Raw( m_numbers.From( 0 ) );
    a_json.Raw( R"(],"mails":[)" );
    a_json.Raw( m_mails.From( 0 ) );
    WriteText( R"(],"organisation":)", ViewOf( m_organisation ), a_json );
}

} // namespace PimManager::Contacts
