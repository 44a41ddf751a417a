#include "Values/ParameterMemory.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>

namespace PimManager::Contacts
{

namespace
{

using Memory = ParameterMemory<int>;

// More readers than the memory has positions, so that some of them share one.
template <int s_kReader>
quint32 Reader( std::string_view a_word )
{
    return static_cast<quint32>( a_word.size() ) + s_kReader;
}

template <int... s_kReaders>
constexpr std::array<Memory::Reader, sizeof...( s_kReaders )> Readers( std::integer_sequence<int, s_kReaders...> )
{
    return { Reader<s_kReaders>... };
}

constexpr auto s_kReaders = Readers( std::make_integer_sequence<int, 100>() );

} // namespace

TEST( ParameterMemoryTest, MeaningIsThatOfTheReader )
{
    Memory memory;
    for ( size_t reader = 0; reader < s_kReaders.size(); ++reader )
    {
        EXPECT_EQ( memory.Find( ";TYPE=HOME", s_kReaders.at( reader ) ), nullptr ) << reader;
        memory.Remember( ";TYPE=HOME", s_kReaders.at( reader ), static_cast<int>( reader ) );
        const int* const meaning = memory.Find( ";TYPE=HOME", s_kReaders.at( reader ) );
        ASSERT_NE( meaning, nullptr ) << reader;
        EXPECT_EQ( *meaning, static_cast<int>( reader ) );
    }
}

TEST( ParameterMemoryTest, MeaningIsThatOfTheText )
{
    Memory memory;
    for ( int number = 0; number < 1000; ++number )
    {
        const std::string text = ";PREF=" + std::to_string( number );
        EXPECT_EQ( memory.Find( text, nullptr ), nullptr ) << text;
        memory.Remember( text, nullptr, number );
        const int* const meaning = memory.Find( text, nullptr );
        ASSERT_NE( meaning, nullptr ) << text;
        EXPECT_EQ( *meaning, number );
    }
}

TEST( ParameterMemoryTest, BeginningOfTextIsAnotherText )
{
    Memory memory;
    for ( size_t length = 48; length > 0; --length )
    {
        const std::string text( length, 'A' );
        EXPECT_EQ( memory.Find( text, nullptr ), nullptr ) << length;
        memory.Remember( text, nullptr, 1 );
    }
}

TEST( ParameterMemoryTest, LongTextIsNotRemembered )
{
    Memory memory;
    const std::string text = ";TYPE=" + std::string( 100, 'A' );
    memory.Remember( text, nullptr, 1 );
    EXPECT_EQ( memory.Find( text, nullptr ), nullptr );
}

} // namespace PimManager::Contacts
