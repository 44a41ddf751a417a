#include "Text/WordGroups.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

// Whatever the locale is: in Turkish, the capital of "i" is no letter of ASCII.
std::string InCapitals( const std::string& a_word )
{
    return QByteArray::fromStdString( a_word ).toUpper().toStdString();
}

// Compares with a map of the words.
void ExpectGroups( const std::vector<std::string>& a_words )
{
    WordGroups groups;
    for ( const std::string& word : a_words )
        groups.Add( word );
    groups.Finish();
    std::map<std::string, std::vector<size_t>> expected;
    for ( size_t i = 0; i < a_words.size(); ++i )
        expected[InCapitals( a_words[i] )].push_back( i );
    ASSERT_EQ( groups.Size(), a_words.size() );
    for ( const auto& [word, places] : expected )
    {
        ASSERT_EQ( groups.Find( word ), places.front() ) << word;
        for ( size_t i = 0; i < places.size(); ++i )
        {
            ASSERT_EQ( groups.IsFirst( places[i] ), i == 0 ) << word;
            ASSERT_EQ( groups.Next( places[i] ), i + 1 < places.size() ? places[i + 1] : WordGroups::s_kNone ) << word;
        }
    }
    EXPECT_EQ( groups.Find( "none" ), WordGroups::s_kNone );
}

std::vector<std::string> Numbered( size_t a_count, size_t a_different )
{
    std::vector<std::string> words;
    for ( size_t i = 0; i < a_count; ++i )
        words.push_back( ( i % 3 == 0 ? "Item" : "iTEM" ) + std::to_string( i * 7 % a_different ) );
    return words;
}

} // namespace

TEST( WordGroupsTest, FewWordsAreGrouped )
{
    ExpectGroups( {} );
    ExpectGroups( { "HOME" } );
    ExpectGroups( { "HOME", "work", "Home", "WORK", "home", "" } );
    ExpectGroups( { "", "", "a", "\xC3\xA9" } );
}

TEST( WordGroupsTest, ManyWordsAreGrouped )
{
    for ( const size_t count : { 8U, 9U, 100U, 1000U } )
    {
        ExpectGroups( Numbered( count, count ) );
        ExpectGroups( Numbered( count, count / 2 ) );
        ExpectGroups( Numbered( count, 3 ) );
    }
}

// Words of one hash value are sorted. They are found by trying, with the hash function of the class.
TEST( WordGroupsTest, WordsThatCollideAreGrouped )
{
    const auto slotOf = []( const std::string& a_word )
    {
        unsigned hash = 2166136261U;
        for ( const char byte : a_word )
            hash = ( hash ^ static_cast<unsigned char>( byte ) ) * 16777619U;
        return ( hash ^ hash >> 15U ) & 0xFFFU;
    };
    std::vector<std::string> words;
    for ( int i = 0; words.size() < 500; ++i )
    {
        const std::string word = "W" + std::to_string( i );
        if ( slotOf( word ) == 1 )
            words.push_back( word );
    }
    for ( size_t i = 0; i < 500; ++i )
        words.push_back( "w" + words[i].substr( 1 ) );
    ExpectGroups( words );
}

TEST( WordGroupsTest, ClearedGroupsStartEmpty )
{
    WordGroups groups;
    const std::vector<std::string> many = Numbered( 20, 20 );
    for ( const std::string& word : many )
        groups.Add( word );
    groups.Finish();
    groups.Clear();
    groups.Add( "a" );
    groups.Finish();
    EXPECT_EQ( groups.Size(), 1U );
    EXPECT_EQ( groups.Find( "A" ), 0U );
    EXPECT_EQ( groups.Find( "item0" ), WordGroups::s_kNone );
}

} // namespace PimManager::Contacts
