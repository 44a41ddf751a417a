#include "Browser.h"
#include "ProgramRun.h"

#include "TestBooks.h"

#include <QFile>
#include <QStringList>

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
    std::string Text( const QString& a_expression ) { return Utf8( m_browser.Evaluate( a_expression ).toString() ); }
    int Number( const QString& a_expression ) { return m_browser.Evaluate( a_expression ).toInt( -1 ); }

private:
    Folder m_folder;
    Browser m_browser;
};

QByteArray Examples()
{
    return FileContent( PIMVCARD_EXAMPLES "/phonebook.vcf" );
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
    EXPECT_NE( page.Text( QStringLiteral( "document.querySelector('h3').textContent" ) )
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

TEST( PageBrowserTest, PageFitsWindowsOfEveryWidth )
{
    const QByteArray wide( 3000, 'W' );
    Page page( Examples() +
               CardText( "VERSION:3.0\r\nFN:" + wide + "\r\nTEL:" + QByteArray( 300, '5' ) + "\r\nEMAIL:" + wide +
                         "\r\nNOTE:" + wide + "\r\nX-" + wide + ":" + wide + "\r\n" ) +
               HostileBook() );
    for ( const int width : { 320, 360, 412, 768, 1024, 1280, 1920 } )
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
}
