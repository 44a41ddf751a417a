#include "Text/KeptTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

TEST( KeptTextsTest, PartsOfTheTextAreNotCopied )
{
    const std::string text = "one;two";
    KeptTexts kept;
    kept.Begin( text );
    EXPECT_EQ( kept.Keep( std::string_view( text ).substr( 4 ) ).data(), text.data() + 4 );
}

TEST( KeptTextsTest, CopiesStayWhenTheirSourceChanges )
{
    const std::string text( 1000, 'x' );
    KeptTexts kept;
    kept.Begin( text );
    std::vector<std::string_view> parts;
    std::string buffer;
    for ( int i = 0; i < 100; ++i )
    {
        buffer = "part " + std::to_string( i );
        parts.push_back( kept.Keep( buffer ) );
        parts.push_back( kept.Keep( buffer ) );
    }
    for ( size_t i = 0; i < 100; ++i )
    {
        EXPECT_EQ( parts[2 * i], "part " + std::to_string( i ) );
        EXPECT_EQ( parts[2 * i + 1], parts[2 * i] );
    }
}

} // namespace PimManager::Contacts
