#include "Text/EncodedCharset.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

struct EncodedCharsetRow
{
    const char* m_name;
    std::string_view m_text;
    std::string_view m_named;
    std::string_view m_default;
    std::string_view m_charset;
    bool m_isNameUnknown;
    bool m_isAssumed;
};

std::ostream& operator<<( std::ostream& a_stream, const EncodedCharsetRow& a_row )
{
    return a_stream << a_row.m_name;
}

class EncodedCharsetTest : public ::testing::TestWithParam<EncodedCharsetRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Text, EncodedCharsetTest,
    ::testing::Values(
        EncodedCharsetRow{ "Ascii", "a", "", "windows-1252", "UTF-8", false, false },
        EncodedCharsetRow{ "ValidUtf8", "\xC3\xA9", "", "windows-1252", "UTF-8", false, false },
        EncodedCharsetRow{ "Default", "\xE9", "", "windows-1252", "windows-1252", false, true },
        EncodedCharsetRow{ "UnknownDefault", "\xE9", "", "nonsense", "UTF-8", false, true },
        EncodedCharsetRow{ "NamedUtf8", "\xC3\xA9", "utf-8", "windows-1252", "UTF-8", false, false },
        EncodedCharsetRow{ "NamedUtf8AndMalformed", "\xE9", "UTF-8", "windows-1252", "UTF-8", false, false },
        EncodedCharsetRow{ "Named", "\xE9", "KOI8-R", "windows-1252", "KOI8-R", false, false },
        EncodedCharsetRow{ "NamedThoughValidUtf8", "\xC3\xA9", "KOI8-R", "windows-1252", "KOI8-R", false, false },
        EncodedCharsetRow{ "UnknownNameAndValidUtf8", "\xC3\xA9", "x-none", "windows-1252", "UTF-8", true, false },
        EncodedCharsetRow{ "UnknownNameAndDefault", "\xE9", "x-none", "KOI8-R", "KOI8-R", true, true },
        EncodedCharsetRow{ "BlankName", "\xE9", " ", "KOI8-R", "KOI8-R", false, true },
        EncodedCharsetRow{ "Shifted", "\x1B$B0!\x1B(B", "ISO-2022-JP", "windows-1252", "ISO-2022-JP", false, false },
        EncodedCharsetRow{ "NeverShifted", "\xC3\xA9", "ISO-2022-JP", "windows-1252", "UTF-8", false, false } ),
    []( const ::testing::TestParamInfo<EncodedCharsetRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( EncodedCharsetTest, FirstRuleThatAppliesDecides )
{
    const EncodedCharsetRow& row = GetParam();
    const EncodedCharset choice = EncodedCharsetOf( row.m_text, row.m_named, row.m_default );
    EXPECT_EQ( choice.m_charset.Name(), row.m_charset );
    EXPECT_EQ( choice.m_isNameUnknown, row.m_isNameUnknown );
    EXPECT_EQ( choice.m_isAssumed, row.m_isAssumed );
}

} // namespace PimManager::Contacts
