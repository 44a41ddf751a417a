#include "Text/WhiteSpace.h"

#include <QChar>
#include <QString>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

QByteArray Utf8( uint a_character )
{
    const char32_t character = a_character;
    return QString::fromUcs4( &character, 1 ).toUtf8();
}

std::string_view ViewOf( const QByteArray& a_text )
{
    return std::string_view( a_text.constData(), static_cast<size_t>( a_text.size() ) );
}

std::string Words( std::string_view a_text, const char* a_before = "" )
{
    QByteArray out = a_before;
    AppendWords( a_text, out );
    return out.toStdString();
}

} // namespace

TEST( WhiteSpaceTest, SpacesAreThoseOfUnicode )
{
    for ( uint character = 0; character <= 0x10FFFF; ++character )
    {
        if ( QChar::isSurrogate( character ) )
            continue;
        const QByteArray text = Utf8( character );
        const size_t length = QChar::isSpace( character ) ? static_cast<size_t>( text.size() ) : 0;
        ASSERT_EQ( LengthOfWhiteSpace( ViewOf( text ) ), length ) << std::hex << character;
        ASSERT_EQ( WithoutOuterSpace( ViewOf( text ) ).size(), length > 0 ? 0 : text.size() ) << std::hex << character;
    }
}

TEST( WhiteSpaceTest, IncompleteCharactersAreNoSpaces )
{
    for ( const char* text : { "", "\xC2", "\xE2\x80", "\xE3\x80", "\xE2", "\x80", "\xA0" } )
    {
        EXPECT_EQ( LengthOfWhiteSpace( text ), 0U ) << text;
        EXPECT_EQ( WithoutOuterSpace( text ), text );
    }
}

TEST( WhiteSpaceTest, SpaceIsSingleAtEveryPlaceOrIsMended )
{
    for ( const char* space : { "  ", "\t", "\n", " \t", "\xC2\xA0", " \xC2\xA0", "\xE3\x80\x80" } )
    {
        for ( size_t before = 1; before < 20; ++before )
        {
            for ( size_t behind = 1; behind < 20; ++behind )
            {
                const std::string first( before, 'a' );
                const std::string last( behind, 'b' );
                EXPECT_EQ( Words( first + space + last ), first + ' ' + last ) << space;
                EXPECT_EQ( Words( first + ' ' + last ), first + ' ' + last );
            }
        }
    }
}

TEST( WhiteSpaceTest, WordsAreCopiedOnlyIfTheyMustBe )
{
    QByteArray buffer = "before";
    const std::string_view words = "one two\xC3\x84";
    const std::string_view padded = "\t one two\xC3\x84 \n";
    EXPECT_EQ( WordsIn( words, buffer ).data(), words.data() );
    EXPECT_EQ( WordsIn( padded, buffer ), words );
    EXPECT_EQ( buffer, "before" );
    EXPECT_EQ( WordsIn( "one \t two\xC3\x84", buffer ), words );
    EXPECT_EQ( WordsIn( " \n ", buffer ), "" );
}

TEST( WhiteSpaceTest, OuterSpaceIsRemoved )
{
    EXPECT_EQ( WithoutOuterSpace( "" ), "" );
    EXPECT_EQ( WithoutOuterSpace( " \t\r\n" ), "" );
    EXPECT_EQ( WithoutOuterSpace( "a b" ), "a b" );
    EXPECT_EQ( WithoutOuterSpace( " \xC2\xA0 a\n \xE3\x80\x80" ), "a" );
    EXPECT_EQ( WithoutOuterSpace( "\xC3\xA9 " ), "\xC3\xA9" );
    EXPECT_EQ( WithoutOuterSpace( "\x7F" ), "\x7F" );
}

TEST( WhiteSpaceTest, WordsAreDividedBySingleBlanks )
{
    EXPECT_EQ( Words( "" ), "" );
    EXPECT_EQ( Words( " \n" ), "" );
    EXPECT_EQ( Words( "one two three" ), "one two three" );
    EXPECT_EQ( Words( "  one\n\ttwo  \xC2\xA0three " ), "one two three" );
    EXPECT_EQ( Words( "\xC3\xA9 \xC3\xA9" ), "\xC3\xA9 \xC3\xA9" );
    EXPECT_EQ( Words( "one", "zero" ), "zero one" );
    EXPECT_EQ( Words( " ", "zero" ), "zero" );
}

} // namespace PimManager::Contacts
