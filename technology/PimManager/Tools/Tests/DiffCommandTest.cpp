#include "ProgramRun.h"

#include "TestBooks.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <vector>

using namespace PimManager::Tools;

namespace
{

QByteArray Card( const QByteArray& a_name, const QByteArray& a_lines )
{
    return CardText( "VERSION:3.0\r\nN:" + a_name + ";;;;\r\nFN:" + a_name + "\r\n" + a_lines );
}

const QByteArray s_kAda = Card( "Ada", "TEL:+1-555-0101\r\nNOTE:Keeps bees.\r\n" );
const QByteArray s_kBo = Card( "Bo", "UID:b\r\nTEL;TYPE=CELL:+1-555-0202\r\n" );
const QByteArray s_kCy = Card( "Cy", "EMAIL:cy@example.com\r\n" );

// The old and the new book.
struct Books
{
    QByteArray m_old;
    QByteArray m_new;
};

ProgramRun RunDiff( const Books& a_books, const QList<QByteArray>& a_options = {} )
{
    const Folder folder;
    return RunPimvcard(
        QList<QByteArray>{ "diff" } + a_options +
        QList<QByteArray>{ folder.Write( "old", a_books.m_old ), folder.Write( "new", a_books.m_new ) } );
}

std::string Totals( const ProgramRun& a_run )
{
    const std::string line = a_run.LastMessage();
    return line.substr( 0, line.find( " moved" ) );
}

} // namespace

TEST( DiffCommandTest, EachContactGivesItsDifference )
{
    struct Row
    {
        const char* m_name;
        Books m_books;
        int m_status;
        const char* m_out;
        const char* m_totals;
    };
    const std::vector<Row> rows = {
        { "same", { s_kAda + s_kBo, s_kAda + s_kBo }, 0, "", "0 added, 0 removed, 0 changed, 0" },
        { "empty", { "", "" }, 0, "", "0 added, 0 removed, 0 changed, 0" },
        { "moved", { s_kAda + s_kBo + s_kCy, s_kBo + s_kCy + s_kAda }, 0, "", "0 added, 0 removed, 0 changed, 1" },
        { "line ends",
          { s_kAda, QByteArray( s_kAda ).replace( "\r\n", "\n" ) },
          0,
          "",
          "0 added, 0 removed, 0 changed, 0" },
        { "added", { s_kAda, s_kBo + s_kAda }, 1, "added: Bo (card 1)\n", "1 added, 0 removed, 0 changed, 0" },
        { "removed", { s_kAda + s_kBo, s_kAda }, 1, "removed: Bo (card 2)\n", "0 added, 1 removed, 0 changed, 0" },
        { "changed",
          { s_kAda + s_kBo, s_kAda + QByteArray( s_kBo ).replace( "CELL", "WORK" ).replace( "UID:b\r\n", "" ) },
          1,
          "changed: Bo (card 2, by name and number)\n  - TEL  cell  +1-555-0202\n  + TEL  work  +1-555-0202\n",
          "0 added, 0 removed, 1 changed, 0" },
        { "line added",
          { s_kAda, QByteArray( s_kAda ).replace( "END:", "NICKNAME:Bee\r\nEND:" ) },
          1,
          "changed: Ada (card 1, by name and number)\n  + NICKNAME  Bee\n",
          "0 added, 0 removed, 1 changed, 0" },
        { "changed before added",
          { s_kBo, QByteArray( s_kBo ).replace( "0202", "0303" ) + s_kCy },
          1,
          "changed: Bo (card 1, by UID)\n  - TEL  cell  +1-555-0202\n  + TEL  cell  +1-555-0303\nadded: Cy (card 2)\n",
          "1 added, 0 removed, 1 changed, 0" },
        { "all",
          { s_kAda + s_kBo, s_kCy + QByteArray( s_kBo ).replace( "0202", "0303" ) },
          1,
          "removed: Ada (card 1)\nadded: Cy (card 1)\n"
          "changed: Bo (card 2, by UID)\n  - TEL  cell  +1-555-0202\n  + TEL  cell  +1-555-0303\n",
          "1 added, 1 removed, 1 changed, 0" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunDiff( row.m_books );
        EXPECT_EQ( run.m_status, row.m_status ) << row.m_name << run.m_err;
        EXPECT_EQ( run.m_out, row.m_out ) << row.m_name;
        EXPECT_EQ( Totals( run ), std::string( "pimvcard: " ) + row.m_totals ) << row.m_name;
    }
}

TEST( DiffCommandTest, FullPrintsLongValuesWhole )
{
    const QByteArray note = QByteArray( "0123456789" ).repeated( 30 );
    const Books books = { s_kAda, QByteArray( s_kAda ).replace( "Keeps bees.", note ) };
    EXPECT_EQ( RunDiff( books ).m_out.find( note.toStdString() ), std::string::npos );
    EXPECT_NE( RunDiff( books, { "--full" } ).m_out.find( note.toStdString() ), std::string::npos );
}

TEST( DiffCommandTest, JsonHasBothVersionsAndTheIndicesOfTheirProperties )
{
    const ProgramRun run = RunDiff(
        { s_kAda + s_kBo, s_kCy + QByteArray( s_kBo ).replace( "TEL", "NICKNAME:B\r\nTEL" ).replace( "0202", "0303" ) },
        { "-q", "--json-lines" } );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_EQ( run.m_err, "" );
    const QList<QByteArray> lines = QByteArray::fromStdString( run.m_out ).split( '\n' );
    ASSERT_EQ( lines.size(), 4 ) << run.m_out;
    EXPECT_EQ( lines.at( 3 ), "" );
    std::string changes;
    std::vector<QJsonObject> objects;
    for ( const QByteArray& line : lines.mid( 0, 3 ) )
    {
        objects.push_back( QJsonDocument::fromJson( line ).object() );
        changes += Utf8( objects.back().value( QStringLiteral( "change" ) ).toString() ) + ':' +
                   Utf8( objects.back().keys().join( QLatin1Char( ',' ) ) ) + ';';
    }
    EXPECT_EQ( changes,
               "removed:change,old;added:change,new;changed:basis,change,new,newProperties,old,oldProperties;" );
    EXPECT_EQ( Utf8( objects[2].value( QStringLiteral( "basis" ) ).toString() ), "uid" );
    const auto texts = []( const QJsonObject& a_object, const QString& a_version, const QString& a_indices )
    {
        const QJsonArray properties =
            a_object.value( a_version ).toObject().value( QStringLiteral( "properties" ) ).toArray();
        std::string text;
        for ( const QJsonValue& index : a_object.value( a_indices ).toArray() )
        {
            const QJsonObject property = properties.at( index.toInt() ).toObject();
            text += Utf8( property.value( QStringLiteral( "name" ) ).toString() ) + ' ' +
                    Utf8( property.value( QStringLiteral( "values" ) ).toArray().at( 0 ).toString() ) + ';';
        }
        return text;
    };
    EXPECT_EQ( texts( objects[2], QStringLiteral( "old" ), QStringLiteral( "oldProperties" ) ), "TEL +1-555-0202;" );
    EXPECT_EQ( texts( objects[2], QStringLiteral( "new" ), QStringLiteral( "newProperties" ) ),
               "NICKNAME B;TEL +1-555-0303;" );
    const QString file =
        objects[0].value( QStringLiteral( "old" ) ).toObject().value( QStringLiteral( "file" ) ).toString();
    EXPECT_TRUE( file.endsWith( QStringLiteral( "/old" ) ) ) << Utf8( file );
}

TEST( DiffCommandTest, StandardInputIsOneOfTheBooks )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", s_kAda );
    EXPECT_EQ( ProgramCall( { "diff", "-", book } ).WithInput( s_kAda + s_kBo ).Run().m_out, "removed: Bo (card 2)\n" );
    EXPECT_EQ( ProgramCall( { "diff", book, "-" } ).WithInput( s_kAda + s_kBo ).Run().m_out, "added: Bo (card 2)\n" );
}

TEST( DiffCommandTest, BooksThatCannotBeReadAreNotCompared )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", s_kAda );
    const QByteArray text = folder.Write( "text", "no card at all\r\n" );
    for ( const QByteArray& other : { text, folder.Path( "missing" ), folder.Path( "" ) } )
    {
        for ( const QList<QByteArray>& books : { QList<QByteArray>{ book, other }, QList<QByteArray>{ other, book } } )
        {
            const ProgramRun run = RunPimvcard( QList<QByteArray>{ "diff", "-q" } + books );
            EXPECT_EQ( run.m_status, 2 ) << other.constData();
            EXPECT_EQ( run.m_out, "" ) << other.constData();
            const std::string message = "pimvcard: nothing is compared, because not both books could be read\n";
            EXPECT_EQ( run.LastMessage(), message ) << other.constData();
        }
    }
}

TEST( DiffCommandTest, DifferencesOfABookThatIsReadInPartAreNotTakenForGranted )
{
    const QByteArray refused = Card( "Bo", "NOTE:" + QByteArray( 2000, 'x' ) + "\r\n" );
    const std::string before = "pimvcard: a part of ";
    const std::string after = "/new could not be read, and may look removed, added or changed\n";
    const ProgramRun lost = RunDiff( { s_kAda + s_kBo, s_kAda + refused }, { "-q", "--max-card-bytes", "1K" } );
    EXPECT_EQ( lost.m_status, 1 );
    EXPECT_EQ( lost.m_out, "removed: Bo (card 2)\n" );
    EXPECT_EQ( lost.m_err.find( before ), 0U ) << lost.m_err;
    EXPECT_EQ( lost.m_err.substr( lost.m_err.size() - after.size() ), after );

    const ProgramRun whole = RunDiff( { s_kAda + s_kBo, s_kAda }, { "-q" } );
    EXPECT_EQ( whole.m_err, "" );

    const ProgramRun same = RunDiff( { s_kAda + refused, s_kAda + refused }, { "-q", "--max-card-bytes", "1K" } );
    EXPECT_EQ( same.m_status, 1 ) << "something is left out";
    EXPECT_EQ( same.m_out, "" );
}

TEST( DiffCommandTest, WrongUsageIsReportedWithStatusTwo )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
    };
    const std::vector<Row> rows = {
        { {}, "pimvcard: too few arguments; write \"pimvcard diff OLD NEW\"\n" },
        { { "a.vcf" }, "pimvcard: too few arguments; write \"pimvcard diff OLD NEW\"\n" },
        { { "a.vcf", "b.vcf", "c.vcf" }, "pimvcard: diff compares two books; leave the others out\n" },
        { { "-", "-" }, "pimvcard: standard input cannot be both books; write one of them into a file\n" },
        { { "-jF", "a.vcf", "b.vcf" }, "pimvcard: --json-lines prints all values whole; leave --full out\n" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( QList<QByteArray>{ "diff" } + row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err,
                   row.m_message + std::string( "pimvcard: \"pimvcard diff --help\" shows how to use it\n" ) );
    }
}
