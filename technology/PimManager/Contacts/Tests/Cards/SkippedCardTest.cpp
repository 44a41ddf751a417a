#include "Cards/SkippedCard.h"

#include "LedgerText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr qint64 s_kNumber = 3;

const std::string s_kBegin = "BEGIN:VCARD/";
const std::string s_kEnd = "END:VCARD/";

struct SkippedRow
{
    const char* m_name;
    // "/" is a line feed.
    std::string m_text;
    // Where the card ends.
    std::string m_end;
    // The card has begun, and so many cards are open inside it.
    int m_depth = -1;
    bool m_isBehindAgent = false;
};

std::ostream& operator<<( std::ostream& a_stream, const SkippedRow& a_row )
{
    return a_stream << a_row.m_name;
}

std::string EndOf( SkippedCard& a_card, LineScanner& a_scanner )
{
    for ( PhysicalLine line; a_scanner.Next( line ); )
    {
        const CardBoundary boundary =
            CardBoundary::IsTooLong( line ) ? CardBoundary() : CardBoundary::Of( a_scanner.TextOf( line ) );
        if ( a_card.EndsBefore( boundary ) )
            return "before line " + std::to_string( line.m_number );
        a_card.Take( line, boundary );
        if ( a_card.HasEnded() )
            return "behind line " + std::to_string( line.m_number );
    }
    return "open";
}

class SkippedCardTest : public ::testing::TestWithParam<SkippedRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, SkippedCardTest,
    ::testing::Values(
        SkippedRow{ "WholeCard", s_kBegin + "FN:a/" + s_kEnd + "FN:b/", "behind line 3" },
        SkippedRow{ "BeginOnlyOutsideCards", "BEGIN:VCARDx/FN:a/" + s_kEnd + "FN:b/", "behind line 3" },
        SkippedRow{ "EndMissing", s_kBegin + "FN:a/" + s_kBegin, "before line 3" },
        SkippedRow{ "EndOfText", s_kBegin + "FN:a/", "open" },
        SkippedRow{ "CardInside", s_kBegin + "AGENT:/" + s_kBegin + s_kEnd + s_kEnd + "FN:b/", "behind line 5" },
        SkippedRow{ "BlankLineBehindAgent", s_kBegin + "AGENT:/ //" + s_kBegin + s_kEnd + s_kEnd + "FN:b/",
                    "behind line 7" },
        SkippedRow{ "TextBehindAgent", s_kBegin + "AGENT:/FN:a/" + s_kBegin, "before line 4" },
        SkippedRow{ "LongLineBehindAgent", s_kBegin + "AGENT:/" + std::string( 1025, ' ' ) + '/' + s_kBegin,
                    "before line 4" },
        SkippedRow{ "AgentWithAValue", s_kBegin + "AGENT:a/" + s_kBegin, "before line 3" },
        SkippedRow{ "CardOnItsAgentLine", s_kBegin + "AGENT:BEGIN:VCARD/" + s_kEnd + s_kEnd + "FN:b/",
                    "behind line 4" },
        SkippedRow{ "BeginBehindACardInside", s_kBegin + "AGENT:/" + s_kBegin + s_kEnd + s_kBegin, "before line 5" },
        SkippedRow{ "SecondBeginBehindAgent", s_kBegin + "AGENT:/" + s_kBegin + s_kBegin, "before line 4" },
        SkippedRow{ "LongEnd", s_kBegin + "END:VCARD" + std::string( 1025, ' ' ) + '/', "open" },
        SkippedRow{ "FromInside", "FN:a/" + s_kEnd + "FN:b/", "behind line 2", 0 },
        SkippedRow{ "FromInsideACardInside", s_kEnd + s_kEnd + "FN:b/", "behind line 2", 1 },
        SkippedRow{ "FromBehindAgent", s_kBegin + s_kEnd + s_kEnd + "FN:b/", "behind line 3", 0, true },
        SkippedRow{ "BeginFromInside", s_kBegin, "before line 1", 0 } ),
    []( const ::testing::TestParamInfo<SkippedRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( SkippedCardTest, EndIsFound )
{
    LineScanner scanner;
    AppendAll( scanner, GetParam().m_text );
    LedgerText ledger;
    SkippedCard card( scanner, ledger.Get() );
    if ( GetParam().m_depth < 0 )
        card.Begin();
    else
        card.BeginInside( GetParam().m_depth, GetParam().m_isBehindAgent );
    EXPECT_EQ( EndOf( card, scanner ), GetParam().m_end );
}

TEST( SkippedCardUseTest, LinesAreExtentsOfTheLastCard )
{
    LineScanner scanner;
    AppendAll( scanner, s_kBegin + std::string( 65537, 'a' ) + '/' + s_kEnd );
    LedgerText ledger;
    ledger.Get().Data().m_cards = s_kNumber;
    SkippedCard card( scanner, ledger.Get() );
    card.Begin();
    EXPECT_EQ( EndOf( card, scanner ), "behind line 3" );
    EXPECT_EQ( ledger.Extents(),
               "refused 3 BEGIN:VCARD/; refused 3 65536 bytes; refused 3 a/; refused 3 END:VCARD/; " );
}

TEST( SkippedCardUseTest, NewCardBeginsAsTheFirstOne )
{
    LineScanner scanner;
    AppendAll( scanner, s_kBegin + "AGENT:/" + s_kBegin + "FN:a/" );
    LedgerText ledger;
    SkippedCard card( scanner, ledger.Get() );
    card.BeginInside( 5, true );
    card.Begin();
    EXPECT_TRUE( card.HasEnded() ) << "before BEGIN";
    EXPECT_EQ( EndOf( card, scanner ), "open" );
    EXPECT_FALSE( card.HasEnded() );
}

TEST( SkippedCardUseTest, OpenLineIsText )
{
    LineScanner scanner;
    AppendAll( scanner, "NOTE:" + std::string( 10, 'a' ) );
    LedgerText ledger;
    ledger.Get().Data().m_cards = s_kNumber;
    SkippedCard card( scanner, ledger.Get() );
    card.BeginInside( 0, true );
    const CardBoundary begin = CardBoundary::Of( "BEGIN:VCARD" );
    EXPECT_FALSE( card.EndsBefore( begin ) );
    PhysicalLine part;
    part.m_length = 10;
    card.TakeOpen( part );
    EXPECT_TRUE( card.EndsBefore( begin ) );
    EXPECT_EQ( ledger.Extents(), "refused 3 NOTE:aaaaa; " );
}

} // namespace PimManager::Contacts
