#include "FindingText.h"

#include <vector>

namespace PimManager::Contacts
{

namespace
{

QByteArray Note( int a_length )
{
    return "NOTE:" + QByteArray( a_length - 5, 'a' );
}

} // namespace

TEST( LayoutRulesTest, LinesHaveAtMost75Octets )
{
    struct Row
    {
        const char* m_version;
        QByteArray m_line;
        const char* m_findings;
    };
    const std::vector<Row> rows = {
        { "4.0", Note( 75 ), "" },
        { "4.0", Note( 76 ), "5 long-line (RFC 6350, section 3.2)" },
        { "4.0", Note( 75 ) + "\r\n " + QByteArray( 74, 'b' ), "" },
        { "4.0", Note( 75 ) + "\r\n " + QByteArray( 75, 'b' ), "5 long-line (RFC 6350, section 3.2)" },
        { "4.0", Note( 76 ) + "\r\n " + QByteArray( 76, 'b' ), "5 long-line (RFC 6350, section 3.2)" },
        { "4.0", "NOTE:" + QByteArray( "\xC3\xA4" ).repeated( 36 ), "5 long-line (RFC 6350, section 3.2)" },
        { "3.0", Note( 76 ), "5 long-line (RFC 2426, section 2.6)" },
        { "2.1", Note( 200 ), "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( FindingsOfLine( row.m_line, row.m_version ), row.m_findings ) << row.m_line.constData();
}

TEST( LayoutRulesTest, FoldsDivideNoCharacter )
{
    struct Row
    {
        const char* m_version;
        const char* m_line;
        const char* m_findings;
    };
    const std::vector<Row> rows = {
        { "4.0", "NOTE:a\xC3\xA4\r\n b", "" },
        { "4.0", "NOTE:a\r\n \xC3\xA4", "" },
        { "4.0", "NOTE:a\xC3\r\n \xA4", "5 fold-in-character (RFC 6350, section 3.2)" },
        { "4.0", "NOTE:\xE2\r\n \x82\r\n \xAC", "5 fold-in-character (RFC 6350, section 3.2)" },
        { "3.0", "NOTE:a\xC3\r\n \xA4", "5 fold-in-character (RFC 2426, section 2.6)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( FindingsOfLine( row.m_line, row.m_version ), row.m_findings ) << row.m_line;
}

TEST( LayoutRulesTest, LinesEndInCrLf )
{
    const QByteArray card = "BEGIN:VCARD\nVERSION:4.0\nFN:A\nEND:VCARD\n";
    EXPECT_EQ( FindingsOfText( QByteArray( card ).replace( "\n", "\r\n" ) ), "" );
    EXPECT_EQ( FindingsOfText( card ), "1 not-cr-lf (RFC 6350, section 3.2)" );
    EXPECT_EQ( FindingsOfText( QByteArray( card ).replace( "\n", "\r" ) ), "1 not-cr-lf (RFC 6350, section 3.2)" );
    EXPECT_EQ( FindingsOfText( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:A\nTEL:1\nEND:VCARD\r\n" ),
               "3 not-cr-lf (RFC 6350, section 3.2)" );
    EXPECT_EQ( FindingsOfText( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:A\r\nEND:VCARD" ),
               "4 not-cr-lf (RFC 6350, section 3.2)" );
}

TEST( LayoutRulesTest, LinesOfVersion40AreUtf8 )
{
    EXPECT_EQ( FindingsOfLine( "NOTE:caf\xC3\xA9", "4.0" ), "" );
    EXPECT_EQ( FindingsOfLine( "NOTE:caf\xE9", "4.0" ), "5 not-utf-8 (RFC 6350, section 3.1)" );
    EXPECT_EQ( FindingsOfLine( "NOTE:caf\xE9\r\nTEL:1", "4.0" ), "5 not-utf-8 (RFC 6350, section 3.1)" );
    EXPECT_EQ( FindingsOfLine( "NOTE:caf\xE9", "3.0" ), "" );
}

TEST( LayoutRulesTest, LinesHaveTheFormOfAProperty )
{
    struct Row
    {
        const char* m_version;
        const char* m_line;
        const char* m_findings;
    };
    const std::vector<Row> rows = {
        { "4.0", "NOTE :a", "5 malformed-line (RFC 6350, section 3.3)" },
        { "4.0", "NOTE;;X-A=1:a", "5 malformed-line (RFC 6350, section 3.3)" },
        { "4.0", "NOTE;X-A=\"1:a", "5 malformed-line (RFC 6350, section 3.3)" },
        { "4.0", "NOTE:a\x01", "5 malformed-line (RFC 6350, section 3.3)" },
        { "4.0", "NOTE:a\r\nb", "5 malformed-line (RFC 6350, section 3.3)" },
        { "3.0", "NOTE", "5 malformed-line (RFC 2426, section 4)" },
        { "2.1", "NOTE :a", "" },
        { "2.1", "X-A B:a", "5 malformed-line (vCard 2.1, section 2.9)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( FindingsOfLine( row.m_line, row.m_version ), row.m_findings ) << row.m_line;
}

} // namespace PimManager::Contacts
