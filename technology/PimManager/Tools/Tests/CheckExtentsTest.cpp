#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

ProgramRun Extents( const QByteArray& a_book )
{
    return ProgramCall( { "check", "--extents", "-" } ).WithInput( a_book ).Run();
}

// The bytes that the extents cover; -1 if one of the lines does not follow the one before.
qint64 CoveredBytes( const ProgramRun& a_run )
{
    qint64 end = 0;
    const QStringList lines = QString::fromStdString( a_run.m_out ).split( QLatin1Char( '\n' ), Qt::SkipEmptyParts );
    for ( const QString& line : lines )
    {
        const QStringList words = line.split( QLatin1Char( ' ' ) );
        if ( words.size() != 4 || words[0] != QString::number( end ) || words[1].toLongLong() < 1 )
            return -1;
        end += words[1].toLongLong();
    }
    return end;
}

} // namespace

TEST( CheckExtentsTest, EachLineHasOffsetLengthKindAndCard )
{
    struct Row
    {
        const char* m_name;
        QByteArray m_book;
        int m_status;
        const char* m_lines;
    };
    const QByteArray archive = QByteArray( "PK\x03\x04" ) + QByteArray( 96, 'x' );
    const std::vector<Row> rows = {
        { "empty", "", 0, "" },
        { "clean", CardText( "VERSION:3.0\r\nN:x\r\n\r\n" ), 0,
          "0 13 boundary 1\n13 13 line 1\n26 5 line 1\n31 2 blank 1\n33 11 boundary 1\n" },
        { "folded", CardText( "NOTE:x\r\n y\r\n" ), 0, "0 13 boundary 1\n13 12 line 1\n25 11 boundary 1\n" },
        { "two cards with text", "a\r\n" + CardText( "" ) + "b\r\n" + CardText( "" ), 0,
          "0 3 outside 0\n3 13 boundary 1\n16 11 boundary 1\n27 3 outside 0\n30 13 boundary 2\n43 11 boundary 2\n" },
        { "mark", "\xEF\xBB\xBF" + CardText( "" ), 0, "0 3 mark 0\n3 13 boundary 1\n16 11 boundary 1\n" },
        { "dropped", CardText( "# x\r\n" ), 1, "0 13 boundary 1\n13 5 dropped 1\n18 11 boundary 1\n" },
        { "archive", archive, 1, "0 100 refused 0\n" },
        { "UTF-16", Utf16( "a\r\n" ), 1, "converted UTF-16LE\n0 3 mark 0\n3 3 outside 0\n" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = Extents( row.m_book );
        EXPECT_EQ( run.m_out, row.m_lines ) << row.m_name;
        EXPECT_EQ( run.m_status, row.m_status ) << row.m_name;
        EXPECT_EQ( run.m_err, "" ) << row.m_name;
    }
}

TEST( CheckExtentsTest, ExtentsCoverTheFile )
{
    const std::vector<QByteArray> books = {
        FileContent( PIMVCARD_EXAMPLES "/messy-phonebook.vcf" ),
        FileContent( PIMVCARD_EXAMPLES "/phonebook.vcf" ),
        CardText( "FN:" + HostileText() + "\r\n" + HostileText() + "\r\n" ).chopped( 3 ),
        QByteArray( "\x1F\x8B\x08" ) + QByteArray( 1000000, '\0' ),
        CleanCard().repeated( 10000 ),
    };
    for ( const QByteArray& book : books )
    {
        ASSERT_FALSE( book.isEmpty() );
        EXPECT_EQ( CoveredBytes( Extents( book ) ), book.size() ) << book.left( 40 ).toStdString();
    }
}

TEST( CheckExtentsTest, NamePrecedesEachOfSeveralFiles )
{
    const Folder folder;
    const QByteArray first = folder.Write( "first", "a\r\n" );
    const QByteArray second = folder.Write( "second", Utf16( "b\r\n" ) );
    const ProgramRun run =
        ProgramCall( { "check", "--extents", first, "-", folder.Path( "missing" ), second } ).WithInput( "" ).Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_out, "file " + first.toStdString() + "\n0 3 outside 0\nfile standard input\nfile " +
                              second.toStdString() + "\nconverted UTF-16LE\n0 3 mark 0\n3 3 outside 0\n" );
}

TEST( CheckExtentsTest, ShortOptionAndLimitsWork )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", CardText( "" ) + CardText( "" ) );
    const ProgramRun run = RunPimvcard( { "check", "-e", "--max-cards", "1", book } );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_EQ( run.m_out.find( "0 13 boundary 1\n13 11 boundary 1\n24 " ), 0U ) << run.m_out;
    EXPECT_NE( run.m_out.find( " refused 2\n" ), std::string::npos ) << run.m_out;
    EXPECT_EQ( CoveredBytes( run ), 48 );
}
