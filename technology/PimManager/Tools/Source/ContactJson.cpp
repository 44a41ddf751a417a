#include "ContactJson.h"

#include "Contact.h"
#include "PropertyJson.h"

#include "PimVCardDecoding.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

QString VersionOf( const PimVCard& a_card )
{
    const PimVCardProperty* const version = FindProperty( a_card, "VERSION" );
    return version == nullptr ? QString() : TextOf( *version ).trimmed();
}

void WriteEntries( JsonStream& a_json, const char* a_name, const char* a_textName,
                   const QList<ContactEntry>& a_entries )
{
    a_json.Name( a_name );
    a_json.BeginList();
    for ( const ContactEntry& entry : a_entries )
    {
        a_json.BeginObject();
        a_json.Member( a_textName, entry.m_text );
        a_json.Member( "types", entry.m_types );
        WriteLabelAndPreference( a_json, entry );
        a_json.EndObject();
    }
    a_json.EndList();
}

void WriteContact( JsonStream& a_json, const PimVCard& a_card )
{
    const Contact contact = ReadContact( a_card );
    a_json.Member( "name", DisplayNameOf( a_card ) );
    WriteEntries( a_json, "numbers", "number", contact.m_numbers );
    WriteEntries( a_json, "mails", "mail", contact.m_mails );
    a_json.Member( "organisation", contact.m_organisation );
}

void WriteProperties( JsonStream& a_json, const PimVCard& a_card )
{
    a_json.Name( "properties" );
    a_json.BeginList();
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property != nullptr )
            WritePropertyJson( a_json, a_card, *property );
    }
    a_json.EndList();
}

} // namespace

ContactJson::ContactJson( QIODevice& a_device, JsonRecords::Form a_form ) :
    m_device( a_device ),
    m_records( a_device, a_form )
{
}

void ContactJson::Begin()
{
    m_records.Begin();
}

void ContactJson::TakeCard( const ImportedBook& a_book, const PimVCardImportedCard& a_card )
{
    m_records.BeginRecord();
    JsonStream json( m_device );
    json.BeginObject();
    json.Member( "file", a_book.m_source );
    json.Member( "card", a_card.m_index + 1 );
    json.Member( "line", a_card.m_position.m_line );
    json.Name( "whole" );
    json.Truth( a_card.m_isWhole );
    json.Member( "version", VersionOf( *a_card.m_card ) );
    WriteContact( json, *a_card.m_card );
    WriteProperties( json, *a_card.m_card );
    json.EndObject();
    m_records.EndRecord();
}

void ContactJson::End()
{
    m_records.End();
}

} // namespace PimManager::vCard::Tools
