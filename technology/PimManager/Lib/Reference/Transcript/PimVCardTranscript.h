/// \file
/// What a parser or a scanner does, told as lines of plain text.
///
/// The source is compiled twice: over the component, and over the plain implementation in this folder. So every
/// function below exists in two namespaces, and a program that links both builds can compare their answers:
///
/// \code
/// const QByteArray text( "BEGIN:VCARD\r\nEND:VCARD\r\n" );
/// const QList<PimVCardParserCall> calls = { PimVCardParserCall::ParseVCards };
/// const bool isSame = vCard::TranscriptOf( text, calls ) == vCardReference::TranscriptOf( text, calls );
/// \endcode
///
/// A transcript holds results field by field, the state after each call, and every message on Qt's log with its type
/// and category. The milliseconds of the timing line are left out, so two transcripts of the same text are equal.
/// While one is made, Qt's log goes into it and not to the screen: make one at a time in a process.

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
    /// Over the property of the last ParseProperty; over null when there was none or it failed.
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
    /// `GetToken( expression, false )`, with a copy of the expression when the argument is not 0.
    Run,
    /// `GetToken( expression, true )`, with a copy of the expression when the argument is not 0.
    Single,
    /// `SeekToPattern( expression )`
    Seek,
    /// `PrintStatus( &expression )`; `PrintStatus( nullptr )` when the argument is not 0.
    Status,
    /// Gives the expression the pattern of another one, the argument's; its options stay.
    Change,
    /// `m_stream >> m_nextChar`
    Read,
    /// `m_stream.readLine()`
    ReadLine,
    /// `m_stream.pos()`, for scripts that do not ask at each step.
    Position,
    /// `m_stream.seek( argument )`
    GoTo,
    /// `m_nextChar = QChar( argument )`
    SetLookAhead
};

/// One step. Which of the two numbers it uses is said above.
struct PimVCardScannerStep
{
    PimVCardScannerCall m_call;
    /// A place in the script's list of expressions.
    int m_expression = 0;
    int m_argument = 0;
};

/// What an expression is made of. Each transcript compiles its own.
struct PimVCardScannerExpression
{
    QString m_pattern;
    QRegularExpression::PatternOptions m_options = QRegularExpression::NoPatternOption;
};

/// What is done with one scanner, from its making on.
struct PimVCardScannerScript
{
    QList<PimVCardScannerExpression> m_expressions;
    QList<PimVCardScannerStep> m_steps;
    /// True to note the stream's position after each step. A text stream reads other blocks when it is asked.
    bool m_watchesPosition = true;
    /// True to work with the scanner of a parser, which has learnt the parser's expressions and reads the prepared
    /// text; else with a new scanner over the text as it is.
    bool m_isOfParser = false;
};

/// Cards of either build.
struct PimVCardHeldCards
{
    int m_count = 0;
    /// Deletes them when it goes.
    std::shared_ptr<const void> m_cards;
};

namespace vCard
{

/// Makes a parser over the text and calls it. Starts with the prepared text; after each call come its result and the
/// scanner's and the parser's state.
QStringList TranscriptOf( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls );

/// Takes each step with a scanner over the text. After each come its result and the scanner's state.
QStringList TranscriptOf( const QByteArray& a_text, const PimVCardScannerScript& a_script );

/// The text as the parser prepares it.
QByteArray Prepared( const QByteArray& a_text );

/// Parses the whole text. Nothing is taken down: this is what benchmarks measure. The parser's messages go to Qt's log.
PimVCardHeldCards ParsedCards( const QByteArray& a_text );

} // namespace vCard

// The build that renames the namespace by a macro has declared them above.
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
