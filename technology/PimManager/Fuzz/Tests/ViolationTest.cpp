// How a broken property ends the run.

#include "Violation.h"

#include <gtest/gtest.h>

namespace PimManager::vCard::Fuzz
{

TEST( ViolationTest, NoViolationGoesOn )
{
    Demand( Violation(), "input" );
    SUCCEED();
}

TEST( ViolationDeathTest, ViolationAbortsWithPropertyAndInput )
{
    testing::GTEST_FLAG( death_test_style ) = "threadsafe";
    EXPECT_DEATH( Demand( QStringLiteral( "a card is a card" ), QByteArray( "N:a\r\n" ) ),
                  "Broken property: a card is a card\nInput, 5 bytes: \"N:a\\\\r\\\\n\"" );
}

TEST( ViolationTest, TextsAreShownEscaped )
{
    EXPECT_EQ( Shown( QStringLiteral( "a\"\n\uFEFF" ) ).toStdString(), "\"a\\\"\\n\\uFEFF\"" );
    EXPECT_EQ( Shown( QByteArray( "a\xFF" ) ).toStdString(), "\"a\\xFF\"" );
}

} // namespace PimManager::vCard::Fuzz
