#include "ProgramRun.h"

#include "TestBooks.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <QRegularExpression>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

// The findings in a shorter form, such as `4:1 dropped not-a-property`, one a line. The summary is left out.
std::string Findings( const ProgramRun& a_run )
{
    static const QRegularExpression s_kFinding(
        QStringLiteral(
            "^standard input:(\\d+:\\d+): (note|repaired|dropped|refused): [^\\[\\]]+ \\[([a-z0-9-]+)\\]$" ),
        QRegularExpression::MultilineOption );
    QStringList findings;
    QRegularExpressionMatchIterator matches = s_kFinding.globalMatch( QString::fromStdString( a_run.m_out ) );
    while ( matches.hasNext() )
        findings << matches.next().capturedTexts().mid( 1 ).join( QLatin1Char( ' ' ) );
    return Utf8( findings.join( QLatin1Char( '\n' ) ) );
}

std::string LastLine( const ProgramRun& a_run )
{
    const QStringList lines = QString::fromStdString( a_run.m_out ).split( QLatin1Char( '\n' ) );
    return lines.size() < 2 ? std::string() : Utf8( lines[lines.size() - 2] );
}

ProgramRun Check( const QByteArray& a_book, const QList<QByteArray>& a_options = {} )
{
    return ProgramCall( QList<QByteArray>{ "check", "-" } + a_options ).WithInput( a_book ).Run();
}

} // namespace

TEST( CheckCommandTest, FindingsHaveTheFormOfCompilersAndEachFileASummary )
{
    const Folder folder;
    const QByteArray first = folder.Write( "first", QByteArray( CleanCard() ).replace( "\r\n", "\n" ) );
    const QByteArray second = folder.Write( "second", "" );
    const ProgramRun run = RunPimvcard( { "check", first, second } );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_err, "" );
    const QRegularExpression form( QString::fromUtf8( "^%1:1:\\d+: repaired: [^\\n]+ \\[line-end\\]\\n"
                                                      "%1: 1 card: 1 whole; LF line endings; UTF-8 \\(all ASCII\\); "
                                                      "version 3.0; 1 × line-end\\n"
                                                      "%2: is empty\\n$" )
                                       .arg( QString::fromUtf8( first ), QString::fromUtf8( second ) ) );
    EXPECT_TRUE( form.match( QString::fromStdString( run.m_out ) ).hasMatch() ) << run.m_out;
}

TEST( CheckCommandTest, FindingsAreListedInTheOrderOfTheFile )
{
    struct Row
    {
        const char* m_name;
        QByteArray m_book;
        int m_status;
        const char* m_findings;
    };
    const QByteArray card = CleanCard();
    const std::vector<Row> rows = {
        { "clean", card, 0, "" },
        { "empty", "", 0, "" },
        { "part", PartCard(), 1, "4:1 dropped not-a-property" },
        { "comment", CardText( "VERSION:3.0\r\n# x\r\nFN:x\r\n" ), 1, "3:1 dropped comment" },
        { "no last line ending", card.chopped( 2 ), 0, "5:10 repaired last-line-end" },
        { "no END at the end", card.chopped( 11 ), 0, "5:1 repaired end-of-file" },
        { "no END before BEGIN", card.chopped( 11 ) + card, 0, "5:1 repaired missing-end" },
        { "text round a card", "hello\r\n" + card + "bye\r\nbye\r\n", 0,
          "1:1 note text-outside\n7:1 note text-outside" },
        { "END alone", card + "END:VCARD\r\n", 0, "6:1 note end-without-begin" },
        { "no BEGIN", card + "FN:x\r\nTEL:5\r\nEND:VCARD\r\n", 0, "6:1 repaired missing-begin" },
        { "text alone", "hello\r\n", 1, "1:1 note text-outside\n1:6 note no-card" },
        { "archive", "PK\x03\x04....", 1, "1:1 refused compressed-file" },
        { "PDF", "%PDF-1.4\n", 1, "1:1 refused document-file" },
        { "image", PngPicture(), 1, "1:1 refused image-file" },
        { "UTF-16", Utf16( card ), 0, "1:1 note encoding" },
        { "not UTF-8", CardText( "VERSION:3.0\r\nFN:J\xF6rg\r\n" ), 0,
          "1:1 repaired charset\n3:1 repaired assumed-charset" },
        { "picture that cannot be decoded", CardText( "VERSION:3.0\r\nPHOTO;ENCODING=b:/9j/*\r\n" ), 0,
          "3:1 note malformed-binary" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = Check( row.m_book, { "--quiet" } );
        EXPECT_EQ( run.m_status, row.m_status ) << row.m_name << "\n" << run.m_out;
        EXPECT_EQ( Findings( run ), row.m_findings ) << row.m_name << "\n" << run.m_out;
        EXPECT_EQ( LastLine( run ).find( "standard input: " ), 0U ) << row.m_name;
        EXPECT_EQ( run.m_err, "" ) << row.m_name;
    }
}

TEST( CheckCommandTest, LimitCostsOnlyWhatExceedsIt )
{
    const QByteArray small = CleanCard();
    const QByteArray large = CardText( "VERSION:3.0\r\nFN:x\r\nNOTE:" + QByteArray( "x" ).repeated( 2000 ) + "\r\n" );
    const QByteArray tall = CardText( "VERSION:3.0\r\nFN:x\r\n" + QByteArray( "TEL:5\r\n" ).repeated( 20 ) );
    const QByteArray nested =
        CardText( "VERSION:2.1\r\nN:x\r\nAGENT:\r\n" +
                  CardText( "VERSION:2.1\r\nN:y\r\nAGENT:\r\n" + CardText( "VERSION:2.1\r\nN:z\r\n" ) ) );
    struct Row
    {
        QList<QByteArray> m_options;
        QByteArray m_book;
        const char* m_findings;
        const char* m_cards;
    };
    const std::vector<Row> rows = {
        { { "--max-card-bytes", "1K" },
          small + large + small,
          "6:1 refused card-too-long",
          "3 cards: 2 whole, 1 refused; " },
        { { "--max-card-bytes", "3K" }, small + large + small, "", "3 cards: 3 whole; " },
        { { "--max-line-bytes", "1K" },
          small + large + small,
          "9:1 dropped line-too-long",
          "3 cards: 2 whole, 1 in part; " },
        { { "--max-card-lines", "10" },
          small + tall + small,
          "6:1 refused card-of-many-lines",
          "3 cards: 2 whole, 1 refused; " },
        { { "--max-nesting", "1" },
          small + nested,
          "13:1 dropped nesting-too-deep",
          "2 cards: 1 whole, 1 in part; 1 nested card; " },
        { { "--max-nesting", "2" }, small + nested, "", "2 cards: 2 whole; 2 nested cards; " },
        { { "--max-cards", "2" },
          small + small + small,
          "11:1 refused too-many-cards",
          "3 cards: 2 whole, 1 refused; " },
        { { "--max-cards", "0" }, small + small + small, "", "3 cards: 3 whole; " },
        { { "--max-book-bytes", "1K" },
          small + large + small,
          "6:1 refused book-too-long",
          "3 cards: 2 whole, 1 refused; " },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = Check( row.m_book, row.m_options );
        const std::string name = row.m_options.join( ' ' ).toStdString();
        EXPECT_EQ( Findings( run ), row.m_findings ) << name;
        EXPECT_EQ( LastLine( run ).find( std::string( "standard input: " ) + row.m_cards ), 0U ) << name << "\n"
                                                                                                 << run.m_out;
        EXPECT_EQ( run.m_status, *row.m_findings == '\0' ? 0 : 1 ) << name;
    }
}

TEST( CheckCommandTest, CharacterSetOfLastResortCanBeChosen )
{
    const QByteArray book = CardText( "VERSION:3.0\r\nFN:J\xF6rg\r\n" );
    EXPECT_NE( LastLine( Check( book ) ).find( "; windows-1252 (assumed); " ), std::string::npos );
    EXPECT_NE( LastLine( Check( book, { "--charset", "KOI8-R" } ) ).find( "; KOI8-R (assumed); " ), std::string::npos );
}

TEST( CheckCommandTest, WrongUsageIsReportedWithStatusTwo )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
    };
    const std::vector<Row> rows = {
        { {}, "no file to check; - is standard input" },
        { { "-", "--max-cards", "12x" }, "--max-cards: \"12x\" is not a number such as 500, 64K, 16M or 1G" },
        { { "-", "--max-cards" }, "Missing value after '--max-cards'." },
        { { "-", "--extents=yes" }, "Unexpected value after '--extents'." },
        { { "-", "--json" }, "Unknown option 'json'." },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( QList<QByteArray>{ "check" } + row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err, std::string( "pimvcard: " ) + row.m_message +
                                  "\npimvcard: \"pimvcard check --help\" shows how to use it\n" );
    }
}

TEST( CheckCommandTest, EveryFindingIsListedHoweverMany )
{
    const ProgramRun run =
        Check( CardText( "VERSION:3.0\r\nFN:x\r\n" + QByteArray( "NOTE:a\\qb\r\n" ).repeated( 3000 ) ) );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( QByteArray::fromStdString( run.m_out ).count( '\n' ), 3001 );
    EXPECT_NE( run.m_out.find( "; 3000 × unknown-escape\n" ), std::string::npos );
    EXPECT_EQ( run.m_out.find( "standard input:4:" ), 0U );
}

TEST( CheckCommandTest, OutputContainsNoTextOfTheCards )
{
    const Folder folder;
    const QByteArray book =
        folder.Write( "evil\x1B[2J\n.vcf", CardText( "FN:" + HostileText() + "\r\n" + HostileText() + "\r\nNOTE;" +
                                                     HostileText() + ":x\r\n" ) );
    for ( const QList<QByteArray>& options : { QList<QByteArray>{}, QList<QByteArray>{ "--extents", "-" } } )
    {
        const ProgramRun run = RunPimvcard( QList<QByteArray>{ "check", book } + options );
        EXPECT_TRUE( IsHarmless( run.m_out ) ) << run.m_out;
        EXPECT_EQ( run.m_out.find( "script" ), std::string::npos );
        EXPECT_NE( run.m_out.find( "evil\\x1b[2J\\n.vcf" ), std::string::npos ) << run.m_out;
    }
}

TEST( CheckCommandTest, UnreadableFileIsReportedAndTheOthersAreRead )
{
    const Folder folder;
    const QByteArray missing = folder.Path( "missing" );
    const ProgramRun run = RunPimvcard( { "check", missing, folder.Write( "book", CleanCard() ) } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: " + missing.toStdString() + ": No such file or directory\n" );
    EXPECT_NE( run.m_out.find( "no findings\n" ), std::string::npos );
}

TEST( CheckCommandTest, FileThatFailsInTheMiddleIsReported )
{
    const ProgramRun run = RunPimvcard( { "check", "/proc/self/mem" } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: /proc/self/mem: Input/output error\n" );
    EXPECT_EQ( run.m_out, "/proc/self/mem: not read to its end\n" );
}

TEST( CheckCommandTest, EachFileBeginsAnew )
{
    const Folder folder;
    const QByteArray zip = folder.Write( "zip", "PK\x03\x04...." );
    const QByteArray book = folder.Write( "book", CleanCard() );
    const ProgramRun alone = RunPimvcard( { "check", "--max-cards", "1", book } );
    const ProgramRun both = RunPimvcard( { "check", "--max-cards", "1", zip, book, book } );
    EXPECT_EQ( alone.m_status, 0 );
    EXPECT_EQ( both.m_status, 1 );
    EXPECT_EQ( both.m_out.substr( both.m_out.size() - 2 * alone.m_out.size() ), alone.m_out + alone.m_out );
}

TEST( CheckCommandTest, HelpNamesEveryOptionAndTheStatus )
{
    const ProgramRun run = RunPimvcard( { "check", "--help" } );
    EXPECT_EQ( run.m_status, 0 );
    for ( const char* text : { "Usage: pimvcard [options] check BOOK...\n", "--charset <NAME>", "-e, --extents",
                               "--max-card-bytes <NUMBER>", "--max-book-bytes <NUMBER>",
                               "FILE:LINE:COLUMN: SEVERITY: TEXT [WORD]", "Exit status: 0 everything is delivered" } )
        EXPECT_NE( run.m_out.find( text ), std::string::npos ) << text << "\n" << run.m_out;
}

TEST( CheckCommandTest, UnknownCharsetListsThoseThatAreKnown )
{
    const ProgramRun run = RunPimvcard( { "check", "--charset", "koi8-x\x1B", "-" } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_out, "" );
    EXPECT_EQ( run.m_err.find( "pimvcard: unknown character set: koi8-x\\x1b; use one of UTF-8, " ), 0U ) << run.m_err;
    for ( const char* name : { ", windows-1252", ", Shift_JIS", ", KOI8-R" } )
        EXPECT_NE( run.m_err.find( name ), std::string::npos ) << name << run.m_err;
}

TEST( CheckCommandTest, HelpShowsTheDefaultsOfTheReader )
{
    const PimContactOptions options;
    EXPECT_EQ( options.LineBytes(), 0 );
    const QString help = QString::fromStdString( RunPimvcard( { "check", "--help" } ).m_out ).simplified();
    for ( const QString& text :
          { QStringLiteral( "<NUMBER> The largest card in bytes; %1M unless given." ).arg( options.CardBytes() >> 20 ),
            QStringLiteral( "<NUMBER> The greatest depth of cards inside cards; %1 unless given." )
                .arg( options.Nesting() ),
            QStringLiteral( "with its continuation lines; no limit unless given." ) } )
        EXPECT_TRUE( help.contains( text ) ) << Utf8( text ) << "\n" << Utf8( help );
}

TEST( CheckCommandTest, FindingsSayWhatToDo )
{
    const QByteArray cards = CleanCard() + CleanCard();
    struct Row
    {
        QList<QByteArray> m_options;
        QByteArray m_book;
        const char* m_finding;
    };
    const std::vector<Row> rows = {
        { { "--max-card-bytes", "10" }, cards, "more bytes than the limit; raise --max-card-bytes [card-too-long]" },
        { { "--max-line-bytes", "10" }, cards, "longer than the limit; raise --max-line-bytes [line-too-long]" },
        { { "--max-card-lines", "1" },
          cards,
          "more lines than the limit; raise --max-card-lines [card-of-many-lines]" },
        { { "--max-cards", "1" }, cards, "one more than the limit; raise --max-cards [too-many-cards]" },
        { { "--max-book-bytes", "70" }, cards, "more bytes than the limit; raise --max-book-bytes [book-too-long]" },
        { { "--max-nesting", "1" },
          CardText( "FN:x\r\nAGENT:\r\n" + CardText( "FN:y\r\nAGENT:\r\n" + CardText( "FN:z\r\n" ) ) ),
          "beyond the limit; raise --max-nesting [nesting-too-deep]" },
        { {}, CardText( "VERSION:3.0\r\nFN:J\xF6rg\r\n" ), "another character set applies, see --charset [charset]" },
        { {}, "PK\x03\x04....", "archive; unpack it first [compressed-file]" },
        { {}, "%PDF-1.4\n", "PDF document; export the contacts as vCard [document-file]" },
        { {}, PngPicture(), "image; export the contacts as vCard [image-file]" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = ProgramCall( QList<QByteArray>{ "check" } + row.m_options + QList<QByteArray>{ "-" } )
                                   .WithInput( row.m_book )
                                   .Run();
        EXPECT_NE( run.m_out.find( row.m_finding ), std::string::npos ) << row.m_finding << '\n' << run.m_out;
    }
}
