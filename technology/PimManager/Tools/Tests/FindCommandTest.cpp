#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

const QByteArray s_kNell = CardText( "VERSION:3.0\r\nN:Brackwater;Nell;;;\r\nFN:Nell Brackwater\r\nORG:Tide Office\r\n"
                                     "TEL;TYPE=HOME:+1-555-0101\r\nTEL;TYPE=CELL,PREF:+1-555-0202\r\n" );
const QByteArray s_kNelly = CardText( "VERSION:3.0\r\nN:Fenwick;Nelly;;;\r\nFN:Nelly Fenwick\r\n" );
const QByteArray s_kBo = CardText( "VERSION:3.0\r\nN:Hollow;Bo;;;\r\nFN:Bo Hollow\r\nORG:Nell & Sons\r\n" );
const QByteArray s_kJoerg = CardText( "VERSION:3.0\r\nN:Maulwurf;J\u00F6rg;;;\r\nFN:J\u00F6rg Maulwurf\r\n"
                                      "TEL:+49 (30) 23125-123\r\nTEL;TYPE=WORK:+49 (30) 23125-456\r\n" );
const QByteArray s_kBook = s_kBo + s_kNelly + s_kNell + s_kJoerg;

// The names in the rows of a table, each with a semicolon.
std::string Names( const ProgramRun& a_run )
{
    std::string names;
    for ( const QString& line : QString::fromStdString( a_run.m_out ).split( QLatin1Char( '\n' ) ).mid( 1 ) )
    {
        if ( !line.isEmpty() && !line.startsWith( QLatin1Char( ' ' ) ) )
            names += Utf8( line.section( QStringLiteral( "  " ), 0, 0 ) ) + ";";
    }
    return names;
}

ProgramRun RunFind( const QList<QByteArray>& a_arguments )
{
    return ProgramCall( QList<QByteArray>{ "find", "--quiet", "-" } + a_arguments ).WithInput( s_kBook ).Run();
}

} // namespace

TEST( FindCommandTest, ContactsAreFoundBestFirst )
{
    struct Row
    {
        const char* m_text;
        const char* m_names;
    };
    const std::vector<Row> rows = {
        { "nell", "Nell Brackwater;Nelly Fenwick;Bo Hollow;" },
        { "fen nel", "Nelly Fenwick;" },
        { "tide", "Nell Brackwater;" },
        { "JOERG", "J\u00F6rg Maulwurf;" },
        { "jorg m", "J\u00F6rg Maulwurf;" },
        { "23125", "J\u00F6rg Maulwurf;" },
        { "0202", "Nell Brackwater;" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunFind( { row.m_text } );
        EXPECT_EQ( run.m_status, 0 ) << row.m_text;
        EXPECT_EQ( Names( run ), row.m_names ) << row.m_text;
        EXPECT_EQ( run.m_err, "" ) << row.m_text;
    }
}

TEST( FindCommandTest, StatusTellsThatNothingIsFound )
{
    const ProgramRun run = RunFind( { "zzz" } );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_EQ( run.m_out, "" );
    EXPECT_EQ( run.m_err, "" );
}

TEST( FindCommandTest, TextWithoutAWordFindsEveryContact )
{
    EXPECT_EQ( Names( RunFind( { "" } ) ), "Nell Brackwater;Nelly Fenwick;Bo Hollow;J\u00F6rg Maulwurf;" );
}

TEST( FindCommandTest, OrderIsTheSameInEveryLocale )
{
    const QByteArray book = CardText( "VERSION:3.0\r\nN:Zett;;;;\r\nFN:Zett\r\n" ) +
                            CardText( "VERSION:3.0\r\nN:\u00C4rlig;;;;\r\nFN:\u00C4rlig\r\n" ) +
                            CardText( "VERSION:3.0\r\nN:aber;;;;\r\nFN:aber\r\n" );
    for ( const char* locale : { "LC_ALL=C", "LC_ALL=sv_SE.UTF-8", "LC_ALL=de_DE.UTF-8" } )
    {
        const ProgramRun run = ProgramCall( { "find", "-q", "-", "" } ).WithInput( book ).WithVariable( locale ).Run();
        EXPECT_EQ( Names( run ), "aber;\u00C4rlig;Zett;" ) << locale;
    }
}

TEST( FindCommandTest, NumberIsTheOneThatIsFoundOrThePreferredOne )
{
    EXPECT_EQ( RunFind( { "brack" } ).m_out, "NAME             NUMBER            ORGANISATION\n"
                                             "Nell Brackwater  +1-555-0202 cell  Tide Office\n" );
    EXPECT_EQ( RunFind( { "0101" } ).m_out, "NAME             NUMBER            ORGANISATION\n"
                                            "Nell Brackwater  +1-555-0101 home  Tide Office\n" );
    EXPECT_EQ( RunFind( { "23125" } ).m_out, "NAME           NUMBER                   ORGANISATION\n"
                                             "J\u00F6rg Maulwurf  +49 (30) 23125-123\n"
                                             "               +49 (30) 23125-456 work\n" );
    EXPECT_EQ( RunFind( { "maul 456" } ).m_out, "NAME           NUMBER                   ORGANISATION\n"
                                                "J\u00F6rg Maulwurf  +49 (30) 23125-456 work\n" );
}

TEST( FindCommandTest, KeysAreThoseOfATelephone )
{
    struct Row
    {
        const char* m_keys;
        const char* m_names;
    };
    const std::vector<Row> rows = {
        { "6355", "Nell Brackwater;Nelly Fenwick;Bo Hollow;" },
        { "635502", "Nell Brackwater;Bo Hollow;" },
        { "628", "J\u00F6rg Maulwurf;" },
        { "0101", "Nell Brackwater;" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunFind( { "--keys", row.m_keys } );
        EXPECT_EQ( run.m_status, 0 ) << row.m_keys;
        EXPECT_EQ( Names( run ), row.m_names ) << row.m_keys;
    }
}

TEST( FindCommandTest, NationalNumberIsFoundInItsRegion )
{
    EXPECT_EQ( RunFind( { "030 231" } ).m_status, 1 );
    EXPECT_EQ( Names( RunFind( { "--region", "DE", "030 231" } ) ), "J\u00F6rg Maulwurf;" );
    EXPECT_EQ( Names( RunFind( { "--region", "DE", "--keys", "030231" } ) ), "J\u00F6rg Maulwurf;" );
}

TEST( FindCommandTest, LimitLeavesTheBestContacts )
{
    EXPECT_EQ( Names( RunFind( { "--limit", "2", "nell" } ) ), "Nell Brackwater;Nelly Fenwick;" );
    EXPECT_EQ( Names( RunFind( { "-l1", "nell" } ) ), "Nell Brackwater;" );
    EXPECT_EQ( Names( RunFind( { "-l0", "nell" } ) ), "Nell Brackwater;Nelly Fenwick;Bo Hollow;" );
    EXPECT_EQ( Names( RunFind( { "-l9G", "nell" } ) ), "Nell Brackwater;Nelly Fenwick;Bo Hollow;" );
}

TEST( FindCommandTest, SeveralBooksAreSearchedAsOne )
{
    const Folder folder;
    const QByteArray first = folder.Write( "a.vcf", s_kBo + s_kNelly );
    const QByteArray second = folder.Write( "b.vcf", s_kNell );
    const ProgramRun run = RunPimvcard( { "find", first, second, "nell" } );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out, "NAME             NUMBER            ORGANISATION  BOOK\n"
                          "Nell Brackwater  +1-555-0202 cell  Tide Office   b.vcf\n"
                          "Nelly Fenwick                                    a.vcf\n"
                          "Bo Hollow                          Nell & Sons   a.vcf\n" );
    EXPECT_EQ( run.m_err.find( "pimvcard: 3 found, 2 files, 3 contacts, 0 cards refused, 0 lines dropped, " ), 0U )
        << run.m_err;
}

TEST( FindCommandTest, BookInPlaceOfTheTextIsTold )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", s_kNell );
    const QByteArray other = folder.Write( "other", s_kBo );
    const std::string remark =
        "pimvcard: " + other.toStdString() + " is a file, but was not read: the last argument is what to look for\n";
    EXPECT_EQ( RunPimvcard( { "find", book, other } ).LastMessage(), remark );
    EXPECT_EQ( RunPimvcard( { "who", book, other } ).LastMessage(), remark );
    EXPECT_EQ( RunPimvcard( { "find", "--quiet", book, other } ).m_err, "" );
}

TEST( FindCommandTest, HelpNamesKeysThatFindTheContact )
{
    const ProgramRun run = RunPimvcard( { "find", "-q", "--keys", PIMVCARD_EXAMPLES "/phonebook.vcf", "686" } );
    EXPECT_EQ( Names( run ), "Prof. Otmar von H\u00FCgelstein;" );
    EXPECT_NE( RunPimvcard( { "help", "find" } ).m_out.find( "686 finds" ), std::string::npos );
}

TEST( FindCommandTest, LossesAreToldAndDoNotChangeTheAnswer )
{
    const ProgramRun found = ProgramCall( { "find", "-", "tobias" } ).WithInput( PartCard() ).Run();
    EXPECT_EQ( found.m_status, 0 );
    EXPECT_EQ( found.m_err.find( "pimvcard: standard input: 1 line dropped; \"pimvcard check\" shows where\n" ), 0U )
        << found.m_err;
    EXPECT_EQ( ProgramCall( { "find", "-", "nell" } ).WithInput( PartCard() ).Run().m_status, 1 );
}

TEST( FindCommandTest, FileThatCannotBeReadIsAnErrorAndTheOthersAreSearched )
{
    const Folder folder;
    const ProgramRun run = RunPimvcard( { "find", "-q", "missing", folder.Write( "book", s_kNell ), "nell" } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_NE( run.m_out.find( "Nell Brackwater" ), std::string::npos );
    EXPECT_EQ( run.m_err, "pimvcard: missing: No such file or directory\n" );
}

TEST( FindCommandTest, WrongUsageIsReportedWithStatusTwo )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
    };
    const std::vector<Row> rows = {
        { {}, "pimvcard: too few arguments; write \"pimvcard find BOOK... TEXT\"\n" },
        { { "book.vcf" }, "pimvcard: too few arguments; write \"pimvcard find BOOK... TEXT\"\n" },
        { { "-k", "book.vcf", "a\x1B" },
          "pimvcard: --keys: \"a\\x1b\" has no digit; write the keys, such as 686 for Otmar\n" },
        { { "-R", "XX", "book.vcf", "a" },
          "pimvcard: unknown region: \"XX\"; write the two letters of a country, such as DE\n" },
        { { "-l", "few", "book.vcf", "a" },
          "pimvcard: --limit: \"few\" is not a number such as 500, 64K, 16M or 1G\n" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( QList<QByteArray>{ "find" } + row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err,
                   row.m_message + std::string( "pimvcard: \"pimvcard find --help\" shows how to use it\n" ) );
    }
}
