#include "Lines/FoldLength.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct LengthRow
{
    qint64 m_length;
    bool m_isFoldLength;
};

} // namespace

static_assert( IsFoldLength( s_kLeastFold ) && !IsFoldLength( s_kLeastFold - 1 ) );
static_assert( IsFoldLength( s_kMostFold ) && !IsFoldLength( s_kMostFold + 1 ) );
static_assert( s_kUsualFoldWithBlank == s_kUsualFold + 1, "the blank of a continuation line is one byte" );

TEST( FoldLengthTest, LinesOfSeventyToSeventyEightBytesWereProbablyFolded )
{
    const std::vector<LengthRow> rows = {
        { -1, false }, { 0, false }, { 69, false }, { 70, true },  { 72, true },
        { 75, true },  { 76, true }, { 78, true },  { 79, false }, { std::numeric_limits<qint64>::max(), false },
    };
    for ( const LengthRow& row : rows )
        EXPECT_EQ( IsFoldLength( row.m_length ), row.m_isFoldLength ) << row.m_length;
}

} // namespace PimManager::Contacts
