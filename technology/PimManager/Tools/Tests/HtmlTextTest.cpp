#include "Page/HtmlText.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Tools;

TEST( HtmlTextTest, NothingOfATextIsMarkup )
{
    struct Row
    {
        const char* m_text;
        const char* m_html;
    };
    const std::vector<Row> rows = {
        { "Crumb & Kettle", "Crumb &amp; Kettle" },
        { "<script>alert(1)</script>", "&lt;script&gt;alert(1)&lt;/script&gt;" },
        { "\" onload='x'", "&quot; onload=&#39;x&#39;" },
        { "&lt;", "&amp;lt;" },
        { "]]> --><!--", "]]&gt; --&gt;&lt;!--" },
        { "a\nb", "a\nb" },
        { "\x1B\x01\r", R"(\x1b\x01\r)" },
        { "\xE2\x80\xAE", "\\u202e" },
        { "月 é", "月 é" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( ToHtmlText( QString::fromUtf8( row.m_text ) ) ), row.m_html );
    EXPECT_EQ( Utf8( ToHtmlText( QString( QChar( 0 ) ) ) ), "\\x00" );
    EXPECT_EQ( Utf8( ToHtmlText( QString( QChar( 0xD83D ) ) ) ), "\\ud83d" );
}

TEST( HtmlTextTest, NumbersAreDialledByTheirDigits )
{
    struct Row
    {
        const char* m_number;
        const char* m_link;
    };
    const std::vector<Row> rows = {
        { "+1-555-0101", "tel:+15550101" },
        { "(01) 555/01.02", "tel:015550102" },
        { "*100#", "tel:100" },
        { "", "" },
        { "+", "" },
        { "555 ext", "" },
        { "1\"onclick=\"x", "" },
        { "javascript:1", "" },
        { "\xD9\xA1", "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( TelephoneLink( QString::fromUtf8( row.m_number ) ).toStdString(), row.m_link ) << row.m_number;
}

TEST( HtmlTextTest, MailLinksHoldNothingButTheAddress )
{
    struct Row
    {
        const char* m_address;
        const char* m_link;
    };
    const std::vector<Row> rows = {
        { "a@example.com", "mailto:a@example.com" },
        { "a@example.com?bcc=b@example.org&body=x", "mailto:a@example.com%3Fbcc%3Db@example.org%26body%3Dx" },
        { "a@\"><script>", "mailto:a@%22%3E%3Cscript%3E" },
        { "é@example.com", "mailto:%C3%A9@example.com" },
        { "javascript:alert(1)", "" },
        { "", "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( MailLink( QString::fromUtf8( row.m_address ) ).toStdString(), row.m_link ) << row.m_address;
    EXPECT_EQ( MailLink( QString( 3000, QLatin1Char( '@' ) ) ).size(), 0 );
}

TEST( HtmlTextTest, OnlyPagesOfTheWebAreLinkedTo )
{
    struct Row
    {
        const char* m_address;
        const char* m_link;
    };
    const std::vector<Row> rows = {
        { "https://example.com/a?b=c&d=e#f", "https://example.com/a?b=c&amp;d=e#f" },
        { "HTTP://example.com", "http://example.com" },
        { " https://example.com ", "https://example.com" },
        { "javascript:alert(1)", "" },
        { "java\nscript:alert(1)", "" },
        { "data:text/html,<script>alert(1)</script>", "" },
        { "vbscript:x", "" },
        { "file:///etc/passwd", "" },
        { "//example.com", "" },
        { "example.com", "" },
        { "https:", "" },
        { "", "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( WebLink( QString::fromUtf8( row.m_address ) ).toStdString(), row.m_link ) << row.m_address;
    const QByteArray quoted = WebLink( QStringLiteral( "https://example.com/\"><script>'" ) );
    EXPECT_FALSE( quoted.contains( '"' ) || quoted.contains( '<' ) || quoted.contains( '\'' ) ) << quoted.constData();
}
