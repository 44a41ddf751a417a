#include "PhoneBookGenerator.h"
#include "MadeTextParse.h"

#include <gtest/gtest.h>

#include <set>

namespace PimManager::vCard::MadeTexts
{

TEST( PhoneBookGeneratorTest, BookHasCardsWithFourNumbersEach )
{
    constexpr int s_kCards = 300;
    const QByteArray text = PhoneBookGenerator().Book( s_kCards );
    const MadeTextParse book( text );
    EXPECT_EQ( s_kCards, book.Cards().size() );
    EXPECT_EQ( 0, book.Failures() );
    EXPECT_EQ( 4 * s_kCards, text.count( "\r\nTEL;" ) );
}

TEST( PhoneBookGeneratorTest, SameSeedMakesTheSameBook )
{
    EXPECT_EQ( PhoneBookGenerator().Book( 20 ), PhoneBookGenerator().Book( 20 ) );
    EXPECT_NE( PhoneBookGenerator( 1 ).Book( 20 ), PhoneBookGenerator( 2 ).Book( 20 ) );
}

TEST( PhoneBookGeneratorTest, WordsAndNumbersAreDifferent )
{
    PhoneBookGenerator generator;
    std::set<QByteArray> words;
    std::set<QByteArray> numbers;
    for ( int i = 0; i < 1000; ++i )
    {
        words.insert( generator.Word() );
        numbers.insert( generator.Number() );
    }
    EXPECT_GT( words.size(), 900U );
    EXPECT_GT( numbers.size(), 990U );
}

} // namespace PimManager::vCard::MadeTexts
