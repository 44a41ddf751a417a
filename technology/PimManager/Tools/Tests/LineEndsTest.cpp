#include "Strict/LineEnds.h"

#include <gtest/gtest.h>
#include <vector>

using namespace PimManager::Tools;

TEST( LineEndsTest, EachKindIsCounted )
{
    struct Row
    {
        const char* m_text;
        int m_crLfs;
        int m_bareLfs;
        int m_bareCrs;
        bool m_isLastLineOpen;
    };
    const std::vector<Row> rows = {
        { "", 0, 0, 0, false },       { "a", 0, 0, 0, true },       { "\r\n", 1, 0, 0, false },
        { "a\nb\n", 0, 2, 0, false }, { "a\rb\r", 0, 0, 2, false }, { "a\r\nb\nc\rd", 1, 1, 1, true },
        { "\r\r\n", 1, 0, 1, false }, { "\n\r", 0, 1, 1, false },   { "\r\n\n", 1, 1, 0, false },
    };
    for ( const Row& row : rows )
    {
        const LineEnds ends = CountLineEnds( row.m_text );
        EXPECT_EQ( ends.m_crLfs, row.m_crLfs ) << row.m_text;
        EXPECT_EQ( ends.m_bareLfs, row.m_bareLfs ) << row.m_text;
        EXPECT_EQ( ends.m_bareCrs, row.m_bareCrs ) << row.m_text;
        EXPECT_EQ( ends.m_isLastLineOpen, row.m_isLastLineOpen ) << row.m_text;
        EXPECT_EQ( ends.All(), row.m_crLfs + row.m_bareLfs + row.m_bareCrs ) << row.m_text;
    }
}
