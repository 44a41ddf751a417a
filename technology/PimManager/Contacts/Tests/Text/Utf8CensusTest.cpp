#include "Text/Utf8Census.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

struct Row
{
    const char* m_name;
    std::string_view m_text;
    qint64 m_wide;
    qint64 m_malformed;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

constexpr std::array s_kRows = {
    Row{ "empty", ""sv, 0, 0 },
    Row{ "ASCII", "plain text"sv, 0, 0 },
    Row{ "all control characters are ASCII", "\0\x01\x1F\x7F"sv, 0, 0 },
    Row{ "two bytes, the first and the last", "\xC2\x80\xDF\xBF"sv, 2, 0 },
    Row{ "three bytes, the first and the last", "\xE0\xA0\x80\xEF\xBF\xBF"sv, 2, 0 },
    Row{ "three bytes round the surrogates", "\xED\x9F\xBF\xEE\x80\x80"sv, 2, 0 },
    Row{ "four bytes, the first and the last", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"sv, 2, 0 },
    Row{ "four bytes with a lead between", "\xF1\x80\x80\x80\xF3\xBF\xBF\xBF"sv, 2, 0 },
    Row{ "byte order mark", "\xEF\xBB\xBF"sv, 1, 0 },
    Row{ "words of many letters", "M\xC3\xBCller, \xE7\x8E\x8B \xE5\xB0\x8F\xE6\x98\x8E"sv, 4, 0 },

    Row{ "tails without a lead", "\x80 \xBF"sv, 0, 2 },
    Row{ "bytes that never occur", "\xC0\xC1\xF5\xFE\xFF"sv, 0, 5 },
    Row{ "overlong in two bytes", "\xC0\xAF\xC1\xBF"sv, 0, 4 },
    Row{ "overlong in three bytes", "\xE0\x80\x80\xE0\x9F\xBF"sv, 0, 6 },
    Row{ "overlong in four bytes", "\xF0\x80\x80\x80\xF0\x8F\xBF\xBF"sv, 0, 8 },
    Row{ "surrogates", "\xED\xA0\x80\xED\xBF\xBF"sv, 0, 6 },
    Row{ "beyond U+10FFFF", "\xF4\x90\x80\x80\xF5\x80\x80\x80"sv, 0, 8 },
    Row{ "two bytes, interrupted",
         "\xC3"
         "a"sv,
         0, 1 },
    Row{ "three bytes, interrupted",
         "\xE2\x82"
         "a"sv,
         0, 2 },
    Row{ "four bytes, interrupted",
         "\xF0\x9F\x98"
         "a"sv,
         0, 3 },
    Row{ "interrupted by a character", "\xE2\x82\xC3\xA4"sv, 1, 2 },
    Row{ "interrupted by another lead", "\xF0\x9F\xE2\x82\xAC"sv, 1, 2 },
    Row{ "a second byte out of range, then a character", "\xE0\x80\xC3\xA4"sv, 1, 2 },
    Row{ "cut off after one byte", "text\xC3"sv, 0, 1 },
    Row{ "cut off after two bytes", "text\xE2\x82"sv, 0, 2 },
    Row{ "cut off after three bytes", "text\xF0\x9F\x98"sv, 0, 3 },
    Row{ "Latin-1", "M\xFCller, J\xF6rg"sv, 0, 2 },
};

void ExpectCounts( const Utf8Census& a_census, const Row& a_row )
{
    EXPECT_EQ( a_census.Wide(), a_row.m_wide ) << a_row;
    EXPECT_EQ( a_census.Malformed(), a_row.m_malformed ) << a_row;
    EXPECT_EQ( a_census.IsValid(), a_row.m_malformed == 0 ) << a_row;
    EXPECT_EQ( a_census.IsAscii(), a_row.m_wide == 0 && a_row.m_malformed == 0 ) << a_row;
}

TEST( Utf8CensusTest, WholeTextIsCounted )
{
    for ( const Row& row : s_kRows )
    {
        Utf8Census census;
        census.Take( row.m_text );
        census.EndText();
        ExpectCounts( census, row );
    }
}

TEST( Utf8CensusTest, EveryCutIntoThreePiecesGivesTheSameCounts )
{
    for ( const Row& row : s_kRows )
    {
        for ( size_t first = 0; first <= row.m_text.size(); ++first )
        {
            for ( size_t second = first; second <= row.m_text.size(); ++second )
            {
                SCOPED_TRACE( std::to_string( first ) + ", " + std::to_string( second ) );
                Utf8Census census;
                census.Take( row.m_text.substr( 0, first ) );
                census.Take( row.m_text.substr( first, second - first ) );
                census.Take( row.m_text.substr( second ) );
                census.EndText();
                ExpectCounts( census, row );
            }
        }
    }
}

TEST( Utf8CensusTest, SingleBytesGiveTheSameCounts )
{
    for ( const Row& row : s_kRows )
    {
        Utf8Census census;
        for ( size_t place = 0; place < row.m_text.size(); ++place )
            census.Take( row.m_text.substr( place, 1 ) );
        census.EndText();
        ExpectCounts( census, row );
    }
}

// ASCII is skipped in words: each alignment and each distance to the end of a word.
TEST( Utf8CensusTest, CharacterIsFoundAnywhereInAscii )
{
    for ( const Row& row : s_kRows )
    {
        for ( size_t before = 0; before < 20; ++before )
        {
            for ( size_t after = 0; after < 20; ++after )
            {
                SCOPED_TRACE( std::to_string( before ) + ", " + std::to_string( after ) );
                const std::string text =
                    std::string( before, '0' ) + std::string( row.m_text ) + std::string( after, '9' );
                Utf8Census census;
                census.Take( text );
                census.EndText();
                ExpectCounts( census, row );
            }
        }
    }
}

TEST( Utf8CensusTest, CountsOfSeveralTextsAddUp )
{
    Utf8Census census;
    qint64 wide = 0;
    qint64 malformed = 0;
    for ( const Row& row : s_kRows )
    {
        census.Take( row.m_text );
        census.EndText();
        wide += row.m_wide;
        malformed += row.m_malformed;
        EXPECT_EQ( census.Wide(), wide ) << row;
        EXPECT_EQ( census.Malformed(), malformed ) << row;
    }
}

TEST( Utf8CensusTest, UnfinishedCharacterCountsAtTheEndOfTheText )
{
    Utf8Census census;
    census.Take( "\xE2\x82"sv );
    EXPECT_TRUE( census.IsAscii() );
    census.EndText();
    EXPECT_EQ( census.Malformed(), 2 );
    census.EndText();
    EXPECT_EQ( census.Malformed(), 2 );
    census.Take( "\xAC"sv );
    EXPECT_EQ( census.Malformed(), 3 );
    EXPECT_EQ( census.Wide(), 0 );
}

} // namespace

} // namespace PimManager::Contacts
