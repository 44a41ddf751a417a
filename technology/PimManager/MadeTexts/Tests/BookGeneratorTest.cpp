#include "BookGenerator.h"
#include "MadeTextParse.h"
#include "PimVCardTestText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr int s_kCards = 300;

const PimVCardProperty* Find( const PimVCard& a_card, const char* a_name )
{
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    const auto found =
        std::find_if( properties.begin(), properties.end(),
                      [&]( const PimVCardProperty* a_property ) { return a_property->GetName() == Text( a_name ); } );
    return found == properties.end() ? nullptr : *found;
}

int CardsWith( const MadeTextParse& a_book, const char* a_name )
{
    const QList<PimVCard*>& cards = a_book.Cards();
    return static_cast<int>( std::count_if(
        cards.begin(), cards.end(), [&]( const PimVCard* a_card ) { return Find( *a_card, a_name ) != nullptr; } ) );
}

QString Value( const PimVCard& a_card, const char* a_name )
{
    const PimVCardProperty* const property = Find( a_card, a_name );
    return property == nullptr ? QString() : property->GetValues().value( 0 );
}

} // namespace

TEST( BookGeneratorTest, EveryBookParsesWhole )
{
    const QList<BookKind> kinds = AllBookKinds();
    for ( const BookKind kind : kinds )
    {
        SCOPED_TRACE( NameOf( kind ).constData() );
        const MadeTextParse book( BookGenerator().Book( kind, s_kCards ) );
        EXPECT_EQ( s_kCards, book.Cards().size() );
        EXPECT_EQ( 0, book.Failures() );
    }
}

TEST( BookGeneratorTest, SmallCardIsOneCardOf91Bytes )
{
    EXPECT_EQ( 91, SmallCard().size() );
    const MadeTextParse book( SmallCard() );
    EXPECT_EQ( 1, book.Cards().size() );
    EXPECT_EQ( 0, book.Failures() );
}

TEST( BookGeneratorTest, SameSeedGivesSameBytes )
{
    const QByteArray book = BookGenerator( 1 ).Book( BookKind::Photos, s_kCards );
    EXPECT_EQ( book, BookGenerator( 1 ).Book( BookKind::Photos, s_kCards ) );
    EXPECT_NE( book, BookGenerator( 2 ).Book( BookKind::Photos, s_kCards ) );
}

TEST( BookGeneratorTest, NextBookOfSameGeneratorIsAnother )
{
    BookGenerator generator;
    const QByteArray first = generator.Book( BookKind::Text, s_kCards );
    EXPECT_NE( first, generator.Book( BookKind::Text, s_kCards ) );
}

TEST( BookGeneratorTest, TextBookHasLengthAndLinesOfAPhonesBook )
{
    const QByteArray book = BookGenerator().Book( BookKind::Text, s_kCards );
    EXPECT_NEAR( 481.0, double( book.size() ) / s_kCards, 5.0 );
    EXPECT_NEAR( 11.0, double( book.count( "\r\n" ) ) / s_kCards, 0.5 );
}

TEST( BookGeneratorTest, TextBookIsTwoThirds30WithGroupsParametersAndFoldedNotes )
{
    const QByteArray text = BookGenerator().Book( BookKind::Text, s_kCards );
    EXPECT_EQ( s_kCards * 2 / 3, text.count( "VERSION:3.0" ) );
    EXPECT_EQ( s_kCards / 3, text.count( "VERSION:2.1" ) );
    EXPECT_GE( text.count( "\r\n " ), s_kCards * 2 / 3 );

    const MadeTextParse book( text );
    const PimVCardProperty* const telephone = Find( *book.Cards().first(), "TEL" );
    ASSERT_NE( nullptr, telephone );
    EXPECT_EQ( Text( "item1" ), telephone->GetGroupID() );
    EXPECT_EQ( 2, telephone->GetParameters().size() );
    EXPECT_EQ( s_kCards * 2 / 3, CardsWith( book, "NOTE" ) );
    EXPECT_FALSE( Value( *book.Cards().first(), "NOTE" ).contains( Text( "\r\n" ) ) );
}

TEST( BookGeneratorTest, TwoCardsOfFiveHaveAPhotoInThePhotoBook )
{
    const MadeTextParse book( BookGenerator().Book( BookKind::Photos, s_kCards ) );
    EXPECT_EQ( s_kCards * 2 / 5, CardsWith( book, "PHOTO" ) );
    const QString photo = Value( *book.Cards().first(), "PHOTO" );
    EXPECT_GE( photo.size(), 4096 );
    EXPECT_LE( photo.size(), 12288 );
    EXPECT_EQ( 0, photo.size() % 4 );
}

TEST( BookGeneratorTest, NonLatinBookHasCharactersOfTwoThreeAndFourBytes )
{
    const QByteArray text = BookGenerator().Book( BookKind::NonLatin, s_kCards );
    EXPECT_GT( text.count( "Δ" ), 0 );
    EXPECT_GT( text.count( "月" ), 0 );
    EXPECT_GT( text.count( "\xF0\x9F\x94\xAD" ), 0 );
    EXPECT_FALSE( QString::fromUtf8( text ).contains( QChar( QChar::ReplacementCharacter ) ) );
}

TEST( BookGeneratorTest, QuotedPrintableBookHasSoftBreaksThatTheParserJoins )
{
    const QByteArray text = BookGenerator().Book( BookKind::QuotedPrintable, s_kCards );
    EXPECT_GT( text.count( "=\r\n" ), s_kCards );
    EXPECT_GT( text.count( "=0D=0A" ), 0 );
    const MadeTextParse book( text );
    for ( const PimVCard* card : book.Cards() )
        EXPECT_EQ( 0, Value( *card, "NOTE" ).count( Text( "=\r\n" ) ) );
}

TEST( BookGeneratorTest, NearlyEveryLineOfTheFoldedBookIsAFold )
{
    const QByteArray text = BookGenerator().Book( BookKind::Folded, s_kCards );
    EXPECT_GT( text.count( "\r\n " ), text.count( "\r\n" ) * 2 / 3 );
}

} // namespace PimManager::vCard::MadeTexts
