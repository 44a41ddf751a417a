#include "Terminal/TerminalText.h"

#include "Terminal/CodePoints.h"
#include "ToolsTestText.h"

#include <QVector>

using namespace PimManager::Tools;

namespace
{

struct Row
{
    QString m_text;
    std::string m_shown;
};

const QVector<Row>& DangerousTexts()
{
    static const QVector<Row> s_kRows = {
        { QStringLiteral( "\u001B[31mred" ), "\\x1b[31mred" },
        { QStringLiteral( "\u0007" ), "\\x07" },
        { QString( QChar( 0 ) ), "\\x00" },
        { QStringLiteral( "a\r\n\tb" ), R"(a\r\n\tb)" },
        { QStringLiteral( "\u007F" ), "\\x7f" },
        { QString( QChar( 0x9B ) ) + QStringLiteral( "2J" ), "\\x9b2J" },
        { QString( QChar( 0x85 ) ), "\\x85" },
        { QString( QChar( 0xAD ) ), "\\xad" },
        { QString( QChar( 0x202E ) ) + QStringLiteral( "gnp.exe" ), "\\u202egnp.exe" },
        { QString( QChar( 0x2066 ) ), "\\u2066" },
        { QString( QChar( 0x200F ) ), "\\u200f" },
        { QString( QChar( 0x061C ) ), "\\u061c" },
        { QString( QChar( 0x2028 ) ) + QChar( 0x2029 ), "\\u2028\\u2029" },
        { QString( QChar( 0xFEFF ) ), "\\ufeff" },
        { QString( QChar( 0xFFFF ) ), "\\uffff" },
        { QString( QChar( 0xD83D ) ), "\\ud83d" },
        { QString( QChar( 0xDE00 ) ) + QChar( 0xD83D ), "\\ude00\\ud83d" },
        { QString::fromUtf8( "\xF3\xA0\x80\x81" ), "\\u{e0001}" },
    };
    return s_kRows;
}

} // namespace

TEST( TerminalTextTest, UnsafeCharactersAreShownEscaped )
{
    for ( const Row& row : DangerousTexts() )
        EXPECT_EQ( Utf8( ToTerminalText( row.m_text ) ), row.m_shown );
}

TEST( TerminalTextTest, ValuesEscapeTheSameCharacters )
{
    for ( const Row& row : DangerousTexts() )
        EXPECT_EQ( Utf8( ToTerminalValue( row.m_text ) ), row.m_shown );
}

TEST( TerminalTextTest, OrdinaryTextStays )
{
    for ( const char* text : { "", "Nell Brackwater", "a\\b;c", "Δάφνη Ανεμόμυλου", "Зинаида", "月見里", "ليلى", "तारा",
                               "e\xCC\x81", "\xF0\x9F\x94\xAD", "\xE2\x80\xA6" } )
        EXPECT_EQ( Utf8( ToTerminalText( QString::fromUtf8( text ) ) ), text );
}

TEST( TerminalTextTest, JoinersStay )
{
    const QString text = QString( QChar( 0x200C ) ) + QChar( 0x200D );
    EXPECT_EQ( Utf8( ToTerminalText( text ) ), Utf8( text ) );
}

TEST( TerminalTextTest, BackslashAndSemicolonOfAValueAreTold )
{
    EXPECT_EQ( Utf8( ToTerminalValue( QStringLiteral( "a;b\\c" ) ) ), "a\\;b\\\\c" );
    EXPECT_EQ( Utf8( ToTerminalValue( QStringLiteral( "\\x1b" ) ) ), "\\\\x1b" );
}

TEST( TerminalTextTest, EveryCharacterIsShownHarmless )
{
    for ( char32_t code = 0; code <= 0x10FFFF; ++code )
    {
        const QString text = QChar::requiresSurrogates( code ) ? QString::fromUcs4( &code, 1 )
                                                               : QString( QChar( static_cast<ushort>( code ) ) );
        ASSERT_TRUE( IsHarmless( Utf8( ToTerminalText( text ) ) ) )
            << "U+" << std::hex << static_cast<unsigned>( code );
    }
}

TEST( TerminalTextTest, FileNameIsShownAsUtf8 )
{
    EXPECT_EQ( Utf8( ToShownFileName( "b\xC3\xBC"
                                      "cher.vcf" ) ),
               "b\xC3\xBC"
               "cher.vcf" );
    EXPECT_EQ( Utf8( ToShownFileName( "a\xFF"
                                      "b" ) ),
               "a\xEF\xBF\xBD"
               "b" );
    EXPECT_EQ( Utf8( ToShownFileName( "a\x1B[2J\n" ) ), "a\\x1b[2J\\n" );
    EXPECT_EQ( Utf8( ToShownFileName( QByteArray() ) ), "\"\"" );
}
