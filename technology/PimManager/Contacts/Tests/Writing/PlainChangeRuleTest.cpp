#include "Writing/PlainChangeRule.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr PimContactVersion s_k21 = PimContactVersion::V21;
constexpr PimContactVersion s_k30 = PimContactVersion::V30;
constexpr PimContactVersion s_k40 = PimContactVersion::V40;

PlainChangeRule RuleOf( std::string_view a_name, std::string_view a_parameters, VersionStep a_step )
{
    return PlainChangeRule::Of( PropertyOf( a_name ), a_name, a_parameters, a_step );
}

struct HeadRow
{
    std::string_view m_name;
    std::string_view m_parameters;
    VersionStep m_step;
    bool m_isAllowed;
};

std::ostream& operator<<( std::ostream& a_stream, const HeadRow& a_row )
{
    return a_stream << a_row.m_name << a_row.m_parameters << " to " << static_cast<int>( a_row.m_step.m_target );
}

const std::vector<HeadRow> s_kHeads = {
    { "FN", "", { s_k30, s_k21 }, true },
    { "FN", "", { s_k30, s_k30 }, false },
    { "fn", "", { s_k21, s_k40 }, true },
    { "TEL", ";TYPE=HOME,pref;type=x-a", { s_k30, s_k40 }, true },
    { "TEL", ";HOME;X-A", { s_k21, s_k30 }, true },
    { "TEL", ";HOME;8BIT", { s_k21, s_k30 }, false },
    { "TEL", ";URL", { s_k21, s_k30 }, false },
    { "TEL", ";X-SJIS", { s_k21, s_k30 }, false },
    { "TEL", ";TYPE=\"a,b\"", { s_k30, s_k40 }, false },
    { "TEL", ";PREF=1", { s_k40, s_k30 }, false },
    { "TEL", ";VALUE=text", { s_k40, s_k30 }, false },
    { "NOTE", ";LANGUAGE=de", { s_k30, s_k21 }, false },
    { "NICKNAME", "", { s_k30, s_k40 }, true },
    { "NICKNAME", "", { s_k30, s_k21 }, false },
    { "X-NICKNAME", "", { s_k21, s_k30 }, false },
    { "BDAY", "", { s_k30, s_k40 }, false },
    { "GEO", "", { s_k30, s_k40 }, false },
    { "LABEL", "", { s_k30, s_k21 }, false },
    { "UID", "", { s_k30, s_k40 }, false },
    { "PHOTO", "", { s_k30, s_k40 }, false },
    { "X-A", "", { s_k30, s_k40 }, false },
};

class PlainChangeHeadTest : public testing::TestWithParam<HeadRow>
{
};

INSTANTIATE_TEST_SUITE_P( Heads, PlainChangeHeadTest, testing::ValuesIn( s_kHeads ) );

struct ValueRow
{
    std::string_view m_name;
    VersionStep m_step;
    std::string_view m_value;
    bool m_isKept;
};

std::ostream& operator<<( std::ostream& a_stream, const ValueRow& a_row )
{
    return a_stream << a_row.m_name << ':' << a_row.m_value << " to " << static_cast<int>( a_row.m_step.m_target );
}

const std::vector<ValueRow> s_kValues = {
    { "FN", { s_k30, s_k21 }, "a;b,c", true },
    { "FN", { s_k30, s_k21 }, "a\\,b", false },
    { "FN", { s_k30, s_k40 }, "a b", true },
    { "FN", { s_k30, s_k40 }, "", true },
    { "FN", { s_k30, s_k40 }, "a;b", false },
    { "FN", { s_k30, s_k40 }, "a,b", false },
    { "FN", { s_k30, s_k40 }, R"(a\,b\;c\n)", true },
    { "FN", { s_k30, s_k40 }, "\\", false },
    { "FN", { s_k30, s_k40 }, "a\\N", false },
    { "FN", { s_k30, s_k40 }, "a\\:b", false },
    { "FN", { s_k30, s_k40 }, "a\\\\,b", false },
    { "URL", { s_k30, s_k40 }, "http://a.example/b;c,d", true },
    { "URL", { s_k30, s_k40 }, "http://a.example/b\\,d", false },
    { "TEL", { s_k40, s_k30 }, "tel:1", false },
    { "TEL", { s_k30, s_k40 }, "tel:1", true },
    { "NICKNAME", { s_k30, s_k40 }, "a,b,", true },
    { "NICKNAME", { s_k30, s_k40 }, "a;b", false },
    { "N", { s_k30, s_k21 }, "a;b;;;c", true },
    { "N", { s_k30, s_k21 }, "a;b,c;;;", false },
    { "N", { s_k30, s_k21 }, "a;b;;;;d", false },
    { "N", { s_k30, s_k40 }, "a;b,c;;;", true },
    { "N", { s_k30, s_k40 }, "a;b", false },
    { "N", { s_k21, s_k30 }, "a;b", true },
    { "N", { s_k21, s_k30 }, "a;b,c", false },
    { "ADR", { s_k30, s_k40 }, ";;a\\;b;c;d;e;f", true },
    { "ADR", { s_k30, s_k40 }, ";;a\\;b;c;d;e", false },
    { "ADR", { s_k40, s_k30 }, ";;a;b;c;d;e;f", false },
    { "ORG", { s_k30, s_k21 }, "a, b;c", true },
    { "ORG", { s_k30, s_k40 }, "a, b;c", false },
    { "ORG", { s_k30, s_k40 }, "a;;;;;;;;;;;;;;;;;;;;;c", true },
};

class PlainChangeValueTest : public testing::TestWithParam<ValueRow>
{
};

INSTANTIATE_TEST_SUITE_P( Values, PlainChangeValueTest, testing::ValuesIn( s_kValues ) );

} // namespace

TEST_P( PlainChangeHeadTest, RuleAllowsWordsOfTypeOnly )
{
    const HeadRow& row = GetParam();
    EXPECT_EQ( RuleOf( row.m_name, row.m_parameters, row.m_step ).m_isAllowed, row.m_isAllowed );
}

TEST_P( PlainChangeValueTest, ValueIsKeptIfTheTargetWritesItLikeThis )
{
    const ValueRow& row = GetParam();
    const PlainChangeRule rule = RuleOf( row.m_name, {}, row.m_step );
    ASSERT_TRUE( rule.m_isAllowed );
    EXPECT_EQ( rule.Keeps( row.m_value ), row.m_isKept );
}

TEST( PlainChangeRuleTest, TargetSaysHowManyComponentsThereMayBe )
{
    const PlainChangeRule address = RuleOf( "ADR", {}, { s_k30, s_k40 } );
    EXPECT_FALSE( address.MayHave( 6 ) );
    EXPECT_TRUE( address.MayHave( 7 ) );
    EXPECT_TRUE( address.MayHave( 18 ) );
    EXPECT_FALSE( address.MayHave( 19 ) );
    EXPECT_TRUE( RuleOf( "ORG", {}, { s_k30, s_k40 } ).MayHave( 1000 ) );
}

} // namespace PimManager::Contacts
