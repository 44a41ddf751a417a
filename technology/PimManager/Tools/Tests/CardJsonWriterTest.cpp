#include "CardJsonWriter.h"

#include "ToolsTestText.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>

#include <vector>

using namespace PimManager::vCard;
using namespace PimManager::vCard::Tools;

namespace
{

constexpr CardJsonWriter::Form s_kDocument = CardJsonWriter::Form::Document;
constexpr CardJsonWriter::Form s_kLines = CardJsonWriter::Form::Lines;

std::string Json( CardJsonWriter::Form a_form, const QList<QByteArray>& a_cards )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    CardJsonWriter writer( buffer, a_form );
    writer.Begin();
    for ( const QByteArray& lines : a_cards )
        writer.Write( *OnlyCard( lines ), 1, QString() );
    writer.End();
    return buffer.data().toStdString();
}

constexpr const char* s_kTelJson =
    R"({"properties":[{"group":"","name":"TEL","parameters":[{"name":"TYPE","value":"CELL"}],"values":["5"]}]})";
constexpr const char* s_kTel = "TEL;TYPE=CELL:5\r\n";

} // namespace

TEST( CardJsonWriterTest, LineHoldsOneObject )
{
    EXPECT_EQ( Json( s_kLines, {} ), "" );
    EXPECT_EQ( Json( s_kLines, { s_kTel } ), std::string( s_kTelJson ) + "\n" );
    EXPECT_EQ( Json( s_kLines, { s_kTel, s_kTel } ), std::string( s_kTelJson ) + "\n" + s_kTelJson + "\n" );
}

TEST( CardJsonWriterTest, DocumentIsOneArray )
{
    EXPECT_EQ( Json( s_kDocument, {} ), "[]\n" );
    EXPECT_EQ( Json( s_kDocument, { s_kTel } ), std::string( "[\n" ) + s_kTelJson + "\n]\n" );
    EXPECT_EQ( Json( s_kDocument, { s_kTel, s_kTel } ),
               std::string( "[\n" ) + s_kTelJson + ",\n" + s_kTelJson + "\n]\n" );
}

TEST( CardJsonWriterTest, EverythingOfAPropertyIsThere )
{
    EXPECT_EQ( Json( s_kLines, { "a.b.ADR;HOME;Z=\"q;r\":;x;\r\nNOTE:\r\n" } ),
               R"({"properties":[{"group":"a.b","name":"ADR","parameters":[{"name":"","value":"HOME"},)"
               R"({"name":"Z","value":"\"q;r\""}],"values":["","x",""]},)"
               R"({"group":"","name":"NOTE","parameters":[],"values":[""]}]})"
               "\n" );
    EXPECT_EQ( Json( s_kLines, { "" } ), "{\"properties\":[]}\n" );
}

TEST( CardJsonWriterTest, NothingIsCut )
{
    const QByteArray value( 100000, 'v' );
    EXPECT_NE( Json( s_kLines, { "NOTE:" + value + "\r\n" } ).find( '"' + value.toStdString() + '"' ),
               std::string::npos );
}

TEST( CardJsonWriterTest, UnsafeCharactersAreEscaped )
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

TEST( CardJsonWriterTest, HalfOfASurrogatePairIsReplaced )
{
    const QString text = QStringLiteral( "a" ) + QChar( 0xD83D ) + QStringLiteral( "b" ) + QChar( 0xDD2D );
    EXPECT_EQ( Utf8( ToJsonText( text ) ), "a\xEF\xBF\xBD"
                                           "b\xEF\xBF\xBD" );
}

TEST( CardJsonWriterTest, NullEntriesAreSkipped )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    CardJsonWriter writer( buffer, s_kLines );
    auto* const property =
        new PimVCardProperty( QString(), QStringLiteral( "X" ), new QList<PimVCardParameter*>{ nullptr }, nullptr );
    writer.Write( PimVCard( new QList<PimVCardProperty*>{ nullptr, property } ), 1, QString() );
    EXPECT_EQ( buffer.data().toStdString(), R"({"properties":[{"group":"","name":"X","parameters":[],"values":[]}]})"
                                            "\n" );
}
