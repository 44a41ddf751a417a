#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

const QByteArray s_kNell = CardText( "VERSION:3.0\r\nFN:Nell\r\nORG:Tide Office\r\nTEL;TYPE=HOME:+49 30 23125 111\r\n"
                                     "item1.TEL:+49 (0)30 / 23125-222\r\nitem1.X-ABLabel:boat phone\r\n" );
const QByteArray s_kBo = CardText( "VERSION:3.0\r\nFN:Bo\r\nTEL:030 23125333\r\n" );

} // namespace

TEST( WhoCommandTest, MatchTellsHowCertainTheNumberIs )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_row;
    };
    const std::vector<Row> rows = {
        { { "+493023125222" }, "Nell  +49 (0)30 / 23125-222 boat phone  exact     Tide Office" },
        { { "+49 30 23125-111" }, "Nell  +49 30 23125 111 home  exact     Tide Office" },
        { { "030 23125111" }, "Nell  +49 30 23125 111 home  ending    Tide Office" },
        { { "--region", "DE", "030 23125111" }, "Nell  +49 30 23125 111 home  national  Tide Office" },
        { { "-R", "de", "+493023125333" }, "Bo    030 23125333  national" },
        { { "3125333" }, "Bo    030 23125333  ending" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run =
            ProgramCall( QList<QByteArray>{ "who", "-q", "-" } + row.m_arguments ).WithInput( s_kNell + s_kBo ).Run();
        EXPECT_EQ( run.m_status, 0 ) << row.m_row;
        const QStringList lines = QString::fromStdString( run.m_out ).split( QLatin1Char( '\n' ) );
        ASSERT_EQ( lines.size(), 3 ) << row.m_row << run.m_out;
        EXPECT_EQ( Utf8( lines.at( 0 ).simplified() ), "NAME NUMBER MATCH ORGANISATION" );
        EXPECT_EQ( Utf8( lines.at( 1 ).simplified() ), Utf8( QString::fromUtf8( row.m_row ).simplified() ) );
    }
}

TEST( WhoCommandTest, EveryContactWithTheNumberIsPrinted )
{
    const Folder folder;
    const QByteArray first = folder.Write( "a.vcf", s_kNell + s_kBo );
    const QByteArray second =
        folder.Write( "b.vcf", CardText( "VERSION:3.0\r\nFN:Ada\r\nTEL:3023125111\r\n" ) +
                                   CardText( "VERSION:3.0\r\nFN:Cy\r\nTEL:0049 30 23125111\r\n" ) );
    const ProgramRun run = RunPimvcard( { "who", "--region", "DE", first, second, "+49 30 23125111" } );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out, "NAME  NUMBER                 MATCH   ORGANISATION  BOOK\n"
                          "Nell  +49 30 23125 111 home  exact   Tide Office   a.vcf\n"
                          "Cy    0049 30 23125111       exact                 b.vcf\n"
                          "Ada   3023125111             ending                b.vcf\n" );
    EXPECT_EQ( run.m_err.find( "pimvcard: 3 found, 2 files, 4 contacts, " ), 0U ) << run.m_err;
}

TEST( WhoCommandTest, StatusTellsThatNobodyHasTheNumber )
{
    for ( const char* number : { "+49 30 23125999", "110", "anonymous", "" } )
    {
        const ProgramRun run = ProgramCall( { "who", "-q", "-", number } ).WithInput( s_kNell + s_kBo ).Run();
        EXPECT_EQ( run.m_status, 1 ) << number;
        EXPECT_EQ( run.m_out, "" ) << number;
        EXPECT_EQ( run.m_err, "" ) << number;
    }
}

TEST( WhoCommandTest, HostileContactReachesTheTerminalHarmlessly )
{
    const QByteArray text = HostileText();
    const QByteArray card = CardText( "VERSION:3.0\r\nFN:" + text + "\r\nTEL;TYPE=\"" + text +
                                      "\":+49 30 23125 111\r\nORG:" + text + "\r\n" );
    const ProgramRun run = ProgramCall( { "who", "-", "+49 30 23125 111" } ).WithInput( card ).Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_GT( run.m_out.size(), 100U );
    EXPECT_TRUE( IsHarmless( run.m_out ) ) << run.m_out;
    EXPECT_TRUE( IsHarmless( run.m_err ) ) << run.m_err;
}

TEST( WhoCommandTest, WrongUsageIsReportedWithStatusTwo )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
    };
    const std::vector<Row> rows = {
        { {}, "pimvcard: too few arguments; write \"pimvcard who BOOK... PHONE\"\n" },
        { { "book.vcf" }, "pimvcard: too few arguments; write \"pimvcard who BOOK... PHONE\"\n" },
        { { "-R", "XX", "book.vcf", "1" },
          "pimvcard: unknown region: \"XX\"; write the two letters of a country, such as DE\n" },
        { { "-R", "", "book.vcf", "1" },
          "pimvcard: unknown region: \"\"; write the two letters of a country, such as DE\n" },
        { { "--region", "\x1B", "book.vcf", "1" },
          "pimvcard: unknown region: \"\\x1b\"; write the two letters of a country, such as DE\n" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( QList<QByteArray>{ "who" } + row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err,
                   row.m_message + std::string( "pimvcard: \"pimvcard who --help\" shows how to use it\n" ) );
    }
}
