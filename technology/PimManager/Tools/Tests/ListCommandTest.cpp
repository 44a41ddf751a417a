#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

// The totals without their time.
std::string Totals( const ProgramRun& a_run )
{
    const std::string line = a_run.LastMessage();
    return line.substr( 0, line.rfind( ", " ) );
}

// The messages without the totals.
std::string Notes( const ProgramRun& a_run )
{
    return a_run.m_err.substr( 0, a_run.m_err.size() - a_run.LastMessage().size() );
}

} // namespace

TEST( ListCommandTest, ContactsOfAllFilesAreInOneTable )
{
    const Folder folder;
    const QByteArray first = folder.Write( "a.vcf", CleanCard() + CleanCard() );
    const QByteArray second = folder.Write( "b.vcf", CardText( "FN:Tobias\r\nEMAIL:t@example.com\r\n" ) );
    const ProgramRun run = RunPimvcard( { "list", first, second } );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    EXPECT_EQ( run.m_out, "NAME    NUMBER         MAIL           ORGANISATION  BOOK\n"
                          "Nell    555-0100 cell                               a.vcf\n"
                          "Nell    555-0100 cell                               a.vcf\n"
                          "Tobias                 t@example.com                b.vcf\n" );
    EXPECT_EQ( Notes( run ), "" );
    EXPECT_EQ( Totals( run ), "pimvcard: 2 files, 3 contacts, 0 cards refused, 0 lines dropped" );
}

TEST( ListCommandTest, EachFileGivesItsStatusAndItsNotes )
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
        { CleanCard(), 0, "", "1 file, 1 contact, 0 cards refused, 0 lines dropped" },
        { "", 0, "", "1 file, 0 contacts, 0 cards refused, 0 lines dropped" },
        { QByteArray( CleanCard() ).replace( "\r\n", "\n" ), 0, "",
          "1 file, 1 contact, 0 cards refused, 0 lines dropped" },
        { CleanCard().chopped( 2 ), 0, "", "1 file, 1 contact, 0 cards refused, 0 lines dropped" },
        { CleanCard() + PartCard(), 1, ": 1 line dropped; \"pimvcard check\" shows where\n",
          "1 file, 2 contacts (1 in part), 0 cards refused, 1 line dropped" },
        { "no card at all\r\n", 1, ": contains no vCard; export the contacts as vCard\n",
          "1 file, 0 contacts, 0 cards refused, 0 lines dropped" },
    };
    int number = 0;
    for ( const Row& row : rows )
    {
        const QByteArray file = folder.Write( QByteArray::number( ++number ), row.m_content );
        const ProgramRun run = RunPimvcard( { "list", file } );
        EXPECT_EQ( run.m_status, row.m_status ) << number << run.m_err;
        EXPECT_EQ( Notes( run ), *row.m_note == '\0' ? "" : "pimvcard: " + file.toStdString() + row.m_note ) << number;
        EXPECT_EQ( Totals( run ), std::string( "pimvcard: " ) + row.m_totals ) << number;
    }
}

TEST( ListCommandTest, NoteOnAFileWithoutCardsSaysWhatToDo )
{
    struct Row
    {
        QByteArray m_content;
        const char* m_note;
    };
    const std::vector<Row> rows = {
        { "PK\x03\x04....", "is a gzip or zip archive; unpack it first" },
        { "%PDF-1.4\n", "is a PDF document; export the contacts as vCard" },
        { "<html></html>\n", "is an HTML page; export the contacts as vCard" },
        { "hello\n", "contains no vCard; export the contacts as vCard" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = ProgramCall( { "list", "-" } ).WithInput( row.m_content ).Run();
        EXPECT_EQ( Notes( run ), std::string( "pimvcard: standard input: " ) + row.m_note + "\n" );
    }
}

TEST( ListCommandTest, WorstStatusWins )
{
    const Folder folder;
    const QByteArray clean = folder.Write( "clean", CleanCard() );
    const QByteArray part = folder.Write( "part", PartCard() );
    const QByteArray missing = folder.Path( "missing" );
    struct Row
    {
        QList<QByteArray> m_files;
        int m_status;
    };
    const std::vector<Row> rows = {
        { { clean, clean }, 0 },   { { part, clean }, 1 },         { { clean, part }, 1 },
        { { missing, clean }, 2 }, { { part, missing, part }, 2 }, { { folder.Path( "" ), clean }, 2 },
    };
    for ( const Row& row : rows )
    {
        for ( const char* command : { "list", "check" } )
            EXPECT_EQ( RunPimvcard( QList<QByteArray>{ command } + row.m_files ).m_status, row.m_status )
                << command << row.m_files.join( ' ' ).constData();
    }
}

TEST( ListCommandTest, FileThatCannotBeReadIsNamedAndTheOthersAreListed )
{
    const Folder folder;
    const QByteArray missing = folder.Path( "missing" );
    const ProgramRun run = RunPimvcard( { "list", missing, folder.Write( "book", CleanCard() ) } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( Notes( run ), "pimvcard: " + missing.toStdString() + ": No such file or directory\n" );
    EXPECT_NE( run.m_out.find( "Nell" ), std::string::npos );
}

TEST( ListCommandTest, DashIsStandardInput )
{
    const ProgramRun run = ProgramCall( { "list", "-" } ).WithInput( CleanCard() + PartCard() ).Run();
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_NE( run.m_out.find( "Nell" ), std::string::npos );
    EXPECT_EQ( Notes( run ), "pimvcard: standard input: 1 line dropped; \"pimvcard check\" shows where\n" );
}

TEST( ListCommandTest, CommandMayBeLeftOut )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", CleanCard() );
    const std::string table = RunPimvcard( { "list", book } ).m_out;
    for ( const QList<QByteArray>& arguments :
          { QList<QByteArray>{ book }, QList<QByteArray>{ "--charset", "KOI8-R", book },
            QList<QByteArray>{ "-qc", "KOI8-R", book }, QList<QByteArray>{ "--max-cards=5", book, "-q" },
            QList<QByteArray>{ "--", book }, QList<QByteArray>{ "-c", "KOI8-R", "list", book } } )
    {
        const ProgramRun run = RunPimvcard( arguments );
        EXPECT_EQ( run.m_status, 0 ) << arguments.join( ' ' ).constData() << run.m_err;
        EXPECT_EQ( run.m_out, table ) << arguments.join( ' ' ).constData();
    }
}

TEST( ListCommandTest, FileMayHaveTheNameOfACommand )
{
    const Folder folder;
    const QByteArray book = folder.Write( "check", CleanCard() );
    EXPECT_EQ( RunPimvcard( { book } ).m_out, RunPimvcard( { "list", book } ).m_out );
}

TEST( ListCommandTest, QuietLeavesRemarksOutAndKeepsErrors )
{
    const ProgramRun run = ProgramCall( { "list", "--quiet", "-", "missing.vcf" } ).WithInput( PartCard() ).Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_out, "NAME    NUMBER  MAIL  ORGANISATION  BOOK\n"
                          "Tobias                              standard input\n" );
    EXPECT_EQ( run.m_err, "pimvcard: missing.vcf: No such file or directory\n" );
}

TEST( ListCommandTest, CharsetIsThatOfCardsThatNameNone )
{
    const QByteArray card = CardText( "VERSION:3.0\r\nFN:\xE6\r\n" );
    struct Row
    {
        QByteArray m_charset;
        const char* m_name;
    };
    for ( const Row& row : { Row{ "windows-1252", "æ" }, Row{ "windows-1251", "ж" }, Row{ "UTF-8", "\xEF\xBF\xBD" } } )
    {
        const ProgramRun run = ProgramCall( { "list", "--charset", row.m_charset, "-" } ).WithInput( card ).Run();
        EXPECT_NE( run.m_out.find( std::string( "\n" ) + row.m_name + "\n" ), std::string::npos ) << run.m_out;
    }
}

TEST( ListCommandTest, CharsetIsGuessedAlikeFromFilesAndPipes )
{
    const Folder folder;
    QByteArray text;
    for ( const char* name :
          { "\xF7\xC5\xD4\xD2\xCF\xD7\xC1 \xFA\xC9\xCE\xC1\xC9\xC4\xC1",
            "\xEF\xC2\xCC\xC1\xCB\xCF\xD7\xC1 \xED\xC1\xD2\xC9\xD1",
            "\xF3\xD4\xC5\xD0\xC1\xCE\xCF\xD7 \xE9\xD7\xC1\xCE", "\xF0\xC5\xD4\xD2\xCF\xD7\xC1 \xEF\xCC\xD8\xC7\xC1" } )
        text += CardText( "VERSION:2.1\r\nFN:" + QByteArray( name ) + "\r\n" );
    const QByteArray book = folder.Write( "book", text );
    const std::string note = ": 4 cards name no character set and were read as KOI8-R, which was guessed from their "
                             "letters. Use --charset NAME if names look wrong.\n";
    const ProgramRun file = RunPimvcard( { book } );
    const ProgramRun pipe = ProgramCall( { "list", "-" } ).WithInput( text ).Run();
    const ProgramRun chosen = RunPimvcard( { "list", "--charset", "koi8_r", book } );
    for ( const ProgramRun& run : { file, pipe, chosen } )
    {
        EXPECT_EQ( run.m_status, 0 );
        EXPECT_NE( run.m_out.find( "\nВетрова Зинаида\nОблакова Мария\nСтепанов Иван\nПетрова Ольга\n" ),
                   std::string::npos )
            << run.m_out;
        EXPECT_EQ( run.m_out, file.m_out );
    }
    EXPECT_EQ( Notes( file ), "pimvcard: " + book.toStdString() + note );
    EXPECT_EQ( Notes( pipe ), "pimvcard: standard input" + note );
    EXPECT_EQ( Notes( chosen ), "" );
}

TEST( ListCommandTest, CharsetOfEachFileIsItsOwn )
{
    const Folder folder;
    const QByteArray first = folder.Write( "first", CardText( "VERSION:3.0\r\nFN:J\xFCrgen\r\n" ) );
    const QByteArray second = folder.Write( "second", CardText( "VERSION:3.0\r\nFN:Nell\r\n" ) );
    const ProgramRun run = RunPimvcard( { "list", first, second } );
    EXPECT_NE( run.m_out.find( "\nJürgen " ), std::string::npos ) << run.m_out;
    EXPECT_EQ( Notes( run ).find( "pimvcard: " + first.toStdString() +
                                  ": 1 card names no character set and was read as "
                                  "windows-1252" ),
               0U )
        << run.m_err;
    EXPECT_EQ( Notes( run ).find( second.toStdString() ), std::string::npos ) << run.m_err;
}

TEST( ListCommandTest, WrongUsageIsReportedWithStatusTwo )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
    };
    const std::vector<Row> rows = {
        { { "list" }, "pimvcard: no file to list; - is standard input\n" },
        { { "list", "--frob", "x" }, "pimvcard: Unknown option 'frob'.\n" },
        { { "list", "--charst", "x" }, "pimvcard: Unknown option 'charst'. Did you mean \"--charset\"?\n" },
        { { "list", "x", "--charset" }, "pimvcard: Missing value after '--charset'.\n" },
        { { "list", "--quiet=no", "x" }, "pimvcard: Unexpected value after '--quiet'.\n" },
        { { "list", "--max-cards", "many", "x" },
          "pimvcard: --max-cards: \"many\" is not a number such as 500, 64K, 16M or 1G\n" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err,
                   row.m_message + std::string( "pimvcard: \"pimvcard list --help\" shows how to use it\n" ) );
    }
}

TEST( ListCommandTest, HelpNamesEveryOptionAndTheStatus )
{
    const ProgramRun run = RunPimvcard( { "list", "--help" } );
    EXPECT_EQ( run.m_status, 0 );
    for ( const char* text : { "Usage: pimvcard [options] list BOOK...\n", "--quiet", "--charset <NAME>",
                               "--max-card-bytes <NUMBER>", "Exit status: 0 everything is delivered" } )
        EXPECT_NE( run.m_out.find( text ), std::string::npos ) << text << run.m_out;
}
