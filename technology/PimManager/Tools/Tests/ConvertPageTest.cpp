#include "ProgramRun.h"

#include "TestBooks.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <vector>

using namespace PimManager::Tools;

namespace
{

// The page of a book.
QByteArray Page( const QByteArray& a_book )
{
    const Folder folder;
    const QByteArray page = folder.Path( "page.html" );
    const ProgramRun run = RunPimvcard( { "convert", "--to", "html", "-o", page, folder.Write( "book.vcf", a_book ) } );
    EXPECT_LE( run.m_status, 1 ) << run.m_err;
    EXPECT_EQ( run.m_out, "" );
    return FileContent( page );
}

// What is between two texts the first time.
QByteArray Between( const QByteArray& a_page, const QByteArray& a_start, const QByteArray& a_end )
{
    const auto start = a_page.indexOf( a_start ) + a_start.size();
    return a_page.mid( start, a_page.indexOf( a_end, start ) - start );
}

QByteArray HashOf( const QByteArray& a_text )
{
    return "'sha256-" + QCryptographicHash::hash( a_text, QCryptographicHash::Sha256 ).toBase64() + "'";
}

} // namespace

TEST( ConvertPageTest, PolicyAllowsTheStyleTheScriptAndPicturesOfThePage )
{
    const QByteArray page = Page( CleanCard() );
    EXPECT_EQ( page.count( "<script" ), 1 );
    EXPECT_EQ( page.count( "<style" ), 1 );
    const QByteArray policy = Between( page, "Content-Security-Policy\" content=\"", "\"" );
    EXPECT_EQ( policy.toStdString(), "default-src 'none'; img-src data:; style-src " +
                                         HashOf( Between( page, "<style>", "</style>" ) ).toStdString() +
                                         "; script-src " +
                                         HashOf( Between( page, "<script>", "</script>" ) ).toStdString() +
                                         "; base-uri 'none'; form-action 'none'" );
    EXPECT_LT( page.indexOf( "Content-Security-Policy" ), page.indexOf( "<style" ) );
    EXPECT_TRUE( page.contains( "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">" ) );
}

TEST( ConvertPageTest, PageNeedsNothingElse )
{
    const QByteArray page = Page( CleanCard() + CardText( "VERSION:3.0\r\nFN:x\r\nURL:https://example.com/\r\n" ) );
    static const QRegularExpression s_kSource(
        QStringLiteral( "(src|srcset|poster|data)=\"(?!data:image/)|<link|@import|url\\(" ) );
    EXPECT_FALSE( s_kSource.match( QString::fromUtf8( page ) ).hasMatch() );
    EXPECT_TRUE( page.contains( "rel=\"noreferrer noopener\" href=\"https://example.com/\"" ) );
}

TEST( ConvertPageTest, HostileTextStaysText )
{
    const QByteArray text = HostileText();
    QByteArray card = "VERSION:3.0\r\n";
    for ( const char* name :
          { "FN", "N", "ORG", "TITLE", "TEL", "EMAIL", "ADR", "URL", "NOTE", "X-A", "item1.TEL", "item1.X-ABLabel",
            "TEL;TYPE=\"<b>\"", "PHOTO;ENCODING=b;TYPE=\"><script>", "PHOTO", "X-<script>", "IMPP" } )
        card += QByteArray( name ) + ':' + text + "\r\n";
    const QByteArray page = Page( CardText( card ) + CleanCard() );
    EXPECT_EQ( page.count( "<script" ), 1 );
    EXPECT_EQ( page.count( "<img" ), 0 );
    EXPECT_FALSE( page.contains( "<b>" ) );
    EXPECT_GT( page.count( "&lt;script&gt;document.title=&#39;run&#39;&lt;/script&gt;" ), 5 );
    EXPECT_TRUE( IsHarmless( page.toStdString() ) );
    // No attribute of ours is left by way of a quote.
    static const QRegularExpression s_kHandler( QStringLiteral( "<[^>]*\\son\\w+=" ) );
    EXPECT_FALSE( s_kHandler.match( QString::fromUtf8( page ) ).hasMatch() );
}

TEST( ConvertPageTest, HostileFileNameStaysText )
{
    const Folder folder;
    const QByteArray page = folder.Path( "page.html" );
    RunPimvcard(
        { "convert", "--to", "html", "-o", page, folder.Write( "<img src=x onerror=alert(1)>\x1B.vcf", PartCard() ) } );
    EXPECT_FALSE( FileContent( page ).contains( "<img" ) );
    EXPECT_TRUE(
        FileContent( page ).contains( "/&lt;img src=x onerror=alert(1)&gt;\\x1b.vcf</bdi>: 1 line dropped. " ) );
}

TEST( ConvertPageTest, OnlyRasterPicturesByTheirBytesAreShown )
{
    struct Row
    {
        const char* m_head;
        QByteArray m_bytes;
        const char* m_type;
    };
    const std::vector<Row> rows = {
        { "PHOTO;ENCODING=b;TYPE=JPEG", PngPicture(), "image/png" },
        { "LOGO;ENCODING=b", GifPicture(), "image/gif" },
        { "PHOTO;ENCODING=b;TYPE=PNG", "<svg xmlns=\"http://www.w3.org/2000/svg\"><script>alert(1)</script></svg>",
          "" },
        { "PHOTO;ENCODING=b;TYPE=SVG", "<?xml version=\"1.0\"?><svg/>", "" },
        { "PHOTO;ENCODING=b;MEDIATYPE=\"image/svg+xml\"", "<html><script>alert(1)</script>", "" },
        { "PHOTO;ENCODING=b;TYPE=PNG", "no picture", "" },
        { "PHOTO;ENCODING=b;TYPE=TIFF", QByteArray( "II*\0\x08\0\0\0", 8 ), "" },
    };
    for ( const Row& row : rows )
    {
        const QByteArray page = Page( CardText( "VERSION:3.0\r\nFN:x\r\n" + PhotoLine( row.m_bytes, row.m_head ) ) );
        EXPECT_EQ( page.count( "<img" ), *row.m_type == '\0' ? 0 : 1 ) << row.m_head;
        EXPECT_FALSE( page.contains( "svg+xml" ) && page.contains( "<img" ) ) << row.m_head;
        const QByteArray source = QByteArray( "src=\"data:" ) + row.m_type + ";base64," + row.m_bytes.toBase64() + '"';
        EXPECT_EQ( page.contains( source ), *row.m_type != '\0' ) << row.m_head;
    }
    EXPECT_FALSE(
        Page( CardText( "VERSION:4.0\r\nFN:x\r\nPHOTO:data:image/svg+xml;base64,PHN2Zy8+\r\n" ) ).contains( "<img" ) );
    const QByteArray damaged = PhotoLine( PngPicture() ).replace( "\r\n", "%\r\n" );
    EXPECT_FALSE( Page( CardText( "VERSION:3.0\r\nFN:x\r\n" + damaged ) ).contains( "<img" ) );
    EXPECT_FALSE(
        Page( CardText( "VERSION:3.0\r\nFN:x\r\nPHOTO;VALUE=uri:http://example.com/x.png\r\n" ) ).contains( "<img" ) );
}

TEST( ConvertPageTest, EveryContactHasItsAnchor )
{
    const Folder folder;
    const QByteArray first = folder.Write( "first", CleanCard() + CleanCard() );
    const QByteArray second = folder.Write( "second", CleanCard() );
    const ProgramRun run = RunPimvcard( { "convert", "--to", "html", first, second } );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    const QByteArray page = QByteArray::fromStdString( run.m_out );
    EXPECT_EQ( page.count( "<details class=\"contact\"" ), 3 );
    for ( const char* anchor : { "c1-1", "c1-2", "c2-1" } )
        EXPECT_EQ( page.count( QByteArray( "<div class=\"about\" id=\"" ) + anchor + "\">" ), 1 ) << anchor;
    EXPECT_EQ( page.count( "<p class=\"source\">" ), 3 );
    EXPECT_FALSE( Page( CleanCard() ).contains( "<p class=\"source\">" ) );
}

TEST( ConvertPageTest, ReportIsOnThePage )
{
    const QByteArray page = Page( CleanCard() + PartCard() );
    EXPECT_TRUE( page.contains( "</bdi>: 1 line dropped. <a href=\"#account\">" ) );
    EXPECT_TRUE( page.contains( "<dt>Cards</dt><dd>2 cards: 1 whole, 1 in part</dd>" ) );
    EXPECT_TRUE( page.contains( "<dt>Line endings</dt><dd>CR LF line endings</dd>" ) );
    EXPECT_TRUE( page.contains( "<dt>Encoding</dt><dd>UTF-8 (all ASCII)</dd>" ) );
    EXPECT_TRUE( page.contains( "<dt>Versions</dt><dd>version 3.0</dd>" ) );
    EXPECT_TRUE(
        page.contains( "<dt>Bytes</dt><dd>126 bytes: 70 in properties, 48 in BEGIN and END lines, 8 dropped</dd>" ) );
    EXPECT_TRUE( page.contains( "<details open><summary>1 \xC3\x97 not-a-property</summary>" ) );
    EXPECT_TRUE( page.contains(
        "<li id=\"d1-2\"><span class=\"place\">9:1</span><span class=\"word dropped\">dropped</span>" ) );
    EXPECT_TRUE( page.contains( "<a class=\"part\" href=\"#d1-2\">" ) );
    EXPECT_TRUE( page.contains( "<div class=\"about\" id=\"c1-2\">" ) );
    EXPECT_EQ( page.count( "class=\"part\"" ), 1 );
}

TEST( ConvertPageTest, FileWithoutCardsIsReported )
{
    const QByteArray page = Page( "%PDF-1.4\n" );
    EXPECT_FALSE( page.contains( "<details class=\"contact\"" ) );
    EXPECT_TRUE( page.contains( "</bdi>: is a PDF document. <a href=\"#account\">" ) );
    EXPECT_TRUE(
        page.contains( "<dt>File</dt><dd>is a PDF document</dd>\n<dt>Bytes</dt><dd>9 bytes: 9 refused</dd>" ) );
    EXPECT_TRUE( page.contains( ">refused</span>" ) );
    EXPECT_FALSE( page.contains( ">contact</a>" ) );
}

TEST( ConvertPageTest, LossesPrecedeOtherFindings )
{
    const QByteArray page = Page( QByteArray( CleanCard() + PartCard() ).replace( "\r\n", "\n" ) );
    const auto dropped = page.indexOf( "<span class=\"word dropped\">" );
    const auto repaired = page.indexOf( "<span class=\"word repaired\">" );
    EXPECT_GT( dropped, 0 );
    EXPECT_GT( repaired, dropped );
}

TEST( ConvertPageTest, FindingsBeyondTheLimitAreCounted )
{
    const QByteArray page = Page( PartCard().repeated( 1234 ) );
    EXPECT_EQ( page.count( "<span class=\"said\">" ), 1000 );
    EXPECT_TRUE( page.contains( "<p class=\"none\">234 more are not listed.</p>" ) );
    EXPECT_EQ( page.count( "<details class=\"contact\"" ), 1234 );
}

TEST( ConvertPageTest, ContactsAreInTheOrderOfTheirNames )
{
    QByteArray book;
    for ( const char* name : { "112;;;;", "Zimmer;Otto;;;", "\xC3\x85sberg;Nell;;;", "Brackwater;Nell;;;",
                               "Asberg;Zoe;;;", "\xD0\x90\xD0\xBD\xD0\xBD\xD0\xB0;;;;", "brackwater;ada;;;" } )
        book += CardText( QByteArray( "VERSION:3.0\r\nN:" ) + name + "\r\n" );
    const QByteArray page = Page( book );
    QByteArrayList names;
    for ( qsizetype at = page.indexOf( "<h3 dir" ); at >= 0;
          at = page.indexOf( "<h3 dir", static_cast<int>( at ) + 1 ) )
        names << Between( page.mid( static_cast<int>( at ) ), ">", "<" );
    EXPECT_EQ( names.join( '|' ).toStdString(),
               "Nell \xC3\x85sberg|Zoe Asberg|ada brackwater|Nell Brackwater|Otto Zimmer|"
               "\xD0\x90\xD0\xBD\xD0\xBD\xD0\xB0|112" );
    EXPECT_EQ( Between( page, "aria-label=\"Letters\">", "</nav>" ).toStdString(),
               "<a href=\"#s1\">A</a><a href=\"#s2\">B</a><a href=\"#s3\">Z</a><a href=\"#s4\">\xD0\x90</a>"
               "<a href=\"#s5\">#</a>" );
    for ( const char* section :
          { "<h2>A</h2><span class=\"number\">2</span></summary>\n<div class=\"list\" id=\"s1\">",
            "<h2>#</h2><span class=\"number\">1</span></summary>\n<div class=\"list\" id=\"s5\">" } )
        EXPECT_TRUE( page.contains( section ) ) << section;
}

TEST( ConvertPageTest, TheMoreContactsTheLessIsOpen )
{
    struct Row
    {
        int m_contacts;
        int m_openLetters;
        int m_openContacts;
    };
    for ( const Row& row : { Row{ 12, 1, 12 }, Row{ 13, 1, 0 }, Row{ 200, 1, 0 }, Row{ 201, 0, 0 } } )
    {
        const QByteArray page = Page( CleanCard().repeated( row.m_contacts ) );
        EXPECT_EQ( page.count( "<details class=\"contact\"" ), row.m_contacts );
        EXPECT_EQ( page.count( "<details class=\"letter\" open=\"\">" ), row.m_openLetters ) << row.m_contacts;
        EXPECT_EQ( page.count( "<details class=\"contact\" open=\"\">" ), row.m_openContacts ) << row.m_contacts;
    }
}

TEST( ConvertPageTest, PageIsNotWrittenIfTheTemporaryFileFails )
{
    const Folder folder;
    const QByteArray book =
        folder.Write( "book.vcf", CardText( "FN:x\r\nNOTE:" + QByteArray( 100000, 'x' ) + "\r\n" ) );
    const ProgramRun run =
        ProgramCall( { "convert", "--to", "html", "-o", "/dev/null", book } ).WithFileSizeLimit( 50000 ).Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_NE( run.m_err.find( "/dev/null: cannot be written: temporary file: File too large" ), std::string::npos )
        << run.m_err;
}
