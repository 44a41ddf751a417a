#include "ProgramRun.h"

#include "TestBooks.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <vector>

using namespace PimManager::Tools;

namespace
{

QJsonArray Parsed( const std::string& a_json )
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson( QByteArray::fromStdString( a_json ), &error );
    EXPECT_EQ( error.error, QJsonParseError::NoError ) << a_json;
    return document.array();
}

// The object of the only property of a card but VERSION.
std::string PropertyJson( const QByteArray& a_line )
{
    const ProgramRun run = ProgramCall( { "convert", "--to", "json-lines", "-" } )
                               .WithInput( CardText( a_line + "\r\nVERSION:3.0\r\n" ) )
                               .Run();
    const std::string head = "\"properties\":[";
    const std::string tail = R"(,{"name":"VERSION","types":[],"values":["3.0"]}]})"
                             "\n";
    const size_t start = run.m_out.find( head );
    const size_t end = run.m_out.rfind( tail );
    if ( start == std::string::npos || end == std::string::npos )
        return run.m_out;
    return run.m_out.substr( start + head.size(), end - start - head.size() );
}

} // namespace

TEST( ConvertJsonTest, ContactHoldsWhereItStoodAndWhatAListShows )
{
    const ProgramRun run =
        ProgramCall( { "convert", "--to", "json-lines", "-" } )
            .WithInput( CleanCard() + CardText( "VERSION:2.1\r\nFN:Nell\r\nTEL;CELL;PREF:555\r\n"
                                                "EMAIL;INTERNET:n@example.com\r\nORG:Tide Office;Charts\r\n" ) )
            .Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_NE(
        run.m_out.find( R"({"file":"standard input","card":2,"line":6,"whole":true,"version":"2.1","name":"Nell",)"
                        R"("numbers":[{"number":"555","types":["CELL"],"kinds":["mobile"],"preference":1}],)"
                        R"("mails":[{"mail":"n@example.com","types":[]}],"organisation":"Tide Office, Charts",)"
                        R"("organisations":[{"name":"Tide Office","units":["Charts"]}],"properties":[)" ),
        std::string::npos )
        << run.m_out;
}

TEST( ConvertJsonTest, PropertiesAreDecoded )
{
    struct Row
    {
        const char* m_line;
        const char* m_json;
    };
    const std::vector<Row> rows = {
        { "NOTE:a\\nb", R"({"name":"NOTE","types":[],"values":["a\nb"]})" },
        { "note;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=A9", R"({"name":"NOTE","types":[],"values":["é"]})" },
        { "item1.TEL;TYPE=home,pref;X-A=\"b\";LANGUAGE=en:5",
          R"({"name":"TEL","group":"item1","types":["HOME"],"preference":1,)"
          R"("parameters":[{"name":"X-A","values":["b"]},{"name":"LANGUAGE","values":["en"]}],"values":["5"]})" },
        { "N:Brackwater;Nell;Imogen;Dr.;",
          R"({"name":"N","types":[],"values":["Brackwater","Nell","Imogen","Dr.",""],"parts":{"family":"Brackwater",)"
          R"("given":"Nell","additional":"Imogen","prefixes":"Dr.","suffixes":""}})" },
        { "ADR;HOME:;;3 Ferry Steps;Port Lanthorn;;X1;L",
          R"({"name":"ADR","types":["HOME"],"values":["","","3 Ferry Steps","Port Lanthorn","","X1","L"],)"
          R"("parts":{"postOfficeBox":"","extended":"","street":"3 Ferry Steps","locality":"Port Lanthorn",)"
          R"("region":"","postalCode":"X1","country":"L"}})" },
        { "X-IRMC-CALL-DATETIME;DIALED:20240311T084512Z",
          R"({"name":"X-IRMC-CALL-DATETIME","types":["DIALED"],"values":["20240311T084512Z"],)"
          R"("call":{"direction":"dialed","time":"2024-03-11T08:45:12Z"}})" },
        { "PHOTO;ENCODING=b:R0lGODlhAQABAIAAAP///wAAACwAAAAAAQABAAACAkQBADs=",
          R"({"name":"PHOTO","types":[],"mediaType":"image/gif","size":35,)"
          R"("data":"R0lGODlhAQABAIAAAP///wAAACwAAAAAAQABAAACAkQBADs="})" },
        { "PHOTO;VALUE=uri:http://example.com/x.jpg",
          R"({"name":"PHOTO","types":[],"parameters":[{"name":"VALUE","values":["uri"]}],)"
          R"("values":["http://example.com/x.jpg"]})" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( PropertyJson( row.m_line ), row.m_json ) << row.m_line;
}

TEST( ConvertJsonTest, DocumentIsOneArrayOverAllFiles )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", CleanCard() + CleanCard() );
    EXPECT_EQ( Parsed( RunPimvcard( { "convert", "--to", "json", book, book } ).m_out ).size(), 4 );
    EXPECT_EQ( RunPimvcard( { "convert", "--to", "json", folder.Write( "empty", "" ) } ).m_out, "[]\n" );
    EXPECT_EQ( RunPimvcard( { "convert", "--to", "json", folder.Path( "missing" ) } ).m_out, "[]\n" );
}

TEST( ConvertJsonTest, EveryLineIsADocument )
{
    const Folder folder;
    const QByteArray card = CardText( "VERSION:3.0\r\nFN:" + HostileText() + "\r\nNOTE:" + HostileText() + "\\n\r\n" );
    const QByteArray book = folder.Write( "book", card + PartCard() + card );
    const ProgramRun run = RunPimvcard( { "convert", "-t", "json-lines", book } );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_TRUE( IsHarmless( run.m_out ) );
    QList<QByteArray> lines = QByteArray::fromStdString( run.m_out ).split( '\n' );
    EXPECT_TRUE( lines.takeLast().isEmpty() );
    ASSERT_EQ( lines.size(), 3 );
    for ( int i = 0; i < lines.size(); ++i )
    {
        const QJsonObject contact = QJsonDocument::fromJson( lines.at( i ) ).object();
        EXPECT_EQ( contact.value( QStringLiteral( "card" ) ).toInt(), i + 1 );
        EXPECT_EQ( contact.value( QStringLiteral( "whole" ) ).toBool(), i != 1 );
        EXPECT_EQ( Utf8( contact.value( QStringLiteral( "file" ) ).toString() ), book.toStdString() );
    }
}

TEST( ConvertJsonTest, NothingIsCut )
{
    const QByteArray value( 1000000, 'v' );
    const ProgramRun run = ProgramCall( { "convert", "-t", "json-lines", "-" } )
                               .WithInput( CardText( "VERSION:3.0\r\nNOTE:" + value + "\r\n" ) )
                               .Run();
    EXPECT_NE( run.m_out.find( '"' + value.toStdString() + '"' ), std::string::npos );
}
