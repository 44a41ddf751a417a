// Compares the component with the plain implementation: the same text has the same results, states and log messages.

#include "PimVCardReferenceTexts.h"

#include "PimVCardJudge.h"
#include "PimVCardTestLog.h"
#include "PimVCardTestText.h"

#include <QFile>

#include <gtest/gtest.h>

namespace PimManager
{

namespace
{

using Call = PimVCardParserCall;
using Step = PimVCardScannerStep;
using vCard::Escaped;

const QList<Call> s_kParseVCards = { Call::ParseVCards };
constexpr const char* s_kByteOrderMark = "\xEF\xBB\xBF";
constexpr int s_kLinesBefore = 6;

// Only the ends of long texts are shown.
std::string Shortened( const std::string& a_text )
{
    constexpr size_t s_kShown = 1000;
    return a_text.size() <= 2 * s_kShown
               ? a_text
               : a_text.substr( 0, s_kShown ) + " ... " + a_text.substr( a_text.size() - s_kShown );
}

std::string LinesBefore( const QStringList& a_lines, int a_line )
{
    std::string text;
    for ( int i = qMax( 0, a_line - s_kLinesBefore ); i < qMin( a_line, a_lines.size() ); ++i )
        text += "\n    " + Shortened( Escaped( a_lines.at( i ) ) );
    return text;
}

std::string LineAt( const QStringList& a_lines, int a_line )
{
    return a_line < a_lines.size() ? Shortened( Escaped( a_lines.at( a_line ) ) ) : "nothing more";
}

testing::AssertionResult AreSame( const QByteArray& a_text, const QStringList& a_actual, const QStringList& a_expected )
{
    if ( a_actual == a_expected )
        return testing::AssertionSuccess();
    int line = 0;
    while ( line < a_actual.size() && line < a_expected.size() && a_actual.at( line ) == a_expected.at( line ) )
        ++line;
    return testing::AssertionFailure() << "text: " << Escaped( a_text )
                                       << "\nbefore:" << LinesBefore( a_expected, line )
                                       << "\nplain:     " << LineAt( a_expected, line )
                                       << "\ncomponent: " << LineAt( a_actual, line );
}

testing::AssertionResult ParsesTheSame( const QByteArray& a_text, const QList<Call>& a_calls )
{
    const QByteArray prepared = vCardReference::Prepared( a_text );
    if ( vCard::Prepared( a_text ) != prepared )
        return testing::AssertionFailure() << "text:  " << Escaped( a_text ) << "\nplain:     " << Escaped( prepared )
                                           << "\ncomponent: " << Escaped( vCard::Prepared( a_text ) );
    if ( !IsJudgeSure( prepared ) )
        return testing::AssertionSuccess();
    return AreSame( a_text, vCard::TranscriptOf( a_text, a_calls ), vCardReference::TranscriptOf( a_text, a_calls ) );
}

std::string Shown( const PimVCardScannerScript& a_script )
{
    std::string text = a_script.m_isOfParser ? "\nscanner of a parser, steps:" : "\nnew scanner, steps:";
    for ( const Step& step : a_script.m_steps )
    {
        text += "\n    " + std::to_string( static_cast<int>( step.m_call ) ) + ' ' +
                Escaped( a_script.m_expressions.at( step.m_expression ).m_pattern ) + " options " +
                std::to_string( a_script.m_expressions.at( step.m_expression ).m_options ) + ' ' +
                std::to_string( step.m_argument );
    }
    return text;
}

testing::AssertionResult ScansTheSame( const QByteArray& a_text, const PimVCardScannerScript& a_script )
{
    if ( !IsJudgeSure( vCardReference::Prepared( a_text ) ) || !IsJudgeSure( a_text ) )
        return testing::AssertionSuccess();
    const testing::AssertionResult result =
        AreSame( a_text, vCard::TranscriptOf( a_text, a_script ), vCardReference::TranscriptOf( a_text, a_script ) );
    return result ? result : testing::AssertionFailure() << result.message() << Shown( a_script );
}

/// Reads the whole text with one expression, and shows what follows each run.
PimVCardScannerScript RunsOf( const QString& a_pattern, bool a_watchesPosition )
{
    const Step run = { PimVCardScannerCall::Run };
    const Step read = { PimVCardScannerCall::Read };
    return { { { a_pattern } },
             { run, run, read, run, read, run, read, run, { PimVCardScannerCall::Status } },
             a_watchesPosition };
}

QByteArray Phonebook()
{
    QFile file( QStringLiteral( PIMVCARD_PHONEBOOK ) );
    return file.open( QIODevice::ReadOnly ) ? file.readAll() : QByteArray();
}

/// The cards of the example, with photos of only three lines.
QByteArray PhonebookWithSmallPhotos()
{
    QString text = QString::fromUtf8( Phonebook() );
    text.replace( QRegularExpression( QStringLiteral( R"(((\r\n [A-Za-z0-9+/]+){2})(\r\n [A-Za-z0-9+/]+)+)" ) ),
                  QStringLiteral( "\\1" ) );
    return text.toUtf8();
}

/// All samples one after another, repeated until the text has at least this length.
QByteArray LongBook( int a_length )
{
    QByteArray book;
    while ( book.size() < a_length )
    {
        for ( const QByteArray& sample : SampleTexts() )
            book += sample;
    }
    return book;
}

} // namespace

// Whole texts.

TEST( ReferenceTest, ParsesTheExampleAddressBook )
{
    ASSERT_GT( Phonebook().size(), 5000 );
    EXPECT_TRUE( ParsesTheSame( Phonebook(), s_kParseVCards ) );
    const vCard::LogCapture log;
    EXPECT_EQ( vCard::ParsedCards( Phonebook() ).m_count, 10 );
    EXPECT_EQ( vCardReference::ParsedCards( Phonebook() ).m_count, 10 );
}

TEST( ReferenceTest, TranscriptShowsWhatWasParsed )
{
    const QStringList lines =
        vCardReference::TranscriptOf( "BEGIN:VCARD\r\na.TEL;HOME:1;2\r\nEND:VCARD\r\n", s_kParseVCards );
    for ( const char* line :
          { "elements: 1", "card: ", "property: TEL", "group: a", "parameter name: ", "parameter value: HOME",
            "value: 1", "value: 2", "log 0 default: [PVCP] : 1 vCards parsed in: ms", "position: 40", "at end: yes",
            "error mark: 0" } )
        EXPECT_TRUE( lines.contains( QString::fromLatin1( line ) ) ) << line;
}

TEST( ReferenceTest, DifferentTextsHaveDifferentTranscripts )
{
    EXPECT_FALSE( AreSame( "", vCard::TranscriptOf( "BEGIN:VCARD\r\nA:1\r\nEND:VCARD\r\n", s_kParseVCards ),
                           vCardReference::TranscriptOf( "BEGIN:VCARD\r\nA:2\r\nEND:VCARD\r\n", s_kParseVCards ) ) );
}

TEST( ReferenceTest, ParsesEverySampleAndEveryTruncation )
{
    for ( const QByteArray& sample : SampleTexts() )
    {
        for ( int length = 0; length <= sample.size(); ++length )
            ASSERT_TRUE( ParsesTheSame( sample.left( length ), s_kParseVCards ) );
    }
}

TEST( ReferenceTest, ParsesEveryTruncationOfTheExampleCards )
{
    const QByteArray book = PhonebookWithSmallPhotos();
    const QByteArray begin( "BEGIN:VCARD" );
    ASSERT_LT( book.size(), 4000 );
    for ( auto card = book.indexOf( begin ); card >= 0; card = book.indexOf( begin, card + 1 ) )
    {
        const auto next = book.indexOf( begin, card + 1 );
        const QByteArray text = book.mid( card, next < 0 ? -1 : next - card );
        for ( int length = 0; length < text.size(); ++length )
            ASSERT_TRUE( ParsesTheSame( text.left( length ), s_kParseVCards ) );
    }
}

TEST( ReferenceTest, ParsesEverySampleFromEveryOperationOn )
{
    for ( const QByteArray& sample : SampleTexts() )
    {
        for ( int call = 0; call <= static_cast<int>( s_kLastParserCall ); ++call )
        {
            const auto first = static_cast<Call>( call );
            ASSERT_TRUE( ParsesTheSame( sample, { first, Call::ParseProperty, Call::ParseEnd, first } ) );
            ASSERT_TRUE( ParsesTheSame( sample.mid( sample.indexOf( '\n' ) + 1 ), { first, Call::ParseVCards } ) );
        }
    }
}

TEST( ReferenceTest, ParsesLongBooksInEveryPlaceOfABlock )
{
    for ( const int length : { 17000, 70000 } )
    {
        const QByteArray book = LongBook( length );
        for ( const char* before : { "", "\r\n", s_kByteOrderMark } )
            ASSERT_TRUE( ParsesTheSame( before + book, s_kParseVCards ) );
    }
}

TEST( ReferenceTest, ParsesAPhotoOfManyBlocks )
{
    const QByteArray lines = ( "\r\n " + QByteArray( 74, 'A' ) ).repeated( 900 );
    EXPECT_TRUE( ParsesTheSame( "BEGIN:VCARD\r\nPHOTO;ENCODING=b:" + lines + "\r\nEND:VCARD\r\n", s_kParseVCards ) );
}

// Random texts.

TEST( ReferenceTest, ParsesRandomTexts )
{
    PimVCardReferenceTexts random( 1 );
    for ( int i = 0; i < 1500; ++i )
        ASSERT_TRUE( ParsesTheSame( random.Text( random.Number( 40 ) ), random.Calls() ) ) << i;
}

TEST( ReferenceTest, ParsesMalformedTexts )
{
    PimVCardReferenceTexts random( 2 );
    for ( int i = 0; i < 1000; ++i )
        ASSERT_TRUE( ParsesTheSame( random.MalformedText( random.Number( 40 ) ), random.Calls() ) ) << i;
}

TEST( ReferenceTest, ParsesChangedSamples )
{
    PimVCardReferenceTexts random( 3 );
    for ( int i = 0; i < 1200; ++i )
        ASSERT_TRUE( ParsesTheSame( random.ChangedSamples(), s_kParseVCards ) ) << i;
}

TEST( ReferenceTest, PreparesRandomTexts )
{
    PimVCardReferenceTexts random( 4 );
    for ( int i = 0; i < 20000; ++i )
    {
        const int pieces = random.Number( 30 );
        const QByteArray text = i % 2 == 0 ? random.Text( pieces ) : random.MalformedText( pieces );
        ASSERT_EQ( vCard::Prepared( text ), vCardReference::Prepared( text ) ) << Escaped( text );
    }
}

// The scanner alone.

TEST( ReferenceTest, ScansRandomTextsWithRandomExpressions )
{
    PimVCardReferenceTexts random( 5 );
    for ( int i = 0; i < 3000; ++i )
    {
        const QByteArray text = random.Text( random.Number( 30 ) );
        ASSERT_TRUE( ScansTheSame( text, random.Script( text ) ) ) << i;
    }
}

TEST( ReferenceTest, ScansEveryPieceWithEveryExpression )
{
    const QList<QByteArray> pieces = TextPieces();
    for ( const PimVCardScannerExpression& expression : ScannerExpressions() )
    {
        PimVCardScannerScript script = RunsOf( expression.m_pattern, true );
        script.m_expressions.first().m_options = expression.m_options;
        for ( int i = 0; i < pieces.size(); i += 7 )
        {
            QByteArray text;
            for ( const QByteArray& piece : pieces.mid( i, 7 ) )
                text += "a" + piece + "b";
            ASSERT_TRUE( ScansTheSame( text, script ) );
        }
    }
}

TEST( ReferenceTest, ScansPiecesInEveryPlaceOfABlock )
{
    const QList<QByteArray> pieces = {
        "\\,", "\\\\",         "\\n", "\\\r", "\r\n", "\xC3\xA9", ";", "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
        "=",   "a\xEF\xBB\xBF" };
    const QString& pattern = vCard::s_kValueCharPattern;
    for ( const int edge : { 16, 256, 1024 } )
    {
        for ( int i = 0; i < pieces.size() * 6; ++i )
        {
            const QByteArray text = QByteArray( edge - i % 6, 'x' ) + pieces.at( i / 6 ) + "y;z\r\n";
            ASSERT_TRUE( ScansTheSame( text, RunsOf( pattern, i % 2 == 0 ) ) ) << edge;
        }
    }
}

TEST( ReferenceTest, ScansPiecesAtTheEndsOfLongBlocks )
{
    PimVCardReferenceTexts random( 6 );
    for ( const int edge : { 4096, 8192, 16384, 65536 } )
    {
        for ( int i = 0; i < 6; ++i )
        {
            const QByteArray text = QByteArray( edge - i, 'x' ) + random.Text( 8 );
            ASSERT_TRUE( ScansTheSame( text, RunsOf( vCard::s_kValueCharPattern, i % 2 == 0 ) ) ) << edge;
        }
    }
}

TEST( ReferenceTest, SeeksInLongTexts )
{
    PimVCardReferenceTexts random( 7 );
    const Step seek = { PimVCardScannerCall::Seek };
    const Step run = { PimVCardScannerCall::Run, 1 };
    const PimVCardScannerScript script = { { { vCard::s_kBeginVCardPattern }, { vCard::s_kNamePattern } },
                                           { seek, run, seek, run, run, seek, seek, run, seek, run } };
    for ( int i = 0; i < 40; ++i )
    {
        const QByteArray line = QByteArray( 100 + random.Number( 900 ), 'x' ) + random.Text( 4 ) + "\r\n";
        ASSERT_TRUE( ScansTheSame( line.repeated( 20 ) + LongBook( 1 ), script ) ) << i;
    }
}

} // namespace PimManager
