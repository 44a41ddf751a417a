#include "Lines/LineFilter.h"

#include "Lines/LineHead.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

struct FilterRow
{
    const char* m_name;
    QList<QByteArray> m_names;
    bool m_areMediaWanted;
    std::string m_line;
    bool m_isWanted;
};

std::ostream& operator<<( std::ostream& a_stream, const FilterRow& a_row )
{
    return a_stream << a_row.m_name;
}

LineFilter FilterOf( const QList<QByteArray>& a_names, bool a_areMediaWanted )
{
    PimContactOptions options;
    options.SetNames( a_names );
    options.SetMediaWanted( a_areMediaWanted );
    return LineFilter( options );
}

class LineFilterTest : public ::testing::TestWithParam<FilterRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, LineFilterTest,
    ::testing::Values( FilterRow{ "NoFilter", {}, true, "PHOTO;BASE64:AAAA", true },
                       FilterRow{ "NamedInAnyLetterCase", { "tel", "fn" }, true, "Tel:1", true },
                       FilterRow{ "NamedWithGroup", { "TEL" }, true, "item1.TEL:1", true },
                       FilterRow{ "NotNamed", { "TEL", "FN" }, true, "EMAIL:a", false },
                       FilterRow{ "StartOfAName", { "TEL" }, true, "TE:1", false },
                       FilterRow{ "LongerThanAName", { "TEL" }, true, "TELX:1", false },
                       FilterRow{ "VersionIsAlwaysKept", { "TEL" }, true, "version:3.0", true },
                       FilterRow{ "VersionIsKeptWithoutMedia", {}, false, "VERSION;BASE64:AAAA", true },
                       FilterRow{ "UnwantedPhoto", {}, false, "photo;VALUE=uri:http://example.com/a", false },
                       FilterRow{ "UnwantedLogo", {}, false, "LOGO:a", false },
                       FilterRow{ "UnwantedSound", {}, false, "SOUND:a", false },
                       FilterRow{ "UnwantedKey", {}, false, "KEY:a", false },
                       FilterRow{ "UnwantedBase64", {}, false, "X-CARD;ENCODING=b:AAAA", false },
                       FilterRow{ "UnwantedBase64OfACard", {}, false, "AGENT;BASE64:AAAA", false },
                       FilterRow{ "Base64OfATextIsNoMedia", {}, false, "Fn;ENCODING=BASE64:SsO2cmc=", true },
                       FilterRow{ "Base64OfATextProperty", {}, false, "NOTE;BASE64:AAAA", true },
                       FilterRow{ "UnwantedDataUriOfATextProperty", {}, false, "NOTE;BASE64:data:,AA", false },
                       FilterRow{ "UnwantedDataUri", {}, false, "X-CARD: DATA:image/png;base64,AA", false },
                       FilterRow{ "TextThatMentionsData", {}, false, "NOTE:all data: none", true },
                       FilterRow{ "QuotedPrintableIsNoMedia", {}, false, "NOTE;QUOTED-PRINTABLE:a", true },
                       FilterRow{ "NamedMediaAreUnwantedToo", { "PHOTO" }, false, "PHOTO:a", false },
                       FilterRow{ "NamedPhoto", { "PHOTO" }, true, "PHOTO:a", true } ),
    []( const ::testing::TestParamInfo<FilterRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LineFilterTest, LinesAreWantedByNameAndKind )
{
    const FilterRow& row = GetParam();
    const LineFilter filter = FilterOf( row.m_names, row.m_areMediaWanted );
    const std::string_view line = row.m_line;
    const LineHead head = LineHead::Of( line );
    EXPECT_EQ( filter.IsWanted( head, head.m_name.In( line ), line.substr( head.m_valueBegin ) ), row.m_isWanted );
}

TEST( LineFilterUseTest, FilterIsEmptyIfEveryLineIsWanted )
{
    EXPECT_TRUE( FilterOf( {}, true ).IsEmpty() );
    EXPECT_FALSE( FilterOf( {}, false ).IsEmpty() );
    EXPECT_FALSE( FilterOf( { "FN" }, true ).IsEmpty() );
}

} // namespace PimManager::Contacts
