// What the scanner gives holds, and each rule about it is broken once.

#include "TokenCheck.h"

#include "PimVCardTestText.h"
#include "PimVCardVocabulary.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

using Call = PimVCardScannerCall;

TakenTokens Take( const QByteArray& a_text, const QString& a_pattern, const QList<PimVCardScannerStep>& a_steps )
{
    return TakeTokens( a_text, { { { a_pattern } }, a_steps } );
}

} // namespace

TEST( TokenCheckTest, TokensAreTakenInOrder )
{
    const TakenTokens taken = Take( "ab\\,cd", Text( "[a-z,]" ), { { Call::Single }, { Call::Run }, { Call::Run } } );
    EXPECT_EQ( taken.m_tokens, QStringList( { Text( "a" ), Text( "b,cd" ) } ) );
    EXPECT_EQ( taken.m_singles, QStringList( Text( "a" ) ) );
}

TEST( TokenCheckTest, EndOfTextIsNoToken )
{
    EXPECT_EQ( Take( "", Text( "(?s)." ), { { Call::Single } } ).m_tokens, QStringList() );
    EXPECT_EQ( Take( "B\\", Text( "." ), { { Call::Run } } ).m_tokens, QStringList( Text( "B" ) ) );
}

TEST( TokenCheckTest, LineIsSoughtAndEndsTheScript )
{
    const TakenTokens taken = Take( "x\r\nyb\r\nz\r\n", Text( "b" ), { { Call::Seek }, { Call::Run } } );
    EXPECT_EQ( taken.m_line, Text( "yb" ) );
    EXPECT_EQ( taken.m_tokens, QStringList() );
}

TEST( TokenCheckTest, TokensOfTheScannerHold )
{
    const QList<PimVCardScannerStep> steps = {
        { Call::Run }, { Call::Single }, { Call::Run }, { Call::Single }, { Call::Seek } };
    for ( const char* text : { "", "abc", "a\\,b\\\\c;d", "\\\\\\", "\u20AC\u00E9", "x\r\nbcd\r\nz\r\n", "B\\\xEE" } )
    {
        for ( const QString& pattern : { s_kValueCharPattern, s_kNamePattern, Text( "." ), Text( "" ), Text( "(" ) } )
            EXPECT_EQ( CheckTokens( text, Take( text, pattern, steps ) ), Violation() )
                << text << ' ' << pattern.toStdString();
    }
}

TEST( TokenCheckTest, TokenFromNowhereIsReported )
{
    TakenTokens taken;
    taken.m_tokens = QStringList( Text( "x" ) );
    EXPECT_EQ( CheckTokens( "abc", taken ), Text( "every text stands in the prepared text, in order: \"x\"" ) );
}

TEST( TokenCheckTest, LongSingleTokenIsReported )
{
    TakenTokens taken;
    taken.m_singles = QStringList( Text( "ab" ) );
    EXPECT_EQ( CheckTokens( "abc", taken ), Text( "a single token is one character: \"ab\"" ) );
}

TEST( TokenCheckTest, LineFromNowhereIsReported )
{
    TakenTokens taken;
    taken.m_line = Text( "x" );
    EXPECT_EQ( CheckTokens( "abc", taken ), Text( "a sought line stands in the text: \"x\"" ) );
}

TEST( TokenCheckTest, LineWithoutMatchIsReported )
{
    TakenTokens taken;
    taken.m_line = Text( "ab" );
    taken.m_lineExpression.setPattern( Text( "c" ) );
    EXPECT_EQ( CheckTokens( "ab\r\n", taken ), Text( "a sought line holds a match: \"ab\"" ) );
}

} // namespace PimManager::vCard::Fuzz
