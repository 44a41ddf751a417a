#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct DefaultCharsetRow
{
    const char* m_name;
    QByteArray m_lines;
    bool m_isUsed;
};

std::ostream& operator<<( std::ostream& a_stream, const DefaultCharsetRow& a_row )
{
    return a_stream << a_row.m_name;
}

class DefaultCharsetTest : public ::testing::TestWithParam<DefaultCharsetRow>
{
};

std::string RowName( const ::testing::TestParamInfo<DefaultCharsetRow>& a_info )
{
    return a_info.param.m_name;
}

QByteArray CardOf( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, DefaultCharsetTest,
    ::testing::Values( DefaultCharsetRow{ "Ascii", "FN:abc", false }, DefaultCharsetRow{ "Utf8", "FN:\xC3\xA9", false },
                       DefaultCharsetRow{ "Value", "FN:abc\r\nNOTE:\xE9", true },
                       DefaultCharsetRow{ "Parameter", "TEL;X-A=\xE9:1", true },
                       DefaultCharsetRow{ "NamedByTheLine", "FN;CHARSET=KOI8-R:\xE9", false },
                       DefaultCharsetRow{ "NamedByAnotherLine", "FN;CHARSET=KOI8-R:\xE9\r\nNOTE:\xE9", false },
                       DefaultCharsetRow{ "NamedByAnUnknownName", "FN;CHARSET=x-phone:\xE9", true },
                       DefaultCharsetRow{ "DamagedUtf8", "FN:\xC3\xA9\xC3\xA9\xE9", false },
                       DefaultCharsetRow{ "ShiftedJapanese", "FN:\x1B$B%\\\x1B(B", false },
                       DefaultCharsetRow{ "Encoded", "FN;QUOTED-PRINTABLE:=E9", true },
                       DefaultCharsetRow{ "EncodedUtf8", "FN;QUOTED-PRINTABLE:=C3=A9", false },
                       DefaultCharsetRow{ "EncodedAndNamed", "FN;CHARSET=KOI8-R;QUOTED-PRINTABLE:=E9", false },
                       DefaultCharsetRow{ "Base64", "PHOTO;BASE64:\xE9", false },
                       DefaultCharsetRow{ "Base64OfUtf8", "FN;BASE64:w6k=", false },
                       DefaultCharsetRow{ "Base64OfOtherBytes", "FN;BASE64:6Q==", false },
                       DefaultCharsetRow{ "NestedCard", "FN:abc\r\nAGENT:\r\n" + CardOf( "FN:\xE9" ), true },
                       DefaultCharsetRow{ "NestedCardInUtf8", "FN:abc\r\nAGENT:\r\n" + CardOf( "FN:\xC3\xA9" ), false },
                       DefaultCharsetRow{ "LineBehindANestedCard", "AGENT:\r\n" + CardOf( "FN:abc" ) + "FN:\xE9",
                                          true } ),
    RowName );

TEST_P( DefaultCharsetTest, IsUsedForWhatNothingElseDecides )
{
    const PimContactBook book = PimContactBook::FromBytes( CardOf( GetParam().m_lines ) );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_EQ( book.CardAt( 0 ).UsesDefaultCharset(), GetParam().m_isUsed );
}

TEST_P( DefaultCharsetTest, IsNotUsedIfItIsUtf8OrUnknown )
{
    for ( const char* const charset : { "UTF-8", "x-phone" } )
    {
        PimContactOptions options;
        options.SetDefaultCharset( charset );
        const PimContactBook book = PimContactBook::FromBytes( CardOf( GetParam().m_lines ), options );
        ASSERT_EQ( book.Size(), 1 );
        EXPECT_FALSE( book.CardAt( 0 ).UsesDefaultCharset() ) << charset;
    }
}

TEST( DefaultCharsetTest, NullCardUsesNone )
{
    EXPECT_FALSE( PimContactCard().UsesDefaultCharset() );
}

} // namespace PimManager::Contacts
