#include "Cards/CardLookahead.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

// Each letter is a line: b, e and a are BEGIN, END and `AGENT:BEGIN:VCARD` that were taken as folds, i is indented
// text, t is other text, n is the BEGIN of a card inside, N is one on its AGENT line, and x is the END of it.
struct LookaheadRow
{
    const char* m_name;
    std::string m_lines;
    // With the number of the line, from 1.
    std::string m_found;
};

std::ostream& operator<<( std::ostream& a_stream, const LookaheadRow& a_row )
{
    return a_stream << a_row.m_name;
}

void Take( CardLookahead& a_lookahead, char a_letter, const PhysicalLine& a_line )
{
    using Kind = CardBoundary::Kind;
    const auto takeFold = [&]( std::string_view a_text, Kind a_kind )
    {
        a_lookahead.TakeText( a_text );
        a_lookahead.TakeFold( a_line, a_kind );
    };
    switch ( a_letter )
    {
    case 'b':
        takeFold( " BEGIN:VCARD", Kind::Begin );
        break;
    case 'e':
        takeFold( " END:VCARD", Kind::End );
        break;
    case 'a':
        takeFold( " AGENT:BEGIN:VCARD", Kind::AgentBegin );
        break;
    case 'x':
        a_lookahead.EndNested( a_line );
        break;
    case 'i':
    case 't':
        a_lookahead.TakeText( a_letter == 'i' ? "\tb" : "FN:a" );
        break;
    default:
        a_lookahead.BeginNested( a_letter == 'N' );
        break;
    }
}

std::string Described( const CardLookahead& a_lookahead )
{
    switch ( a_lookahead.Found() )
    {
    case CardLookahead::Result::PendingEnd:
        return ( a_lookahead.IsPendingEndOfAgent() ? "end of agent " : "end " ) +
               std::to_string( a_lookahead.PendingEnd().m_number );
    case CardLookahead::Result::FoldedBegin:
        return "begin " + std::to_string( a_lookahead.FoldedBegin().m_number );
    default:
        return "none";
    }
}

class CardLookaheadTest : public ::testing::TestWithParam<LookaheadRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, CardLookaheadTest,
    ::testing::Values(
        LookaheadRow{ "Nothing", "", "none" }, LookaheadRow{ "Text", "ti", "none" },
        // An indented END.
        LookaheadRow{ "End", "e", "end 1" }, LookaheadRow{ "TextBehindEnd", "et", "none" },
        LookaheadRow{ "IndentedTextBehindEnd", "ei", "none" }, LookaheadRow{ "LastEnd", "ee", "end 2" },
        LookaheadRow{ "EndBehindText", "ete", "end 3" }, LookaheadRow{ "AgentBehindEnd", "ea", "none" },
        LookaheadRow{ "CardBehindEnd", "en", "none" }, LookaheadRow{ "BeginBehindEnd", "eb", "none" },
        // An indented BEGIN.
        LookaheadRow{ "Begin", "b", "none" }, LookaheadRow{ "BeginAndEnd", "be", "begin 1" },
        LookaheadRow{ "IndentedCard", "bie", "begin 1" }, LookaheadRow{ "TwoIndentedCards", "biebie", "begin 1" },
        LookaheadRow{ "IndentedTextBehindIndentedCard", "bei", "begin 1" },
        LookaheadRow{ "TextInIndentedCard", "bte", "end 3" }, LookaheadRow{ "TextBehindIndentedCard", "bet", "none" },
        LookaheadRow{ "SecondIndentedCard", "betbie", "begin 4" },
        LookaheadRow{ "SecondBeginWithoutEnd", "betb", "none" },
        LookaheadRow{ "CardBehindIndentedCard", "ben", "none" },
        // An END that may be meant for the outer card.
        LookaheadRow{ "CardOnItsAgentLine", "N", "none" },
        LookaheadRow{ "EndOfCardOnItsAgentLine", "Nx", "end of agent 2" },
        LookaheadRow{ "TextBehindEndOfAgent", "Nxt", "none" }, LookaheadRow{ "EndBehindEndOfAgent", "Nxe", "end 3" },
        LookaheadRow{ "EndOfCardBehindItsAgentLine", "nx", "none" },
        LookaheadRow{ "SecondCardOnItsAgentLine", "NxNx", "none" },
        LookaheadRow{ "CardInTheCardOnItsAgentLine", "Nnx", "none" } ),
    []( const ::testing::TestParamInfo<LookaheadRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CardLookaheadTest, BoundariesArePendingUntilTextDecides )
{
    CardLookahead lookahead;
    PhysicalLine line;
    for ( const char letter : GetParam().m_lines )
    {
        Take( lookahead, letter, line );
        ++line.m_number;
    }
    EXPECT_EQ( Described( lookahead ), GetParam().m_found );
    EXPECT_EQ( lookahead.IsPending(), GetParam().m_found != "none" );
}

} // namespace PimManager::Contacts
