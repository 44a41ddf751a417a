#include "CardJsonWriter.h"

#include "ToolsTestText.h"

#include <QBuffer>

using namespace PimManager::vCard;
using namespace PimManager::vCard::Tools;

namespace
{

constexpr JsonRecords::Form s_kDocument = JsonRecords::Form::Document;
constexpr JsonRecords::Form s_kLines = JsonRecords::Form::Lines;

std::string Json( JsonRecords::Form a_form, const QList<QByteArray>& a_cards )
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
