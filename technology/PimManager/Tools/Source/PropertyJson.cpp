#include "PropertyJson.h"

#include "Attachment.h"

#include "PimVCard.h"
#include "PimVCardDecoding.h"

#include <algorithm>
#include <array>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

// What has a member of its own, or says how the value was written before it was decoded.
bool IsToldElsewhere( const QString& a_parameterName )
{
    static const QStringList s_kNames = { QString(), QStringLiteral( "TYPE" ), QStringLiteral( "PREF" ),
                                          QStringLiteral( "ENCODING" ), QStringLiteral( "CHARSET" ) };
    return s_kNames.contains( a_parameterName );
}

QStringList ParameterNamesOf( const PimVCardProperty& a_property )
{
    QStringList names;
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        const QString name = parameter == nullptr ? QString() : parameter->GetName().toUpper();
        if ( !IsToldElsewhere( name ) && !names.contains( name ) )
            names << name;
    }
    return names;
}

void WriteParameters( JsonStream& a_json, const PimVCardProperty& a_property )
{
    const QStringList names = ParameterNamesOf( a_property );
    if ( names.isEmpty() )
        return;
    a_json.Name( "parameters" );
    a_json.BeginList();
    for ( const QString& name : names )
    {
        a_json.BeginObject();
        a_json.Member( "name", name );
        a_json.Member( "values", ParameterValuesOf( a_property, name.toUtf8().constData() ) );
        a_json.EndObject();
    }
    a_json.EndList();
}

void WriteAttachment( JsonStream& a_json, const PimVCardAttachment& a_attachment )
{
    a_json.Member( "mediaType", a_attachment.m_mediaType );
    a_json.Member( "size", qint64( a_attachment.m_bytes.size() ) );
    a_json.Name( "data" );
    a_json.PlainText( a_attachment.m_bytes.toBase64() );
}

void WriteName( JsonStream& a_json, const PimVCardName& a_name )
{
    a_json.Name( "parts" );
    a_json.BeginObject();
    a_json.Member( "family", a_name.m_family );
    a_json.Member( "given", a_name.m_given );
    a_json.Member( "additional", a_name.m_additional );
    a_json.Member( "prefixes", a_name.m_prefixes );
    a_json.Member( "suffixes", a_name.m_suffixes );
    a_json.EndObject();
}

void WriteAddress( JsonStream& a_json, const PimVCardAddress& a_address )
{
    a_json.Name( "parts" );
    a_json.BeginObject();
    a_json.Member( "postOfficeBox", a_address.m_postOfficeBox );
    a_json.Member( "extended", a_address.m_extended );
    a_json.Member( "street", a_address.m_street );
    a_json.Member( "locality", a_address.m_locality );
    a_json.Member( "region", a_address.m_region );
    a_json.Member( "postalCode", a_address.m_postalCode );
    a_json.Member( "country", a_address.m_country );
    a_json.EndObject();
}

void WriteCall( JsonStream& a_json, const PimVCardCall& a_call )
{
    static const std::array<QString, 4> s_kDirections = { QStringLiteral( "unknown" ), QStringLiteral( "dialed" ),
                                                          QStringLiteral( "received" ), QStringLiteral( "missed" ) };
    a_json.Name( "call" );
    a_json.BeginObject();
    a_json.Member( "direction", s_kDirections.at( static_cast<size_t>( a_call.m_direction ) ) );
    if ( a_call.m_when.isValid() )
        a_json.Member( "time", a_call.m_when.toString( Qt::ISODate ) );
    a_json.EndObject();
}

void WriteParts( JsonStream& a_json, const PimVCardProperty& a_property )
{
    if ( IsNamed( a_property, "N" ) )
        WriteName( a_json, NameOf( a_property ) );
    else if ( IsNamed( a_property, "ADR" ) )
        WriteAddress( a_json, AddressOf( a_property ) );
    else if ( const std::optional<PimVCardCall> call = CallOf( a_property ) )
        WriteCall( a_json, *call );
}

} // namespace

void WriteLabelAndPreference( JsonStream& a_json, const ContactEntry& a_entry )
{
    if ( !a_entry.m_label.isEmpty() )
        a_json.Member( "label", a_entry.m_label );
    if ( a_entry.m_preference > 0 )
        a_json.Member( "preference", qint64( a_entry.m_preference ) );
}

void WritePropertyJson( JsonStream& a_json, const PimVCard& a_card, const PimVCardProperty& a_property )
{
    a_json.BeginObject();
    a_json.Member( "name", a_property.GetName().toUpper() );
    if ( !a_property.GetGroupID().isEmpty() )
        a_json.Member( "group", a_property.GetGroupID() );
    a_json.Member( "types", TypesOf( a_property ) );
    ContactEntry entry;
    entry.m_label = LabelOf( a_card, a_property );
    entry.m_preference = PreferenceOf( a_property );
    WriteLabelAndPreference( a_json, entry );
    WriteParameters( a_json, a_property );
    if ( const std::optional<PimVCardAttachment> attachment = AttachmentIn( a_property ) )
        WriteAttachment( a_json, *attachment );
    else
        a_json.Member( "values", TextsOf( a_property ) );
    WriteParts( a_json, a_property );
    a_json.EndObject();
}

} // namespace PimManager::vCard::Tools
