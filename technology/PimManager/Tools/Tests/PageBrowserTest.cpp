#include "Browser.h"
#include "ProgramRun.h"

#include "TestBooks.h"

#include <QFile>
#include <QStringList>
#include <QThread>

#include <vector>

using namespace PimManager::Tools;

namespace
{

// The names of the contacts that can be seen.
const QString s_kVisibleNames =
    QStringLiteral( "Array.from(document.querySelectorAll('.contact')).filter(c => c.offsetParent !== null)"
                    ".map(c => c.querySelector('h3').textContent).join('|')" );

const QString s_kTypeHere = QStringLiteral( "(function() { var i = document.getElementById('words'); i.value = ''; "
                                            "i.dispatchEvent(new Event('input')); i.focus(); })()" );

// A page and the browser that shows it.
class Page
{
public:
    explicit Page( const QByteArray& a_book, bool a_areScriptsAllowed = true )
    {
        const QByteArray page = m_folder.Path( "page.html" );
        const QByteArray book = m_folder.Write( "<img src=x onerror=\"document.title='run'\">.vcf", a_book );
        EXPECT_LE( RunPimvcard( { "convert", "--to", "html", "-o", page, book } ).m_status, 1 );
        m_browser.SetSize( 1280, 1000, false );
        m_browser.SetScriptsAllowed( a_areScriptsAllowed );
        m_browser.Open( page );
    }

    Browser& Shown() { return m_browser; }
    void Run( const QString& a_script ) { m_browser.Evaluate( a_script ); }
    int Height() { return Number( QStringLiteral( "document.documentElement.scrollHeight" ) ); }
    std::string Text( const QString& a_expression ) { return Utf8( m_browser.Evaluate( a_expression ).toString() ); }
    int Number( const QString& a_expression ) { return qRound( m_browser.Evaluate( a_expression ).toDouble( -1 ) ); }

    // Waits until an expression has a value. Scripts of the page itself may be switched off, and timers with them.
    void Await( const QString& a_expression, const std::string& a_text )
    {
        constexpr int s_kTries = 300;
        constexpr int s_kPause = 10;
        for ( int i = 0; i < s_kTries && Text( a_expression ) != a_text; ++i )
            QThread::msleep( s_kPause );
        EXPECT_EQ( Text( a_expression ), a_text );
    }

private:
    Folder m_folder;
    Browser m_browser;
};

QByteArray Examples()
{
    return FileContent( PIMVCARD_EXAMPLES "/phonebook.vcf" );
}

QByteArray RightToLeftCard()
{
    return CardText( "VERSION:3.0\r\nFN:\xD7\x93\xD7\xA0\xD7\x94 \xD7\x9C\xD7\x95\xD7\x99\r\nTITLE:Engineer\r\n"
                     "TEL;TYPE=CELL:+1-555-0160\r\nBDAY:--0203\r\nADR:;;\xD7\xA8\xD7\x97\xD7\x95\xD7\x91 3;Haifa;;;\r\n"
                     "NOTE:An English note\r\nX-TIDE:high\r\n" );
}

QByteArray HostileBook()
{
    const QByteArray text = HostileText();
    QByteArray lines =
        "VERSION:3.0\r\n" + PhotoLine( R"(<svg xmlns="http://www.w3.org/2000/svg" onload="document.title='run'"/>)",
                                       "PHOTO;ENCODING=b;TYPE=\"SVG+XML\"" );
    for ( const char* name : { "FN", "ORG", "TITLE", "TEL", "EMAIL", "ADR", "NOTE", "X-A", "item1.TEL",
                               "item1.X-ABLabel", "TEL;TYPE=\"<img src=x onerror=document.title=1>\"" } )
        lines += QByteArray( name ) + ':' + text + "\r\n";
    for ( const char* address :
          { "javascript:document.title='run'", "data:text/html,<script>document.title='run'</script>",
            "https://example.com/\" onmouseover=\"document.title='run'" } )
        lines += "URL:" + QByteArray( address ) + "\r\n";
    return CardText( lines ) + CleanCard();
}

// A book with names under every letter, some of them from right to left.
QByteArray ManyContacts( int a_count )
{
    QByteArray book;
    for ( int i = 0; i < a_count; ++i )
    {
        const QByteArray number = QByteArray::number( i );
        const char letter = static_cast<char>( 'A' + i % 26 );
        book += CardText( "VERSION:3.0\r\nFN:Nell " + QByteArray( 1, letter ) + "water " + number +
                          "\r\nN:" + QByteArray( 1, letter ) + "water " + number + ";Nell;;;\r\nTEL;TYPE=CELL:+1-555-" +
                          number + "\r\nEMAIL:nell" + number +
                          "@example.com\r\nTITLE:Keeper of the tables\r\nBDAY:19850203\r\n" +
                          "ADR;TYPE=HOME:;;3 Ferry Steps;Port Lanthorn;;X1 4PL;Lanthornia\r\nX-TIDE:high\r\n" );
    }
    return book + RightToLeftCard();
}

void WriteScreenshot( Browser& a_browser, const char* a_name )
{
    const QByteArray picture = a_browser.Screenshot();
    EXPECT_GT( picture.size(), 10000 ) << a_name;
    QFile file( QFile::decodeName( QByteArray( PIMVCARD_SCREENSHOTS "/" ) + a_name ) );
    EXPECT_TRUE( file.open( QIODevice::WriteOnly ) ) << a_name;
    file.write( picture );
}

} // namespace

TEST( PageBrowserTest, SearchShowsWhatFitsAndNothingElse )
{
    struct Row
    {
        const char* m_words;
        const char* m_names;
        const char* m_count;
    };
    const std::vector<Row> rows = {
        { "nell", "Nell Imogen Brackwater", "1 of 11" },
        { "NELL brack", "Nell Imogen Brackwater", "1 of 11" },
        { "nell tobias", "", "0 of 11" },
        { "siobhan", "Siobhán Ó Wrenfield", "1 of 11" },
        { "月見里", "月見里 はるか", "1 of 11" },
        { "15550111", "Dr. Tobias F. Quillfeather", "1 of 11" },
        { "555-0111", "Dr. Tobias F. Quillfeather", "1 of 11" },
        { "boat phone", "Nell Imogen Brackwater", "1 of 11" },
        { "tide", "Dr. Tobias F. Quillfeather", "1 of 11" },
        { "<b>", "", "0 of 11" },
    };
    Page page( Examples() );
    EXPECT_EQ( page.Text( QStringLiteral( "document.getElementById('count').textContent" ) ), "11 in all" );
    for ( const Row& row : rows )
    {
        page.Shown().Evaluate( s_kTypeHere );
        page.Shown().Type( QString::fromUtf8( row.m_words ) );
        EXPECT_EQ( page.Text( s_kVisibleNames ), row.m_names ) << row.m_words;
        EXPECT_EQ( page.Text( QStringLiteral( "document.getElementById('count').textContent" ) ), row.m_count );
        EXPECT_EQ( page.Shown().Evaluate( QStringLiteral( "document.getElementById('none').hidden" ) ).toBool(),
                   *row.m_names != '\0' )
            << row.m_words;
    }
    page.Shown().Evaluate( s_kTypeHere );
    EXPECT_EQ( page.Number( QStringLiteral( "document.querySelectorAll('.contact:not([hidden])').length" ) ), 11 );
    EXPECT_TRUE( page.Shown().Complaints().isEmpty() ) << Utf8( page.Shown().Complaints().join( QLatin1Char( '\n' ) ) );
}

TEST( PageBrowserTest, PicturesAreShown )
{
    Page page( Examples() +
               CardText( "VERSION:3.0\r\nFN:x\r\n" + PhotoLine( PngPicture() ) + PhotoLine( GifPicture() ) ) );
    EXPECT_EQ( page.Number( QStringLiteral( "document.images.length" ) ), 4 );
    EXPECT_EQ(
        page.Number( QStringLiteral(
            "Promise.all(Array.from(document.images).map(i => { i.loading = 'eager'; return i.decode(); }))"
            ".then(() => Array.from(document.images).filter(i => i.naturalWidth > 0 && i.offsetWidth > 0).length)" ) ),
        4 );
    EXPECT_TRUE( page.Shown().Complaints().isEmpty() ) << Utf8( page.Shown().Complaints().join( QLatin1Char( '\n' ) ) );
}

TEST( PageBrowserTest, NothingOfACardRuns )
{
    Page page( HostileBook() );
    EXPECT_EQ( page.Text( QStringLiteral( "document.title" ) ), "Contacts" );
    EXPECT_EQ( page.Number( QStringLiteral( "document.scripts.length" ) ), 1 );
    EXPECT_EQ( page.Number( QStringLiteral( "document.images.length" ) ), 0 );
    EXPECT_EQ(
        page.Number( QStringLiteral( "document.querySelectorAll('[onerror],[onload],[onmouseover],[style]').length" ) ),
        0 );
    EXPECT_EQ( page.Number( QStringLiteral( "Array.from(document.links).filter(l => !['tel:', 'mailto:', 'https:', "
                                            "'file:'].includes(l.protocol)).length" ) ),
               0 );
    EXPECT_NE(
        page.Text( QStringLiteral( "Array.from(document.querySelectorAll('h3')).map(h => h.textContent).join()" ) )
            .find( "<script>document.title='run'</script>" ),
        std::string::npos );
    // Nothing was even tried: the browser had nothing to refuse.
    EXPECT_TRUE( page.Shown().Complaints().isEmpty() ) << Utf8( page.Shown().Complaints().join( QLatin1Char( '\n' ) ) );
}

TEST( PageBrowserTest, PolicyStopsWhatGotIntoThePage )
{
    Page page( CleanCard() );
    page.Shown().Evaluate(
        QStringLiteral( "new Promise(done => { document.body.insertAdjacentHTML('beforeend', '<img src=\"data:,x\" "
                        "onerror=\"document.title = 1\">'); var s = document.createElement('script'); s.textContent = "
                        "'document.title = 2'; "
                        "document.body.append(s); setTimeout(done, 300); })" ) );
    EXPECT_EQ( page.Text( QStringLiteral( "document.title" ) ), "Contacts" );
    EXPECT_GE( page.Shown().Complaints().size(), 2 );
}

TEST( PageBrowserTest, ContactsAreThereWithoutScripts )
{
    Page page( Examples(), false );
    EXPECT_EQ( page.Number( QStringLiteral(
                   "Array.from(document.querySelectorAll('.contact')).filter(c => c.offsetParent).length" ) ),
               11 );
    EXPECT_EQ( page.Text( QStringLiteral( "String(document.getElementById('search').offsetParent)" ) ), "null" );
    EXPECT_GT( page.Number( QStringLiteral( "document.querySelector('.account').offsetHeight" ) ), 100 );
}

TEST( PageBrowserTest, PageOfManyContactsIsShort )
{
    Page page( ManyContacts( 5000 ), false );
    for ( const int width : { 390, 1280 } )
    {
        page.Shown().SetSize( width, 844, width < 500 );
        EXPECT_LT( page.Height(), 4000 ) << width;
        EXPECT_LE( page.Number( QStringLiteral( "document.documentElement.scrollWidth" ) ), width );
        EXPECT_LE( page.Number( QStringLiteral( "document.querySelector('.bar').offsetHeight" ) ), 120 ) << width;
        page.Run( QStringLiteral( "document.querySelectorAll('.letter')[1].open = true" ) );
        EXPECT_LT( page.Height(), 20000 ) << width;
        page.Run( QStringLiteral( "document.querySelectorAll('.letter')[1].open = false" ) );
    }
}

TEST( PageBrowserTest, LetterOpensItsSectionAndJumpsToIt )
{
    for ( const bool areScriptsAllowed : { false, true } )
    {
        Page page( ManyContacts( 500 ), areScriptsAllowed );
        page.Shown().SetSize( 390, 844, true );
        EXPECT_EQ( page.Number( QStringLiteral( "document.querySelectorAll('.letters a').length" ) ), 27 );
        EXPECT_EQ( page.Number( QStringLiteral( "document.querySelectorAll('.letter[open]').length" ) ), 0 );
        page.Run( QStringLiteral( "document.querySelectorAll('.letters a')[13].click()" ) );
        page.Await(
            QStringLiteral( "Array.from(document.querySelectorAll('.letter[open] h2')).map(h => h.textContent).join()"
                            " + (scrollY > 0)" ),
            "Ntrue" );
        // The heading can be seen below the bar.
        EXPECT_GE(
            page.Number( QStringLiteral( "document.querySelector('.letter[open] h2').getBoundingClientRect().top - "
                                         "document.querySelector('.bar').getBoundingClientRect().bottom" ) ),
            0 )
            << areScriptsAllowed;
        EXPECT_LT( page.Number( QStringLiteral(
                       "document.querySelector('.letter[open] .contact').getBoundingClientRect().bottom" ) ),
                   400 )
            << areScriptsAllowed;
        EXPECT_EQ( page.Number( QStringLiteral( "document.querySelector('.bar').getBoundingClientRect().top" ) ), 0 );
    }
}

TEST( PageBrowserTest, SearchOpensSectionsAndClosesThemAgain )
{
    Page page( ManyContacts( 500 ) );
    page.Run( s_kTypeHere );
    page.Shown().Type( QStringLiteral( "water 137" ) );
    EXPECT_EQ( page.Text( s_kVisibleNames ), "Nell Hwater 137" );
    page.Run( s_kTypeHere );
    EXPECT_EQ( page.Number( QStringLiteral( "document.querySelectorAll('.letter[open]').length" ) ), 0 );
    EXPECT_EQ( page.Number( QStringLiteral( "document.querySelectorAll('.letter[hidden]').length" ) ), 0 );
}

TEST( PageBrowserTest, FindingOpensItsContactWithoutScripts )
{
    Page page( ManyContacts( 500 ) + PartCard(), false );
    page.Run( QStringLiteral( "document.querySelector('.findings a').click()" ) );
    page.Await(
        QStringLiteral( "Array.from(document.querySelectorAll('.contact[open] h3')).map(h => h.textContent).join()" ),
        "Tobias" );
    EXPECT_GT( page.Number( QStringLiteral( "document.querySelector('.contact[open] .about').offsetHeight" ) ), 0 );
    EXPECT_EQ( page.Text( QStringLiteral( "getComputedStyle(document.querySelector('.contact[open]')).outlineStyle" ) ),
               "solid" );
}

TEST( PageBrowserTest, PictureThatDoesNotDecodeShowsTheInitials )
{
    struct Row
    {
        const char* m_name;
        QByteArray m_picture;
        const char* m_seen;
    };
    const std::vector<Row> rows = {
        { "whole", PngPicture(), "IMG" },
        { "cut", PngPicture().left( 40 ), "SPAN" },
        { "only a mark", PngPicture().left( 8 ), "SPAN" },
        { "garbage behind the mark", PngPicture().left( 8 ) + QByteArray( 100, 'x' ), "SPAN" },
        { "garbage that begins as JPEG", "\xFF\xD8\xFF\xE0garbage", "SPAN" },
        { "garbage that begins as GIF", "GIF89a", "SPAN" },
    };
    for ( const Row& row : rows )
    {
        Page page( CardText( "VERSION:3.0\r\nFN:Nell Brackwater\r\n" + PhotoLine( row.m_picture ) ), false );
        EXPECT_EQ( page.Number( QStringLiteral( "document.images.length" ) ), 1 ) << row.m_name;
        // What is in the middle of the face, and at its four sides.
        EXPECT_EQ(
            page.Text( QStringLiteral(
                "(function() { var r = document.querySelector('.face').getBoundingClientRect(), x = r.width / 2, "
                "y = r.height / 2; return Array.from(new Set([[0, 0], [0.8, 0], [-0.8, 0], [0, 0.8], [0, -0.8]].map("
                "p => document.elementFromPoint(r.left + x + p[0] * x, r.top + y + p[1] * y).tagName)))"
                ".join(); })()" ) ),
            row.m_seen )
            << row.m_name;
        EXPECT_EQ( page.Text( QStringLiteral( "document.querySelector('.face').textContent" ) ), "NB" );
    }
}

TEST( PageBrowserTest, ContactFromRightToLeftIsMirroredAsAWhole )
{
    Page page( CleanCard() + RightToLeftCard(), false );
    const auto leftOf = [&page]( const char* a_what, const char* a_than )
    {
        return page.Number( QStringLiteral( "(function() { var c = document.querySelector('.contact[dir=rtl]'); return "
                                            "c.querySelector('%1').getBoundingClientRect().left < "
                                            "c.querySelector('%2').getBoundingClientRect().left ? 1 : 0; })()" )
                                .arg( QLatin1String( a_what ), QLatin1String( a_than ) ) );
    };
    EXPECT_EQ( page.Number( QStringLiteral( "document.querySelectorAll('[dir=rtl]').length" ) ), 1 );
    EXPECT_EQ( leftOf( "h3", ".face" ), 1 );
    EXPECT_EQ( leftOf( ".kind", ".ways a" ), 1 );
    EXPECT_EQ( leftOf( "dd .text", "dt bdi" ), 1 );
    // Everything ends at the same edge as the card, less its padding.
    for ( const char* what : { ".ways a", "dt bdi", "dd .text", ".note .text", ".work bdi", "h3" } )
        EXPECT_GE(
            page.Number( QStringLiteral( "(function() { var c = document.querySelector('.contact[dir=rtl]'), r = "
                                         "c.getBoundingClientRect(); return c.querySelector('%1')"
                                         ".getBoundingClientRect().right - (r.left + r.width / 2); })()" )
                             .arg( QLatin1String( what ) ) ),
            1 )
            << what;
}

TEST( PageBrowserTest, PageFitsWindowsOfEveryWidth )
{
    const QByteArray wide( 3000, 'W' );
    Page page( Examples() +
               CardText( "VERSION:3.0\r\nFN:" + wide + "\r\nTEL:" + QByteArray( 300, '5' ) + "\r\nEMAIL:" + wide +
                         "\r\nNOTE:" + wide + "\r\nX-" + wide + ":" + wide + "\r\n" ) +
               HostileBook() );
    for ( const int width : { 320, 360, 390, 412, 768, 1024, 1280, 1920 } )
    {
        page.Shown().SetSize( width, 800, width < 500 );
        EXPECT_EQ( page.Number( QStringLiteral( "document.documentElement.clientWidth" ) ), width );
        EXPECT_LE( page.Number( QStringLiteral( "document.documentElement.scrollWidth" ) ), width );
    }
}

TEST( PageBrowserTest, LinkToAContactShowsItAlsoDuringASearch )
{
    Page page( CleanCard() + PartCard() );
    page.Shown().Evaluate( s_kTypeHere );
    page.Shown().Type( QStringLiteral( "nell" ) );
    EXPECT_EQ( page.Text( s_kVisibleNames ), "Nell" );
    page.Shown().Evaluate(
        QStringLiteral( "new Promise(done => { window.addEventListener('hashchange', () => setTimeout(done, 50)); "
                        "document.querySelector('.findings a').click(); })" ) );
    EXPECT_EQ( page.Text( s_kVisibleNames ), "Nell|Tobias" );
}

TEST( PageBrowserTest, ScreenshotsAreLeftForPeopleToLookAt )
{
    Page page( FileContent( PIMVCARD_EXAMPLES "/messy-phonebook.vcf" ) );
    WriteScreenshot( page.Shown(), "page-desktop.png" );
    page.Shown().Evaluate( QStringLiteral( "document.getElementById('account').scrollIntoView()" ) );
    WriteScreenshot( page.Shown(), "page-account.png" );
    page.Shown().Evaluate( QStringLiteral( "scrollTo(0, 0)" ) );
    page.Shown().SetSize( 390, 844, true );
    WriteScreenshot( page.Shown(), "page-phone.png" );
    page.Shown().SetDark();
    page.Shown().Evaluate( s_kTypeHere );
    page.Shown().Type( QStringLiteral( "last call" ) );
    page.Shown().Evaluate( QStringLiteral( "document.querySelectorAll('details').forEach(d => { d.open = true; })" ) );
    WriteScreenshot( page.Shown(), "page-dark.png" );

    Page large( ManyContacts( 5000 ) );
    WriteScreenshot( large.Shown(), "page-5000-desktop.png" );
    large.Shown().SetSize( 390, 844, true );
    WriteScreenshot( large.Shown(), "page-5000-phone.png" );
    large.Run( QStringLiteral( "document.querySelectorAll('.letters a')[13].click()" ) );
    large.Run( QStringLiteral( "new Promise(done => setTimeout(done, 300))" ) );
    large.Run( QStringLiteral( "document.querySelectorAll('.letter[open] .contact')[1].open = true" ) );
    WriteScreenshot( large.Shown(), "page-5000-open.png" );
}
