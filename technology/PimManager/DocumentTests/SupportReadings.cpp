#include "SupportReadings.h"

#include "SupportNotation.h"

#include <PimManager/Contacts/PimContactJson.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace PimManager::vCard::Documents
{

using namespace Contacts;

namespace
{

constexpr std::array s_kParts = { "family",   "given",  "additional", "prefixes", "suffixes",   "postOfficeBox",
                                  "extended", "street", "locality",   "region",   "postalCode", "country" };

QString Named( const QString& a_name, const QString& a_text )
{
    return a_name + QLatin1String( " `" ) + Shown( a_text ) + QLatin1Char( '`' );
}

QJsonObject JsonOf( const PimContactCard& a_card )
{
    return QJsonDocument::fromJson( PimContactJson::Of( a_card ) ).object();
}

QJsonArray Properties( const QJsonObject& a_card )
{
    return a_card.value( QLatin1String( "properties" ) ).toArray();
}

QString TextOf( const QJsonObject& a_object, const char* a_member )
{
    return a_object.value( QLatin1String( a_member ) ).toVariant().toString();
}

QStringList TextsOf( const QJsonObject& a_object, const char* a_member )
{
    return a_object.value( QLatin1String( a_member ) ).toVariant().toStringList();
}

QString BytesReading( const QJsonObject& a_property )
{
    const QString type = TextOf( a_property, "mediaType" );
    return Named( TextOf( a_property, "size" ) + QLatin1String( " bytes," ),
                  type.isEmpty() ? QStringLiteral( "unknown" ) : type );
}

QStringList DecodedParameters( const QJsonObject& a_property, const PimContactLine& a_line )
{
    const QString written = QString::fromUtf8( a_line.Parameters().join( ';' ) );
    QStringList readings;
    const QJsonArray parameters = a_property.value( QLatin1String( "parameters" ) ).toArray();
    for ( const auto& parameter : parameters )
    {
        const QString text = TextsOf( parameter.toObject(), "values" ).join( QLatin1Char( ',' ) );
        // Values in quotes are written with them.
        if ( !written.contains( text ) && !QString( written ).remove( QLatin1Char( '"' ) ).contains( text ) )
            readings << Named( TextOf( parameter.toObject(), "name" ), text );
    }
    return readings;
}

QStringList DecodedReadingsOf( const QJsonObject& a_property, const PimContactLine& a_line )
{
    QStringList readings;
    if ( a_property.contains( QLatin1String( "data" ) ) )
        readings << BytesReading( a_property );
    return readings + DecodedParameters( a_property, a_line );
}

// The elements of a list in the head of the JSON that are not the text of a line.
QStringList HeadReadings( const QJsonObject& a_json, const PimContactCard& a_card, const char* a_list,
                          const char* a_member )
{
    QStringList texts;
    for ( const PimContactLine& line : a_card )
        texts << line.Text();
    QStringList readings;
    const QJsonArray entries = a_json.value( QLatin1String( a_list ) ).toArray();
    for ( const auto& entry : entries )
    {
        const QString text = TextOf( entry.toObject(), a_member );
        if ( !texts.contains( text ) )
            readings << Named( QLatin1String( a_member ), text );
    }
    return readings;
}

QStringList PartReadings( const QJsonObject& a_parts )
{
    QStringList readings;
    for ( const char* const part : s_kParts )
    {
        const QString text = TextOf( a_parts, part );
        if ( !text.isEmpty() )
            readings << Named( QLatin1String( part ), text );
    }
    return readings;
}

QStringList MeaningOf( const QJsonObject& a_property )
{
    QStringList readings = PartReadings( a_property.value( QLatin1String( "parts" ) ).toObject() );
    const QStringList types = TextsOf( a_property, "types" );
    if ( !types.isEmpty() )
        readings << Named( QStringLiteral( "types" ), types.join( QLatin1Char( ' ' ) ) );
    for ( const char* const member : { "preference", "label" } )
    {
        if ( a_property.contains( QLatin1String( member ) ) )
            readings << Named( QLatin1String( member ), TextOf( a_property, member ) );
    }
    const QJsonObject call = a_property.value( QLatin1String( "call" ) ).toObject();
    if ( !call.isEmpty() )
        readings << Named( TextOf( call, "direction" ), TextOf( call, "time" ) );
    return readings;
}

template <typename ReadingsOf>
QStringList EachReading( const PimContactCard& a_card, const ReadingsOf& a_readingsOf )
{
    const QJsonObject json = JsonOf( a_card );
    const QJsonArray properties = Properties( json );
    QStringList readings;
    int place = 0;
    for ( const PimContactLine& line : a_card )
        readings += a_readingsOf( properties.at( place++ ).toObject(), line );
    return readings + HeadReadings( json, a_card, "numbers", "number" ) + HeadReadings( json, a_card, "mails", "mail" );
}

} // namespace

QStringList DecodedReadings( const PimContactCard& a_card )
{
    return EachReading( a_card, DecodedReadingsOf );
}

QStringList AllReadings( const PimContactCard& a_card )
{
    return EachReading( a_card, []( const QJsonObject& a_property, const PimContactLine& a_line )
                        { return DecodedReadingsOf( a_property, a_line ) + MeaningOf( a_property ); } );
}

} // namespace PimManager::vCard::Documents
