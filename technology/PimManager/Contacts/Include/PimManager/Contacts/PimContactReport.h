/// \file
/// The report on a file: what became of every byte and every card, and what was found.
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

/// What kind of file was read.
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

/// How a line ends.
enum class PimContactLineEnd
{
    CrLf,
    Lf,
    Cr,
    CrCrLf,
};

/// How the encoding of the file was decided.
enum class PimContactEvidence
{
    None,          ///< the text is ASCII
    ByteOrderMark, ///< at the start of the file
    NulPattern,    ///< every other one of the first bytes is zero, as in UTF-16
    ValidUtf8,     ///< every card is valid UTF-8
    CharsetNamed,  ///< at least one card is not UTF-8, and a CHARSET parameter of it was used
    Default,       ///< at least one card is not UTF-8, and the default character set was used
};

/// What became of a file. Implicitly shared and immutable: a report taken during the reading does not change.
///
/// Each byte and each card is counted once. The numbers are valid at any time; the bytes of a card that is not complete
/// yet are not counted.
class PIMCONTACT_EXPORT PimContactReport
{
public:
    /// Creates the report on an empty file.
    PimContactReport();
    PimContactReport( const PimContactReport& a_other );
    PimContactReport& operator=( const PimContactReport& a_other );
    ~PimContactReport();

    /// The bytes of all extents. After the end of a file that was not stopped, the bytes of the file; of a file in
    /// UTF-16 or of jCards those of the converted text.
    qint64 Bytes() const;

    /// The bytes of all extents of a kind.
    qint64 Bytes( PimContactExtentKind a_kind ) const;

    /// The number of extents of a kind. For Line it is the number of delivered properties, those of nested cards
    /// included.
    qint64 Extents( PimContactExtentKind a_kind ) const;

    /// The cards delivered with all their lines. Repaired and filtered lines do not make a card less whole.
    qint64 CardsWhole() const;

    /// The cards delivered from which a line was dropped, or that lack BEGIN or END.
    qint64 CardsInPart() const;

    /// The cards left out.
    qint64 CardsRefused() const;

    /// The cards inside delivered cards.
    qint64 CardsNested() const;

    /// The outermost cards that have been begun so far, delivered or refused. Cards are numbered from 1 to this.
    qint64 Cards() const;

    /// The lines with that line ending. A last line without one is not counted.
    qint64 LineEnds( PimContactLineEnd a_kind ) const;

    /// The delivered cards of a version.
    qint64 CardsOf( PimContactVersion a_version ) const;

    /// The character set of the file: `UTF-8`, `UTF-16LE` or `UTF-16BE`, or that of the first card that is in none of
    /// them. Never empty.
    QByteArray Charset() const;

    /// How the character set was decided.
    PimContactEvidence Evidence() const;

    /// True if the file was in UTF-16 or had jCards (RFC 7095). The cards and all offsets are those of its text in
    /// UTF-8, with the jCards as vCards of version 4.0.
    bool IsConverted() const;

    /// What kind of file was read.
    PimContactFileKind FileKind() const;

    /// True if a handler stopped the reading. Bytes behind the place were not read and are in no extent.
    bool IsStopped() const;

    /// The text of the error that ended the reading, such as that of a device; empty if there was none.
    QString ErrorText() const;

    /// The findings in the order of the file; at most as many as PimContactOptions::Diagnostics().
    QList<PimContactDiagnostic> Diagnostics() const;

    /// The number of findings of a code, kept or not.
    qint64 Findings( PimContactDiagnosticCode a_code ) const;

    /// The number of findings of a severity, kept or not.
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
