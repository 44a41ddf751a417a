#include "JsonStream.h"

#include "ToolsTestText.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>

#include <functional>
#include <vector>

using namespace PimManager::vCard::Tools;

namespace
{

std::string Written( const std::function<void( JsonStream& )>& a_write )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    JsonStream json( buffer );
    a_write( json );
    return buffer.data().toStdString();
}

} // namespace

TEST( JsonStreamTest, UnsafeCharactersAreEscaped )
{
    struct Row
    {
        QString m_text;
        std::string m_json;
    };
    const std::vector<Row> rows = {
        { QStringLiteral( "a\"b\\c/d" ), R"(a\"b\\c/d)" },
        { QStringLiteral( "\n\r\t" ), R"(\n\u000d\u0009)" },
        { QString( QChar( 0 ) ), R"(\u0000)" },
        { QStringLiteral( "\u001B\u007F" ), R"(\u001b\u007f)" },
        { QString( QChar( 0x9B ) ) + QChar( 0x202E ) + QChar( 0x2028 ), R"(\u009b\u202e\u2028)" },
        { QString::fromUtf8( "\xF3\xA0\x80\x81" ), R"(\udb40\udc01)" },
        { QString::fromUtf8( "\xF0\x9F\x94\xAD \xC3\xA9" ), "\xF0\x9F\x94\xAD \xC3\xA9" },
    };
    for ( const Row& row : rows )
    {
        const QString json = ToJsonText( row.m_text );
        EXPECT_EQ( Utf8( json ), row.m_json );
        const QByteArray document = "[\"" + json.toUtf8() + "\"]";
        EXPECT_EQ( QJsonDocument::fromJson( document ).array().at( 0 ).toString(), row.m_text ) << row.m_json;
    }
}

TEST( JsonStreamTest, HalfOfASurrogatePairIsReplaced )
{
    const QString text = QStringLiteral( "a" ) + QChar( 0xD83D ) + QStringLiteral( "b" ) + QChar( 0xDD2D );
    EXPECT_EQ( Utf8( ToJsonText( text ) ), "a\xEF\xBF\xBD"
                                           "b\xEF\xBF\xBD" );
}

TEST( JsonStreamTest, CommasStandBetweenValuesOnly )
{
    const std::string json = Written(
        []( JsonStream& a_json )
        {
            a_json.BeginObject();
            a_json.Member( "text", QStringLiteral( "a\"b" ) );
            a_json.Member( "number", qint64( -7 ) );
            a_json.Member( "none", QStringList() );
            a_json.Member( "texts", QStringList{ QStringLiteral( "x" ), QString() } );
            a_json.Name( "list" );
            a_json.BeginList();
            a_json.BeginObject();
            a_json.EndObject();
            a_json.BeginList();
            a_json.EndList();
            a_json.Truth( true );
            a_json.Truth( false );
            a_json.PlainText( "QUI=" );
            a_json.EndList();
            a_json.EndObject();
        } );
    EXPECT_EQ( json, R"({"text":"a\"b","number":-7,"none":[],"texts":["x",""],"list":[{},[],true,false,"QUI="]})" );
    EXPECT_FALSE( QJsonDocument::fromJson( QByteArray::fromStdString( json ) ).isNull() );
}
