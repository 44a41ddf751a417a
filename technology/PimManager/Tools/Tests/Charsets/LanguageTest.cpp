#include "Charsets/Language.h"

#include <gtest/gtest.h>

using namespace PimManager::Tools;

namespace
{

const Language& Letters()
{
    static const Language s_language( Script::Latin, u"/é/è/ç" );
    return s_language;
}

Fit FitOf( const Language& a_language, const char* a_word )
{
    return a_language.FitOf( QString::fromUtf8( a_word ) );
}

} // namespace

TEST( LanguageTest, CommonLettersCostLess )
{
    const int common = FitOf( Letters(), "é" ).m_cost;
    const int usual = FitOf( Letters(), "è" ).m_cost;
    const int rare = FitOf( Letters(), "ç" ).m_cost;
    const int unusual = FitOf( Letters(), "ž" ).m_cost;
    const int symbol = FitOf( Letters(), "¤" ).m_cost;
    const int noText = FitOf( Letters(), "\xC2\x81" ).m_cost;
    EXPECT_LT( FitOf( Letters(), "e" ).m_cost, common );
    EXPECT_LT( common, usual );
    EXPECT_LT( usual, rare );
    EXPECT_LT( rare, unusual );
    EXPECT_LT( unusual, symbol );
    EXPECT_LT( symbol, noText );
}

TEST( LanguageTest, CapitalsCostTheSame )
{
    EXPECT_EQ( FitOf( Letters(), "É" ).m_cost, FitOf( Letters(), "é" ).m_cost );
}

TEST( LanguageTest, OddNeighboursCostMore )
{
    const Language cyrillic( Script::Alphabet, u"ж" );
    const Language japanese( Script::Japanese, u"山" );
    struct Row
    {
        const char* m_name;
        const Language& m_language;
        const char* m_odd;
        const char* m_usual;
    };
    for ( const Row& row :
          { Row{ "capital in a word", Letters(), "bÉd", "béd" }, Row{ "three vowels", Letters(), "aéo", "béo" },
            Row{ "three consonants", Letters(), "bçd", "açd" }, Row{ "two alphabets", cyrillic, "жb", "b ж" },
            Row{ "Kanji behind a small letter", japanese, "b山", "B山" },
            Row{ "Kanji before a small letter", japanese, "山b", "山B" } } )
        EXPECT_GT( FitOf( row.m_language, row.m_odd ).m_cost, FitOf( row.m_language, row.m_usual ).m_cost )
            << row.m_name;
}

TEST( LanguageTest, SymbolInAWordCostsMoreThanBehindIt )
{
    EXPECT_GT( FitOf( Letters(), "a\u201Db" ).m_cost, FitOf( Letters(), "ab\u201D" ).m_cost );
    EXPECT_EQ( FitOf( Letters(), "a\u2019b" ).m_cost, FitOf( Letters(), "ab\u2019" ).m_cost );
}

TEST( LanguageTest, OnlyCharactersBeyondAsciiAreWide )
{
    const Fit fit = FitOf( Letters(), "café-bébé" );
    EXPECT_EQ( fit.m_wide, 3 );
    EXPECT_EQ( fit.m_wideCost, 3 * FitOf( Letters(), "é" ).m_cost );
    EXPECT_EQ( fit.m_cost, fit.m_wideCost + 5 * FitOf( Letters(), "e" ).m_cost );
}

TEST( LanguageTest, UnusualLettersAreNotCommon )
{
    EXPECT_TRUE( Letters().IsCommon( FitOf( Letters(), "éé" ) ) );
    EXPECT_FALSE( Letters().IsCommon( FitOf( Letters(), "žš" ) ) );
}

TEST( LanguageTest, KanaAreKnownWithoutAList )
{
    const Language japanese( Script::Japanese, u"山" );
    for ( const char* const kana : { "あ", "ア", "ー", "ｱ" } )
        EXPECT_TRUE( japanese.IsCommon( FitOf( japanese, kana ) ) ) << kana;
}
