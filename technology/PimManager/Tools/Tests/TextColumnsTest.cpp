#include "Terminal/TextColumns.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Tools;

TEST( TextColumnsTest, CharactersTakeNoneOneOrTwoColumns )
{
    struct Row
    {
        const char* m_text;
        int m_columns;
    };
    const std::vector<Row> rows = {
        { "", 0 },
        { "Nell", 4 },
        { "é", 1 },
        { "e\xCC\x81", 1 }, // a combining accent
        { "月見里", 6 },
        { "ｆｕ", 4 }, // full width
        { "가나", 4 },
        { "ﾊﾙｶ", 3 },              // half width
        { "\xF0\x9F\x94\xAD", 2 }, // a telescope
        { "\xE2\x80\x8Dx", 1 },    // a joiner
        { "ليلى", 4 },
        { "\xF0\xA0\x80\x80", 2 }, // beyond the first plane
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ColumnsOf( QString::fromUtf8( row.m_text ) ), row.m_columns ) << row.m_text;
}

TEST( TextColumnsTest, PaddingFillsColumnsAndCutsNothing )
{
    EXPECT_EQ( Utf8( Padded( QStringLiteral( "ab" ), 4 ) ), "ab  " );
    EXPECT_EQ( Utf8( Padded( QString::fromUtf8( "月" ), 4 ) ), "月  " );
    EXPECT_EQ( Utf8( Padded( QStringLiteral( "abcde" ), 4 ) ), "abcde" );
}

TEST( TextColumnsTest, LinesBreakAtBlanksElseBetweenCharacters )
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
