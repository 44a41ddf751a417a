// Contacts as vCards and jCards: joined, sorted, filtered and in files of their own.

#include "ProgramRun.h"

#include "TestBooks.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <algorithm>

#include <vector>

using namespace PimManager::Tools;
using namespace PimManager::Contacts;

namespace
{

QByteArray CardOf( const QByteArray& a_name, const QByteArray& a_more = QByteArray() )
{
    return CardText( "VERSION:3.0\r\nFN:" + a_name + "\r\nN:" + a_name + ";;;;\r\n" + a_more );
}

// The names of the contacts in an output, whatever its format.
std::string NamesOf( const std::string& a_text )
{
    std::string names;
    for ( const PimContact& contact : PimContactBook::FromBytes( QByteArray::fromStdString( a_text ) ) )
        names += Utf8( contact.DisplayName() ) + ";";
    return names;
}

} // namespace

TEST( ConvertCardsTest, EveryFormatOfCardsIsWrittenAndRead )
{
    struct Row
    {
        const char* m_format;
        const char* m_start;
    };
    for ( const Row& row :
          { Row{ "2.1", "BEGIN:VCARD\r\nVERSION:2.1\r\n" }, Row{ "3.0", "BEGIN:VCARD\r\nVERSION:3.0\r\n" },
            Row{ "4.0", "BEGIN:VCARD\r\nVERSION:4.0\r\n" },
            Row{ "jcard", "[\n[\"vcard\",[[\"version\",{},\"text\",\"4.0\"]," } } )
    {
        const ProgramRun run = ProgramCall( { "convert", "-t", row.m_format, "-" } )
                                   .WithInput( CardOf( "Nell" ) + CardOf( "Tobias" ) )
                                   .Run();
        EXPECT_EQ( run.m_status, 0 ) << row.m_format;
        EXPECT_EQ( run.m_out.find( row.m_start ), 0U ) << run.m_out;
        EXPECT_EQ( NamesOf( run.m_out ), "Nell;Tobias;" ) << run.m_out;
        EXPECT_NE( run.LastMessage().find( "2 contacts written" ), std::string::npos ) << run.m_err;
        const ProgramRun list =
            ProgramCall( { "list", "-" } ).WithInput( QByteArray::fromStdString( run.m_out ) ).Run();
        EXPECT_EQ( list.m_status, 0 ) << row.m_format;
        EXPECT_NE( list.m_out.find( "Tobias" ), std::string::npos ) << list.m_out;
    }
}

TEST( ConvertCardsTest, BooksOfAllFormatsAreJoined )
{
    const Folder folder;
    const QByteArray first = folder.Write( "a.vcf", CardOf( "Nell" ) );
    const QByteArray second = folder.Write( "b.json", R"(["vcard",[["fn",{},"text","Mara"]]])" );
    EXPECT_EQ( NamesOf( RunPimvcard( { "convert", "-t", "4.0", first, second, first } ).m_out ), "Nell;Mara;Nell;" );
}

TEST( ConvertCardsTest, SortedContactsAreInTheOrderOfTheirNames )
{
    const QByteArray book = CardOf( "tobias" ) + CardOf( "Nell", "NOTE:1\r\n" ) + CardOf( "Abel" ) +
                            CardOf( "nell", "NOTE:2\r\n" ) + CardOf( "\xC3\x84nne" );
    for ( const char* format : { "3.0", "jcard" } )
    {
        const ProgramRun run = ProgramCall( { "convert", "--sort", "-t", format, "-" } ).WithInput( book ).Run();
        EXPECT_EQ( NamesOf( run.m_out ), "Abel;Nell;nell;tobias;\xC3\x84nne;" ) << format;
    }
    const ProgramRun json = ProgramCall( { "convert", "--sort", "-t", "json-lines", "-" } ).WithInput( book ).Run();
    EXPECT_EQ( json.m_out.find( R"({"file":"standard input","card":3,)" ), 0U ) << json.m_out;
}

TEST( ConvertCardsTest, FilteredCardsHaveTheNamedProperties )
{
    const ProgramRun run = ProgramCall( { "convert", "-n", "fn, N,TEL", "-t", "3.0", "-" } )
                               .WithInput( CardOf( "Nell", "TEL:1\r\nNOTE:x\r\n" ) )
                               .Run();
    EXPECT_EQ( run.m_out, "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Nell\r\nN:Nell;;;;\r\nTEL:1\r\nEND:VCARD\r\n" );
    EXPECT_NE( run.LastMessage().find( "1 contact written (1 card-filtered)" ), std::string::npos ) << run.m_err;
}

TEST( ConvertCardsTest, WhatTheFormatCannotSayIsReported )
{
    const QByteArray card = CardText( "VERSION:4.0\r\nFN:Nell\r\nKIND:individual\r\nGENDER:F\r\n" );
    const ProgramRun run = ProgramCall( { "convert", "-t", "2.1", "-" } ).WithInput( card ).Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_NE( run.m_err.find( "pimvcard: contact 1, line 3: KIND " ), std::string::npos ) << run.m_err;
    EXPECT_NE( run.LastMessage().find( "property-renamed" ), std::string::npos ) << run.m_err;
    EXPECT_EQ( ProgramCall( { "convert", "-q", "-t", "2.1", "-" } ).WithInput( card ).Run().m_err, "" );
}

TEST( ConvertCardsTest, RemarksAreFew )
{
    QByteArray book;
    for ( int i = 0; i < 50; ++i )
        book += CardText( "VERSION:4.0\r\nFN:Nell\r\nGENDER:F\r\n" );
    const ProgramRun run = ProgramCall( { "convert", "-t", "2.1", "-" } ).WithInput( book ).Run();
    EXPECT_LT( std::count( run.m_err.begin(), run.m_err.end(), '\n' ), 30 ) << run.m_err;
    EXPECT_NE( run.m_err.find( " more; the totals count them\n" ), std::string::npos ) << run.m_err;
}

TEST( ConvertCardsTest, EachContactIsInAFileOfItsOwn )
{
    const Folder folder;
    const QByteArray split = folder.Path( "split" );
    const QByteArray book =
        folder.Write( "book", CardOf( "Nell" ) + CardOf( "../../x" ) + CardOf( "" ) + CardOf( "Nell" ) );
    const ProgramRun run = RunPimvcard( { "convert", "--split", split, book } );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    EXPECT_EQ( NamesIn( split ), "Nell-1.vcf\nNell-4.vcf\ncontact-3.vcf\nx-2.vcf\n" );
    EXPECT_EQ( FileContent( split + "/Nell-1.vcf" ), CardOf( "Nell" ) );
    EXPECT_EQ( ModeOf( split + "/Nell-1.vcf" ), 0600U );
    EXPECT_NE( run.LastMessage().find( "4 contacts written" ), std::string::npos ) << run.m_err;
    EXPECT_NE( run.LastMessage().find( "into 4 files" ), std::string::npos ) << run.m_err;
    // Names that are taken are left alone.
    EXPECT_EQ( RunPimvcard( { "convert", "-d", split, "-t", "jcard", book } ).m_status, 0 );
    EXPECT_EQ( RunPimvcard( { "convert", "-d", split, split + "/Nell-1.vcf" } ).m_status, 0 );
    EXPECT_EQ( NamesIn( split ), "Nell-1.jcard\nNell-1.vcf\nNell-2.vcf\nNell-4.jcard\nNell-4.vcf\ncontact-3.jcard\n"
                                 "contact-3.vcf\nx-2.jcard\nx-2.vcf\n" );
    EXPECT_EQ( NamesOf( FileContent( split + "/Nell-4.jcard" ).toStdString() ), "Nell;" );
}

TEST( ConvertCardsTest, InputIsNeverReplaced )
{
    const Folder folder;
    const QByteArray book = folder.Write( "Nell-1.vcf", CardOf( "Nell", "NOTE:old\r\n" ) );
    EXPECT_EQ( RunPimvcard( { "convert", "--force", "-o", book, book } ).m_status, 2 );
    EXPECT_EQ( RunPimvcard( { "convert", "--force", "-d", folder.Path( "" ), "-n", "FN,N", book } ).m_status, 0 );
    EXPECT_EQ( FileContent( book ), CardOf( "Nell", "NOTE:old\r\n" ) );
    EXPECT_EQ( FileContent( folder.Path( "Nell-2.vcf" ) ), CardOf( "Nell" ) );
}

TEST( ConvertCardsTest, FullDiskLeavesNoFile )
{
    const QByteArray large = CardOf( "Nell", "NOTE:" + QByteArray( 100000, 'x' ) + "\r\n" );
    for ( const char* format : { "2.1", "3.0", "4.0", "jcard", "csv" } )
    {
        const Folder folder;
        const QByteArray output = folder.Path( "out" );
        const QByteArray split = folder.Path( "split" );
        const ProgramRun run = ProgramCall( { "convert", "-t", format, "-o", output, "-" } )
                                   .WithInput( large )
                                   .WithFileSizeLimit( 20000 )
                                   .Run();
        EXPECT_EQ( run.m_status, 2 ) << format;
        EXPECT_NE( run.m_err.find( "cannot be written" ), std::string::npos ) << run.m_err;
        EXPECT_EQ( NamesIn( folder.Path( "" ) ), "" ) << format;
        if ( qstrcmp( format, "csv" ) == 0 )
            continue;
        EXPECT_EQ( ProgramCall( { "convert", "-t", format, "-d", split, "-" } )
                       .WithInput( large )
                       .WithFileSizeLimit( 20000 )
                       .Run()
                       .m_status,
                   2 );
        EXPECT_EQ( NamesIn( split ), "" ) << format;
    }
}

TEST( ConvertCardsTest, RemarkNamesTheLimitThatRefusedCards )
{
    struct Row
    {
        QList<QByteArray> m_options;
        const char* m_remark;
    };
    const std::vector<Row> rows = {
        { { "--max-cards", "1" }, "1 card refused; raise --max-cards (0 is no limit); " },
        { { "--max-book-bytes", "100" }, "1 card refused; raise --max-book-bytes (0 is no limit); " },
        { { "--max-card-bytes", "10" },
          "2 cards refused; raise --max-card-bytes (0 is no limit); \"pimvcard check\" shows where" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = ProgramCall( QList<QByteArray>{ "convert", "-t", "3.0", "-" } + row.m_options )
                                   .WithInput( CleanCard() + CleanCard() )
                                   .Run();
        EXPECT_EQ( run.m_status, 1 ) << row.m_remark;
        EXPECT_NE( run.m_err.find( row.m_remark ), std::string::npos ) << run.m_err;
    }
}
