#include "BookStyles.h"
#include "BookGenerator.h"
#include "MadeTextParse.h"

#include <gtest/gtest.h>

#include <QSet>

#include <algorithm>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr int s_kCards = 30;

QByteArray InStyle( const char* a_name, const QByteArray& a_book )
{
    const QList<BookStyle> styles = CleanStyles() + DamagedStyles();
    const auto found = std::find_if( styles.begin(), styles.end(),
                                     [=]( const BookStyle& a_style ) { return a_style.m_name == a_name; } );
    return found == styles.end() ? QByteArrayLiteral( "no such style" ) : found->m_convert( a_book );
}

const char* const s_kCard = "BEGIN:VCARD\r\n"
                            "VERSION:3.0\r\n"
                            "FN:Ada\r\n"
                            "NOTE:one two three four five six seven eight nine ten eleven twelve thirt\r\n"
                            " een fourteen fifteen\r\n"
                            "N;ENCODING=QUOTED-PRINTABLE:=41=\r\n"
                            "=42\r\n"
                            "END:VCARD\r\n";

struct StyleRow
{
    const char* m_name;
    const char* m_text;
};

const StyleRow s_kRows[] = {
    { "line-feeds", "BEGIN:VCARD\n"
                    "VERSION:3.0\n"
                    "FN:Ada\n"
                    "NOTE:one two three four five six seven eight nine ten eleven twelve thirt\n"
                    " een fourteen fifteen\n"
                    "N;ENCODING=QUOTED-PRINTABLE:=41=\n"
                    "=42\n"
                    "END:VCARD\n" },
    { "carriage-returns", "BEGIN:VCARD\r"
                          "VERSION:3.0\r"
                          "FN:Ada\r"
                          "NOTE:one two three four five six seven eight nine ten eleven twelve thirt\r"
                          " een fourteen fifteen\r"
                          "N;ENCODING=QUOTED-PRINTABLE:=41=\r"
                          "=42\r"
                          "END:VCARD\r" },
    { "tab-folds", "BEGIN:VCARD\r\n"
                   "VERSION:3.0\r\n"
                   "FN:Ada\r\n"
                   "NOTE:one two three four five six seven eight nine ten eleven twelve thirt\r\n"
                   "\teen fourteen fifteen\r\n"
                   "N;ENCODING=QUOTED-PRINTABLE:=41=\r\n"
                   "=42\r\n"
                   "END:VCARD\r\n" },
    { "folds-at-60", "BEGIN:VCARD\r\n"
                     "VERSION:3.0\r\n"
                     "FN:Ada\r\n"
                     "NOTE:one two three four five six seven eight nine ten eleve\r\n"
                     " n twelve thirteen fourteen fifteen\r\n"
                     "N;ENCODING=QUOTED-PRINTABLE:=41=\r\n"
                     "=42\r\n"
                     "END:VCARD\r\n" },
    { "folds-of-2.1", "BEGIN:VCARD\r\n"
                      "VERSION:2.1\r\n"
                      "FN:Ada\r\n"
                      "NOTE:one two three four five six seven eight nine ten eleven twelve\r\n"
                      " thirteen fourteen fifteen\r\n"
                      "N;ENCODING=QUOTED-PRINTABLE:=41=\r\n"
                      "=42\r\n"
                      "END:VCARD\r\n" },
    { "blanks-before-colons", "BEGIN:VCARD\r\n"
                              "VERSION:3.0\r\n"
                              "FN :Ada\r\n"
                              "NOTE :one two three four five six seven eight nine ten eleven twelve thirt\r\n"
                              " een fourteen fifteen\r\n"
                              "N;ENCODING=QUOTED-PRINTABLE :=41=\r\n"
                              "=42\r\n"
                              "END:VCARD\r\n" },
    { "all-of-them", "BEGIN:VCARD \n"
                     "VERSION:3.0\n"
                     "FN;;X_1=a :\x01\\qAda\n"
                     "NOTE;;X_1=a :\x01\\qone two three four five six seven eight nine ten eleven twelve thirt\n"
                     "een fourteen fifteen\n"
                     "N;ENCODING=QUOTED-PRINTABLE;;X_1=a :\x01\\q=41= \n"
                     " =42\n"
                     "END:VCARD \n" },
};

} // namespace

TEST( BookStylesTest, CardIsWrittenInTheStyle )
{
    for ( const StyleRow& row : s_kRows )
        EXPECT_EQ( QByteArray( row.m_text ), InStyle( row.m_name, s_kCard ) ) << row.m_name;
}

TEST( BookStylesTest, NamesAreDifferent )
{
    QSet<QByteArray> names;
    const QList<BookStyle> styles = CleanStyles() + DamagedStyles();
    for ( const BookStyle& style : styles )
        names.insert( style.m_name );
    EXPECT_EQ( styles.size(), names.size() );
}

TEST( BookStylesTest, EachStyleChangesABookAndKeepsItsBoundaries )
{
    const QByteArray book = BookGenerator().Book( BookKind::Text, s_kCards );
    const QList<BookStyle> styles = CleanStyles() + DamagedStyles();
    for ( const BookStyle& style : styles )
    {
        SCOPED_TRACE( style.m_name.constData() );
        const QByteArray styled = style.m_convert( book );
        EXPECT_NE( book, styled );
        EXPECT_EQ( s_kCards, styled.count( "BEGIN:VCARD" ) );
        EXPECT_EQ( s_kCards, styled.count( "END:VCARD" ) );
    }
}

// The component reads only CR LF, and folds of one blank or tab.
TEST( BookStylesTest, BooksWithOtherFoldsParseWhole )
{
    const QByteArray book = BookGenerator().Book( BookKind::Text, s_kCards );
    for ( const char* const name : { "tab-folds", "folds-at-60", "folds-of-2.1" } )
    {
        SCOPED_TRACE( name );
        const MadeTextParse parsed( InStyle( name, book ) );
        EXPECT_EQ( s_kCards, parsed.Cards().size() );
        EXPECT_EQ( 0, parsed.Failures() );
    }
}

} // namespace PimManager::vCard::MadeTexts
