#include "Commands/ScaledNumber.h"

#include "ToolsTestText.h"

#include <limits>
#include <vector>

using namespace PimManager::Tools;

namespace
{

constexpr qint64 s_kMost = std::numeric_limits<qint64>::max();

struct Row
{
    const char* m_text;
    qint64 m_number;
};

} // namespace

TEST( ScaledNumberTest, DigitsWithOneSuffixAreANumber )
{
    const std::vector<Row> rows = {
        { "0", 0 },
        { "1", 1 },
        { "007", 7 },
        { "0K", 0 },
        { "1K", 1024 },
        { "1M", 1024 * 1024 },
        { "1G", 1024 * 1024 * 1024 },
        { "1536K", 1536 * 1024 },
        { "8589934591G", s_kMost - ( 1024 * 1024 * 1024 - 1 ) },
        { "9223372036854775807", s_kMost },
        { "00000000000000000000000000000005", 5 },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ScaledNumberFrom( row.m_text ).value_or( -1 ), row.m_number ) << row.m_text;
}

TEST( ScaledNumberTest, AnythingElseIsNone )
{
    const std::vector<QByteArray> texts = { "",
                                            " ",
                                            "K",
                                            "-1",
                                            "+1",
                                            " 1",
                                            "1 ",
                                            "1 K",
                                            "1k",
                                            "1KB",
                                            "1KK",
                                            "1T",
                                            "1.5M",
                                            "1,000",
                                            "0x10",
                                            "x",
                                            "1\n",
                                            QByteArray( "1\0", 2 ),
                                            "\xD9\xA1",
                                            "9223372036854775808",
                                            "8589934592G",
                                            "18446744073709551616",
                                            "99999999999999999999999999K" };
    for ( const QByteArray& text : texts )
        EXPECT_FALSE( ScaledNumberFrom( text ).has_value() ) << '"' << text.toStdString() << '"';
}

TEST( ScaledNumberTest, TextHasTheLargestSuffixThatFits )
{
    const std::vector<Row> rows = {
        { "0", 0 },        { "1", 1 },
        { "1000", 1000 },  { "1023", 1023 },
        { "1K", 1024 },    { "1025", 1025 },
        { "1M", 1 << 20 }, { "1025K", ( 1 << 20 ) + 1024 },
        { "1G", 1 << 30 }, { "8388608G", qint64( 1 ) << 53 },
    };
    for ( const Row& row : rows )
    {
        EXPECT_EQ( Utf8( ScaledNumberText( row.m_number ) ), row.m_text );
        EXPECT_EQ( ScaledNumberFrom( row.m_text ), row.m_number ) << row.m_text;
    }
    EXPECT_EQ( Utf8( ScaledNumberText( s_kMost ) ), "9223372036854775807" );
}
