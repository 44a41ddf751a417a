#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

TEST( ConvertCommandTest, WrongUsageIsReportedWithStatusTwo )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
    };
    const std::vector<Row> rows = {
        { {}, "no file to convert; - is standard input" },
        { { "x.vcf" }, "no output format; choose one with --to: 2.1, 3.0, 4.0, jcard, csv, json, json-lines, html" },
        { { "-o", "x", "x.vcf" },
          "no output format; choose one with --to: 2.1, 3.0, 4.0, jcard, csv, json, json-lines, html" },
        { { "-o", "x", "--photos", "p", "x.vcf" },
          "no output format; choose one with --to: 2.1, 3.0, 4.0, jcard, csv, json, json-lines, html" },
        { { "-t", "htm", "x.vcf" },
          "unknown format: htm; use one of 2.1, 3.0, 4.0, jcard, csv, json, json-lines, html. Did you mean "
          "\"html\"?" },
        { { "-t", "\x1B", "x.vcf" },
          "unknown format: \\x1b; use one of 2.1, 3.0, 4.0, jcard, csv, json, json-lines, html." },
        { { "x.vcf", "--photos" }, "Missing value after '--photos'." },
        { { "--split", "d", "-o", "x.vcf", "x.vcf" },
          "--split and --output cannot be combined; leave one of them out" },
        { { "--split", "d", "-t", "csv", "x.vcf" }, "--split needs vCards; choose 2.1, 3.0, 4.0 or jcard with --to" },
        { { "--sort", "-t", "html", "x.vcf" }, "--sort does not apply to a page or to pictures; leave it out" },
        { { "--mark", "-t", "3.0", "x.vcf" }, "--columns and --mark are for tables; add --to csv" },
        { { "--columns", "name", "-t", "json", "x.vcf" }, "--columns and --mark are for tables; add --to csv" },
        { { "--filter", "FN,,TEL", "-t", "3.0", "x.vcf" },
          "not a property name: \"\"; --filter takes names such as FN,N,TEL" },
        { { "--filter", "FN:TEL", "-t", "3.0", "x.vcf" },
          "not a property name: FN:TEL; --filter takes names such as FN,N,TEL" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( QList<QByteArray>{ "convert" } + row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err, "pimvcard: " + std::string( row.m_message ) +
                                  "\npimvcard: \"pimvcard convert --help\" shows how to use it\n" );
    }
}

TEST( ConvertCommandTest, EndingOfTheOutputIsTheFormat )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", CleanCard() );
    struct Row
    {
        const char* m_name;
        const char* m_start;
    };
    for ( const Row& row :
          { Row{ "a.vcf", "BEGIN:VCARD\r\nVERSION:3.0\r\n" }, Row{ "a.jcard", "[\"vcard\",[[\"version\"" },
            Row{ "a.csv", "name,prefix," }, Row{ "a.json", "[\n{\"file\":" }, Row{ "a.jsonl", "{\"file\":" },
            Row{ "a.html", "<!DOCTYPE html>" } } )
    {
        const QByteArray output = folder.Path( row.m_name );
        EXPECT_EQ( RunPimvcard( { "convert", book, "-o", output } ).m_status, 0 ) << row.m_name;
        EXPECT_TRUE( FileContent( output ).startsWith( row.m_start ) ) << row.m_name;
    }
}

TEST( ConvertCommandTest, NamedFormatWinsOverTheEnding )
{
    const Folder folder;
    const QByteArray output = folder.Path( "a.html" );
    EXPECT_EQ( ProgramCall( { "convert", "-", "-t", "json", "-o", output } ).WithInput( "" ).Run().m_status, 0 );
    EXPECT_EQ( FileContent( output ).toStdString(), "[]\n" );
}

TEST( ConvertCommandTest, PicturesAndRejectsNeedNoFormat )
{
    const Folder folder;
    const QByteArray rejects = folder.Path( "rejects" );
    const ProgramRun run = ProgramCall( { "convert", "-", "--rejects", rejects, "--photos", folder.Path( "photos" ) } )
                               .WithInput( PartCard() )
                               .Run();
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_EQ( run.m_out, "" );
    EXPECT_EQ( FileContent( rejects ), "\x01\x02 %%%\r\n" );
}
