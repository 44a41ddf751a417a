#include "Lines/HeadSequence.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>

using namespace PimManager::Contacts;

namespace
{

/// Reads a line as the reader of cards does.
/// \param[out] a_isExpected true if the head was the expected one.
KnownHead HeadOf( HeadSequence& a_sequence, std::string_view a_line, bool& a_isExpected )
{
    const KnownHead* const known = a_sequence.Next( a_line );
    a_isExpected = known != nullptr;
    if ( known != nullptr )
        return *known;
    KnownHead head;
    head.m_isPlain = head.m_head.Read( a_line );
    a_sequence.Learn( a_line, head.m_head, head.m_isPlain );
    return head;
}

bool IsExpected( HeadSequence& a_sequence, std::string_view a_line )
{
    bool isExpected = false;
    HeadOf( a_sequence, a_line, isExpected );
    return isExpected;
}

std::string Described( ByteRange a_range )
{
    return std::to_string( a_range.m_begin ) + '+' + std::to_string( a_range.m_length ) + ' ';
}

std::string Described( const LineHead& a_head )
{
    return Described( a_head.m_group ) + Described( a_head.m_name ) + Described( a_head.m_parameters ) +
           Described( a_head.m_charset ) + std::to_string( a_head.m_valueBegin ) + ' ' +
           std::to_string( static_cast<int>( a_head.m_encoding ) ) + ' ' +
           std::to_string( static_cast<int>( a_head.m_oddities ) ) + ( a_head.m_hasColon ? " colon" : "" ) +
           ( a_head.m_hasWordsForParameters ? " words" : "" );
}

std::string Described( const KnownHead& a_head )
{
    return Described( a_head.m_head ) + ( a_head.m_isPlain ? " plain" : "" ) +
           ( a_head.m_entry.IsNull() ? "" : " with entry" );
}

constexpr std::array<std::string_view, 22> s_kHeads = { "N:",
                                                        "FN:",
                                                        "F:",
                                                        "TEL:",
                                                        "TEL;TYPE=HOME:",
                                                        "TEL;TYPE=HOME,VOICE:",
                                                        "item1.TEL;TYPE=HOME:",
                                                        "item2.TEL;TYPE=HOME:",
                                                        "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:",
                                                        "N;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:",
                                                        "X-A-HEAD-THAT-IS-LONGER-THAN-WHAT-IS-REMEMBERED;TYPE=HOME:",
                                                        "tel:",
                                                        "see you: ",
                                                        "NOTE;X=\"open:",
                                                        "NOTE;X=\"a:b\":",
                                                        "TEL :",
                                                        "item1.TEL ;TYPE=HOME:",
                                                        "TEL;;TYPE=HOME:",
                                                        "TEL;TY PE=HOME:",
                                                        "TEL;TYPE=a\tb:",
                                                        "HOME TEL:",
                                                        "BEGIN;A=b:" };

} // namespace

TEST( HeadSequenceTest, FirstCardIsRead )
{
    HeadSequence sequence;
    EXPECT_FALSE( IsExpected( sequence, "N:a" ) );
    EXPECT_FALSE( IsExpected( sequence, "TEL:1" ) );
}

TEST( HeadSequenceTest, SameOrderIsExpected )
{
    HeadSequence sequence;
    for ( int card = 0; card < 3; ++card )
    {
        sequence.Restart();
        for ( const char* const line : { "VERSION:3.0", "N:a", "TEL;TYPE=HOME:1", "TEL;TYPE=CELL:2" } )
            EXPECT_EQ( IsExpected( sequence, line ), card > 0 ) << card << ' ' << line;
    }
}

TEST( HeadSequenceTest, HeadThatBeginsAlikeIsNotExpected )
{
    for ( const char* const line : { "TEL;TYPE=HOME,VOICE:1", "TEL;TYPE=HOM", "TEL;TYPE=HOME", "TEL;type=HOME:1", "" } )
    {
        HeadSequence sequence;
        EXPECT_FALSE( IsExpected( sequence, "TEL;TYPE=HOME:1" ) );
        sequence.Restart();
        EXPECT_EQ( sequence.Next( line ), nullptr ) << line;
    }
}

TEST( HeadSequenceTest, HeadInAnotherOrderIsExpectedByItsFirstBytes )
{
    HeadSequence sequence;
    const std::array<std::string, 3> lines = { "TEL;TYPE=HOME:5550101", "TEL;TYPE=CELL:5550102",
                                               "EMAIL;TYPE=HOME:a@b" };
    for ( const std::string& line : lines )
        EXPECT_FALSE( IsExpected( sequence, line ) ) << line;
    for ( const size_t i : { 2U, 0U, 1U, 1U, 0U, 2U } )
        EXPECT_TRUE( IsExpected( sequence, lines.at( i ) ) ) << lines.at( i );
    EXPECT_FALSE( IsExpected( sequence, "TEL;TYPE=HOME,X:5550103" ) );
}

TEST( HeadSequenceTest, PropertyIsRemembered )
{
    HeadSequence sequence;
    LineHead head = LineHead::Of( "TEL:1" );
    head.m_property = PropertyId::Tel;
    sequence.Learn( "TEL:1", head, true );
    sequence.Restart();
    const KnownHead* const known = sequence.Next( "TEL:2" );
    ASSERT_NE( known, nullptr );
    EXPECT_EQ( known->m_head.m_property, PropertyId::Tel );
}

// The head of a line is used until the next line has been read.
TEST( HeadSequenceTest, HeadOfTheLineBeforeIsNotReplaced )
{
    const auto lineOf = []( int a_number ) { return "X-" + std::to_string( 10000 + a_number ) + "-OF-MANY-HEADS:1"; };
    HeadSequence sequence;
    int known = 0;
    for ( int last = 0; last < 100; ++last )
    {
        EXPECT_FALSE( IsExpected( sequence, lineOf( last ) ) ) << last;
        for ( int line = std::max( last - 40, 0 ); line <= last; ++line )
        {
            HeadSequence copy = sequence;
            const KnownHead* const head = copy.Next( lineOf( line ) );
            if ( head == nullptr )
                continue;
            const std::string before = Described( head->m_head );
            EXPECT_FALSE( IsExpected( copy, "OTHER;TYPE=HOME:1" ) );
            EXPECT_EQ( Described( head->m_head ), before ) << line << " of " << last;
            ++known;
        }
    }
    EXPECT_GT( known, 1000 );
}

TEST( HeadSequenceTest, OddHeadIsRememberedWithoutAnEntry )
{
    HeadSequence sequence;
    const std::string line = "TEL ;;TYPE=HOME:1";
    EXPECT_FALSE( IsExpected( sequence, line ) );
    sequence.Restart();
    const KnownHead* const known = sequence.Next( line );
    ASSERT_NE( known, nullptr );
    EXPECT_EQ( Described( *known ), Described( KnownHead{ LineHead::Of( line ), false, HeadEntry() } ) );
}

// A later quote changes what the head is.
TEST( HeadSequenceTest, HeadThatDependsOnTheRestIsNotRemembered )
{
    for ( const char* const line : { "TEL;X=\"a:1", "TEL;X=a\"b:1", "no colon" } )
    {
        HeadSequence sequence;
        EXPECT_FALSE( IsExpected( sequence, line ) ) << line;
        sequence.Restart();
        EXPECT_FALSE( IsExpected( sequence, line ) ) << line;
    }
}

TEST( HeadSequenceTest, LongHeadIsNotRemembered )
{
    HeadSequence sequence;
    const std::string name( 48, 'X' );
    for ( const std::string& line : { name + ":1", name.substr( 1 ) + ":1" } )
    {
        sequence.Restart();
        EXPECT_FALSE( IsExpected( sequence, line ) );
        sequence.Restart();
        EXPECT_EQ( IsExpected( sequence, line ), line.size() == 49 ) << line;
    }
}

TEST( HeadSequenceTest, EachHeadIsThatOfItsLine )
{
    std::mt19937 random( 20261 );
    HeadSequence sequence;
    int expected = 0;
    for ( int i = 0; i < 20000; ++i )
    {
        if ( random() % 10 == 0 )
            sequence.Restart();
        const std::string extra = random() % 8 == 0 ? "X-" + std::to_string( random() % 50 ) + ':' : std::string();
        const std::string line = extra + std::string( s_kHeads.at( random() % s_kHeads.size() ) ) + "a;b:c";
        bool isExpected = false;
        const KnownHead found = HeadOf( sequence, line, isExpected );
        LineHead head;
        EXPECT_EQ( found.m_isPlain, head.Read( line ) ) << line;
        EXPECT_EQ( Described( found.m_head ), Described( head ) ) << line;
        expected += isExpected ? 1 : 0;
    }
    EXPECT_GT( expected, 500 );
}
