#include "CardJsonWriter.h"

#include "JsonStream.h"
#include "PimVCard.h"

#include <QStringList>

namespace PimManager::vCard::Tools
{

namespace
{

void WriteParameters( JsonStream& a_json, const PimVCardProperty& a_property )
{
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        if ( parameter == nullptr )
            continue;
        a_json.BeginObject();
        a_json.Member( "name", parameter->GetName() );
        a_json.Member( "value", parameter->GetValue() );
        a_json.EndObject();
    }
}

void WriteProperty( JsonStream& a_json, const PimVCardProperty& a_property )
{
    a_json.BeginObject();
    a_json.Member( "group", a_property.GetGroupID() );
    a_json.Member( "name", a_property.GetName() );
    a_json.Name( "parameters" );
    a_json.BeginList();
    WriteParameters( a_json, a_property );
    a_json.EndList();
    a_json.Member( "values", QStringList( a_property.GetValues() ) );
    a_json.EndObject();
}

} // namespace

CardJsonWriter::CardJsonWriter( QIODevice& a_device, JsonRecords::Form a_form ) :
    m_device( a_device ),
    m_records( a_device, a_form )
{
}

void CardJsonWriter::Begin()
{
    m_records.Begin();
}

void CardJsonWriter::Write( const PimVCard& a_card, qint64 /*a_number*/, const QString& /*a_source*/ )
{
    m_records.BeginRecord();
    JsonStream json( m_device );
    json.BeginObject();
    json.Name( "properties" );
    json.BeginList();
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property != nullptr )
            WriteProperty( json, *property );
    }
    json.EndList();
    json.EndObject();
    m_records.EndRecord();
}

void CardJsonWriter::End()
{
    m_records.End();
}

} // namespace PimManager::vCard::Tools
