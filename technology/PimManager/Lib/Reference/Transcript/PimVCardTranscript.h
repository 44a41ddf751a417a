/// \file
/// Records what a parser or a scanner does as lines of plain text.
///
/// The source is compiled twice: for the component, and for the plain implementation in this folder. Every function
/// below exists in two namespaces, so a program that links both builds can compare their results:
///
/// \code
/// const QByteArray text( "BEGIN:VCARD\r\nEND:VCARD\r\n" );
/// const QList<PimVCardParserCall> calls = { PimVCardParserCall::ParseVCards };
/// const bool isSame = vCard::TranscriptOf( text, calls ) == vCardReference::TranscriptOf( text, calls );
/// \endcode
///
/// A transcript contains the results field by field, the state after each call, and every message on Qt's log with its
/// type and category. It omits the milliseconds of the timing line, so two transcripts of the same text are equal.
/// While a transcript is created, Qt's log is written to it and not to the screen. Create only one at a time in a
/// process.

#pragma once

#include <QByteArray>
#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <memory>

namespace PimManager
{

/// One call of a public operation of the parser. The `…OfBoundary` calls are those on a BEGIN or END line.
enum class PimVCardParserCall
{
    ParseVCards,
    ParseVCard,
    ParseStart,
    /// Called with the property of the last ParseProperty. Null if there was none or it failed.
    ParseEnd,
    ParseProperties,
    ParseProperty,
    ParseGroup,
    ParseGroupOfBoundary,
    ParseParameters,
    ParseParametersOfBoundary,
    ParseParameter,
    ParseParameterOfBoundary,
    ParseQuotedParamValue,
    ParseValues
};

/// The last element of PimVCardParserCall; the first is 0.
inline constexpr PimVCardParserCall s_kLastParserCall = PimVCardParserCall::ParseValues;

/// What a step of a scanner script does.
enum class PimVCardScannerCall
{
    /// `GetToken( expression, false )`, with a copy of the expression if the argument is not 0.
    Run,
    /// `GetToken( expression, true )`, with a copy of the expression if the argument is not 0.
    Single,
    /// `SeekToPattern( expression )`
    Seek,
    /// `PrintStatus( &expression )`, or `PrintStatus( nullptr )` if the argument is not 0.
    Status,
    /// Assigns the pattern of another expression, whose index is the argument. The options do not change.
    Change,
    /// `m_stream >> m_nextChar`
    Read,
    /// `m_stream.readLine()`
    ReadLine,
    /// `m_stream.pos()`, for scripts that do not request it after each step.
    Position,
    /// `m_stream.seek( argument )`
    GoTo,
    /// `m_nextChar = QChar( argument )`
    SetLookAhead
};

/// One step. PimVCardScannerCall says which of the two numbers it uses.
struct PimVCardScannerStep
{
    PimVCardScannerCall m_call;
    /// An index into the script's list of expressions.
    int m_expression = 0;
    int m_argument = 0;
};

/// The pattern and options of an expression. Each transcript compiles its own.
struct PimVCardScannerExpression
{
    QString m_pattern;
    QRegularExpression::PatternOptions m_options = QRegularExpression::NoPatternOption;
};

/// The steps of one scanner, from its creation on.
struct PimVCardScannerScript
{
    QList<PimVCardScannerExpression> m_expressions;
    QList<PimVCardScannerStep> m_steps;
    /// True to record the position of the stream after each step. A text stream reads different blocks if its position
    /// is requested.
    bool m_watchesPosition = true;
    /// True to use the scanner of a parser, which has learned the parser's expressions and reads the prepared text.
    /// Otherwise a new scanner reads the text as it is.
    bool m_isOfParser = false;
};

/// Cards of either build.
struct PimVCardHeldCards
{
    int m_count = 0;
    /// Owns the cards.
    std::shared_ptr<const void> m_cards;
};

namespace vCard
{

/// Creates a parser for the text and calls it. The transcript begins with the prepared text. Each call adds its result
/// and the state of the scanner and the parser.
QStringList TranscriptOf( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls );

/// Runs each step with a scanner for the text. Each step adds its result and the state of the scanner.
QStringList TranscriptOf( const QByteArray& a_text, const PimVCardScannerScript& a_script );

/// The text as the parser prepares it.
QByteArray Prepared( const QByteArray& a_text );

/// Parses the whole text. Nothing is recorded, because benchmarks measure this. The parser's messages go to Qt's log.
PimVCardHeldCards ParsedCards( const QByteArray& a_text );

} // namespace vCard

// The build that renames the namespace with a macro has declared them above.
#ifndef vCard

namespace vCardReference
{

QStringList TranscriptOf( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls );
QStringList TranscriptOf( const QByteArray& a_text, const PimVCardScannerScript& a_script );
QByteArray Prepared( const QByteArray& a_text );
PimVCardHeldCards ParsedCards( const QByteArray& a_text );

} // namespace vCardReference

#endif

} // namespace PimManager
