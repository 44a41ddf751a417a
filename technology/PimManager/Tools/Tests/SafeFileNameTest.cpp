#include "Outputs/SafeFileName.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Tools;

TEST( SafeFileNameTest, LettersAndDigitsOfAnyScriptStay )
{
    struct Row
    {
        const char* m_text;
        const char* m_name;
    };
    const std::vector<Row> rows = {
        { "Nell Brackwater", "Nell-Brackwater" },
        { "Siobhán Ó Wrenfield", "Siobhán-Ó-Wrenfield" },
        { "月見里 はるか", "月見里-はるか" },
        { "तारा मेघवन", "तारा-मेघवन" },
        { "  a  ", "a" },
        { "a -- b", "a-b" },
        { "../../etc/passwd", "etc-passwd" },
        { "/etc/passwd", "etc-passwd" },
        { "..", "contact" },
        { ".bashrc", "bashrc" },
        { "-rf", "rf" },
        { "", "contact" },
        { "\x1B[2J\x07", "2J" },
        { "a\nb\rc", "a-b-c" },
        { "\xE2\x80\xAE"
          "gpj.exe",
          "gpj-exe" },
        { "C:\\x", "C-x" },
        { "$(reboot)`x`;|&", "reboot-x" },
        { "\xF0\x9F\x94\xAD", "contact" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ToSafeFileName( QString::fromUtf8( row.m_text ) ).toStdString(), row.m_name );
}

TEST( SafeFileNameTest, LongNamesAreCutBetweenCharacters )
{
    for ( const char* letter : { "x", "é", "月", "\xF0\xA0\x80\x80", "x " } )
    {
        const QByteArray name = ToSafeFileName( QString::fromUtf8( letter ).repeated( 100000 ) );
        EXPECT_GT( name.size(), 90 ) << letter;
        EXPECT_LE( name.size(), 100 ) << letter;
        EXPECT_EQ( QString::fromUtf8( name ).toUtf8(), name ) << letter;
    }
}

TEST( SafeFileNameTest, HalvesOfSurrogatePairsAreNoCharacters )
{
    EXPECT_EQ( ToSafeFileName( QString( QChar( 0xD83D ) ) + QLatin1Char( 'a' ) ).toStdString(), "a" );
}
