#include "Terminal/TextColumns.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Tools;

TEST( TextColumnsTest, CharactersTakeNoneOneOrTwoColumns )
{
    struct Row
    {
        const char* m_name;
        const char* m_text;
        int m_columns;
    };
    const std::vector<Row> rows = {
        { "nothing", "", 0 },
        { "ASCII", "Nell", 4 },
        { "accent", "é", 1 },
        { "combining accent", "e\u0301", 1 },
        { "several marks", "q\u0323\u0307\u0301x", 2 },
        { "Han", "月見里", 6 },
        { "full width", "ｆｕ", 4 },
        { "half width", "ﾊﾙｶ", 3 },
        { "Hangul", "가나", 4 },
        { "Hangul of jamos", "\u1100\u1161\u11A8\u1102\u1161", 4 },
        { "Arabic", "ليلى", 4 },
        { "Hebrew with points", "ש\u05C1ל\u05D5\u05B9ם", 4 },
        { "Hindi", "तारा मेघवन", 7 },
        { "Thai", "น้ำ", 2 },
        { "beyond the first plane", "\U00020000", 2 },
        { "joiner alone", "\u200Dx", 1 },
        { "isolates", "\u2068ab\u2069", 2 },
        { "picture", "🔭", 2 },
        { "picture by selector", "❤\uFE0F", 2 },
        { "the same without selector", "❤", 1 },
        { "letter with selector", "a\uFE0F", 1 },
        { "skin tone", "👍🏽", 2 },
        { "skin tone of a narrow picture", "☝🏽", 2 },
        { "family", "👩\u200D👩\u200D👧\u200D👦", 2 },
        { "heart in a family", "👩\u200D❤\uFE0F\u200D👨", 2 },
        { "rainbow flag", "🏳\uFE0F\u200D🌈", 2 },
        { "flag", "🇸🇪", 2 },
        { "two flags", "🇸🇪🇩🇪", 4 },
        { "flag and a half", "🇸🇪🇩", 3 },
        { "key", "1\uFE0F\u20E3", 2 },
        { "name with pictures", "Bo 👩🏽\u200D🚀🇩🇪", 7 },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ColumnsOf( QString::fromUtf8( row.m_text ) ), row.m_columns ) << row.m_name << ": " << row.m_text;
}

TEST( TextColumnsTest, CutTextEndsInAnEllipsis )
{
    struct Row
    {
        const char* m_text;
        int m_columns;
        const char* m_cut;
    };
    const std::vector<Row> rows = {
        { "", 1, "" },          { "abcd", 4, "abcd" },     { "abcde", 4, "abc…" },
        { "abcde", 1, "…" },    { "月見里", 6, "月見里" }, { "月見里", 5, "月見…" },
        { "月見里", 4, "月…" }, { "a🇸🇪🇩🇪", 4, "a🇸🇪…" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( Cut( QString::fromUtf8( row.m_text ), row.m_columns ) ), row.m_cut )
            << row.m_text << row.m_columns;
}

TEST( TextColumnsTest, PaddingFillsColumnsAndCutsNothing )
{
    EXPECT_EQ( Utf8( Padded( QStringLiteral( "ab" ), 4 ) ), "ab  " );
    EXPECT_EQ( Utf8( Padded( QString::fromUtf8( "月" ), 4 ) ), "月  " );
    EXPECT_EQ( Utf8( Padded( QStringLiteral( "abcde" ), 4 ) ), "abcde" );
}

TEST( TextColumnsTest, LinesBreakAtBlanksAndPunctuationElseBetweenCharacters )
{
    struct Row
    {
        const char* m_text;
        int m_columns;
        const char* m_lines;
    };
    const std::vector<Row> rows = {
        { "", 4, "" },
        { "abcd", 4, "abcd" },
        { "abcd ", 4, "abcd " },
        { "ab cd", 4, "ab|cd" },
        { "ab cd ef", 5, "ab cd|ef" },
        { "abcdefghij", 4, "abcd|efgh|ij" },
        { "ab cdefgh", 4, "ab|cdef|gh" },
        { "月見里は", 4, "月見|里は" },
        { "月見里は", 5, "月見|里は" },
        { "a\xF0\x9F\x94\xAD\xF0\x9F\x94\xAD", 3, "a\xF0\x9F\x94\xAD|\xF0\x9F\x94\xAD" },
        { "e\xCC\x81"
          "e\xCC\x81"
          "e\xCC\x81",
          2,
          "e\xCC\x81"
          "e\xCC\x81|e\xCC\x81" },
        { "nell.brackwater@example.com", 16, "nell.brackwater|@example.com" },
        { "https://example.com/book", 20, "https://example.com/|book" },
        { "--max-cards --max-book-bytes", 20, "--max-cards|--max-book-bytes" },
        { "👩\u200D👩\u200D👧👩\u200D👩\u200D👧", 3, "👩\u200D👩\u200D👧|👩\u200D👩\u200D👧" },
    };
    for ( const Row& row : rows )
    {
        const QStringList lines = Wrapped( QString::fromUtf8( row.m_text ), row.m_columns );
        EXPECT_EQ( Utf8( lines.join( QLatin1Char( '|' ) ) ), row.m_lines ) << row.m_text << row.m_columns;
    }
}

TEST( TextColumnsTest, WrappedTextLosesOnlyTheBlanksAtBreaks )
{
    const QString text = QStringLiteral( "one two  three,four 5" ).repeated( 20 );
    for ( int columns = 2; columns < 30; ++columns )
    {
        const QStringList lines = Wrapped( text, columns );
        EXPECT_EQ( Utf8( lines.join( QString() ).remove( QLatin1Char( ' ' ) ) ),
                   Utf8( QString( text ).remove( QLatin1Char( ' ' ) ) ) );
        for ( const QString& line : lines )
            EXPECT_LE( ColumnsOf( line.trimmed() ), columns ) << Utf8( line );
    }
}

TEST( TextColumnsTest, WidestPartIsWhatIsBrokenOnlyBetweenCharacters )
{
    struct Row
    {
        const char* m_text;
        int m_columns;
    };
    const std::vector<Row> rows = { { "", 0 },
                                    { "Nell", 4 },
                                    { "Nell Brackwater", 10 },
                                    { "nell@example.com work", 12 },
                                    { "+1-555-0100 cell", 11 },
                                    { "messy-book.vcf", 14 },
                                    { "月見里 はる", 6 } };
    for ( const Row& row : rows )
        EXPECT_EQ( WidestPart( QString::fromUtf8( row.m_text ) ), row.m_columns ) << row.m_text;
}

TEST( TextColumnsTest, IsolatesEndWithTheLine )
{
    EXPECT_EQ( Utf8( Wrapped( QString::fromUtf8( "x \u2068ליאור בן\u2069 y" ), 8 ).join( QLatin1Char( '|' ) ) ),
               "x \u2068ליאור\u2069|\u2068בן\u2069 y" );
}

TEST( TextColumnsTest, LongWordsAreWrapped )
{
    constexpr int s_kLetters = 1'000'000;
    EXPECT_EQ( Wrapped( QString( s_kLetters, QLatin1Char( 'x' ) ), 20 ).size(), s_kLetters / 20 );
    const QString marks = QLatin1Char( 'e' ) + QString( s_kLetters, QChar( 0x301 ) );
    EXPECT_EQ( Wrapped( marks, 20 ), QStringList( marks ) );
}
