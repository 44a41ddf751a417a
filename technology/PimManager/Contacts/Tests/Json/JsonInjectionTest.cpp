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

QStringList SortedKeys( const QJsonObject& a_object )
{
    return a_object.keys();
}

const QStringList s_kMembers = {
    QStringLiteral( "card" ),       QStringLiteral( "line" ),    QStringLiteral( "mails" ),
    QStringLiteral( "name" ),       QStringLiteral( "numbers" ), QStringLiteral( "organisation" ),
    QStringLiteral( "properties" ), QStringLiteral( "version" ), QStringLiteral( "whole" ) };

const QStringList s_kAllowed = {
    QStringLiteral( "name" ),      QStringLiteral( "group" ),      QStringLiteral( "types" ),
    QStringLiteral( "label" ),     QStringLiteral( "preference" ), QStringLiteral( "parameters" ),
    QStringLiteral( "values" ),    QStringLiteral( "fault" ),      QStringLiteral( "parts" ),
    QStringLiteral( "mediaType" ), QStringLiteral( "size" ),       QStringLiteral( "data" ) };

void ExpectMembers( const QByteArray& a_lines )
{
    const QJsonObject object = ObjectOf( CardOf( a_lines ) );
    EXPECT_EQ( SortedKeys( object ), s_kMembers ) << a_lines.toStdString();
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
