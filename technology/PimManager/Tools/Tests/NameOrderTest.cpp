#include "Page/NameOrder.h"

#include "ToolsTestText.h"

#include <algorithm>
#include <vector>

using namespace PimManager::Tools;

TEST( NameOrderTest, SectionIsTheFirstLetter )
{
    struct Row
    {
        const char16_t* m_name;
        const char16_t* m_section;
    };
    const std::vector<Row> rows = {
        { u"nell", u"N" },       { u"Ångström", u"A" }, { u"Østby", u"Ø" },    { u"Łukasz", u"Ł" },
        { u"ısmail", u"I" },     { u"İsmail", u"I" },   { u"Ｎｅｌｌ", u"N" }, { u"'t Hooft", u"T" },
        { u"(Dr.) Nell", u"D" }, { u"🏠 Home", u"H" },   { u"Άννα", u"Α" },     { u"ёлка", u"Е" },
        { u"дом", u"Д" },        { u"דנה", u"ד" },      { u"أحمد", u"ا" },     { u"ليلى", u"ل" },
        { u"नीला", u"न" },       { u"ก้อง", u"ก" },      { u"さくら", u"さ" },  { u"ザクロ", u"さ" },
        { u"ﾀﾛｳ", u"た" },       { u"ぁ", u"あ" },      { u"ん", u"わ" },      { u"月見里", u"漢" },
        { u"김민수", u"ㄱ" },    { u"까치", u"ㄱ" },    { u"박지은", u"ㅂ" },  { u"하나", u"ㅎ" },
        { u"𐐨𐐩", u"𐐀" },         { u"112", u"#" },      { u"24h Taxi", u"#" }, { u"+1 555", u"#" },
        { u"", u"#" },           { u"...", u"#" },      { u"🏠", u"#" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( PlaceOf( QString::fromUtf16( row.m_name ) ).m_section ),
                   Utf8( QString::fromUtf16( row.m_section ) ) )
            << Utf8( QString::fromUtf16( row.m_name ) );
}

TEST( NameOrderTest, LoneSurrogateIsNoLetter )
{
    EXPECT_EQ( Utf8( PlaceOf( QString( QChar( 0xD800 ) ) ).m_section ), "#" );
}

TEST( NameOrderTest, OrderIsThatOfLettersScriptsAndTheRest )
{
    const std::vector<const char16_t*> sorted = { u"abel Zoe", u"Ábelard", u"Abt",    u"Zimmer", u"Østby", u"Άννα",
                                                  u"дом",      u"ليلى",    u"さくら", u"月見里", u"112",   u"911" };
    for ( size_t i = 0; i + 1 < sorted.size(); ++i )
    {
        const NamePlace place = PlaceOf( QString::fromUtf16( sorted[i] ) );
        const NamePlace next = PlaceOf( QString::fromUtf16( sorted[i + 1] ) );
        EXPECT_TRUE( place < next ) << i;
        EXPECT_FALSE( next < place ) << i;
        EXPECT_FALSE( place < place ) << i;
    }
}

TEST( NameOrderTest, AccentsAndLettersCaseMakeNoDifference )
{
    const NamePlace place = PlaceOf( QStringLiteral( u"Ångström" ) );
    const NamePlace other = PlaceOf( QStringLiteral( u"angstrom" ) );
    EXPECT_FALSE( place < other );
    EXPECT_FALSE( other < place );
}
