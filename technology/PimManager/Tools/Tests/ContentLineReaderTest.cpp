#include "Strict/ContentLineReader.h"

#include "ToolsTestText.h"

#include <QList>

#include <vector>

using namespace PimManager::Tools;

namespace
{

// The lines of a text, with "|" between them.
std::string Lines( const QByteArray& a_text )
{
    ContentLineReader reader( a_text );
    QByteArray all;
    bool isFirst = true;
    for ( QByteArray line; reader.Read( line ); isFirst = false )
        all += ( isFirst ? "" : "|" ) + line;
    return all.toStdString();
}

} // namespace

TEST( ContentLineReaderTest, LinesArePutTogetherAsTheParserDoes )
{
    struct Row
    {
        const char* m_text;
        const char* m_lines;
    };
    const std::vector<Row> rows = {
        { "", "" },
        { "A:b", "A:b" },
        { "A:b\r\nC:d\r\n", "A:b|C:d" },
        { "A:b\nC:d\n", "A:b|C:d" },
        { "A:b\rC:d\r", "A:b|C:d" },
        { "A:b\vC:d\f", "A:b|C:d" },
        { "A:b\r\n\r\nC:d\r\n", "A:b||C:d" },
        { "A:b\r\n c\r\n\t d\r\nE:f", "A:bcd|E:f" },
        { "A:b\n c\r  d", "A:bcd" },
        { "A:b\r\n\r\n c", "A:b|c" },
        { "A:b\r\n ", "A:b" },
        { "\xEF\xBB\xBF \tA:b", "A:b" },
        { "A:b=\r\n c\r\nD:e", "A:b=| c|D:e" },
        { "A:b=\r\nC:d", "A:b=|C:d" },
        { "A;ENCODING=QUOTED-PRINTABLE:b=\r\nC:d\r\nE:f", "A;ENCODING=QUOTED-PRINTABLE:bC:d|E:f" },
        { "A;encoding=quoted-printable:b=\r\n c", "A;encoding=quoted-printable:b c" },
        { "A;X=\":\";ENCODING=QUOTED-PRINTABLE:b=\r\nc", "A;X=\":\";ENCODING=QUOTED-PRINTABLE:bc" },
        { "A;ENCODING=QUOTED-PRINTABLE:b=\r\n\r\nC:d", "A;ENCODING=QUOTED-PRINTABLE:b=||C:d" },
        { "A;ENCODING=QUOTED-PRINTABLE:b=", "A;ENCODING=QUOTED-PRINTABLE:b=" },
        { "A:ENCODING=QUOTED-PRINTABLE=\r\nC:d", "A:ENCODING=QUOTED-PRINTABLE=|C:d" },
        { "A:b;ENCODING=QUOTED-PRINTABLE=\r\nC:d", "A:b;ENCODING=QUOTED-PRINTABLE=|C:d" },
        { "A:b=0D=0A=\r\n  C:d\r\nE:f", "A:b C:d|E:f" },
        { "A:b=0D=0A=\nC:d", "A:b C:d" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Lines( row.m_text ), row.m_lines ) << "text:\n" << row.m_text;
}

TEST( ContentLineReaderTest, NulBytesAreOrdinary )
{
    EXPECT_EQ( Lines( QByteArray( "A:\0b\r\nC:d", 9 ) ), std::string( "A:\0b|C:d", 8 ) );
    EXPECT_EQ( Lines( QByteArray( "A\0;ENCODING=QUOTED-PRINTABLE:b=\r\nC", 34 ) ),
               std::string( "A\0;ENCODING=QUOTED-PRINTABLE:bC", 31 ) );
}
