#include "SupportReadings.h"

#include "SupportNotation.h"

#include "PimVCardDecoding.h"

#include <utility>

namespace PimManager::vCard::Documents
{

using namespace vCardImport;

namespace
{

bool IsAttachment( const PimVCardProperty& a_property )
{
    return IsNamed( a_property, "PHOTO" ) || IsNamed( a_property, "LOGO" ) || IsNamed( a_property, "SOUND" ) ||
           IsNamed( a_property, "KEY" );
}

QString Quoted( const QString& a_text )
{
    return QLatin1Char( '`' ) + Shown( a_text ) + QLatin1Char( '`' );
}

QString Named( const char* a_name, const QString& a_text )
{
    return QLatin1String( a_name ) + QLatin1Char( ' ' ) + Quoted( a_text );
}

QString TextReading( const QStringList& a_texts )
{
    return Named( "text", QLatin1Char( '<' ) + a_texts.join( QLatin1String( "><" ) ) + QLatin1Char( '>' ) );
}

QString BytesReading( const PimVCardAttachment& a_attachment )
{
    const QString type = a_attachment.m_mediaType.isEmpty() ? QStringLiteral( "unknown" ) : a_attachment.m_mediaType;
    return QStringLiteral( "%1 bytes, " ).arg( a_attachment.m_bytes.size() ) + Quoted( type );
}

QStringList DecodedParameters( const PimVCardProperty& a_property )
{
    QStringList readings;
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        const QString text = ParameterValueOf( a_property, parameter->GetName().toLatin1().constData() );
        if ( parameter->GetValue().contains( QLatin1Char( '^' ) ) && !parameter->GetValue().contains( text ) )
            readings << parameter->GetName() + QLatin1Char( ' ' ) + Quoted( text );
    }
    return readings;
}

using Part = std::pair<const char*, QString>;

QString PartsReading( const QList<Part>& a_parts )
{
    QStringList texts;
    for ( const auto& [name, text] : a_parts )
    {
        if ( !text.isEmpty() )
            texts << Named( name, text );
    }
    return texts.join( QStringLiteral( ", " ) );
}

QString NameReading( const PimVCardName& a_name )
{
    return PartsReading( { { "family", a_name.m_family },
                           { "given", a_name.m_given },
                           { "additional", a_name.m_additional },
                           { "prefixes", a_name.m_prefixes },
                           { "suffixes", a_name.m_suffixes } } );
}

QString AddressReading( const PimVCardAddress& a_address )
{
    return PartsReading( { { "box", a_address.m_postOfficeBox },
                           { "extended", a_address.m_extended },
                           { "street", a_address.m_street },
                           { "locality", a_address.m_locality },
                           { "region", a_address.m_region },
                           { "code", a_address.m_postalCode },
                           { "country", a_address.m_country } } );
}

QString CallReading( const PimVCardCall& a_call )
{
    const char* const direction = a_call.m_direction == PimVCardCallDirection::Missed     ? "missed"
                                  : a_call.m_direction == PimVCardCallDirection::Received ? "received"
                                  : a_call.m_direction == PimVCardCallDirection::Dialed   ? "dialed"
                                                                                          : "unknown";
    return Named( direction, a_call.m_when.toString( Qt::ISODate ) );
}

} // namespace

QStringList DecodedReadings( const PimVCardProperty& a_property )
{
    QStringList readings;
    const PimVCardAttachment attachment = AttachmentOf( a_property );
    if ( IsAttachment( a_property ) && !attachment.m_bytes.isEmpty() )
        readings << BytesReading( attachment );
    else if ( TextsOf( a_property ) != QStringList( a_property.GetValues() ) )
        readings << TextReading( TextsOf( a_property ) );
    if ( IsNamed( a_property, "TEL" ) && TelephoneNumberOf( a_property ) != TextOf( a_property ) )
        readings << Named( "number", TelephoneNumberOf( a_property ) );
    if ( IsNamed( a_property, "EMAIL" ) && MailAddressOf( a_property ) != TextOf( a_property ) )
        readings << Named( "mail", MailAddressOf( a_property ) );
    return readings + DecodedParameters( a_property );
}

QStringList AllReadings( const PimVCard& a_card, const PimVCardProperty& a_property )
{
    QStringList readings = DecodedReadings( a_property );
    if ( IsNamed( a_property, "N" ) )
        readings << NameReading( NameOf( a_property ) );
    if ( IsNamed( a_property, "ADR" ) )
        readings << AddressReading( AddressOf( a_property ) );
    if ( IsAttachment( a_property ) && !AttachmentOf( a_property ).m_address.isEmpty() )
        readings << Named( "address", AttachmentOf( a_property ).m_address );
    if ( !TypesOf( a_property ).isEmpty() )
        readings << Named( "kind", TypesOf( a_property ).join( QLatin1Char( ' ' ) ) );
    if ( PreferenceOf( a_property ) != 0 )
        readings << Named( "preference", QString::number( PreferenceOf( a_property ) ) );
    if ( !LabelOf( a_card, a_property ).isEmpty() )
        readings << Named( "label", LabelOf( a_card, a_property ) );
    if ( const std::optional<PimVCardCall> call = CallOf( a_property ) )
        readings << CallReading( *call );
    return readings;
}

} // namespace PimManager::vCard::Documents
