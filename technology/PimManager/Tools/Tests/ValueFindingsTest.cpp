#include "Outputs/ValueFindings.h"

#include "ToolsTestText.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

// The findings of all cards, a line each.
std::string Findings( const QByteArray& a_book )
{
    ValueFindings findings;
    QStringList lines;
    const PimContactBook book = PimContactBook::FromBytes( a_book );
    for ( const PimContactCard& card : book.Cards() )
        lines << findings.Of( QStringLiteral( "x" ), card );
    EXPECT_EQ( lines.isEmpty(), findings.Counts().isEmpty() );
    return Utf8( lines.join( QLatin1Char( '\n' ) ) );
}

} // namespace

TEST( ValueFindingsTest, EachProblemIsAFindingAtItsLine )
{
    struct Row
    {
        QByteArray m_line;
        const char* m_finding;
    };
    const std::vector<Row> rows = {
        { "FN:a\\nb", "" },
        { "FN:J\xC3\xB6rg", "" },
        { "FN:J\xF6rg",
          "x:3:1: repaired: the line names no character set and was read as windows-1252 [assumed-charset]" },
        { "FN;CHARSET=x-none:J\xF6rg",
          "x:3:1: repaired: the line names an unknown character set and was read as windows-1252 [unknown-charset]" },
        { "FN;CHARSET=Shift_JIS:\x83\x5C\x83",
          "x:3:1: note: bytes that are not valid in Shift_JIS (1 in all) [malformed-text]" },
        { "FN;QUOTED-PRINTABLE:1=2=x=3D",
          "x:3:1: note: \"=\" is not followed by two hexadecimal digits (2 in all) [malformed-quoted-printable]" },
        { "FN:\\\"a\\\"", "x:3:1: note: a backslash before a quote was removed (2 in all) [escaped-quote]" },
        { "PHOTO;ENCODING=b:/9j/4AA*",
          "x:3:1: note: the value cannot be decoded from character 8 on [malformed-binary]" },
        { "FN:a\\qb", "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Findings( CardText( "VERSION:3.0\r\n" + row.m_line + "\r\n" ) ), row.m_finding )
            << row.m_line.constData();
}

TEST( ValueFindingsTest, LinesAreCountedWhateverEndsThem )
{
    const QByteArray card = "BEGIN:VCARD\nVERSION:3.0\nNOTE:a\n b\n\nFN:\\'x\nN:a\nTEL:\\'1\nEND:VCARD\n";
    for ( const char* lineEnd : { "\n", "\r\n", "\r", "\r\r\n" } )
    {
        const QByteArray book = QByteArray( card + card ).replace( "\n", lineEnd );
        const std::string findings = Findings( book );
        size_t place = 0;
        for ( const char* line : { "x:6:1: ", "x:8:1: ", "x:15:1: ", "x:17:1: " } )
        {
            place = findings.find( line, place );
            EXPECT_NE( place, std::string::npos ) << line << findings;
        }
    }
}

TEST( ValueFindingsTest, NestedCardsAreExamined )
{
    EXPECT_EQ( Findings( CardText( "VERSION:2.1\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:\\'x\r\nEND:VCARD\r\nN:\\'y\r\n" ) ),
               "x:5:1: note: a backslash before a quote was removed (1 in all) [escaped-quote]\n"
               "x:7:1: note: a backslash before a quote was removed (1 in all) [escaped-quote]" );
}

TEST( ValueFindingsTest, CountsAreOfAllCardsUntilCleared )
{
    ValueFindings findings;
    const PimContactBook book = PimContactBook::FromBytes( CardText( "FN:\\'x\r\nN:\\'y\r\n" ) );
    findings.Of( QString(), book.CardAt( 0 ) );
    findings.Of( QString(), book.CardAt( 0 ) );
    ASSERT_EQ( findings.Counts().size(), 1 );
    EXPECT_EQ( findings.Counts().first().m_findings.m_count, 4 );
    EXPECT_EQ( Utf8( findings.Counts().first().m_findings.m_name ), "escaped-quote" );
    findings.Clear();
    EXPECT_TRUE( findings.Counts().isEmpty() );
}
