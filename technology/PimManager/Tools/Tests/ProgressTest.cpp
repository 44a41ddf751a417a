#include "Terminal/Progress.h"

#include "Outputs/OutputDevice.h"
#include "ToolsTestText.h"

#include <array>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

namespace
{

// Takes what is written to it, and gives it away once.
class Sink
{
public:
    Sink()
    {
        EXPECT_EQ( pipe2( m_ends.data(), O_CLOEXEC | O_NONBLOCK ), 0 );
        m_device = std::make_unique<OutputDevice>( m_ends[1] );
    }
    ~Sink()
    {
        m_device.reset();
        close( m_ends[0] );
        close( m_ends[1] );
    }
    Q_DISABLE_COPY( Sink )

    OutputDevice* Device() { return m_device.get(); }

    std::string Taken()
    {
        std::array<char, 4096> bytes = {};
        const ssize_t count = read( m_ends[0], bytes.data(), bytes.size() );
        return std::string( bytes.data(), count < 0 ? 0 : static_cast<size_t>( count ) );
    }

private:
    std::array<int, 2> m_ends = { -1, -1 };
    std::unique_ptr<OutputDevice> m_device;
};

} // namespace

TEST( ProgressTest, StateIsToldWithShareAndTime )
{
    struct Row
    {
        ProgressState m_state;
        const char* m_text;
    };
    const std::vector<Row> rows = {
        { { 2000, 10, 25'000'000, 100'000'000 }, "25 %, 25 MB of 100 MB, 10 cards, about 7 s left" },
        { { 60'000, 1, 10'000'000, 100'000'000 }, "10 %, 10 MB of 100 MB, 1 card, about 9 min left" },
        { { 3'600'000, 0, 1'000'000, 100'000'000 }, "1 %, 1 MB of 100 MB, 0 cards, about 99 h left" },
        { { 2000, 3, 500'000, 500'000 }, "100 %, 500 KB of 500 KB, 3 cards, about 1 s left" },
        { { 2000, 3, 700'000, 500'000 }, "100 %, 500 KB of 500 KB, 3 cards, about 1 s left" },
        { { 2000, 3, 700'000, 0 }, "700 KB, 3 cards" },
        { { 2000, 0, 0, 500'000 }, "0 KB, 0 cards" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( ProgressText( row.m_state, 100 ) ), row.m_text );
}

TEST( ProgressTest, LineIsCutToTheTerminal )
{
    struct Row
    {
        int m_columns;
        const char* m_known;
        const char* m_unknown;
    };
    const std::vector<Row> rows = {
        { 52, "25 %, 25 MB of 100 MB, 1234567 cards, about 7 s left", "25 MB, 1234567 cards" },
        { 40, "25 %, 25 MB of 100 MB, about 7 s left", "25 MB, 1234567 cards" },
        { 30, "25 %, about 7 s left", "25 MB, 1234567 cards" },
        { 19, "25 %", "25 MB" },
        { 3, "25…", "25…" },
        { 0, "…", "…" },
    };
    for ( const Row& row : rows )
    {
        EXPECT_EQ( Utf8( ProgressText( { 2000, 1'234'567, 25'000'000, 100'000'000 }, row.m_columns ) ), row.m_known )
            << row.m_columns;
        EXPECT_EQ( Utf8( ProgressText( { 2000, 1'234'567, 25'000'000, 0 }, row.m_columns ) ), row.m_unknown )
            << row.m_columns;
    }
    Sink screen;
    Progress progress( screen.Device() );
    EXPECT_TRUE( progress.Show( { 2000, 1'234'567, 25'000'000, 100'000'000 }, 52 ) );
    EXPECT_EQ( screen.Taken(), "25 %, 25 MB of 100 MB, about 7 s left" ) << "the last column is not left empty";
}

TEST( ProgressTest, LineComesAfterASecondAndIsRewrittenInPlace )
{
    Sink screen;
    Progress progress( screen.Device() );
    EXPECT_FALSE( progress.Show( { 999, 1, 1000, 0 }, 80 ) );
    EXPECT_EQ( screen.Taken(), "" );
    EXPECT_TRUE( progress.Show( { 1000, 1, 1000, 0 }, 80 ) );
    EXPECT_EQ( screen.Taken(), "1 KB, 1 card" );
    EXPECT_FALSE( progress.Show( { 1199, 2, 2000, 0 }, 80 ) );
    EXPECT_TRUE( progress.Show( { 1200, 2, 2000, 0 }, 80 ) );
    EXPECT_EQ( screen.Taken(), "\r\x1B[K2 KB, 2 cards" );
    progress.Hide();
    EXPECT_EQ( screen.Taken(), "\r\x1B[K" );
    progress.Hide();
    EXPECT_EQ( screen.Taken(), "" );
}

TEST( ProgressTest, LineIsGoneAtTheEnd )
{
    Sink screen;
    {
        Progress progress( screen.Device() );
        progress.Show( { 5000, 1, 1000, 0 }, 80 );
        screen.Taken();
    }
    EXPECT_EQ( screen.Taken(), "\r\x1B[K" );
}

TEST( ProgressTest, NothingIsShownWithoutATerminal )
{
    Progress progress( nullptr );
    EXPECT_FALSE( progress.Show( { 1'000'000, 1, 1, 1 }, 80 ) );
    progress.Hide();
}
