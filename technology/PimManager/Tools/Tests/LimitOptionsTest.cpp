#include "Commands/LimitOptions.h"
#include "Commands/CommandLine.h"

#include "ToolsTestText.h"

#include <limits>
#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

class LimitOptionsTest : public testing::Test
{
protected:
    // What is wrong with the arguments; "parser: ..." if the command line itself is not understood.
    std::string ErrorOf( const QList<QByteArray>& a_arguments )
    {
        if ( !m_line.Parse( a_arguments ) )
            return "parser: " + Utf8( m_line.ErrorText() );
        return Utf8( ApplyLimits( m_line, m_options ) );
    }

    // Card bytes, line bytes, card lines, nesting, cards and book bytes.
    std::vector<qint64> Limits() const
    {
        return { m_options.CardBytes(), m_options.LineBytes(), m_options.CardLines(),
                 m_options.Nesting(),   m_options.Cards(),     m_options.BookBytes() };
    }

    CommandLine m_line{ *FindCommand( "list" ) };
    PimContactOptions m_options;
};

} // namespace

TEST_F( LimitOptionsTest, EachOptionSetsItsLimit )
{
    EXPECT_EQ( ErrorOf( { "--max-card-bytes", "2M", "--max-line-bytes", "3K", "--max-card-lines", "4", "--max-nesting",
                          "5", "--max-cards", "6", "--max-book-bytes", "7G" } ),
               "" );
    const std::vector<qint64> expected = { 2 << 20, 3 << 10, 4, 5, 6, qint64( 7 ) << 30 };
    EXPECT_EQ( Limits(), expected );
}

TEST_F( LimitOptionsTest, OtherLimitsKeepTheirValues )
{
    std::vector<qint64> expected = Limits();
    expected[4] = 10;
    EXPECT_EQ( ErrorOf( { "--max-cards=10" } ), "" );
    EXPECT_EQ( Limits(), expected );
}

TEST_F( LimitOptionsTest, LastOneCounts )
{
    EXPECT_EQ( ErrorOf( { "--max-cards", "1", "--max-cards", "2" } ), "" );
    EXPECT_EQ( m_options.Cards(), 2 );
}

TEST_F( LimitOptionsTest, NestingBeyondAnIntIsTheLargestInt )
{
    EXPECT_EQ( ErrorOf( { "--max-nesting", "8G" } ), "" );
    EXPECT_EQ( m_options.Nesting(), std::numeric_limits<int>::max() );
}

TEST_F( LimitOptionsTest, WrongNumberIsReportedWithItsOption )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_error;
    };
    const std::vector<Row> rows = {
        { { "--max-cards", "" }, "--max-cards: \"\" is not a number such as 500, 64K, 16M or 1G" },
        { { "--max-cards", "12x" }, "--max-cards: \"12x\" is not a number such as 500, 64K, 16M or 1G" },
        { { "--max-card-bytes=-1" }, "--max-card-bytes: \"-1\" is not a number such as 500, 64K, 16M or 1G" },
        { { "--max-nesting", "\x1B[2J" }, "--max-nesting: \"\\x1b[2J\" is not a number such as 500, 64K, 16M or 1G" },
        { { "--max-cards", "1", "--max-book-bytes", "9G9" },
          "--max-book-bytes: \"9G9\" is not a number such as 500, 64K, 16M or 1G" },
        { { "--max-cards" }, "parser: Missing value after '--max-cards'." },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ErrorOf( row.m_arguments ), row.m_error );
}
