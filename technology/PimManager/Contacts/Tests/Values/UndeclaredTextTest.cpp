#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct UndeclaredRow
{
    const char* m_name;
    QByteArray m_lines;
    std::string m_text;
};

std::ostream& operator<<( std::ostream& a_stream, const UndeclaredRow& a_row )
{
    return a_stream << a_row.m_name;
}

class UndeclaredTextTest : public ::testing::TestWithParam<UndeclaredRow>
{
};

std::string RowName( const ::testing::TestParamInfo<UndeclaredRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, UndeclaredTextTest,
    ::testing::Values(
        UndeclaredRow{ "Ascii", "NOTE:abc", "" }, UndeclaredRow{ "Utf8", "NOTE:\xC3\xA9", "" },
        UndeclaredRow{ "OneByte", "NOTE:caf\xE9", "caf\xE9" },
        UndeclaredRow{ "EscapesAreKept", "NOTE:a\\,\xE9\\;", "a\\,\xE9\\;" },
        UndeclaredRow{ "FoldedLineKeepsItsBlank", "NOTE:\xE9\r\n \xE8", "\xE9 \xE8" },
        UndeclaredRow{ "NamedByTheLine", "NOTE;CHARSET=KOI8-R:\xE9", "" },
        UndeclaredRow{ "NamedByAnUnknownName", "NOTE;CHARSET=x-phone:\xE9", "\xE9" },
        UndeclaredRow{ "NamedByAnotherLine", "NOTE:\xE9\r\nFN;CHARSET=KOI8-R:\xC1", "" },
        UndeclaredRow{ "AsciiAmongOthers", "NOTE:abc\r\nFN:\xC1", "" },
        UndeclaredRow{ "ShiftedJapanese", "NOTE:\x1B$B%\\\x1B(B", "" },
        UndeclaredRow{ "Encoded", "NOTE;QUOTED-PRINTABLE:caf=E9", "caf\xE9" },
        UndeclaredRow{ "EncodedUtf8", "NOTE;QUOTED-PRINTABLE:caf=C3=A9", "" },
        UndeclaredRow{ "EncodedAndNamed", "NOTE;CHARSET=KOI8-R;QUOTED-PRINTABLE:=E9", "" },
        UndeclaredRow{ "EncodedAndNamedByAnotherLine", "NOTE;QUOTED-PRINTABLE:=E9\r\nFN;CHARSET=KOI8-R:\xC1", "\xE9" },
        UndeclaredRow{ "HalfEncoded", "NOTE;QUOTED-PRINTABLE:=E9\xE8", "\xE9\xE8" },
        UndeclaredRow{ "EncodedAmongShiftedJapanese", "NOTE;QUOTED-PRINTABLE:\x1B$B%\\\x1B(B=E9", "" },
        UndeclaredRow{ "Base64", "PHOTO;BASE64:\xE9", "" }, UndeclaredRow{ "Base64OfUtf8", "NOTE;BASE64:w6k=", "" },
        UndeclaredRow{ "Base64OfOtherBytes", "NOTE;BASE64:6Q==", "" },
        UndeclaredRow{ "Parameter", "TEL;X-A=\xE9:1", "" },
        UndeclaredRow{ "NotReallyEncoded", "NOTE;QUOTED-PRINTABLE:\xE8", "\xE8" },
        UndeclaredRow{ "NotReallyEncodedInANamedCard", "NOTE;QUOTED-PRINTABLE:\xE8\r\nFN;CHARSET=KOI8-R:\xC1", "" } ),
    RowName );

TEST_P( UndeclaredTextTest, IsWhatTheDefaultDecodes )
{
    EXPECT_EQ( OneLine( GetParam().m_lines, "2.1" ).UndeclaredText().toStdString(), GetParam().m_text );
}

TEST( UndeclaredTextTest, DefaultThatIsNotUsedDecodesNothing )
{
    for ( const char* const charset : { "UTF-8", "x-phone" } )
    {
        PimContactOptions options;
        options.SetDefaultCharset( charset );
        EXPECT_TRUE( OneLine( "NOTE:\xE9", "2.1", options ).UndeclaredText().isEmpty() ) << charset;
        EXPECT_TRUE( OneLine( "NOTE;QUOTED-PRINTABLE:=E9", "2.1", options ).UndeclaredText().isEmpty() ) << charset;
    }
}

TEST( UndeclaredTextTest, NullLineHasNone )
{
    EXPECT_TRUE( PimContactLine().UndeclaredText().isEmpty() );
}

} // namespace PimManager::Contacts
