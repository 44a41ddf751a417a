#include "ProgramRun.h"

#include "TestBooks.h"

using namespace PimManager::Tools;

TEST( ConvertCsvTest, EachContactIsARow )
{
    const ProgramRun run =
        ProgramCall( { "convert", "-t", "csv", "--columns", "name,mobile", "-" } )
            .WithInput( CleanCard() + CardText( "VERSION:3.0\r\nFN:\"A\\, B\"\r\nTEL;CELL:+1 555\r\n" ) )
            .Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out, "name,mobile\r\nNell,555-0100\r\n\"\"\"A, B\"\"\",+1 555\r\n" );
    EXPECT_NE( run.LastMessage().find( "2 rows of 2 columns written" ), std::string::npos ) << run.m_err;
}

TEST( ConvertCsvTest, MarkComesFirst )
{
    const ProgramRun run =
        ProgramCall( { "convert", "-t", "csv", "--columns", " uid , name", "--mark", "-" } ).WithInput( "" ).Run();
    EXPECT_EQ( run.m_out, "\xEF\xBB\xBFuid,name\r\n" );
}

TEST( ConvertCsvTest, HostileTextEndsNoFieldAndRunsNothing )
{
    const QByteArray card = CardText( "VERSION:3.0\r\nFN:=HYPERLINK(\"x\")\\n" + HostileText() + "\r\nNOTE:@a\r\n" );
    const ProgramRun run = ProgramCall( { "convert", "-t", "csv", "-C", "name,note", "-" } ).WithInput( card ).Run();
    EXPECT_EQ( run.m_out.find( "name,note\r\n\"'=HYPERLINK(\"\"x\"\")" ), 0U ) << run.m_out;
    EXPECT_EQ( run.m_out.substr( run.m_out.size() - 6 ), ",'@a\r\n" ) << run.m_out;
    EXPECT_EQ( run.m_out.find( '\x1B' ), std::string::npos );
}

TEST( ConvertCsvTest, UnknownColumnListsTheKnownOnes )
{
    const ProgramRun run = RunPimvcard( { "convert", "-t", "csv", "-C", "name,mobil", "x.vcf" } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err.find( "pimvcard: unknown column: mobil; use one of name, prefix, " ), 0U ) << run.m_err;
    EXPECT_NE( run.m_err.find( "Did you mean \"mobile\"?" ), std::string::npos ) << run.m_err;
}

TEST( ConvertCsvTest, PropertiesWithoutAColumnAreReported )
{
    const QByteArray first =
        CardText( "VERSION:3.0\r\nFN:Nell\r\nGEO:1;2\r\nX-JABBER:nell@example.com\r\n" + PhotoLine( PngPicture() ) );
    const QByteArray second =
        CardText( "VERSION:3.0\r\nfn:Mara\r\nphoto;value=uri:http://example.com/\r\n"
                  "item1.TEL:1\r\nitem1.X-ABLabel:boat\r\nX-ANNIVERSARY:2009-08-08\r\nDEATHDATE:2020-01-02\r\n" );
    const ProgramRun run =
        ProgramCall( { "convert", "-t", "csv", "-C", "name", "-" } ).WithInput( first + second ).Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out, "name\r\nNell\r\nMara\r\n" );
    EXPECT_EQ( run.m_err.find(
                   "pimvcard: no column for 2 × PHOTO, 1 × DEATHDATE, 1 × GEO, 1 × X-ABLABEL; --to json has them\n" ),
               0U )
        << run.m_err;
    EXPECT_NE( run.LastMessage().find( "2 rows of 1 column written (5 properties left out), " ), std::string::npos )
        << run.m_err;
}

TEST( ConvertCsvTest, NothingIsReportedIfColumnsHoldEverything )
{
    const QByteArray card = CardText(
        "VERSION:3.0\r\nN:a;b;c;d;e\r\nFN:a\r\nNICKNAME:a\r\nORG:a;b\r\nTITLE:a\r\nROLE:a\r\nTEL:1\r\nEMAIL:a@b\r\n"
        "ADR:;;a;b;c;d;e\r\nURL:http://a\r\nIMPP:xmpp:a@b\r\nBDAY:1985-04-12\r\nCATEGORIES:a\r\nNOTE:a\r\nUID:a\r\n"
        "X-SKYPE-USERNAME:a\r\nX-EVOLUTION-ANNIVERSARY:2009-08-08\r\n" );
    const ProgramRun run = ProgramCall( { "convert", "-t", "csv", "-" } ).WithInput( card ).Run();
    EXPECT_EQ( run.m_err, run.LastMessage() );
    EXPECT_NE( run.LastMessage().find( "1 row of 41 columns written, " ), std::string::npos ) << run.m_err;
}

TEST( ConvertCsvTest, ManyNamesWithoutAColumnAreOneRemark )
{
    QByteArray lines = "VERSION:3.0\r\nFN:Nell\r\n";
    for ( int i = 0; i < 1100; ++i )
        lines += "X-" + QByteArray( 100, 'Y' ) + QByteArray::number( i ) + ":a\r\n";
    const ProgramRun run = ProgramCall( { "convert", "-t", "csv", "-" } ).WithInput( CardText( lines ) ).Run();
    EXPECT_LT( run.m_err.size(), 2000U ) << run.m_err;
    EXPECT_NE( run.m_err.find( ", 1080 others; --to json has them\n" ), std::string::npos ) << run.m_err;
}
