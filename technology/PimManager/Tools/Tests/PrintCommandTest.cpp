#include "ProgramRun.h"

#include "ToolsTestText.h"

#include <unistd.h>
#include <vector>

using namespace PimManager::vCard::Tools;

namespace
{

const QByteArray s_kGood = CardText( "FN:Nell\r\nTEL;TYPE=CELL:555-0100\r\n" );
const QByteArray s_kBroken = CardText( "X_Y:z\r\n" );

// The totals without their time, which must be a number.
std::string Totals( const ProgramRun& a_run )
{
    std::string line = a_run.LastMessage();
    const size_t comma = line.rfind( ", " );
    if ( comma == std::string::npos )
        return line;
    const std::string time = line.substr( comma + 2 );
    const size_t digits = time.find_first_not_of( "0123456789" );
    EXPECT_TRUE( digits > 0 && time.substr( digits ) == " ms\n" ) << line;
    return line.substr( 0, comma );
}

// The messages without the totals.
std::string Notes( const ProgramRun& a_run )
{
    return a_run.m_err.substr( 0, a_run.m_err.size() - a_run.LastMessage().size() );
}

} // namespace

TEST( PrintCommandTest, CardsAreNumberedWithinTheirFile )
{
    const Folder folder;
    const QByteArray first = folder.Write( "a.vcf", s_kGood + s_kGood );
    const QByteArray second = folder.Write( "b.vcf", s_kGood );
    const std::string lines = "\n\n    FN   Nell\n    TEL  [TYPE=CELL] 555-0100\n";
    const std::string inFirst = " (" + first.toStdString() + ")";
    const std::string inSecond = " (" + second.toStdString() + ")";
    const ProgramRun run = RunPimvcard( { "print", first, second } );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out,
               "1. Nell" + inFirst + lines + "\n2. Nell" + inFirst + lines + "\n1. Nell" + inSecond + lines );
    EXPECT_EQ( Notes( run ), "" );
    EXPECT_EQ( Totals( run ), "pimvcard: 2 files, 3 cards, 0 cards refused" );
}

TEST( PrintCommandTest, EachFileGivesItsStatusAndItsNotes )
{
    const Folder folder;
    struct Row
    {
        QByteArray m_content;
        int m_status;
        const char* m_note;
        const char* m_totals;
    };
    const std::vector<Row> rows = {
        { s_kGood, 0, "", "1 file, 1 card, 0 cards refused" },
        { "", 0, ": is empty\n", "1 file, 0 cards, 0 cards refused" },
        { s_kGood + s_kBroken + s_kGood, 1, ": 1 of 3 cards refused; --log shows why\n",
          "1 file, 2 cards, 1 card refused" },
        { "\r\n", 1, ": holds no vCard\n", "1 file, 0 cards, 1 card refused" },
        { "BEGIN:VCARD\r\nFN:Tobias\r\n" + s_kGood, 1,
          ": card 1 (Tobias) swallowed another card: a BEGIN:VCARD line stands inside it, so an END:VCARD line seems "
          "to be missing\n",
          "1 file, 1 card, 1 card refused" },
        { "BEGIN:VCARD\nEND:VCARD\n", 1,
          ": 2 of 2 lines end in a bare LF; the reader needs CR LF and loses cards without it\n",
          "1 file, 0 cards, 1 card refused" },
        { "BEGIN:VCARD\rX_Y:z\rEND:VCARD\r", 1,
          ": 3 of 3 lines end in a bare CR; the reader needs CR LF and loses cards without it\n",
          "1 file, 0 cards, 1 card refused" },
        { "BEGIN:VCARD\r\nEND:VCARD", 1, ": the last line has no line end; the reader needs CR LF there, too\n",
          "1 file, 0 cards, 1 card refused" },
        { s_kGood + "X:" + '\0' + "\r\n" + s_kGood, 1,
          " is NUL and nothing after it is read; text in UTF-16 looks like this\n", "1 file, 1 card, 1 card refused" },
    };
    int number = 0;
    for ( const Row& row : rows )
    {
        const QByteArray file = folder.Write( QByteArray::number( ++number ), row.m_content );
        const ProgramRun run = RunPimvcard( { "print", file } );
        EXPECT_EQ( run.m_status, row.m_status ) << row.m_note;
        EXPECT_NE( Notes( run ).find( row.m_note ), std::string::npos ) << row.m_note << run.m_err;
        EXPECT_EQ( Notes( run ).empty(), *row.m_note == '\0' ) << run.m_err;
        EXPECT_EQ( Totals( run ), std::string( "pimvcard: " ) + row.m_totals );
    }
}

TEST( PrintCommandTest, FileThatCannotBeReadIsNamedAndTheOthersArePrinted )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", s_kGood );
    struct Row
    {
        QByteArray m_name;
        const char* m_reason;
    };
    const std::vector<Row> rows = {
        { folder.Path( "missing.vcf" ), "No such file or directory" },
        { folder.Path( "" ), "is a folder" },
        { book + "/x", "Not a directory" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( { "print", row.m_name, book } );
        EXPECT_EQ( run.m_status, 2 ) << row.m_reason;
        EXPECT_EQ( Notes( run ), "pimvcard: " + row.m_name.toStdString() + ": " + row.m_reason + "\n" );
        EXPECT_EQ( Totals( run ), "pimvcard: 1 file (1 not read), 1 card, 0 cards refused" );
        EXPECT_EQ( run.m_out.find( "1. Nell (" ), 0U ) << run.m_out;
    }
}

TEST( PrintCommandTest, HugeFileIsRefusedBeforeItIsRead )
{
    const Folder folder;
    const QByteArray book = folder.Write( "huge.vcf", s_kGood );
    const off_t largest = sizeof( void* ) < 8 ? 100000000 : 700000000;
    ASSERT_EQ( truncate( book.constData(), largest + 1 ), 0 );
    const ProgramRun run = RunPimvcard( { "print", book } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( Notes( run ), "pimvcard: " + book.toStdString() + ": is too large: more than " +
                                 std::to_string( largest ) + " bytes cannot be read at once\n" );
}

TEST( PrintCommandTest, WorstStatusWins )
{
    const Folder folder;
    const QByteArray good = folder.Write( "good", s_kGood );
    const QByteArray empty = folder.Write( "empty", "" );
    const QByteArray broken = folder.Write( "broken", s_kBroken );
    const QByteArray missing = folder.Path( "missing" );
    struct Row
    {
        QList<QByteArray> m_files;
        int m_status;
    };
    const std::vector<Row> rows = {
        { { good, empty }, 0 },   { { broken, good }, 1 },    { { good, broken, empty }, 1 },
        { { missing, good }, 2 }, { { missing, broken }, 2 }, { { broken, missing, good }, 2 },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( RunPimvcard( QList<QByteArray>{ "print" } + row.m_files ).m_status, row.m_status )
            << row.m_files.join( ' ' ).constData();
}

TEST( PrintCommandTest, DashIsStandardInput )
{
    const ProgramRun run = ProgramCall( { "print", "-" } ).WithInput( s_kGood + s_kBroken ).Run();
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_EQ( run.m_out, "1. Nell (standard input)\n\n    FN   Nell\n    TEL  [TYPE=CELL] 555-0100\n" );
    EXPECT_EQ( Notes( run ), "pimvcard: standard input: 1 of 2 cards refused; --log shows why\n" );
}

TEST( PrintCommandTest, FileNamedLikeAnOptionCanBePrinted )
{
    const ProgramRun run = RunPimvcard( { "print", "--", "--json" } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( Notes( run ), "pimvcard: --json: No such file or directory\n" );
}

TEST( PrintCommandTest, FileNameMayBeAnyBytes )
{
    const Folder folder;
    const QByteArray book = folder.Write( "\xFF\x1B[2J\n\xC3\xA9.vcf", s_kGood );
    const ProgramRun run = RunPimvcard( { "print", book } );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    const std::string heading = run.m_out.substr( 0, run.m_out.find( '\n' ) );
    EXPECT_NE( heading.find( "/\xEF\xBF\xBD\\x1b[2J\\n\xC3\xA9.vcf)" ), std::string::npos ) << heading;
}

TEST( PrintCommandTest, LongValuesAreCutUnlessAllIsWanted )
{
    const Folder folder;
    const std::string photo( 5944, 'A' );
    const QByteArray book = folder.Write( "a", CardText( "PHOTO:" + QByteArray::fromStdString( photo ) + "\r\n" ) );
    const ProgramRun cut = RunPimvcard( { "print", book } );
    EXPECT_NE( cut.m_out.find( "PHOTO  " + photo.substr( 0, 60 ) + "\xE2\x80\xA6 (5944 characters)\n" ),
               std::string::npos )
        << cut.m_out;
    for ( const char* option : { "--full", "-f" } )
    {
        const ProgramRun full = RunPimvcard( { "print", option, book } );
        EXPECT_NE( full.m_out.find( "PHOTO  " + photo + "\n" ), std::string::npos ) << option;
    }
}

TEST( PrintCommandTest, LogIsShownOnlyWhenAskedFor )
{
    const Folder folder;
    const QByteArray book = folder.Write( "a", s_kGood + s_kBroken );
    const ProgramRun quiet = RunPimvcard( { "print", book } );
    EXPECT_EQ( quiet.m_err.find( "Error in" ), std::string::npos ) << quiet.m_err;
    EXPECT_EQ( quiet.m_err.find( "PVCP" ), std::string::npos ) << quiet.m_err;
    for ( const char* option : { "--log", "-l" } )
    {
        const ProgramRun shown = RunPimvcard( { "print", option, book } );
        EXPECT_EQ( shown.m_status, 1 );
        EXPECT_EQ( shown.m_out, quiet.m_out );
        for ( const char* text : { "Error in \"ParseVCards()\" ->\n  \"Could not parse vCard...\"\n",
                                   "   Illegal Character: '_'\n", "Line Number:", "[PVCP] : 1 vCards parsed in: " } )
            EXPECT_NE( shown.m_err.find( text ), std::string::npos ) << text << shown.m_err;
        EXPECT_EQ( Totals( shown ), "pimvcard: 1 file, 1 card, 1 card refused" );
    }
}

TEST( PrintCommandTest, LoggingRulesOfTheEnvironmentChangeNothing )
{
    const Folder folder;
    const QByteArray book = folder.Write( "a", s_kBroken );
    for ( const char* rules : { "QT_LOGGING_RULES=*=false", "QT_LOGGING_RULES=*=true" } )
    {
        const ProgramRun run = ProgramCall( { "print", book } ).WithVariable( rules ).Run();
        EXPECT_EQ( run.m_status, 1 ) << rules;
        EXPECT_EQ( Totals( run ), "pimvcard: 1 file, 0 cards, 1 card refused" ) << run.m_err;
    }
}
