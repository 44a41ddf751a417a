#include "Text/DelimiterSearch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

std::vector<size_t> PlacesIn( std::string_view a_text, char a_first, char a_second )
{
    std::vector<size_t> places;
    DelimiterSearch search( a_text, a_first, a_second );
    while ( search.Next() )
        places.push_back( search.Place() );
    EXPECT_EQ( search.Place(), a_text.size() );
    return places;
}

} // namespace

TEST( DelimiterSearchTest, BothBytesAreFoundAtEveryPlace )
{
    for ( size_t length = 0; length < 40; ++length )
    {
        for ( size_t place = 0; place < length; ++place )
        {
            for ( const char delimiter : { ';', ',' } )
            {
                std::string text( length, 'x' );
                text[place] = delimiter;
                EXPECT_EQ( PlacesIn( text, ';', ',' ), std::vector<size_t>{ place } ) << length << ' ' << delimiter;
            }
        }
    }
}

// A byte after a match, and one that differs from a delimiter in its highest bit, must not be taken for one.
TEST( DelimiterSearchTest, NoOtherByteIsFound )
{
    for ( int other = 0; other < 256; ++other )
    {
        const auto byte = static_cast<char>( other );
        if ( byte == ';' || byte == ',' )
            continue;
        const std::string run( 3, byte );
        const std::string text = run + ';' + run + ",;" + run;
        EXPECT_EQ( PlacesIn( text, ';', ',' ), ( std::vector<size_t>{ 3, 7, 8 } ) ) << other;
        EXPECT_EQ( PlacesIn( text, ';', ';' ), ( std::vector<size_t>{ 3, 8 } ) ) << other;
    }
}

TEST( DelimiterSearchTest, TextOfDelimitersHasOneAtEachPlace )
{
    const std::string text( 100, ';' );
    EXPECT_EQ( PlacesIn( text, ';', ',' ).size(), text.size() );
    EXPECT_TRUE( PlacesIn( text, ',', ',' ).empty() );
}

} // namespace PimManager::Contacts
