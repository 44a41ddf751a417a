// Qt 5 only, because Qt 6 has no codec for the locale.
#include "PimVCardLexer.h"

#include "PimVCardParserInspector.h"
#include "PimVCardTestText.h"
#include "PimVCardVocabulary.h"

#include <QTextCodec>

#include <gtest/gtest.h>

namespace PimManager::vCard
{

namespace
{

constexpr const char* s_kText = "ab\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";

struct LocaleRow
{
    const char* m_name;
    const char* m_codec;
};

void PrintTo( const LocaleRow& a_row, std::ostream* a_stream )
{
    *a_stream << a_row.m_codec;
}

/// Runs a test as if the system's locale had another encoding.
class TokenScannerLocaleTest : public testing::TestWithParam<LocaleRow>
{
protected:
    void SetUp() override
    {
        m_former = QTextCodec::codecForLocale();
        QTextCodec* const codec = QTextCodec::codecForName( GetParam().m_codec );
        ASSERT_NE( codec, nullptr );
        QTextCodec::setCodecForLocale( codec );
    }
    void TearDown() override { QTextCodec::setCodecForLocale( m_former ); }

private:
    QTextCodec* m_former = nullptr;
};

} // namespace

TEST_P( TokenScannerLocaleTest, TextIsReadAsUtf8 )
{
    const QByteArray text = QByteArray( s_kText ) + ";x";
    PimVCardLexer lexer( &text );
    EXPECT_EQ( lexer.GetToken( QRegularExpression( s_kValueCharPattern ), false ), Text( s_kText ) );
    EXPECT_EQ( lexer.m_stream.readAll(), Text( "x" ) );
}

TEST_P( TokenScannerLocaleTest, ParserPreparesAndReadsUtf8 )
{
    const PimVCardParser parser( QByteArray( s_kText ) + "\r\n " + s_kText );
    EXPECT_EQ( PimVCardParserInspector( parser ).Data(), QByteArray( s_kText ) + s_kText );
    EXPECT_EQ( PimVCardParserInspector( parser ).Lexer().m_stream.readAll(), Text( s_kText ) + Text( s_kText ) );
}

TEST_P( TokenScannerLocaleTest, PositionsAreThoseOfUtf8 )
{
    const QByteArray line = QByteArray( s_kText ) + "\r\n";
    const QByteArray text = line + "BEGIN\r\nx";
    PimVCardLexer lexer( &text );
    EXPECT_EQ( lexer.SeekToPattern( QRegularExpression( Text( "BEGIN" ) ) ), Text( "BEGIN" ) );
    EXPECT_EQ( lexer.m_stream.pos(), line.size() );
}

INSTANTIATE_TEST_SUITE_P( Encodings, TokenScannerLocaleTest,
                          testing::Values( LocaleRow{ "Latin1", "ISO-8859-1" }, LocaleRow{ "Ascii", "US-ASCII" },
                                           LocaleRow{ "Utf16", "UTF-16" }, LocaleRow{ "Utf8", "UTF-8" } ),
                          NameOf<LocaleRow> );

} // namespace PimManager::vCard
