// Nothing in a card can end a string or an object, or put a member into one.

#include "OneCard.h"

#include <QJsonArray>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

const std::vector<QByteArray>& Texts()
{
    static const std::vector<QByteArray> s_kTexts = {
        "\"",
        "\"}",
        "\"]}",
        "\\",
        "\\\\\"",
        "\",\"file\":\"x",
        "\"}],\"name\":\"x\",\"y\":[{\"",
        "\\u0022",
        "]}]}",
        "\xC0\xA2",
        "\xE0\x80\xA2",
        "\x80\"",
        "\xF0\"",
        QByteArray( "\0\"", 2 ),
        "\x1B\"",
        "\xE2\x80\xA8\"",
        "{}[],:",
    };
    return s_kTexts;
}

const QStringList s_kMembers = {
    QStringLiteral( "card" ),       QStringLiteral( "line" ),    QStringLiteral( "mails" ),
    QStringLiteral( "name" ),       QStringLiteral( "numbers" ), QStringLiteral( "organisation" ),
    QStringLiteral( "properties" ), QStringLiteral( "version" ), QStringLiteral( "whole" ) };

// Of the properties below.
const QStringList s_kMembersOfFields = { QStringLiteral( "addresses" ),  QStringLiteral( "events" ),
                                         QStringLiteral( "gender" ),     QStringLiteral( "kind" ),
                                         QStringLiteral( "nameParts" ),  QStringLiteral( "nicknames" ),
                                         QStringLiteral( "notes" ),      QStringLiteral( "organisations" ),
                                         QStringLiteral( "photos" ),     QStringLiteral( "relations" ),
                                         QStringLiteral( "revision" ),   QStringLiteral( "sortName" ),
                                         QStringLiteral( "messengers" ), QStringLiteral( "uid" ) };
const QStringList s_kMembersOfEntries = {
    QStringLiteral( "number" ),    QStringLiteral( "extension" ), QStringLiteral( "context" ),
    QStringLiteral( "mail" ),      QStringLiteral( "name" ),      QStringLiteral( "types" ),
    QStringLiteral( "kinds" ),     QStringLiteral( "label" ),     QStringLiteral( "text" ),
    QStringLiteral( "family" ),    QStringLiteral( "given" ),     QStringLiteral( "additional" ),
    QStringLiteral( "prefix" ),    QStringLiteral( "suffix" ),    QStringLiteral( "postOfficeBox" ),
    QStringLiteral( "extended" ),  QStringLiteral( "units" ),     QStringLiteral( "address" ),
    QStringLiteral( "mediaType" ), QStringLiteral( "size" ),      QStringLiteral( "property" ),
    QStringLiteral( "damaged" ),   QStringLiteral( "kind" ),      QStringLiteral( "date" ),
    QStringLiteral( "handle" ),    QStringLiteral( "service" ),   QStringLiteral( "language" ),
    QStringLiteral( "altId" ),     QStringLiteral( "sortAs" ),    QStringLiteral( "deliveryText" ) };

const QStringList s_kAllowed = {
    QStringLiteral( "name" ),      QStringLiteral( "group" ),      QStringLiteral( "types" ),
    QStringLiteral( "label" ),     QStringLiteral( "preference" ), QStringLiteral( "parameters" ),
    QStringLiteral( "values" ),    QStringLiteral( "fault" ),      QStringLiteral( "parts" ),
    QStringLiteral( "mediaType" ), QStringLiteral( "size" ),       QStringLiteral( "data" ) };

void ExpectMembersOfEntries( const QJsonValue& a_value, const QByteArray& a_lines )
{
    const QJsonArray entries = a_value.isArray() ? a_value.toArray() : QJsonArray{ a_value };
    for ( const auto& entry : entries )
    {
        for ( const QString& key : entry.toObject().keys() )
            EXPECT_TRUE( s_kMembersOfEntries.contains( key ) ) << a_lines.toStdString() << " has " << key.toStdString();
    }
}

void ExpectMembersOfFields( const QJsonObject& a_object, const QByteArray& a_lines )
{
    for ( const QString& key : a_object.keys() )
    {
        EXPECT_TRUE( s_kMembers.contains( key ) || s_kMembersOfFields.contains( key ) )
            << a_lines.toStdString() << " has " << key.toStdString();
        if ( key != QLatin1String( "properties" ) )
            ExpectMembersOfEntries( a_object.value( key ), a_lines );
    }
    for ( const QString& key : s_kMembers )
        EXPECT_TRUE( a_object.contains( key ) ) << a_lines.toStdString() << " lacks " << key.toStdString();
}

void ExpectMembers( const QByteArray& a_lines )
{
    const QJsonObject object = ObjectOf( CardOf( a_lines ) );
    ExpectMembersOfFields( object, a_lines );
    const QJsonArray properties = object.value( QLatin1String( "properties" ) ).toArray();
    EXPECT_EQ( properties.last().toObject().value( QLatin1String( "name" ) ).toString(), QStringLiteral( "X-LAST" ) )
        << a_lines.toStdString();
    for ( const auto& property : properties )
    {
        for ( const QString& key : property.toObject().keys() )
            EXPECT_TRUE( s_kAllowed.contains( key ) ) << a_lines.toStdString() << " has " << key.toStdString();
    }
}

} // namespace

TEST( JsonInjectionTest, MembersAreThoseOfTheFormat )
{
    for ( const char* place : { "FN:%",
                                "N:%;%;%",
                                "ADR:%;%",
                                "ORG:%;%",
                                "TEL:%",
                                "EMAIL:%",
                                "NICKNAME:%,%",
                                "VERSION:%",
                                "N;SORT-AS=%:a",
                                "ADR;LABEL=%:a",
                                "BDAY:%",
                                "REV:%",
                                "UID:%",
                                "KIND:%",
                                "GENDER:%",
                                "IMPP:%",
                                "RELATED:%",
                                "TEL;TYPE=X-%:1",
                                "NOTE;LANGUAGE=%;ALTID=%:a",
                                "NOTE;X=%:a",
                                "NOTE;X=\"%\":a",
                                "NOTE;TYPE=%:a",
                                "NOTE;%:a",
                                "NOTE;X%=b:a",
                                "X-%:a",
                                "i%.NOTE:a",
                                "i1.X-ABLabel:%\r\ni1.TEL:1",
                                "PHOTO;ENCODING=b:%",
                                "PHOTO:data:%,a",
                                "PHOTO;ENCODING=b;MEDIATYPE=image/%:Zm9v",
                                "NOTE;ENCODING=QUOTED-PRINTABLE:%",
                                "NOTE;CHARSET=Shift_JIS:\x83%",
                                "NOTE;CHARSET=%:\xE9" } )
    {
        for ( const QByteArray& text : Texts() )
            ExpectMembers( QByteArray( place ).replace( '%', text ) + "\r\nX-LAST:1" );
    }
}

} // namespace PimManager::Contacts
