#include "Text/Base64.h"

#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

struct Base64Row
{
    const char* m_name;
    std::string_view m_text;
    std::string_view m_bytes;
    qint64 m_faultPlace;
};

std::ostream& operator<<( std::ostream& a_stream, const Base64Row& a_row )
{
    return a_stream << a_row.m_name;
}

class Base64Test : public ::testing::TestWithParam<Base64Row>
{
};

// Every byte value in every position of a group.
QByteArray ManyBytes()
{
    QByteArray bytes;
    for ( int i = 0; i < 5000; ++i )
        bytes.append( static_cast<char>( i * 7 + i / 256 ) );
    return bytes;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Text, Base64Test,
    ::testing::Values(
        Base64Row{ "Empty", "", "", -1 }, Base64Row{ "OneByte", "Zg==", "f", -1 },
        Base64Row{ "TwoBytes", "Zm8=", "fo", -1 }, Base64Row{ "ThreeBytes", "Zm9v", "foo", -1 },
        Base64Row{ "OneByteWithoutPadding", "Zg", "f", -1 }, Base64Row{ "TwoBytesWithoutPadding", "Zm8", "fo", -1 },
        Base64Row{ "HalfThePadding", "Zg=", "f", -1 }, Base64Row{ "TooMuchPadding", "Zm9v==", "foo", -1 },
        Base64Row{ "FirstAndLastOfAlphabet", "AAAA////", "\0\0\0\xFF\xFF\xFF"sv, -1 },
        Base64Row{ "PlusAndSlash", "+/+/", "\xFB\xFF\xBF"sv, -1 }, Base64Row{ "UnusedBitsAreNotZero", "Zh==", "f", -1 },
        Base64Row{ "WhiteSpace", " Z\tm\r\n9 v Zg = = \r\n", "foof", -1 },
        Base64Row{ "SixteenCharacters", "Zm9vYmFyZm9vYmFy", "foobarfoobar", -1 },
        Base64Row{ "FaultAtTheStart", "*m9v", "", 0 }, Base64Row{ "FaultInsideAGroup", "Zm9vZm*v", "foof", 6 },
        Base64Row{ "FaultInSixteenCharacters", "Zm9vYmFyZm9vYm-y", "foobarfoob", 14 },
        Base64Row{ "FaultBehindBlanks", " Z m 9 v .", "foo", 9 },
        Base64Row{ "MinusOfTheOtherAlphabet", "Zm9-", "fo", 3 }, Base64Row{ "ByteBeyondAscii", "Zm9v\xC3", "foo", 4 },
        Base64Row{ "Nul", "Zm9v\0"sv, "foo", 4 }, Base64Row{ "OneCharacterLeft", "Zm9vZ", "foo", 5 },
        Base64Row{ "PaddingBehindOneCharacter", "Zm9vZ===", "foo", 5 },
        Base64Row{ "DataBehindPadding", "Zg==Zg==", "f", 4 } ),
    []( const ::testing::TestParamInfo<Base64Row>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( Base64Test, TextIsDecodedWhereverItIsCut )
{
    const Base64Row& row = GetParam();
    for ( size_t cut = 0; cut <= row.m_text.size(); ++cut )
    {
        QByteArray bytes( "before" );
        Base64Decoder decoder( row.m_text.size(), bytes );
        decoder.Take( row.m_text.substr( 0, cut ) );
        decoder.Take( row.m_text.substr( cut ) );
        EXPECT_EQ( decoder.Finish(), row.m_faultPlace < 0 ) << cut;
        EXPECT_EQ( decoder.FaultPlace(), row.m_faultPlace ) << cut;
        EXPECT_EQ( ViewOf( bytes ), "before" + std::string( row.m_bytes ) ) << cut;
    }
}

TEST( Base64DecoderTest, EveryByteIsDecodedFromLinesOfAnyLength )
{
    const QByteArray expected = ManyBytes();
    const QByteArray text = expected.toBase64();
    for ( int length = 1; length < 80; ++length )
    {
        QByteArray bytes;
        Base64Decoder decoder( static_cast<size_t>( text.size() ), bytes );
        for ( int place = 0; place < text.size(); place += length )
            ASSERT_TRUE( decoder.Take( ViewOf( text.mid( place, length ) ) ) ) << length;
        EXPECT_TRUE( decoder.Finish() ) << length;
        EXPECT_EQ( bytes, expected ) << length;
    }
}

// In one piece, as the lines of a picture are.
TEST( Base64DecoderTest, FoldsOfAnyLengthAreDecodedOver )
{
    const QByteArray expected = ManyBytes();
    const QByteArray text = expected.toBase64();
    for ( const char* fold : { "\r\n ", "\r\n\t", "\n ", "\r\n", "\r ", " ", "\r\n  ", "\r\n \r\n " } )
    {
        for ( int length = 1; length < 80; ++length )
        {
            QByteArray folded;
            for ( int place = 0; place < text.size(); place += length )
                folded += text.mid( place, length ) + fold;
            QByteArray bytes;
            Base64Decoder decoder( static_cast<size_t>( folded.size() ), bytes );
            ASSERT_TRUE( decoder.Take( ViewOf( folded ) ) ) << length;
            ASSERT_TRUE( decoder.Finish() ) << length;
            ASSERT_EQ( bytes, expected ) << length;
        }
    }
}

TEST( Base64DecoderTest, FaultIsFoundAtEveryPlaceOfFoldedLines )
{
    const QByteArray folded = QByteArray( 30, 'Q' ) + "\r\n " + QByteArray( 29, 'Q' ) + "\r\n " + QByteArray( 33, 'Q' );
    for ( int place = 0; place < folded.size(); ++place )
    {
        QByteArray text = folded;
        text[place] = '*';
        QByteArray bytes;
        Base64Decoder decoder( static_cast<size_t>( text.size() ), bytes );
        EXPECT_FALSE( decoder.Take( ViewOf( text ) ) ) << place;
        decoder.Finish();
        EXPECT_EQ( decoder.FaultPlace(), place );
        int sound = 0;
        for ( int i = 0; i < place; ++i )
            sound += text.at( i ) == 'Q' ? 1 : 0;
        // One character that is left over makes no byte.
        EXPECT_EQ( bytes.size(), sound * 6 / 8 ) << place;
        EXPECT_EQ( bytes, QByteArray::fromBase64( QByteArray( sound, 'Q' ) ) ) << place;
    }
}

TEST( Base64DecoderTest, OnlyTheAlphabetIsAccepted )
{
    for ( int byte = 0; byte < 256; ++byte )
    {
        const std::string text( 16, static_cast<char>( byte ) );
        QByteArray bytes;
        Base64Decoder decoder( text.size(), bytes );
        const bool isWhite = byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
        const bool isAccepted = isWhite || IsBase64Byte( static_cast<char>( byte ) );
        EXPECT_EQ( decoder.Take( text ), isAccepted ) << byte;
        EXPECT_EQ( decoder.Finish(), isAccepted ) << byte;
    }
}

} // namespace PimManager::Contacts
