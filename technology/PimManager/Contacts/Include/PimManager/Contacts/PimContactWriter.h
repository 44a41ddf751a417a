/// \file
/// Writes contacts as vCards or as jCards.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// QSaveFile file( QStringLiteral( "phone.vcf" ) );
/// file.open( QIODevice::WriteOnly );
/// PimContactWriter writer( file, PimContactFormat::V30 );
/// for ( const PimContactCard& card : book.Cards() )
///     writer.Write( card );
/// if ( !writer.Finish() || !file.commit() )
///     qWarning().noquote() << "not written:" << writer.ErrorText();
/// else if ( !writer.Report().IsComplete() )
///     qInfo().noquote() << writer.Report().Summary();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactWriteReport.h>

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <memory>

class QIODevice;

namespace PimManager::Contacts
{

class PimContactWriterPrivate;

/// The output formats.
enum class PimContactFormat
{
    V21,   ///< vCard 2.1
    V30,   ///< vCard 3.0 (RFC 2426), which most programs and phones read
    V40,   ///< vCard 4.0 (RFC 6350)
    JCard, ///< jCard (RFC 7095): one card, or an array of several cards, each on a line
};

/// Writes contacts to a device, one after the other. It keeps one contact in memory and reuses that memory for the next
/// one.
///
/// **The output** is always correct, even if the input was not. It is UTF-8 with CR LF. Lines are folded at 75 octets,
/// never inside a character, an escape or an encoded byte. The properties keep their order. A missing VERSION is added,
/// and so are FN and N if the version requires them.
///
/// A line is copied byte for byte if its card already has the version that is written and if all conditions in the list
/// below are true. Every other line is written from its decoded value, so its folds, letter case and order of
/// parameters may differ, but its meaning does not.
///
/// - The reader has found nothing unusual in it, and its lines end in CR LF and have at most 75 octets.
/// - It is ASCII or UTF-8. In 2.1, it is ASCII, and QUOTED-PRINTABLE is in UTF-8.
/// - The version defines its parameters and the encoding that they name.
///
/// Parts of a card that are not properties are not written: dropped lines, blank lines, and text between lines.
/// PimContactCard::Bytes() contains them.
///
/// **Properties that the version does not have** are written in another form that programs use, if there is one, such
/// as `X-ANNIVERSARY` for ANNIVERSARY. Report() lists them. The table in docs/vcard-support.md shows what each version
/// keeps of every property. All kinds of line breaks become line feeds, and control characters other than tabs are left
/// out, so that no value can end its line or its card.
///
/// If the output is read and written again in the same format, the bytes do not change. A writer may be used by one
/// thread only. Several writers may be used at the same time.
class PIMCONTACT_EXPORT PimContactWriter
{
public:
    /// \param a_device open for writing; must outlive the writer and remains the caller's. If it is not open, the first
    ///                 write fails.
    explicit PimContactWriter( QIODevice& a_device, PimContactFormat a_format = PimContactFormat::V30 );
    PimContactWriter( PimContactWriter&& a_other ) noexcept;
    PimContactWriter& operator=( PimContactWriter&& a_other ) noexcept;
    /// Does not call Finish().
    ~PimContactWriter();
    Q_DISABLE_COPY( PimContactWriter )

    /// The output format.
    PimContactFormat Format() const;

    /// The largest number of notes that Report() keeps. Default: 1000. Further notes are only counted.
    int MostNotes() const;
    void SetMostNotes( int a_most );

    /// Writes a card. A null card writes nothing. Linear in the length of the card, except for nested cards in 3.0.
    /// They are written as text with the escapes of all cards around them, and left out if they nest deeper than two.
    /// \return false if the device has failed, in this call or before. Then nothing more is written. The writer writes
    ///         to the device in large pieces, so a failure may be reported by a later call, at the latest by Finish().
    bool Write( const PimContactCard& a_card );
    /// Writes the card of a contact, see PimContact::Card().
    bool Write( const PimContact& a_contact ) { return Write( a_contact.Card() ); }

    /// Ends the output and writes the remaining data. Call it once, after the last contact, and write nothing after it.
    /// Without any contact, a vCard file is empty and a jCard file contains an empty array.
    /// \return false if the device has failed, in this call or before.
    bool Finish();

    /// The text of the device's error. Empty if there was none.
    QString ErrorText() const;

    /// The report so far.
    PimContactWriteReport Report() const;

    /// \return the complete output for one card. For a null card it is empty, or an empty array as jCard.
    static QByteArray TextOf( const PimContactCard& a_card, PimContactFormat a_format = PimContactFormat::V30 );
    /// \return the complete output for the card of a contact.
    static QByteArray TextOf( const PimContact& a_contact, PimContactFormat a_format = PimContactFormat::V30 )
    {
        return TextOf( a_contact.Card(), a_format );
    }

private:
    std::unique_ptr<PimContactWriterPrivate> d;
};

} // namespace PimManager::Contacts
