#include "PimVCardLexer.h"

#include "PimVCardParserInspector.h"
#include "PimVCardTestLog.h"
#include "PimVCardTestText.h"
#include "PimVCardVocabulary.h"

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::vCard
{

namespace
{

// One character for each UTF-8 length of more than one byte. The last has two UTF-16 units.
constexpr const char* s_kTwoBytes = "\xC3\xA9";
constexpr const char* s_kThreeBytes = "\xE2\x82\xAC";
constexpr const char* s_kFourBytes = "\xF0\x9F\x98\x80";
constexpr const char* s_kByteOrderMark = "\xEF\xBB\xBF";

constexpr ushort s_kByteOrderMarkUnit = 0xFEFF;
constexpr ushort s_kLastUnit = 0xFFFF;

/// A text and a scanner for it.
class Scanner
{
public:
    explicit Scanner( const QByteArray& a_text ) :
        m_text( a_text ),
        m_lexer( &m_text )
    {
    }

    QString Run( const QString& a_pattern ) { return m_lexer.GetToken( QRegularExpression( a_pattern ), false ); }
    QString Single( const QString& a_pattern ) { return m_lexer.GetToken( QRegularExpression( a_pattern ), true ); }
    QString Seek( const QString& a_pattern ) { return m_lexer.SeekToPattern( QRegularExpression( a_pattern ) ); }

    QChar Next() const { return m_lexer.m_nextChar; }
    qint32 LineNumber() const { return m_lexer.m_lineNumber; }
    qint64 Position() const { return m_lexer.m_stream.pos(); }
    PimVCardLexer& Lexer() { return m_lexer; }

    /// Everything that is in no token yet: the look-ahead, if there is one, and the rest of the text. Reads the rest.
    QString Left()
    {
        const QString lookAhead = Next().isNull() ? QString() : QString( Next() );
        return lookAhead + m_lexer.m_stream.readAll();
    }

private:
    const QByteArray m_text;
    PimVCardLexer m_lexer;
};

/// The complete text of UTF-8 bytes. QString::fromUtf8() alone skips a byte order mark and ends at a NUL.
QString WholeText( const QByteArray& a_bytes )
{
    return QString::fromUtf8( ( 'x' + a_bytes ).constData(), a_bytes.size() + 1 ).mid( 1 );
}

struct TokenRow
{
    const char* m_name;
    QByteArray m_text;
    QString m_pattern;
    QByteArray m_token;
    QByteArray m_left;
    qint32 m_lineNumber = 1;
};

void PrintTo( const TokenRow& a_row, std::ostream* a_stream )
{
    *a_stream << Escaped( a_row.m_text ) << " with " << Escaped( a_row.m_pattern );
}

struct SeekRow
{
    const char* m_name;
    QByteArray m_text;
    const char* m_line;
    qint64 m_position;
    qint32 m_lineNumber;
};

void PrintTo( const SeekRow& a_row, std::ostream* a_stream )
{
    *a_stream << Escaped( a_row.m_text );
}

/// A token pattern, and the characters that it accepts as an independent rule.
struct PatternRow
{
    const char* m_name;
    QString m_pattern;
    bool ( *m_accepts )( ushort a_unit );
    /// One of the characters that it accepts.
    char m_sample;
};

void PrintTo( const PatternRow& a_row, std::ostream* a_stream )
{
    *a_stream << Escaped( a_row.m_pattern );
}

struct StatusRow
{
    const char* m_name;
    QTextStream::Status m_status;
    const char* m_message;
};

void PrintTo( const StatusRow& a_row, std::ostream* a_stream )
{
    *a_stream << a_row.m_message;
}

class TokenScannerRunTest : public testing::TestWithParam<TokenRow>
{
};

class TokenScannerSeekTest : public testing::TestWithParam<SeekRow>
{
};

class TokenScannerPatternTest : public testing::TestWithParam<PatternRow>
{
};

class TokenScannerStatusTest : public testing::TestWithParam<StatusRow>
{
};

bool IsBetween( ushort a_unit, ushort a_first, ushort a_last )
{
    return a_unit >= a_first && a_unit <= a_last;
}

bool IsLetterOrDigit( ushort a_unit )
{
    return IsBetween( a_unit, 'a', 'z' ) || IsBetween( a_unit, 'A', 'Z' ) || IsBetween( a_unit, '0', '9' );
}

bool IsName( ushort a_unit )
{
    return IsLetterOrDigit( a_unit ) || a_unit == '-';
}

bool IsBase64( ushort a_unit )
{
    return IsLetterOrDigit( a_unit ) || a_unit == '+' || a_unit == '/' || a_unit == '=';
}

bool IsLineBreak( ushort a_unit )
{
    return IsBetween( a_unit, 0x0A, 0x0D ) || a_unit == 0x85 || a_unit == 0x2028 || a_unit == 0x2029;
}

// Printable ASCII, the blank, the tab, and everything above ASCII.
bool IsText( ushort a_unit )
{
    return a_unit == '\t' || ( a_unit >= ' ' && a_unit != 0x7F );
}

bool IsQuotedText( ushort a_unit )
{
    return IsText( a_unit ) && a_unit != '"';
}

bool IsValue( ushort a_unit )
{
    return ( IsText( a_unit ) && a_unit != ';' && a_unit != '\\' ) || a_unit == '\n';
}

bool IsValueEscape( const QString& a_pattern, ushort a_unit )
{
    return a_pattern == s_kValueCharPattern && ( a_unit == '\\' || a_unit == ',' || a_unit == ';' || a_unit == ':' );
}

bool IsAcceptedInRun( const PatternRow& a_row, ushort a_unit )
{
    if ( a_unit == s_kByteOrderMarkUnit )
        return false;
    return a_row.m_accepts( QChar::isSurrogate( a_unit ) ? ushort( '?' ) : a_unit );
}

QString NameOfUnit( int a_unit )
{
    return QString::number( a_unit, 16 );
}

const auto s_kVocabularyPatterns = testing::Values(
    PatternRow{ "Colon", s_kColonPattern, []( ushort a_unit ) { return a_unit == ':'; }, ':' },
    PatternRow{ "Semicolon", s_kSemicolonPattern, []( ushort a_unit ) { return a_unit == ';'; }, ';' },
    PatternRow{ "Dot", s_kDotPattern, []( ushort a_unit ) { return a_unit == '.'; }, '.' },
    PatternRow{ "Comma", s_kCommaPattern, []( ushort a_unit ) { return a_unit == ','; }, ',' },
    PatternRow{ "DQuote", s_kDQuotePattern, []( ushort a_unit ) { return a_unit == '"'; }, '"' },
    PatternRow{ "Equals", s_kEqualsPattern, []( ushort a_unit ) { return a_unit == '='; }, '=' },
    PatternRow{ "Crlf", s_kCrlfPattern, IsLineBreak, '\n' }, PatternRow{ "Name", s_kNamePattern, IsName, 'n' },
    PatternRow{ "QSafeChar", s_kQSafeCharPattern, IsQuotedText, 'q' },
    PatternRow{ "ValueChar", s_kValueCharPattern, IsValue, 'v' },
    PatternRow{ "Base64Char", s_kBase64CharPattern, IsBase64, 'b' } );

// Thirteen bytes, eight UTF-16 units. If repeated, its characters cross block ends in every way.
QByteArray MixedText( int a_repetitions )
{
    return ( QByteArray( "abcd" ) + s_kTwoBytes + s_kThreeBytes + s_kFourBytes ).repeated( a_repetitions );
}

QByteArray TextWithByteOrderMarks( int a_repetitions )
{
    return ( MixedText( 1 ) + s_kByteOrderMark + 'e' ).repeated( a_repetitions );
}

// The number of UTF-8 bytes by which a unit advances the position. A pair counts with its first half.
int Utf8Length( QChar a_unit )
{
    if ( a_unit.isSurrogate() )
        return a_unit.isHighSurrogate() ? 4 : 0;
    if ( a_unit.unicode() < 0x80 )
        return 1;
    return a_unit.unicode() < 0x800 ? 2 : 3;
}

// The byte positions after zero, one, two ... units of the text.
QList<qint64> ExactPositions( const QByteArray& a_bytes )
{
    QList<qint64> positions = { 0 };
    for ( const QChar unit : WholeText( a_bytes ) )
        positions.append( positions.last() + Utf8Length( unit ) );
    return positions;
}

void ReadUnits( PimVCardTextStream& a_stream, int a_count )
{
    QChar unit;
    for ( int i = 0; i < a_count; ++i )
        a_stream >> unit;
}

// Requesting the position of a stream moves the ends of the blocks that it reads later, so each request uses a new
// scanner.
void ExpectExactPositions( const QByteArray& a_bytes, int a_first, int a_last )
{
    const QList<qint64> expected = ExactPositions( a_bytes );
    for ( int units = a_first; units <= qMin( a_last, expected.size() - 1 ); ++units )
    {
        Scanner scanner( a_bytes );
        ReadUnits( scanner.Lexer().m_stream, units );
        ASSERT_EQ( scanner.Position(), expected.at( units ) ) << "behind " << units << " units";
    }
}

} // namespace

// The scanner before the first read.

TEST( TokenScannerTest, NewScannerHasReadNothing )
{
    Scanner scanner( "BEGIN" );
    EXPECT_EQ( scanner.Lexer().m_token, QString() );
    EXPECT_EQ( scanner.Lexer().m_prevToken, QString() );
    EXPECT_EQ( scanner.Next(), QChar() );
    EXPECT_EQ( scanner.LineNumber(), 1 );
    EXPECT_EQ( scanner.Position(), 0 );
    EXPECT_EQ( scanner.Lexer().m_stream.status(), QTextStream::Ok );
    EXPECT_FALSE( scanner.Lexer().m_stream.atEnd() );
}

TEST( TokenScannerTest, EmptyTextIsAtItsEnd )
{
    Scanner scanner( "" );
    EXPECT_TRUE( scanner.Lexer().m_stream.atEnd() );
}

// Single characters.

TEST( TokenScannerTest, NameThenColonLeaveTheCharacterAfterThem )
{
    Scanner scanner( "BEGIN:VCARD" );
    EXPECT_EQ( scanner.Run( s_kNamePattern ), Text( "BEGIN" ) );
    EXPECT_EQ( scanner.Next(), QLatin1Char( ':' ) );
    EXPECT_EQ( scanner.Single( s_kColonPattern ), Text( ":" ) );
    EXPECT_EQ( scanner.Next(), QLatin1Char( 'V' ) );
}

TEST( TokenScannerTest, DelimitersInARowAreTwoTokens )
{
    Scanner scanner( ";;a" );
    EXPECT_EQ( scanner.Single( s_kSemicolonPattern ), Text( ";" ) );
    EXPECT_EQ( scanner.Single( s_kSemicolonPattern ), Text( ";" ) );
    EXPECT_EQ( scanner.Single( s_kSemicolonPattern ), Text( "" ) );
    EXPECT_EQ( scanner.Left(), Text( "a" ) );
}

TEST( TokenScannerTest, SingleLineBreaksAreNotCounted )
{
    Scanner scanner( "\r\n" );
    EXPECT_EQ( scanner.Single( s_kCrlfPattern ), Text( "\r" ) );
    EXPECT_EQ( scanner.Single( s_kCrlfPattern ), Text( "\n" ) );
    EXPECT_EQ( scanner.LineNumber(), 1 );
}

TEST( TokenScannerTest, SingleModeFormsNoEscapePair )
{
    Scanner scanner( "a\\,b" );
    EXPECT_EQ( scanner.Single( s_kValueCharPattern ), Text( "a" ) );
    EXPECT_EQ( scanner.Single( s_kValueCharPattern ), Text( "" ) );
    EXPECT_EQ( scanner.Left(), Text( "\\,b" ) );
}

TEST( TokenScannerTest, SingleModeKeepsABackslashBeforeCarriageReturn )
{
    Scanner scanner( "a\\\r\n" );
    EXPECT_EQ( scanner.Single( s_kQSafeCharPattern ), Text( "a" ) );
    EXPECT_EQ( scanner.Single( s_kQSafeCharPattern ), Text( "\\" ) );
    EXPECT_EQ( scanner.Left(), Text( "\r\n" ) );
}

TEST( TokenScannerTest, SingleModeReadsAByteOrderMark )
{
    Scanner scanner( QByteArray( "a" ) + s_kByteOrderMark );
    EXPECT_EQ( scanner.Run( s_kValueCharPattern ), Text( "a" ) );
    EXPECT_EQ( scanner.Run( s_kValueCharPattern ), Text( "" ) );
    EXPECT_EQ( scanner.Single( s_kValueCharPattern ), QString( QChar( s_kByteOrderMarkUnit ) ) );
}

TEST( TokenScannerTest, SingleModeDoesNotTryARunAfterwards )
{
    // In a run, half of the pair would match as "?".
    Scanner scanner( s_kFourBytes );
    EXPECT_EQ( scanner.Single( s_kValueCharPattern ), Text( "" ) );
    EXPECT_EQ( scanner.Left(), Text( s_kFourBytes ) );
}

TEST( TokenScannerTest, EveryTokenIsRemembered )
{
    Scanner scanner( "N:x" );
    scanner.Run( s_kNamePattern );
    EXPECT_EQ( scanner.Lexer().m_token, Text( "N" ) );
    EXPECT_EQ( scanner.Lexer().m_prevToken, Text( "" ) );
    scanner.Single( s_kColonPattern );
    EXPECT_EQ( scanner.Lexer().m_token, Text( ":" ) );
    EXPECT_EQ( scanner.Lexer().m_prevToken, Text( "N" ) );
    scanner.Single( s_kColonPattern );
    EXPECT_EQ( scanner.Lexer().m_token, Text( "" ) );
    EXPECT_EQ( scanner.Lexer().m_prevToken, Text( ":" ) );
    scanner.Run( s_kColonPattern );
    EXPECT_EQ( scanner.Lexer().m_prevToken, Text( "" ) );
}

TEST( TokenScannerTest, DirectReadsAreNotCounted )
{
    Scanner scanner( "\r\nN" );
    for ( int i = 0; i < 3; ++i )
        scanner.Lexer().m_stream >> scanner.Lexer().m_nextChar;
    EXPECT_EQ( scanner.LineNumber(), 1 );
    EXPECT_EQ( scanner.Run( s_kNamePattern ), Text( "N" ) );
}

TEST( TokenScannerTest, LookAheadMayBeSetByTheCaller )
{
    Scanner scanner( "EL" );
    scanner.Lexer().m_nextChar = QLatin1Char( 'T' );
    EXPECT_EQ( scanner.Run( s_kNamePattern ), Text( "TEL" ) );
}

// Runs.

TEST_P( TokenScannerRunTest, ReturnsTheTokenAndLeavesTheRest )
{
    Scanner scanner( GetParam().m_text );
    EXPECT_EQ( scanner.Run( GetParam().m_pattern ), WholeText( GetParam().m_token ) );
    EXPECT_EQ( scanner.LineNumber(), GetParam().m_lineNumber );
    EXPECT_EQ( scanner.Left(), WholeText( GetParam().m_left ) );
}

INSTANTIATE_TEST_SUITE_P(
    Runs, TokenScannerRunTest,
    testing::Values(
        TokenRow{ "StopsBeforeTheFirstOther", "TEL;x", s_kNamePattern, "TEL", ";x" },
        TokenRow{ "NothingMatches", ";x", s_kNamePattern, "", ";x" },
        TokenRow{ "UpToTheEnd", "TEL", s_kNamePattern, "TEL", "" },
        TokenRow{ "ValueStopsAtCarriageReturn", "a b\t:,c\r\n", s_kValueCharPattern, "a b\t:,c", "\r\n" },
        TokenRow{ "ValueStopsAtSemicolon", "a;b", s_kValueCharPattern, "a", ";b" },
        TokenRow{ "ValueGoesOnOverLineFeed", "a\nb\n c\r", s_kValueCharPattern, "a\nb\n c", "\r" },
        TokenRow{ "PlusSaysNothing", "abcD", Text( "[a-z]+" ), "abc", "D" },
        TokenRow{ "OneCharacterAtATime", "abcD", Text( "[a-z]" ), "abc", "D" },
        TokenRow{ "AnchorsHoldForEachCharacter", "abc", Text( "\\A[abc]\\z" ), "abc", "" },
        TokenRow{ "LongerExpressionsNeverMatch", "abab", Text( "ab" ), "", "abab" },
        TokenRow{ "LookBehindSeesNothing", "abb", Text( "(?<!a)[ab]" ), "abb", "" },
        TokenRow{ "EmptyExpressionTakesAll", "a;\n", QString(), "a;\n", "" },
        TokenRow{ "ExpressionForNothingTakesAll", "a;b", Text( "x*" ), "a;b", "" },
        TokenRow{ "ExpressionForEverything", "a;b", Text( "[\\s\\S]|\\A\\z" ), "a;b", "" },
        TokenRow{ "ExpressionForEmptyTextOnly", "ab", Text( "\\A\\z" ), "", "ab" },
        TokenRow{ "BothHalvesOfAPairPassAsQuestionMarks", "a\xF0\x9F\x98\x80?b", s_kValueCharPattern,
                  "a\xF0\x9F\x98\x80?b", "" },
        TokenRow{ "LastCharacterOfUnicode", "\xF4\x8F\xBF\xBF", s_kQSafeCharPattern, "\xF4\x8F\xBF\xBF", "" },
        TokenRow{ "QuestionMarkMatchesHalves", "\xF0\x9F\x98\x80?x", Text( "[?]" ), "\xF0\x9F\x98\x80?", "x" },
        TokenRow{ "ByteOrderMarkEndsAnyRun", "a\xEF\xBB\xBFz", QString(), "a", "\xEF\xBB\xBFz" },
        TokenRow{ "ByteOrderMarkAtTheStartIsSwallowed", "\xEF\xBB\xBFN:", s_kNamePattern, "N", ":" },
        TokenRow{ "MalformedBytesAreReplacementCharacters", "a\xFF\x80z", s_kValueCharPattern,
                  "a\xEF\xBF\xBD\xEF\xBF\xBDz", "" },
        TokenRow{ "SurrogatesInUtf8AreMalformed", "a\xED\xA0\x80z", s_kValueCharPattern,
                  "a\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBDz", "" },
        TokenRow{ "ByteThatBeginsNothingIsNotCutOffAtTheEnd", "a\xC0", s_kValueCharPattern, "a\xEF\xBF\xBD", "" },
        TokenRow{ "NoOtherEncodingIsGuessed", "\xFF\xFEN", s_kValueCharPattern, "\xEF\xBF\xBD\xEF\xBF\xBDN", "" },
        TokenRow{ "CutSequenceAtTheEnd", "a\xE2\x82", s_kNamePattern, "a", "" } ),
    NameOf<TokenRow> );

INSTANTIATE_TEST_SUITE_P(
    Escapes, TokenScannerRunTest,
    testing::Values(
        TokenRow{ "Comma", "a\\,b", s_kValueCharPattern, "a,b", "" },
        TokenRow{ "Semicolon", "a\\;b;c", s_kValueCharPattern, "a;b", ";c" },
        TokenRow{ "Colon", "a\\:b", s_kValueCharPattern, "a:b", "" },
        TokenRow{ "Backslash", "a\\\\b", s_kValueCharPattern, "a\\b", "" },
        TokenRow{ "OtherPairIsLost", "a\\nb", s_kValueCharPattern, "a", "nb" },
        TokenRow{ "PairsInARow", "a\\,\\;\\\\b", s_kValueCharPattern, "a,;\\b", "" },
        TokenRow{ "BackslashPairBeforeAPair", "a\\\\\\,b", s_kValueCharPattern, "a\\,b", "" },
        TokenRow{ "BackslashPairBeforeAnOther", "a\\\\nb", s_kValueCharPattern, "a\\nb", "" },
        TokenRow{ "OnlyThePairIsShortened", "a\\,bcd", s_kValueCharPattern, "a,bcd", "" },
        TokenRow{ "BackslashFirst", "\\,a", s_kValueCharPattern, "", "\\,a" },
        TokenRow{ "BackslashFirstInQuotes", "\\a\"", s_kQSafeCharPattern, "\\a", "\"" },
        TokenRow{ "TwoBackslashesFirstInQuotes", "\\\\a", s_kQSafeCharPattern, "\\", "a" },
        TokenRow{ "NoPairInQuotes", "a\\\"b", s_kQSafeCharPattern, "a", "\"b" },
        TokenRow{ "NoBackslashPairInQuotes", "a\\\\b", s_kQSafeCharPattern, "a", "\\b" },
        TokenRow{ "BackslashLast", "a\\", s_kValueCharPattern, "a", "" },
        TokenRow{ "BackslashLastInQuotes", "a\\", s_kQSafeCharPattern, QByteArrayLiteral( "a\0" ), "" },
        TokenRow{ "BackslashOnlyInQuotes", "\\", s_kQSafeCharPattern, "\\", "" },
        TokenRow{ "BackslashBeforeCarriageReturn", "a\\\rb", s_kValueCharPattern, "a", "\r\rb" },
        TokenRow{ "BackslashBeforeCrlf", "a\\\r\nb", s_kValueCharPattern, "a", "\r\r\nb" },
        TokenRow{ "BackslashBeforeLastCarriageReturn", "a\\\r", s_kValueCharPattern, "a", "\r\r" },
        TokenRow{ "BackslashBeforeLineFeed", "a\\\nb", s_kValueCharPattern, "a", "\nb" },
        TokenRow{ "BackslashPairBeforeCrlf", "a\\\\\r\nb", s_kValueCharPattern, "a\\", "\r\nb" },
        TokenRow{ "BackslashBeforeCrlfInQuotes", "a\\\r\nb", s_kQSafeCharPattern, "a\\", "\r\nb" },
        TokenRow{ "BackslashBeforeCrlfAfterLineEnd", "\r\n\\\r\nb", s_kCrlfPattern, "\r\n", "\r\r\nb", 2 },
        TokenRow{ "BackslashBeforeCrlfAfterLongCharacters", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\\\r\nb",
                  s_kValueCharPattern, "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "\r\r\nb" },
        TokenRow{ "BackslashBeforeCrlfInExpressionForAll", "a\\\r\nb", QString(), "a\\\r\nb", "", 2 },
        TokenRow{ "PairIsSearchedUnanchored", "a\\nB", Text( "[a-z]" ), "an", "B" },
        TokenRow{ "PairLosesItsBackslashWhateverMatched", "a\\nb", Text( "[a\\\\]" ), "an", "b" },
        TokenRow{ "LoneBackslashInAnyExpression", "a\\\rb", Text( "[a\\\\]" ), "a\\", "\rb" },
        TokenRow{ "PairWithByteOrderMark", "a\\\xEF\xBB\xBFz", s_kValueCharPattern, "a", "\xEF\xBB\xBFz" },
        TokenRow{ "PairWithByteOrderMarkInExpressionForAll", "a\\\xEF\xBB\xBFz", QString(), "a\xEF\xBB\xBFz", "" },
        TokenRow{ "PairWithHalfAPairInExpressionForAll", "a\\\xF0\x9F\x98\x80", QString(), "a\xF0\x9F\x98\x80", "" } ),
    NameOf<TokenRow> );

INSTANTIATE_TEST_SUITE_P(
    LineNumbers, TokenScannerRunTest,
    testing::Values( TokenRow{ "Crlf", "\r\nN", s_kCrlfPattern, "\r\n", "N", 2 },
                     TokenRow{ "TwoCrlf", "\r\n\r\nN", s_kCrlfPattern, "\r\n\r\n", "N", 3 },
                     TokenRow{ "LineFeedFirst", "\n\rN", s_kCrlfPattern, "\n\r", "N", 2 },
                     TokenRow{ "LoneLineFeed", "\nN", s_kCrlfPattern, "\n", "N" },
                     TokenRow{ "LoneCarriageReturn", "\rN", s_kCrlfPattern, "\r", "N" },
                     TokenRow{ "DoubledCarriageReturn", "\r\r\nN", s_kCrlfPattern, "\r\r\n", "N" },
                     TokenRow{ "DoubledLineFeed", "\r\n\nN", s_kCrlfPattern, "\r\n\n", "N" },
                     TokenRow{ "OtherLineBreaks", "\v\f\xC2\x85\xE2\x80\xA8\xE2\x80\xA9", s_kCrlfPattern,
                               "\v\f\xC2\x85\xE2\x80\xA8\xE2\x80\xA9", "" },
                     TokenRow{ "OtherLineBreaksBesideCrlf", "\v\r\n\f", s_kCrlfPattern, "\v\r\n\f", "", 2 },
                     TokenRow{ "LineFeedsInAValue", "a\nb\nc", s_kValueCharPattern, "a\nb\nc", "" },
                     TokenRow{ "LineFeedOfAnEscapePair", "\r\\\nN", Text( "[\\r\\n]" ), "\r\n", "N" },
                     TokenRow{ "TextBetween", "\ra\nb", Text( "[\\r\\na]" ), "\ra\n", "b", 2 } ),
    NameOf<TokenRow> );

TEST( TokenScannerTest, LinesAddUpFromTokenToToken )
{
    Scanner scanner( "A\r\nB\r\n\r\nC\n\r\nD\r\n" );
    const qint32 expected[] = { 2, 4, 4, 5 };
    for ( const qint32 lineNumber : expected )
    {
        scanner.Run( s_kNamePattern );
        scanner.Run( s_kCrlfPattern );
        EXPECT_EQ( scanner.LineNumber(), lineNumber );
    }
}

TEST( TokenScannerTest, LineEndAfterABackslashIsNotCounted )
{
    Scanner scanner( "a\\\r\nB" );
    EXPECT_EQ( scanner.Run( s_kValueCharPattern ), Text( "a" ) );
    EXPECT_EQ( scanner.Run( s_kCrlfPattern ), Text( "\r\r\n" ) );
    EXPECT_EQ( scanner.LineNumber(), 1 );
    EXPECT_EQ( scanner.Next(), QLatin1Char( 'B' ) );
}

// Long runs are searched several bytes at a time.
TEST( TokenScannerTest, MalformedByteIsFoundAtEveryPositionOfARun )
{
    for ( const char byte : { '\x80', '\xFF' } )
    {
        for ( int length = 0; length < 20; ++length )
        {
            SCOPED_TRACE( length );
            const QByteArray before( length, 'a' );
            Scanner scanner( before + byte + "zz" );
            EXPECT_EQ( scanner.Run( s_kValueCharPattern ), WholeText( before + "\xEF\xBF\xBDzz" ) );
        }
    }
}

TEST( TokenScannerTest, EscapePairWithHalfAPairLeavesBothHalves )
{
    Scanner scanner( QByteArray( "a\\" ) + s_kFourBytes );
    EXPECT_EQ( scanner.Run( s_kValueCharPattern ), Text( "a" ) );
    EXPECT_EQ( scanner.Left(), Text( s_kFourBytes ) );
}

TEST( TokenScannerTest, ByteOrderMarkIsNeverPassedByARun )
{
    Scanner scanner( QByteArray( "a" ) + s_kByteOrderMark + "b" );
    scanner.Run( QString() );
    EXPECT_EQ( scanner.Run( QString() ), Text( "" ) );
    EXPECT_EQ( scanner.Run( s_kValueCharPattern ), Text( "" ) );
    EXPECT_EQ( scanner.Next(), QChar( s_kByteOrderMarkUnit ) );
}

TEST( TokenScannerTest, RunForEmptyTextEndsAtTheEnd )
{
    for ( const char* pattern : { "", "x*", "\\A\\z", "[\\s\\S]*" } )
    {
        SCOPED_TRACE( pattern );
        Scanner scanner( "" );
        EXPECT_EQ( scanner.Run( Text( pattern ) ), Text( "" ) );
        EXPECT_EQ( scanner.Next(), QChar() );
    }
}

TEST( TokenScannerTest, MatchingIsCaseSensitiveUnlessTheExpressionSaysOtherwise )
{
    Scanner scanner( "aA" );
    EXPECT_EQ( scanner.Run( Text( "a" ) ), Text( "a" ) );
    const QRegularExpression anyCase( Text( "a" ), QRegularExpression::CaseInsensitiveOption );
    EXPECT_EQ( scanner.Lexer().GetToken( anyCase, false ), Text( "A" ) );
}

// Ignoring letter case, U+212A, the kelvin sign, equals K, and U+017F, the long s, equals s.
TEST( TokenScannerTest, TokenPatternWithOptionsIsAnotherExpression )
{
    Scanner scanner( "a\xE2\x84\xAA\xC5\xBF:" );
    const QRegularExpression anyCase( s_kNamePattern, QRegularExpression::CaseInsensitiveOption );
    EXPECT_EQ( scanner.Lexer().GetToken( anyCase, false ), Text( "a\xE2\x84\xAA\xC5\xBF" ) );
    EXPECT_EQ( scanner.Left(), Text( ":" ) );
}

// The characters that each token pattern of the vocabulary accepts.

TEST_P( TokenScannerPatternTest, RunTakesExactlyItsCharacters )
{
    Scanner scanner( "" );
    PimVCardLexer& lexer = scanner.Lexer();
    const QRegularExpression regex( GetParam().m_pattern );
    QList<QString> wrong;
    for ( int unit = 0; unit <= s_kLastUnit; ++unit )
    {
        lexer.m_nextChar = QChar( unit );
        const bool isAccepted = IsAcceptedInRun( GetParam(), static_cast<ushort>( unit ) );
        if ( lexer.GetToken( regex, false ) != ( isAccepted ? QString( QChar( unit ) ) : QString() ) )
            wrong.append( NameOfUnit( unit ) );
    }
    EXPECT_EQ( wrong, QList<QString>() );
}

TEST_P( TokenScannerPatternTest, SingleTakesExactlyItsCharacters )
{
    Scanner scanner( "" );
    PimVCardLexer& lexer = scanner.Lexer();
    const QRegularExpression regex( GetParam().m_pattern );
    QList<QString> wrong;
    for ( int unit = 0; unit <= s_kLastUnit; ++unit )
    {
        lexer.m_nextChar = QChar( unit );
        const bool isAccepted =
            !QChar::isSurrogate( static_cast<uint>( unit ) ) && GetParam().m_accepts( static_cast<ushort>( unit ) );
        if ( lexer.GetToken( regex, true ) != ( isAccepted ? QString( QChar( unit ) ) : QString() ) )
            wrong.append( NameOfUnit( unit ) );
    }
    EXPECT_EQ( wrong, QList<QString>() );
}

TEST_P( TokenScannerPatternTest, EscapePairsEndTheRunUnlessTheyBelongToIt )
{
    const QString sample( QLatin1Char( GetParam().m_sample ) );
    for ( int unit = 1; unit < 0x180; ++unit )
    {
        const QChar second( unit );
        if ( second == QChar::CarriageReturn )
            continue;
        const bool isAccepted = IsValueEscape( GetParam().m_pattern, static_cast<ushort>( unit ) );
        Scanner scanner( ( sample + QLatin1Char( '\\' ) + second ).toUtf8() );
        EXPECT_EQ( scanner.Run( GetParam().m_pattern ), isAccepted ? sample + second : sample ) << unit;
        EXPECT_EQ( scanner.Left(), isAccepted ? QString() : QString( second ) ) << unit;
    }
}

TEST_P( TokenScannerPatternTest, BackslashBeforeCarriageReturnIsDroppedUnlessItBelongsToTheRun )
{
    const QByteArray sample( 1, GetParam().m_sample );
    const bool isKept = GetParam().m_accepts( '\\' );
    Scanner scanner( sample + "\\\r\nx" );
    EXPECT_EQ( scanner.Run( GetParam().m_pattern ), QString::fromUtf8( isKept ? sample + '\\' : sample ) );
    EXPECT_EQ( scanner.Left(), isKept ? Text( "\r\nx" ) : Text( "\r\r\nx" ) );
}

TEST_P( TokenScannerPatternTest, LookAheadBackslashIsAnOrdinaryCharacter )
{
    Scanner scanner( "\\,x" );
    const bool isAccepted = GetParam().m_accepts( '\\' );
    EXPECT_EQ( scanner.Single( GetParam().m_pattern ), isAccepted ? Text( "\\" ) : Text( "" ) );
    EXPECT_EQ( scanner.Left(), isAccepted ? Text( ",x" ) : Text( "\\,x" ) );
}

TEST_P( TokenScannerPatternTest, EndOfTextYieldsEmptyTokens )
{
    Scanner scanner( "" );
    for ( int i = 0; i < 2; ++i )
    {
        EXPECT_EQ( scanner.Run( GetParam().m_pattern ), Text( "" ) );
        EXPECT_EQ( scanner.Single( GetParam().m_pattern ), Text( "" ) );
        EXPECT_EQ( scanner.Next(), QChar() );
        EXPECT_EQ( scanner.Lexer().m_stream.status(), QTextStream::ReadPastEnd );
    }
    EXPECT_EQ( scanner.LineNumber(), 1 );
}

INSTANTIATE_TEST_SUITE_P( Vocabulary, TokenScannerPatternTest, s_kVocabularyPatterns, NameOf<PatternRow> );

// Invalid expressions.

TEST( TokenScannerTest, InvalidExpressionIsReportedAndChangesNothing )
{
    const QRegularExpression invalid( Text( "ab[c" ) );
    for ( const bool isSingle : { false, true } )
    {
        Scanner scanner( "A:B" );
        scanner.Run( s_kNamePattern );
        scanner.Single( s_kColonPattern );
        const LogCapture log;
        EXPECT_EQ( scanner.Lexer().GetToken( invalid, isSingle ), Text( "" ) );
        EXPECT_EQ( log.Messages(), ( QList<LogMessage>{ Debug( s_kDQuote + invalid.errorString() + s_kDQuote ),
                                                        Debug( QString::number( invalid.patternErrorOffset() ) ),
                                                        Debug( Text( "\"ab[c\"" ) ) } ) );
        EXPECT_EQ( scanner.Lexer().m_token, Text( ":" ) );
        EXPECT_EQ( scanner.Lexer().m_prevToken, Text( "A" ) );
        EXPECT_EQ( scanner.LineNumber(), 1 );
        EXPECT_EQ( scanner.Left(), Text( "B" ) );
    }
}

TEST( TokenScannerTest, InvalidExpressionReadsNothing )
{
    Scanner scanner( "AB" );
    const LogCapture log;
    scanner.Run( Text( "(" ) );
    EXPECT_EQ( log.Messages().size(), 3 );
    EXPECT_EQ( scanner.Next(), QChar() );
    EXPECT_EQ( scanner.Position(), 0 );
}

TEST( TokenScannerTest, SeekWithInvalidExpressionChangesNothingAndIsSilent )
{
    Scanner scanner( "A:B\r\nC\r\nD" );
    scanner.Run( s_kNamePattern );
    scanner.Single( s_kColonPattern );
    const LogCapture log;
    EXPECT_EQ( scanner.Seek( Text( "(" ) ), Text( "" ) );
    EXPECT_TRUE( log.Messages().isEmpty() );
    EXPECT_EQ( scanner.Lexer().m_token, Text( ":" ) );
    EXPECT_EQ( scanner.Lexer().m_prevToken, Text( "A" ) );
    EXPECT_EQ( scanner.LineNumber(), 1 );
    EXPECT_EQ( scanner.Left(), Text( "B\r\nC\r\nD" ) );
}

// Seeking a line. The rows search for "BEGIN".

TEST_P( TokenScannerSeekTest, ReturnsTheLineAndMovesToItsStart )
{
    Scanner scanner( GetParam().m_text );
    const LogCapture log;
    EXPECT_EQ( scanner.Seek( Text( "BEGIN" ) ), Text( GetParam().m_line ) );
    EXPECT_EQ( scanner.Position(), GetParam().m_position );
    EXPECT_EQ( scanner.LineNumber(), GetParam().m_lineNumber );
    EXPECT_EQ( scanner.Next(), QChar() );
    EXPECT_TRUE( log.Messages().isEmpty() );
}

INSTANTIATE_TEST_SUITE_P(
    Found, TokenScannerSeekTest,
    testing::Values( SeekRow{ "FirstLine", "BEGIN\r\nx", "BEGIN", 0, 1 },
                     SeekRow{ "SecondLine", "a\r\nBEGIN\r\nx", "BEGIN", 3, 2 },
                     SeekRow{ "FirstOfTwo", "a\r\nBEGIN 1\r\nBEGIN 2\r\nx", "BEGIN 1", 3, 2 },
                     SeekRow{ "InsideTheLine", "a\r\n \tBEGIN:b\r\nx", " \tBEGIN:b", 3, 2 },
                     SeekRow{ "AfterEmptyLines", "\r\n\r\nBEGIN\r\nx", "BEGIN", 4, 3 },
                     SeekRow{ "AfterLongCharacters", "\xC3\xA9\xF0\x9F\x98\x80\r\nBEGIN\r\nx", "BEGIN", 8, 2 },
                     SeekRow{ "BeforeAnEmptyLastLine", "BEGIN\r\n\r\n", "BEGIN", 0, 1 },
                     SeekRow{ "CarriageReturnIsNoLineEnd", "a\rBEGIN\r\nx", "a\rBEGIN", 0, 1 },
                     SeekRow{ "CarriageReturnBeforeCrlf", "a\r\nBEGIN\r\r\nx", "BEGIN\r", 3, 2 } ),
    NameOf<SeekRow> );

// The way back is the number of characters plus two bytes, which is too far or not far enough for these lines.
INSTANTIATE_TEST_SUITE_P(
    FoundInexactly, TokenScannerSeekTest,
    testing::Values( SeekRow{ "LineFeedIsOneByteTooFar", "ab\nBEGIN\nx", "BEGIN", 2, 2 },
                     SeekRow{ "LongCharactersAreTooShort", "a\r\n\xC3\xA9\xE2\x82\xAC BEGIN\r\nx",
                              "\xC3\xA9\xE2\x82\xAC BEGIN", 6, 2 },
                     SeekRow{ "FourBytesCountTwo", "a\r\n\xF0\x9F\x98\x80 BEGIN\r\nx", "\xF0\x9F\x98\x80 BEGIN", 5, 2 },
                     SeekRow{ "LongCharacterMakesUpForLineFeed", "a\n\xC3\xA9 BEGIN\nx", "\xC3\xA9 BEGIN", 2, 2 },
                     SeekRow{ "BeforeTheStartIsNotGone", "BEGIN\nx", "BEGIN", 6, 1 },
                     SeekRow{ "ExactlyTheStartIsGone", "\nBEGIN\nx", "BEGIN", 0, 2 } ),
    NameOf<SeekRow> );

INSTANTIATE_TEST_SUITE_P( NotFound, TokenScannerSeekTest,
                          testing::Values( SeekRow{ "Nowhere", "a\r\nb\r\n", "", 6, 3 },
                                           SeekRow{ "Empty", "", "", 0, 2 },
                                           SeekRow{ "OtherLetterCase", "begin\r\nx", "", 8, 3 },
                                           SeekRow{ "OnlyInTheLastLine", "a\r\nBEGIN", "", 8, 3 },
                                           SeekRow{ "OnlyInTheLastLineWithItsEnd", "a\r\nBEGIN\r\n", "", 10, 3 },
                                           SeekRow{ "OnlyLine", "BEGIN\r\n", "", 7, 2 },
                                           SeekRow{ "AcrossALineEnd", "BEG\r\nIN\r\nx", "", 10, 4 } ),
                          NameOf<SeekRow> );

TEST( TokenScannerTest, SeekDropsLookAheadAndTokens )
{
    Scanner scanner( "AB:C\r\nBEGIN:VCARD\r\nx" );
    scanner.Run( s_kNamePattern );
    scanner.Single( s_kColonPattern );
    EXPECT_EQ( scanner.Seek( s_kBeginVCardPattern ), Text( "BEGIN:VCARD" ) );
    EXPECT_EQ( scanner.Lexer().m_token, Text( "" ) );
    EXPECT_EQ( scanner.Lexer().m_prevToken, Text( "" ) );
    EXPECT_EQ( scanner.Next(), QChar() );
    EXPECT_EQ( scanner.Run( s_kNamePattern ), Text( "BEGIN" ) );
    EXPECT_EQ( scanner.LineNumber(), 2 );
}

TEST( TokenScannerTest, SeekStartsAfterTheLookAhead )
{
    Scanner scanner( "aBEGIN\r\nBEGIN\r\nx" );
    scanner.Run( Text( "a" ) );
    EXPECT_EQ( scanner.Next(), QLatin1Char( 'B' ) );
    EXPECT_EQ( scanner.Seek( Text( "BEGIN" ) ), Text( "BEGIN" ) );
    EXPECT_EQ( scanner.Position(), 8 );
    EXPECT_EQ( scanner.LineNumber(), 2 );
}

TEST( TokenScannerTest, SeekFindsTheSameLineAgain )
{
    Scanner scanner( "a\r\nBEGIN\r\nx" );
    for ( int i = 0; i < 3; ++i )
    {
        EXPECT_EQ( scanner.Seek( Text( "BEGIN" ) ), Text( "BEGIN" ) );
        EXPECT_EQ( scanner.LineNumber(), 2 );
    }
}

TEST( TokenScannerTest, SeekHonoursTheOptionsOfTheExpression )
{
    Scanner scanner( "a\r\nbegin \t:vcard\r\nx" );
    const QRegularExpression anyCase( s_kBeginVCardPattern, QRegularExpression::CaseInsensitiveOption );
    EXPECT_EQ( scanner.Lexer().SeekToPattern( anyCase ), Text( "begin \t:vcard" ) );
}

TEST( TokenScannerTest, SeekForEmptyTextFindsTheNextLine )
{
    Scanner scanner( "a\r\nb" );
    EXPECT_EQ( scanner.Seek( QString() ), Text( "a" ) );
    EXPECT_EQ( scanner.Position(), 0 );
}

TEST( TokenScannerTest, NothingIsLeftAfterAFailedSeek )
{
    Scanner scanner( "a\r\nBEGIN" );
    EXPECT_EQ( scanner.Seek( Text( "BEGIN" ) ), Text( "" ) );
    EXPECT_TRUE( scanner.Lexer().m_stream.atEnd() );
    EXPECT_EQ( scanner.Run( s_kNamePattern ), Text( "" ) );
    EXPECT_EQ( scanner.Seek( Text( "BEGIN" ) ), Text( "" ) );
}

TEST( TokenScannerTest, RewindIntoACharacterReadsReplacementCharacters )
{
    Scanner scanner( QByteArray( "a\r\n" ) + s_kTwoBytes + "BEGIN\r\nx" );
    scanner.Seek( Text( "BEGIN" ) );
    EXPECT_EQ( scanner.Left(), Text( "\xEF\xBF\xBD"
                                     "BEGIN\r\nx" ) );
}

// The status dump.

TEST( TokenScannerTest, StatusOfANewScanner )
{
    Scanner scanner( "N" );
    const LogCapture log;
    scanner.Lexer().PrintStatus( nullptr );
    EXPECT_EQ(
        log.Messages(),
        ( QList<LogMessage>{ Debug( Text( "---------------------------- PimVCardLexer Status:" ) ),
                             Debug( Text( "Token:              \"\"" ) ), Debug( Text( "Next Char:          '\\x0'" ) ),
                             Debug( Text( "Prev Token:         \"\"" ) ), Debug( Text( "Text Stream Status: Ok" ) ),
                             Debug( Text( "Line Number:         1" ) ) } ) );
}

TEST( TokenScannerTest, StatusShowsTheExpressionAndTheTokens )
{
    Scanner scanner( "\r\nN:\"x" );
    scanner.Run( s_kCrlfPattern );
    scanner.Run( s_kNamePattern );
    scanner.Single( s_kColonPattern );
    const QRegularExpression regex( s_kDotPattern );
    const LogCapture log;
    scanner.Lexer().PrintStatus( &regex );
    EXPECT_EQ( log.Messages(),
               ( QList<LogMessage>{
                   Debug( Text( "---------------------------- PimVCardLexer Status:" ) ),
                   Debug( Text( R"(Regex:              "\\A\\.\\z")" ) ), Debug( Text( "Token:              \":\"" ) ),
                   Debug( Text( "Next Char:          '\"'" ) ), Debug( Text( "Prev Token:         \"N\"" ) ),
                   Debug( Text( "Text Stream Status: Ok" ) ), Debug( Text( "Line Number:         2" ) ) } ) );
}

TEST( TokenScannerTest, StatusAtTheEndOfTheText )
{
    Scanner scanner( "N" );
    scanner.Run( s_kNamePattern );
    const LogCapture log;
    scanner.Lexer().PrintStatus( nullptr );
    EXPECT_EQ( log.Texts( QtDebugMsg ),
               ( QList<QString>{ Text( "---------------------------- PimVCardLexer Status:" ),
                                 Text( "Token:              \"N\"" ), Text( "Next Char:          '\\x0'" ),
                                 Text( "Prev Token:         \"\"" ), Text( "Text Stream Status: ReadPastEnd" ),
                                 Text( "Line Number:         1" ) } ) );
}

TEST( TokenScannerTest, StatusChangesNothing )
{
    Scanner scanner( "N:x" );
    scanner.Run( s_kNamePattern );
    const LogCapture log;
    scanner.Lexer().PrintStatus( nullptr );
    EXPECT_EQ( scanner.Lexer().m_token, Text( "N" ) );
    EXPECT_EQ( scanner.Left(), Text( ":x" ) );
}

TEST_P( TokenScannerStatusTest, IsNamed )
{
    Scanner scanner( "N" );
    scanner.Lexer().m_stream.setStatus( GetParam().m_status );
    const LogCapture log;
    scanner.Lexer().PrintStatus( nullptr );
    EXPECT_EQ( log.Texts( QtDebugMsg ).value( 4 ), Text( GetParam().m_message ) );
}

INSTANTIATE_TEST_SUITE_P( Streams, TokenScannerStatusTest,
                          testing::Values( StatusRow{ "Ok", QTextStream::Ok, "Text Stream Status: Ok" },
                                           StatusRow{ "ReadPastEnd", QTextStream::ReadPastEnd,
                                                      "Text Stream Status: ReadPastEnd" },
                                           StatusRow{ "ReadCorruptData", QTextStream::ReadCorruptData,
                                                      "Text Stream Status: ReadCorruptData" },
                                           StatusRow{ "Other", QTextStream::WriteFailed, "Text Stream Status: 3" } ),
                          NameOf<StatusRow> );

// Decoding.

TEST( TokenScannerTest, StreamDeliversEveryCharacter )
{
    QString text;
    for ( int unit = 1; unit <= s_kLastUnit; ++unit )
    {
        if ( !QChar::isSurrogate( static_cast<uint>( unit ) ) )
            text += QChar( unit );
    }
    Scanner scanner( text.toUtf8() );
    EXPECT_TRUE( scanner.Lexer().m_stream.readAll() == text );
}

// Positions, in texts of many blocks of the stream (16 KB) and of the device below it.

TEST( TokenScannerPositionTest, IsExactAfterEveryCharacterOfTheFirstBlocks )
{
    const QByteArray bytes = TextWithByteOrderMarks( 130 );
    ASSERT_GT( bytes.size(), 2 * 1024 );
    ExpectExactPositions( bytes, 0, static_cast<int>( bytes.size() ) );
}

TEST( TokenScannerPositionTest, IsExactWhereverACharacterStraddlesABlockEnd )
{
    for ( int shift = 0; shift < TextWithByteOrderMarks( 1 ).size(); ++shift )
    {
        SCOPED_TRACE( shift );
        const QByteArray bytes = QByteArray( shift, 'x' ) + TextWithByteOrderMarks( 80 );
        const auto units = static_cast<int>( WholeText( bytes.left( 1024 ) ).size() );
        ExpectExactPositions( bytes, units - 9, units + 9 );
    }
}

TEST( TokenScannerPositionTest, IsExactAroundTheBlockEndsOfTheStream )
{
    constexpr int s_kStreamBlock = 16384;
    const QByteArray bytes = TextWithByteOrderMarks( 6400 );
    ASSERT_GT( bytes.size(), 6 * s_kStreamBlock );
    for ( int end = s_kStreamBlock; end < bytes.size(); end += s_kStreamBlock )
    {
        const auto units = static_cast<int>( WholeText( bytes.left( end ) ).size() );
        ExpectExactPositions( bytes, units - 9, units + 9 );
    }
}

TEST( TokenScannerPositionTest, IsExactAllTheWayThroughALongText )
{
    const QByteArray bytes = TextWithByteOrderMarks( 6400 );
    const QString text = WholeText( bytes );
    const QList<qint64> expected = ExactPositions( bytes );
    for ( const int stride : { 701, 997, 1511, 2003 } )
    {
        SCOPED_TRACE( stride );
        Scanner scanner( bytes );
        for ( int units = stride; units < text.size(); units += stride )
        {
            ReadUnits( scanner.Lexer().m_stream, stride );
            ASSERT_EQ( scanner.Position(), expected.at( units ) );
        }
        EXPECT_TRUE( scanner.Left() == text.right( text.size() % stride ) );
        EXPECT_EQ( scanner.Position(), bytes.size() );
    }
}

TEST( TokenScannerPositionTest, BackslashBeforeCarriageReturnIsExactAtEveryPositionOfABlock )
{
    for ( int shift = 0; shift <= 1040; ++shift )
    {
        SCOPED_TRACE( shift );
        const QByteArray value = MixedText( 80 ) + QByteArray( shift, 'x' );
        Scanner scanner( value + "\\\r\nb" );
        ASSERT_EQ( scanner.Run( s_kValueCharPattern ), WholeText( value ) );
        ASSERT_EQ( scanner.Left(), Text( "\r\r\nb" ) );
    }
}

TEST( TokenScannerPositionTest, BackslashBeforeCarriageReturnIsExactAfterALongRun )
{
    for ( int shift = 0; shift <= 3; ++shift )
    {
        const QByteArray value = MixedText( 9000 ) + QByteArray( shift, 'x' );
        Scanner scanner( value + "\\\r\nb" );
        EXPECT_TRUE( scanner.Run( s_kValueCharPattern ) == WholeText( value ) );
        EXPECT_EQ( scanner.Left(), Text( "\r\r\nb" ) );
    }
}

TEST( TokenScannerPositionTest, SeekIsExactAfterALongLine )
{
    const QByteArray line = MixedText( 9000 );
    for ( int shift = 0; shift <= 16; ++shift )
    {
        SCOPED_TRACE( shift );
        Scanner scanner( line + QByteArray( shift, 'x' ) + "\r\nBEGIN\r\nx" );
        ASSERT_EQ( scanner.Seek( Text( "BEGIN" ) ), Text( "BEGIN" ) );
        ASSERT_EQ( scanner.Position(), line.size() + shift + 2 );
        ASSERT_EQ( scanner.Run( s_kNamePattern ), Text( "BEGIN" ) );
        ASSERT_EQ( scanner.LineNumber(), 2 );
    }
}

TEST( TokenScannerPositionTest, SeekIsExactAfterManyLines )
{
    constexpr int s_kLines = 3000;
    const QByteArray lines = ( MixedText( 3 ) + "\r\n" ).repeated( s_kLines );
    Scanner scanner( lines + "BEGIN:VCARD\r\nN:x\r\n" );
    EXPECT_EQ( scanner.Seek( s_kBeginVCardPattern ), Text( "BEGIN:VCARD" ) );
    EXPECT_EQ( scanner.Position(), lines.size() );
    EXPECT_EQ( scanner.LineNumber(), s_kLines + 1 );
    EXPECT_EQ( scanner.Left(), Text( "BEGIN:VCARD\r\nN:x\r\n" ) );
}

TEST( TokenScannerPositionTest, RewindOverALongLineIsExact )
{
    const QByteArray before = MixedText( 2000 ) + "\r\n";
    const QByteArray line = QByteArray( 60000, 'x' ) + "BEGIN";
    Scanner scanner( before + line + "\r\nend" );
    EXPECT_TRUE( scanner.Seek( Text( "BEGIN" ) ) == QString::fromUtf8( line ) );
    EXPECT_EQ( scanner.Position(), before.size() );
    EXPECT_TRUE( scanner.Run( s_kNamePattern ) == QString::fromUtf8( line ) );
    EXPECT_EQ( scanner.Left(), Text( "\r\nend" ) );
}

} // namespace PimManager::vCard
