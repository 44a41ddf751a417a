// Which texts count as standing in their source, and which do not.

#include "TextOrigin.h"

#include "PimVCardTestText.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

struct OriginRow
{
    const char* m_name;
    TextChange m_change;
    const char* m_source;
    QStringList m_texts;
    bool m_stands;
};

// Found by googletest, which would show the bytes of a row, those between its members included.
void PrintTo( const OriginRow& a_row, std::ostream* a_stream )
{
    *a_stream << a_row.m_name;
}

QStringList Texts( const QList<const char*>& a_texts )
{
    QStringList texts;
    for ( const char* text : a_texts )
        texts.append( Text( text ) );
    return texts;
}

class TextOriginTest : public testing::TestWithParam<OriginRow>
{
};

constexpr TextChange s_kResults = TextChange::Results;
constexpr TextChange s_kTokens = TextChange::Tokens;

} // namespace

TEST_P( TextOriginTest, TextIsFoundOrNot )
{
    const OriginRow& row = GetParam();
    EXPECT_EQ( CheckOrigin( Text( row.m_source ), row.m_texts, row.m_change ).isEmpty(), row.m_stands );
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextOriginTest,
    testing::Values( OriginRow{ "NoText", s_kResults, "", {}, true }, //
                     OriginRow{ "WholeSource", s_kResults, "abc", Texts( { "abc" } ), true },
                     OriginRow{ "Inside", s_kResults, "abcd", Texts( { "bc" } ), true },
                     OriginRow{ "EmptySource", s_kResults, "", Texts( { "a" } ), false },
                     OriginRow{ "OtherText", s_kResults, "abcd", Texts( { "bd" } ), false },
                     OriginRow{ "CutOff", s_kResults, "abc", Texts( { "abcd" } ), false },
                     OriginRow{ "InOrder", s_kResults, "item.TEL:1", Texts( { "item", "TEL", "1" } ), true },
                     OriginRow{ "OutOfOrder", s_kResults, "item.TEL:1", Texts( { "TEL", "item" } ), false },
                     OriginRow{ "TwiceButThereOnce", s_kResults, "abc", Texts( { "b", "b" } ), false },
                     OriginRow{ "Overlapping", s_kResults, "abc", Texts( { "ab", "bc" } ), false },
                     OriginRow{ "EscapesTaken", s_kResults, "a\\,b\\;c\\:d\\\\e", Texts( { "a,b;c:d\\e" } ), true },
                     OriginRow{ "EscapesKept", s_kResults, "\"\\\"", Texts( { "\"\\\"" } ), true },
                     OriginRow{ "DelimiterEscaped", s_kResults, "a\\.b \"c\\\"", Texts( { "a.b", "\"c\"" } ), true },
                     OriginRow{ "OtherEscape", s_kResults, "a\\nb", Texts( { "anb" } ), false },
                     OriginRow{ "EscapeThatIsNotThere", s_kResults, "a,b", Texts( { "a\\,b" } ), false },
                     OriginRow{ "SoftBreak", s_kResults, "ab=\r\ncd", Texts( { "abcd" } ), true },
                     OriginRow{ "SoftBreaks", s_kResults, "ab=\r\n=\r\ncd=\r\n;e", Texts( { "abcd", "e" } ), true },
                     OriginRow{ "SoftBreakThenBackslash", s_kResults, "ab=\r\n\\cd", Texts( { "abcd" } ), true },
                     OriginRow{ "BreakWithoutEquals", s_kResults, "ab\r\ncd", Texts( { "abcd" } ), false },
                     OriginRow{ "SoftBreakWithLf", s_kResults, "ab=\ncd", Texts( { "abcd" } ), false },
                     OriginRow{ "EqualsBeforeLineEnd", s_kResults, "a=\r\n", Texts( { "a=" } ), true },
                     OriginRow{ "EqualsDoubled", s_kResults, "a==\r\nb", Texts( { "a=b" } ), true },
                     OriginRow{ "TokenWithAnyEscape", s_kTokens, "a\\nb", Texts( { "anb" } ), true },
                     OriginRow{ "TokenWithSoftBreak", s_kTokens, "a=\r\nb", Texts( { "ab" } ), false },
                     OriginRow{ "BackslashesOneByOne", s_kTokens, "\\\\", Texts( { "\\", "\\" } ), true },
                     OriginRow{ "BackslashPair", s_kTokens, "a\\\\b", Texts( { "a\\b" } ), true },
                     OriginRow{ "MoreBackslashes", s_kTokens, "a\\b", Texts( { "a\\\\b" } ), false } ),
    NameOf<OriginRow> );

TEST( TextOriginTest, ViolationNamesTheText )
{
    EXPECT_EQ( CheckOrigin( Text( "ab" ), Texts( { "a", "c" } ), s_kResults ),
               Text( "every text stands in the prepared text, in order: \"c\"" ) );
}

} // namespace PimManager::vCard::Fuzz
