/// \file
/// What import has to say about a file, as data: what was found, where, and what was done about it.
///
/// \code
/// for ( const PimVCardDiagnostic& diagnostic : account.m_diagnostics )
///     qInfo().noquote() << diagnostic.m_position.m_line << NameOf( diagnostic.m_severity ) << TextOf( diagnostic );
/// \endcode

#pragma once

#include "PimVCardExport.h"

#include <QLatin1String>
#include <QString>
#include <QtGlobal>

namespace PimManager::vCardImport
{

/// A place in the file as it came, before any decoding.
struct PimVCardPosition
{
    /// From 1. A line ends at CR LF, LF, CR, or CR CR LF.
    qint64 m_line = 1;
    /// From 1, in bytes of the line; in a UTF-16 file in units of two bytes.
    qint64 m_column = 1;
    /// From 0, in bytes of the file, a byte order mark included.
    qint64 m_offset = 0;
};

/// \return true if it is the same place.
PIMVCARD_EXPORT bool operator==( const PimVCardPosition& a_first, const PimVCardPosition& a_second );

/// How much it matters, the least first.
enum class PimVCardSeverity
{
    /// Unusual, and delivered as written.
    Note,
    /// Mended: what was meant is delivered.
    Repaired,
    /// A line, a value or a stretch of text was left out. Its card lives.
    Dropped,
    /// A whole card was left out.
    Refused,
};

/// What was found. NameOf() gives each a word for programs, TextOf() a sentence for people.
enum class PimVCardDiagnosticCode
{
    // The file.
    Encoding,           ///< Note: a byte order mark, or UTF-16. Once a file.
    LineEnd,            ///< Repaired: a line ends in LF, CR or CR CR LF. Once for each kind and file.
    LastLineEnd,        ///< Repaired: the last line has no line end.
    TextOutside,        ///< Note: text outside cards; m_count is its number of lines.
    EndWithoutBegin,    ///< Note: an END line outside cards.
    LostCard,           ///< Dropped: what looks like a card without BEGIN, before such an END; m_count lines.
    StrayByteOrderMark, ///< Repaired: a byte order mark at the start of a line, taken away; m_count of them.

    // The card.
    Charset,            ///< Repaired: the card is not in UTF-8; it was read in another character set.
    CharactersReplaced, ///< Repaired: m_count characters could not be read and became U+FFFD.
    BoundaryLine,       ///< Repaired: a BEGIN or END line with blanks or other things round it.
    IndentedCard,       ///< Repaired: every line of the card is indented; the indentation was taken away.
    MissingEnd,         ///< Repaired: the card ends where the next one begins, or with the file.
    NestedCard,         ///< Note: a card inside the card, kept as the text of its property.
    NestingTooDeep,     ///< Dropped: cards nested deeper than the limit; the property that holds them is dropped.
    CardTooLong,        ///< Refused: more bytes than the limit.
    TooManyCards,       ///< Refused: more cards than the limit.
    CardUnreadable,     ///< Refused: the component took none of its lines.

    // The line.
    NotAProperty,      ///< Dropped: no property, and nothing that it could belong to.
    LineTooLong,       ///< Dropped: more bytes than the limit.
    ValueTooLong,      ///< Dropped: the value has more bytes than the limit.
    LineUnreadable,    ///< Dropped: the component did not take the line.
    LineJoined,        ///< Repaired: a line without indentation goes on with the value before it.
    MissingColon,      ///< Repaired: a known name without a colon; the value is empty.
    SoftLineBreak,     ///< Repaired: a QUOTED-PRINTABLE soft line break with blanks, or with nothing to join.
    EncodedLineBreak,  ///< Note: an encoded line break before a soft one, kept as a line break.
    Base64Lines,       ///< Repaired: BASE64 with blanks, or over lines without indentation.
    ControlCharacters, ///< Repaired: m_count control characters were taken away or made line breaks.
    NameBlanks,        ///< Repaired: blanks round the name or before the colon.
    OddName,           ///< Note: a property name with other characters than letters, digits and "-".
    ParameterQuoted,   ///< Repaired: a parameter value with other characters was put in quotes, or an open quote taken
                       ///< away.
    OddParameter,      ///< Note: a parameter that the component could not have read, kept as written.
    EmptyParameter,    ///< Repaired: nothing between two semicolons; taken away.
    UnknownEscape,     ///< Note: a backslash before a character that needs none, kept as written; m_count of them.
};

/// The number of codes; their values run from 0 to this less 1.
constexpr int s_kDiagnosticCodes = static_cast<int>( PimVCardDiagnosticCode::UnknownEscape ) + 1;

/// One finding.
struct PimVCardDiagnostic
{
    /// What was found.
    PimVCardDiagnosticCode m_code = PimVCardDiagnosticCode::Encoding;
    /// How much it matters, which each code has one of.
    PimVCardSeverity m_severity = PimVCardSeverity::Note;
    /// Which card, counted from 0 over the BEGIN lines of the file that are not nested; -1 outside cards.
    qint64 m_card = -1;
    /// Where it starts.
    PimVCardPosition m_position;
    /// How many, for the codes that count; else 1.
    qint64 m_count = 1;
};

/// \return true if all members are equal.
PIMVCARD_EXPORT bool operator==( const PimVCardDiagnostic& a_first, const PimVCardDiagnostic& a_second );

/// \return a fixed English sentence without a full stop, such as `the last line has no line end`; with the count in it
///         where the code counts. It holds nothing of the file's text.
PIMVCARD_EXPORT QString TextOf( const PimVCardDiagnostic& a_diagnostic );

/// \return a fixed word in ASCII, such as `last-line-end`; never changes, so programs can rely on it.
PIMVCARD_EXPORT QLatin1String NameOf( PimVCardDiagnosticCode a_code );

/// \return `note`, `repaired`, `dropped` or `refused`.
PIMVCARD_EXPORT QLatin1String NameOf( PimVCardSeverity a_severity );

/// \return how much a finding of this code matters; each code has one severity.
PIMVCARD_EXPORT PimVCardSeverity SeverityOf( PimVCardDiagnosticCode a_code );

} // namespace PimManager::vCardImport
