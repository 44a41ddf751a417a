#include "ProgramRun.h"

#include "ToolsTestText.h"

#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

namespace
{

const QByteArray s_kGood = CardText( "FN:Nell\r\nTEL;TYPE=CELL:555-0100\r\n" );
const QByteArray s_kBroken = CardText( "X_Y:z\r\n" );

ProgramRun Check( const QList<QByteArray>& a_files )
{
    return RunPimvcard( QList<QByteArray>{ "check", "--strict" } + a_files );
}

// The lines about a file, without its name and without the log.
std::string LinesOn( const QByteArray& a_file, const ProgramRun& a_run )
{
    const QByteArray head = a_file + ": ";
    std::string lines;
    const QList<QByteArray> all = QByteArray::fromStdString( a_run.m_out ).split( '\n' );
    for ( const QByteArray& line : all )
    {
        if ( line.startsWith( head ) )
            lines += line.mid( head.size() ).toStdString() + '\n';
    }
    return lines;
}

} // namespace

TEST( StrictCheckTest, EachFileHasItsStatusAndItsReasons )
{
    const Folder folder;
    struct Row
    {
        QByteArray m_content;
        int m_status;
        const char* m_lines;
    };
    const std::vector<Row> rows = {
        { s_kGood + s_kGood, 0, "the strict reader returns 2 cards\n" },
        { "", 0, "the strict reader returns 0 cards\nis empty\n" },
        { s_kGood + s_kBroken + s_kGood, 1, "the strict reader returns 2 cards\n1 of 3 cards refused\n" },
        { "\r\n", 1, "the strict reader returns 0 cards\ncontains no vCard\n" },
        { "BEGIN:VCARD\r\nFN:Tobias\r\n" + s_kGood, 1,
          "the strict reader returns 1 card\n1 of 2 cards refused\ncard 1 (Tobias) contains another card: there is a "
          "BEGIN:VCARD line in it, so its END:VCARD line is probably missing\n" },
        { "BEGIN:VCARD\nEND:VCARD\n", 1,
          "the strict reader returns 0 cards\n1 of 1 cards refused\n2 of 2 lines end in a bare LF; the strict reader "
          "needs CR LF, which \"pimvcard convert\" writes\n" },
        { "BEGIN:VCARD\r\nEND:VCARD", 1,
          "the strict reader returns 0 cards\n1 of 1 cards refused\nthe last line has no line ending; the strict "
          "reader needs CR LF there, too\n" },
        { s_kGood + "X:" + '\0' + "\r\n" + s_kGood, 1,
          "the strict reader returns 1 card\n1 of 2 cards refused\nbyte 60 is NUL and nothing after it is read; if the "
          "text is UTF-16, \"pimvcard convert\" reads it\n" },
    };
    int number = 0;
    for ( const Row& row : rows )
    {
        const QByteArray file = folder.Write( QByteArray::number( ++number ), row.m_content );
        const ProgramRun run = Check( { file } );
        EXPECT_EQ( run.m_status, row.m_status ) << number;
        EXPECT_EQ( LinesOn( file, run ), row.m_lines ) << number << run.m_out;
        EXPECT_EQ( run.m_err, "" ) << number;
    }
}

TEST( StrictCheckTest, LogOfTheComponentPrecedesTheResult )
{
    const ProgramRun run = ProgramCall( { "check", "-s", "-" } ).WithInput( s_kGood + s_kBroken ).Run();
    EXPECT_EQ( run.m_status, 1 );
    size_t place = 0;
    for ( const char* text :
          { "   Illegal Character: '_'\n",
            "Line Number:", "Error in \"ParseVCards()\" ->\n  \"Could not parse vCard...\"",
            "[PVCP] : 1 vCards parsed in: ", "\nstandard input: the strict reader returns 1 card\n" } )
    {
        place = run.m_out.find( text, place );
        EXPECT_NE( place, std::string::npos ) << text << run.m_out;
    }
}

TEST( StrictCheckTest, LoggingRulesOfTheEnvironmentChangeNothing )
{
    const Folder folder;
    const QByteArray book = folder.Write( "a", s_kBroken );
    for ( const char* rules : { "QT_LOGGING_RULES=*=false", "QT_LOGGING_RULES=*=true" } )
    {
        const ProgramRun run = ProgramCall( { "check", "--strict", book } ).WithVariable( rules ).Run();
        EXPECT_EQ( run.m_status, 1 ) << rules;
        EXPECT_NE( run.m_out.find( "Illegal Character" ), std::string::npos ) << rules;
        EXPECT_EQ( LinesOn( book, run ), "the strict reader returns 0 cards\n1 of 1 cards refused\n" ) << rules;
    }
}

TEST( StrictCheckTest, HugeFileIsRefusedBeforeItIsReadAndOthersAreRead )
{
    const Folder folder;
    const QByteArray huge = folder.Write( "huge", s_kGood );
    const QByteArray book = folder.Write( "book", s_kGood );
    const off_t largest = sizeof( void* ) < 8 ? 100000000 : 700000000;
    ASSERT_EQ( truncate( huge.constData(), largest + 1 ), 0 );
    const ProgramRun run = Check( { huge, book } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: " + huge.toStdString() + ": is too large: more than " + std::to_string( largest ) +
                              " bytes cannot be read at once; leave out --strict\n" );
    EXPECT_EQ( LinesOn( huge, run ), "" );
    EXPECT_EQ( LinesOn( book, run ), "the strict reader returns 1 card\n" );
}

TEST( StrictCheckTest, FileThatCannotBeReadIsReported )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", s_kGood );
    struct Row
    {
        QByteArray m_name;
        const char* m_reason;
    };
    for ( const Row& row : { Row{ folder.Path( "missing.vcf" ), "No such file or directory" },
                             Row{ folder.Path( "" ), "is a folder; name the files in it" },
                             Row{ book + "/x", "Not a directory" }, Row{ "/proc/self/mem", "Input/output error" } } )
    {
        const ProgramRun run = Check( { row.m_name, book } );
        EXPECT_EQ( run.m_status, 2 ) << row.m_reason;
        EXPECT_EQ( run.m_err, "pimvcard: " + row.m_name.toStdString() + ": " + row.m_reason + "\n" );
        EXPECT_EQ( LinesOn( row.m_name, run ), "" ) << row.m_reason;
        EXPECT_EQ( LinesOn( book, run ), "the strict reader returns 1 card\n" ) << row.m_reason;
    }
}
