#include "OneCard.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

const QByteArray s_kGif = "R0lGODlhAQABAIAAAP///wAAACwAAAAAAQABAAACAkQBADs=";

struct BinaryJsonRow
{
    const char* m_name;
    QByteArray m_line;
    // After the types and parameters.
    std::string m_json;
};

std::ostream& operator<<( std::ostream& a_stream, const BinaryJsonRow& a_row )
{
    return a_stream << a_row.m_name;
}

class BinaryJsonTest : public ::testing::TestWithParam<BinaryJsonRow>
{
};

std::string RowName( const ::testing::TestParamInfo<BinaryJsonRow>& a_info )
{
    return a_info.param.m_name;
}

std::string Data( const char* a_mediaType, const QByteArray& a_bytes )
{
    return std::string( R"("mediaType":")" ) + a_mediaType + R"(","size":)" + std::to_string( a_bytes.size() ) +
           R"(,"data":")" + a_bytes.toBase64().toStdString() + R"("})";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Copied, BinaryJsonTest,
    ::testing::Values(
        BinaryJsonRow{ "Gif", "PHOTO;ENCODING=b:" + s_kGif, Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) },
        BinaryJsonRow{ "BareWord", "PHOTO;BASE64:" + s_kGif, Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) },
        BinaryJsonRow{ "Folded", "PHOTO;ENCODING=b:" + s_kGif.left( 11 ) + "\r\n " + s_kGif.mid( 11 ) + "\r\n ",
                       Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) },
        BinaryJsonRow{ "BlanksRoundLines",
                       "PHOTO;ENCODING=b: " + s_kGif.left( 11 ) + "\r\n    " + s_kGif.mid( 11 ) + " ",
                       Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) },
        BinaryJsonRow{ "ThreeBytes", "X-D;ENCODING=b:Zm9v", Data( "", "foo" ) },
        BinaryJsonRow{ "TwoBytes", "X-D;ENCODING=b:Zm8=", Data( "", "fo" ) },
        BinaryJsonRow{ "OneByte", "X-D;ENCODING=b:Zg==", Data( "", "f" ) },
        BinaryJsonRow{ "Empty", "PHOTO;ENCODING=b:", Data( "", "" ) },
        BinaryJsonRow{ "NotDeclared", "PHOTO:" + s_kGif, Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) },
        BinaryJsonRow{ "NamedType", "X-D;ENCODING=b;TYPE=Image/X-Own:Zm9v", Data( "image/x-own", "foo" ) },
        BinaryJsonRow{ "TypeThatIsNone", "PHOTO;ENCODING=b;TYPE=../../etc:Zm9v", Data( "", "foo" ) },
        BinaryJsonRow{ "TypeByBytesFirst", "PHOTO;ENCODING=b;TYPE=image/png:" + s_kGif,
                       Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    EncodedAgain, BinaryJsonTest,
    ::testing::Values( BinaryJsonRow{ "WithoutPadding", "X-D;ENCODING=b:Zm8", Data( "", "fo" ) },
                       BinaryJsonRow{ "PaddingOnItsOwnLine", "X-D;ENCODING=b:Zg\r\n ==", Data( "", "f" ) },
                       BinaryJsonRow{ "PaddingInTwoLines", "X-D;ENCODING=b:Zg=\r\n =", Data( "", "f" ) },
                       BinaryJsonRow{ "BlanksInside", "X-D;ENCODING=b:Zm 9v", Data( "", "foo" ) },
                       BinaryJsonRow{ "UnusedBits", "X-D;ENCODING=b:Zn==", Data( "", "f" ) },
                       BinaryJsonRow{ "UnusedBitsOfTwo", "X-D;ENCODING=b:Zm9=", Data( "", "fo" ) },
                       BinaryJsonRow{ "DataUri", "PHOTO:data:image/x-own;base64,Zm9v", Data( "image/x-own", "foo" ) },
                       BinaryJsonRow{ "DataUriWithPercents", "PHOTO:data:text/plain,f%6Fo",
                                      Data( "text/plain", "foo" ) },
                       BinaryJsonRow{ "DataUriWithOddType", "PHOTO:data:a\"b/c,foo", Data( "", "foo" ) },
                       BinaryJsonRow{ "FoldedDataUri", "PHOTO:d\r\n ata:image/gif;base64\\," + s_kGif,
                                      Data( "image/gif", QByteArray::fromBase64( s_kGif ) ) } ),
    RowName );

// Properties whose values should be text.
INSTANTIATE_TEST_SUITE_P(
    Texts, BinaryJsonTest,
    ::testing::Values(
        BinaryJsonRow{ "Text", "NOTE;ENCODING=b:SsO2cmc=", "\"types\":[],\"values\":[\"J\xC3\xB6rg\"]}" },
        BinaryJsonRow{ "FoldedText", "NOTE;BASE64:SsO\r\n 2cmc", "\"types\":[],\"values\":[\"J\xC3\xB6rg\"]}" },
        BinaryJsonRow{ "NoText", "NOTE;ENCODING=b:AP//", Data( "", QByteArray::fromBase64( "AP//" ) ) },
        BinaryJsonRow{ "NoTextAndOdd", "NOTE;ENCODING=b:AP /w", Data( "", QByteArray::fromBase64( "AP/w" ) ) },
        BinaryJsonRow{ "Fault", "NOTE;ENCODING=b:SsO2*", R"("values":["SsO2*"],"fault":4})" },
        BinaryJsonRow{ "Extension", "X-A;ENCODING=b:Zm9v", Data( "", "foo" ) } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Faults, BinaryJsonTest,
    ::testing::Values(
        BinaryJsonRow{ "OtherCharacter", "PHOTO;ENCODING=b:Zm9v\r\n Zm*v", R"("values":["Zm9vZm*v"],"fault":6})" },
        BinaryJsonRow{ "CutShort", "PHOTO;ENCODING=b:Zm9vZ", R"("values":["Zm9vZ"],"fault":5})" },
        BinaryJsonRow{ "TextBehindPadding", "PHOTO;ENCODING=b:Zg==Zg==", R"("values":["Zg==Zg=="],"fault":4})" },
        BinaryJsonRow{ "OnlyPadding", "PHOTO;ENCODING=b:Zm9v\r\n ====x", R"("values":["Zm9v====x"],"fault":8})" },
        BinaryJsonRow{ "Address", "PHOTO;ENCODING=b:http://a", R"("values":["http://a"],"fault":4})" },
        BinaryJsonRow{ "DataUriWithoutComma", "PHOTO:data:image/png", R"("values":["data:image/png"],"fault":0})" } ),
    RowName );

TEST_P( BinaryJsonTest, MembersAreThoseOfTheRow )
{
    const BinaryJsonRow& row = GetParam();
    const std::string json = PropertyOf( row.m_line );
    ASSERT_GE( json.size(), row.m_json.size() ) << json;
    EXPECT_EQ( json.substr( json.size() - row.m_json.size() ), row.m_json ) << json;
}

TEST( BinaryJsonDataTest, DataIsThatOfTheLine )
{
    for ( int size = 0; size < 200; ++size )
    {
        QByteArray bytes;
        for ( int i = 0; i < size; ++i )
            bytes += static_cast<char>( i * 37 + size );
        QByteArray lines = "PHOTO;ENCODING=b:";
        const QByteArray base64 = bytes.toBase64();
        for ( int place = 0; place < base64.size(); place += 72 )
            lines += "\r\n " + base64.mid( place, 72 );
        EXPECT_NE( PropertyOf( lines ).find( R"("size":)" + std::to_string( size ) + R"(,"data":")" +
                                             base64.toStdString() + '"' ),
                   std::string::npos )
            << size;
    }
}

} // namespace PimManager::Contacts
