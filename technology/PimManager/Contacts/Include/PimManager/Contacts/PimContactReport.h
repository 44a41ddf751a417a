/// \file
/// The report on a file: what happened to every byte and every card, and the findings.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// if ( !book.Report().IsComplete() )
///     qWarning().noquote() << book.Report().Summary();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactDiagnostic.h>
#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactExtent.h>

#include <QByteArray>
#include <QList>
#include <QSharedDataPointer>
#include <QString>

namespace PimManager::Contacts
{

class PimContactReportPrivate;

/// The kind of file that was read.
enum class PimContactFileKind
{
    Empty,       ///< no bytes
    AddressBook, ///< at least one BEGIN line, or a card without BEGIN
    Compressed,  ///< gzip or zip; refused
    Document,    ///< PDF; refused
    Image,       ///< refused
    Html,        ///< no card, and an HTML page
    Text,        ///< no card, and text
    Unknown,     ///< no card, and not text
};

/// The kinds of line endings.
enum class PimContactLineEnd
{
    CrLf,
    Lf,
    Cr,
    CrCrLf,
};

/// How the character set of the file was determined.
enum class PimContactEvidence
{
    None,          ///< the text is ASCII
    ByteOrderMark, ///< at the start of the file
    NulPattern,    ///< every second byte at the start is zero, as in UTF-16
    ValidUtf8,     ///< every card is valid UTF-8
    CharsetNamed,  ///< at least one card is not UTF-8, and its CHARSET parameter was used
    Default,       ///< at least one card is not UTF-8, and the default character set was used
};

/// What happened to the bytes and cards of a file. Implicitly shared and immutable: a report obtained while reading
/// does not change later.
///
/// Each byte and each card is counted once. The numbers are valid at any time. The bytes of a card that is not yet
/// complete are not counted.
class PIMCONTACT_EXPORT PimContactReport
{
public:
    /// Creates the report on an empty file.
    PimContactReport();
    PimContactReport( const PimContactReport& a_other );
    PimContactReport& operator=( const PimContactReport& a_other );
    ~PimContactReport();

    /// The number of bytes in all extents. After a file was read to its end, this is the size of the file, or the size
    /// of the converted text if the file was in UTF-16 or had jCards.
    qint64 Bytes() const;

    /// The number of bytes in all extents of a kind.
    qint64 Bytes( PimContactExtentKind a_kind ) const;

    /// The number of extents of a kind. For Line, it is the number of delivered properties, including those of nested
    /// cards.
    qint64 Extents( PimContactExtentKind a_kind ) const;

    /// The number of cards delivered with all their lines. Repaired and filtered lines do not matter.
    qint64 CardsWhole() const;

    /// The number of delivered cards from which a line was dropped or that lack BEGIN or END.
    qint64 CardsInPart() const;

    /// The number of cards that were left out.
    qint64 CardsRefused() const;

    /// The number of cards inside delivered cards.
    qint64 CardsNested() const;

    /// The number of outermost cards that have begun so far, delivered or refused. Cards are numbered from 1 to this
    /// number.
    qint64 Cards() const;

    /// The number of lines with this line ending. A last line without a line ending is not counted.
    qint64 LineEnds( PimContactLineEnd a_kind ) const;

    /// The number of delivered cards of a version.
    qint64 CardsOf( PimContactVersion a_version ) const;

    /// The character set of the file: `UTF-8`, `UTF-16LE` or `UTF-16BE`, or that of the first card with another
    /// character set. Never empty.
    QByteArray Charset() const;

    /// How the character set was determined.
    PimContactEvidence Evidence() const;

    /// True if the file was in UTF-16 or had jCards (RFC 7095). The cards and all offsets are then those of the text
    /// converted to UTF-8, with the jCards as vCards of version 4.0.
    bool IsConverted() const;

    /// The kind of file that was read.
    PimContactFileKind FileKind() const;

    /// True if a handler stopped the reading. The bytes after that position were not read and are in no extent.
    bool IsStopped() const;

    /// The text of the error that ended the reading, such as that of a device. Empty if there was none.
    QString ErrorText() const;

    /// The findings in the order of the file. At most PimContactOptions::Diagnostics() of them are kept.
    QList<PimContactDiagnostic> Diagnostics() const;

    /// The number of findings with a code, kept or not.
    qint64 Findings( PimContactDiagnosticCode a_code ) const;

    /// The number of findings with a severity, kept or not.
    qint64 Findings( PimContactSeverity a_severity ) const;

    /// \return true if nothing is missing: no line was dropped, no card was refused, no text was outside cards, and
    ///         the file was read to its end without an error. Filtered lines do not count as missing.
    bool IsComplete() const;

    /// \return an English sentence for people, such as `12 cards; 1 refused; 2 lines dropped`. It contains no text of
    ///         the file.
    QString Summary() const;

private:
    friend class PimContactReportPrivate; // creates reports
    QSharedDataPointer<PimContactReportPrivate> d;
};

} // namespace PimManager::Contacts
