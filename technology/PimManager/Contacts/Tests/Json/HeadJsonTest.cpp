// Remembered heads: the same result as without them.

#include "Json/HeadJson.h"

#include "OneCard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

std::string HeadOf( HeadCache& a_cache, const PimContactCard& a_card )
{
    std::string text;
    for ( LineCursor cursor( a_card ); cursor.Next(); )
    {
        const HeadJson& head = a_cache.Of( cursor.Line() );
        text += std::string( head.All() ) + '|' + std::string( head.TypesOfEntry() ) + '|' +
                std::string( head.Common() ) + '|' + std::string( head.OwnLabel() ) + '|' +
                std::string( head.CommonBehindLabel() ) + '|' + std::string( head.MediaType() ) + '|' +
                std::string( head.Direction() ) + '|' + std::to_string( static_cast<int>( head.Property() ) ) + ' ' +
                std::to_string( static_cast<int>( head.ValueDelimiters() ) ) + std::to_string( head.Kinds() ) + ' ' +
                std::to_string( static_cast<int>( head.SetOfKinds() ) ) + ( head.IsMedia() ? " media" : "" ) +
                ( head.IsDeferred() ? " deferred" : "" ) + ( head.IsUri() ? " uri" : "" ) +
                ( head.Crop() ? " crop\n" : "\n" );
    }
    return text;
}

// Heads of which many have a part in common, so that one that is taken for another is seen.
std::vector<QByteArray> Heads()
{
    std::vector<QByteArray> heads = { "N",
                                      "NO",
                                      ";A",
                                      "",
                                      "TEL;TYPE=CELL",
                                      "TEL;TYPE=CELL ",
                                      "TEL ;TYPE=CELL",
                                      "tel;TYPE=CELL",
                                      "item1.TEL;TYPE=CELL",
                                      "TEL;X=^n",
                                      "TEL;X=\"a",
                                      "PHOTO;TYPE=image/png",
                                      "PHOTO;MEDIATYPE=image/gif",
                                      "EMAIL;INTERNET;PREF=1",
                                      "BDAY;VALUE=text",
                                      "BDAY;VALUE=date",
                                      "ADR;TYPE=home;LANGUAGE=de",
                                      "ADR;TYPE=home;LABEL=de",
                                      "TEL;TYPE=X-Boat;ALTID=1",
                                      "PHOTO;X-ABCROP-RECTANGLE=ABClipRect_1&0&12&320&320&x",
                                      "NO\r\n TE;A",
                                      "NOTE;\xC3\xA9",
                                      "NOTE;\xE9",
                                      "X-IRMC-CALL-DATETIME;MISSED",
                                      "NOTE;X=" + QByteArray( 84, 'a' ),
                                      "NOTE;X=" + QByteArray( 85, 'a' ),
                                      "NOTE;X=" + QByteArray( 89, 'a' ),
                                      "NOTE;X=" + QByteArray( 90, 'a' ),
                                      "NOTE;X=" + QByteArray( 300, 'a' ) };
    for ( int i = 0; i < 600; ++i )
        heads.push_back( "TEL;TYPE=T" + QByteArray::number( i ) );
    return heads;
}

} // namespace

TEST( HeadJsonTest, RememberedHeadsAreThoseOfTheLine )
{
    std::vector<PimContactCard> cards;
    for ( const QByteArray& head : Heads() )
    {
        for ( const char* version : { "2.1", "3.0", "4.0" } )
            cards.push_back( CardOf( "VERSION:" + QByteArray( version ) + "\r\n" + head + ":value\r\nX:1" ) );
    }
    std::mt19937 random( 3 );
    HeadCache cache;
    for ( int round = 0; round < 3; ++round )
    {
        for ( const PimContactCard& card : cards )
        {
            HeadCache empty;
            ASSERT_EQ( HeadOf( cache, card ), HeadOf( empty, card ) ) << card.Bytes().toStdString();
        }
        std::shuffle( cards.begin(), cards.end(), random );
    }
}

TEST( HeadJsonTest, PartsOfTheHeadFollowEachOther )
{
    const PimContactCard card = CardOf( "EMAIL;INTERNET;HOME;PREF=2;X-A=b:e@f" );
    LineCursor cursor( card );
    ASSERT_TRUE( cursor.Next() );
    HeadCache cache;
    const HeadJson& head = cache.Of( cursor.Line() );
    EXPECT_EQ( head.Name(), R"("name":"EMAIL")" );
    EXPECT_EQ( head.Types(), R"(,"types":["INTERNET","HOME"])" );
    EXPECT_EQ( head.TypesOfEntry(), R"(,"types":["HOME"])" );
    EXPECT_EQ( head.Common(), R"(,"kinds":["home"],"preference":2)" );
    EXPECT_EQ( head.OwnLabel(), "" );
    EXPECT_EQ( head.CommonBehindLabel(), R"(,"preference":2)" );
    EXPECT_EQ( head.Rest(), R"(,"preference":2,"parameters":[{"name":"X-A","values":["b"]}])" );
    EXPECT_EQ( head.All(), std::string( head.Name() ) + std::string( head.Types() ) + std::string( head.Rest() ) );
}

} // namespace PimManager::Contacts
