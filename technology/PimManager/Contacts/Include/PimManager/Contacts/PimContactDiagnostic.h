/// \file
/// A finding of the reader in a file: what it found, where, and what it did about it.
///
/// \code
/// const QList<PimContactDiagnostic> diagnostics = report.Diagnostics();
/// for ( const PimContactDiagnostic& diagnostic : diagnostics )
///     qInfo().noquote() << diagnostic.Line() << NameOf( diagnostic.Severity() ) << diagnostic.Text();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QLatin1String>
#include <QSharedDataPointer>
#include <QString>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactDiagnosticPrivate;

/// The effect of a finding on the data, the mildest first.
enum class PimContactSeverity
{
    Note,     ///< unusual, but delivered as written
    Repaired, ///< repaired: the intended data is delivered
    Dropped,  ///< a line or a part of a line was left out; its card is delivered
    Refused,  ///< a whole card or file was left out
};

/// The kinds of findings. NameOf() returns a word for programs, PimContactDiagnostic::Text() a sentence for people.
enum class PimContactDiagnosticCode
{
    // The file.
    Encoding,           ///< Note: the file is in UTF-16. Once a file.
    LineEnd,            ///< Repaired: a line ends in LF, CR or CR CR LF. Once for each kind of line ending and file.
    LastLineEnd,        ///< Repaired: the last line has no line ending.
    TextOutside,        ///< Note: text outside cards; the count is the number of lines.
    EndWithoutBegin,    ///< Note: an END line outside cards.
    StrayByteOrderMark, ///< Repaired: byte order marks inside the file; the count is their number at that position.
    CompressedFile,     ///< Refused: the file is a gzip or zip archive.
    DocumentFile,       ///< Refused: the file is a PDF document.
    ImageFile,          ///< Refused: the file is an image.
    HtmlFile,           ///< Note: no card was found, and the file is an HTML page.
    UnknownFile,        ///< Note: no card was found, and the file is not text.
    NoCard,             ///< Note: no card was found in the text.
    JCard,              ///< Note: the file has jCards (RFC 7095), which were converted. Once a file.
    JsonSyntax,         ///< Repaired: errors in the JSON; the count is their number at that position. See Offset().
    JsonPart,           ///< Note: a part of the JSON is not a property and was kept as X-JCARD, or is not a card.

    // The card.
    Charset,         ///< Repaired: the card is not in UTF-8; another character set applies.
    BoundaryLine,    ///< Repaired: blanks or control characters around BEGIN or END.
    BoundaryText,    ///< Dropped: other text on a BEGIN or END line.
    IndentedCard,    ///< Repaired: every line of the card is indented; the indentation is ignored.
    MissingBegin,    ///< Repaired: properties and END without BEGIN, delivered as a card.
    MissingEnd,      ///< Repaired: the card ends where the next one begins.
    EndOfFile,       ///< Repaired: the file ends inside the card.
    FoldsByLength,   ///< Note: the folded lines of a 2.1 card have the same length, so the blank belongs to the fold.
    NestingTooDeep,  ///< Dropped: cards nest deeper than the limit; the property that contains them is dropped.
    CardTooLong,     ///< Refused: the card has more bytes than the limit.
    CardOfManyLines, ///< Refused: the card has more lines than the limit.
    TooManyCards,    ///< Refused: the number of cards has reached the limit.
    BookTooLong,     ///< Refused: the cards together have more bytes than the limit.

    // The line.
    NotAProperty,      ///< Dropped: not a property, and not the continuation of one.
    Comment,           ///< Dropped: a line that begins with "#".
    LineTooLong,       ///< Dropped: the content line has more bytes than the limit.
    LineJoined,        ///< Repaired: lines without indentation were joined with the value before them.
    MissingColon,      ///< Repaired: a known name without a colon.
    SoftLineBreak,     ///< Repaired: a QUOTED-PRINTABLE soft line break with blanks, or with nothing to join.
    Base64Lines,       ///< Repaired: BASE64 continues on lines without indentation.
    ControlCharacters, ///< Note: control characters in a line; the count is their number.
    NameBlanks,        ///< Repaired: blanks around the name or a parameter, or before the colon.
    OddName,           ///< Note: a property name with other characters than letters, digits and "-".
    OpenQuote,         ///< Repaired: a parameter value begins with a quote that is never closed.
    OddParameter,      ///< Note: a parameter with characters that no version allows there.
    EmptyParameter,    ///< Repaired: nothing between two semicolons.
    UnknownEscape,     ///< Note: a backslash before a character that needs no escape; the count is their number.
};

/// The number of codes. Their values run from 0 to this number - 1.
constexpr int s_kPimContactDiagnosticCodes = static_cast<int>( PimContactDiagnosticCode::UnknownEscape ) + 1;

/// One finding. Implicitly shared and immutable.
class PIMCONTACT_EXPORT PimContactDiagnostic
{
public:
    /// Creates a finding of code Encoding at the start of the file.
    PimContactDiagnostic();
    PimContactDiagnostic( const PimContactDiagnostic& a_other );
    PimContactDiagnostic& operator=( const PimContactDiagnostic& a_other );
    ~PimContactDiagnostic();

    /// The kind of finding.
    PimContactDiagnosticCode Code() const;

    /// The severity of the code.
    PimContactSeverity Severity() const;

    /// The number of the outermost card, from 1; 0 outside cards.
    qint64 Card() const;

    /// The line number, from 1. A line ends at CR LF, LF, CR or CR CR LF. If the file was converted, Line(), Column()
    /// and Offset() refer to the converted text, except for JsonSyntax and JsonPart, where they refer to the JSON.
    qint64 Line() const;

    /// The number of the byte in the line, from 1.
    qint64 Column() const;

    /// The offset of the byte in the file, from 0.
    qint64 Offset() const;

    /// The number of occurrences if the code counts them; otherwise 1.
    qint64 Count() const;

    /// \return an English sentence without a full stop, such as `the last line has no line ending`, with the count if
    ///         the code counts. It contains no text of the file.
    QString Text() const;

    bool operator==( const PimContactDiagnostic& a_other ) const;
    bool operator!=( const PimContactDiagnostic& a_other ) const;

private:
    friend class PimContactDiagnosticPrivate; // creates findings
    QSharedDataPointer<PimContactDiagnosticPrivate> d;
};

/// \return a word in ASCII, such as `last-line-end`. It never changes, so programs can rely on it.
PIMCONTACT_EXPORT QLatin1String NameOf( PimContactDiagnosticCode a_code );

/// \return `note`, `repaired`, `dropped` or `refused`.
PIMCONTACT_EXPORT QLatin1String NameOf( PimContactSeverity a_severity );

/// \return the severity of a code. Each code has exactly one.
PIMCONTACT_EXPORT PimContactSeverity SeverityOf( PimContactDiagnosticCode a_code );

} // namespace PimManager::Contacts
