#include "Cards/LineExtents.h"

#include "LedgerText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct ExtentsRow
{
    const char* m_name;
    size_t m_length;
    qint64 m_longest;
    const char* m_extents;
    // The first bytes of the line, taken before.
    qint64 m_taken = 0;
};

std::ostream& operator<<( std::ostream& a_stream, const ExtentsRow& a_row )
{
    return a_stream << a_row.m_name;
}

class LineExtentsTest : public ::testing::TestWithParam<ExtentsRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, LineExtentsTest,
    ::testing::Values(
        ExtentsRow{ "Short", 300, 1000, "refused 7 301 bytes; " },
        ExtentsRow{ "LongerThanAPieceAndAllowed", 70000, 70000, "refused 7 70001 bytes; " },
        ExtentsRow{ "Longer", 70000, 69999, "refused 7 65536 bytes; refused 7 4465 bytes; " },
        ExtentsRow{ "AsLongAsAPiece", 65536, 1000, "refused 7 65537 bytes; " },
        ExtentsRow{ "AsLongAsTwoPieces", 131072, 1000, "refused 7 65536 bytes; refused 7 65537 bytes; " },
        ExtentsRow{ "RestOfALine", 70100, 1000000, "refused 7 65536 bytes; refused 7 4465 bytes; ", 100 } ),
    []( const ::testing::TestParamInfo<ExtentsRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LineExtentsTest, LongLinesAreAddedInPieces )
{
    LineScanner scanner;
    AppendAll( scanner, std::string( GetParam().m_length, 'a' ) + '/' );
    if ( GetParam().m_taken > 0 )
        scanner.TakeOpen( GetParam().m_taken );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) );
    LedgerText ledger;
    AddLine( ledger.Get(), scanner, PimContactExtentKind::Refused, line, GetParam().m_longest, 7 );
    EXPECT_EQ( ledger.Extents(), GetParam().m_extents );
}

TEST( LineExtentsUseTest, PlaceIsThatOfThePartInItsLine )
{
    LineScanner scanner;
    AppendAll( scanner, "a/bcd/" );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) && scanner.Next( line ) );
    const TextPlace place = PlaceOf( scanner.PartOf( line, 1, 3 ) );
    EXPECT_EQ( place.m_offset, 3 );
    EXPECT_EQ( place.m_line, 2 );
    EXPECT_EQ( place.m_lineOffset, 2 );
}

} // namespace PimManager::Contacts
