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

/// What is written.
enum class PimContactFormat
{
    V21,   ///< vCard 2.1
    V30,   ///< vCard 3.0 (RFC 2426), which most programs and phones read
    V40,   ///< vCard 4.0 (RFC 6350)
    JCard, ///< jCard (RFC 7095): one card, or an array of several cards, each on a line
};

/// Writes contacts to a device, one after the other. It holds one contact, and keeps that memory for the next one.
///
/// **What is written** is correct, whatever was found. The output is UTF-8 with CR LF. Lines are folded at 75 octets,
/// never inside a character, an escape or an encoded byte. The properties keep their order. VERSION is added where it
/// is missing, and so are FN and N where the version needs them.
///
/// A line is written byte for byte if its card already has the version that is written and the line is what this class
/// would accept: see the list below. Every other line is written again from its decoded value, so its folds, letter
/// case and order of parameters may differ, but not what it says.
///
/// - The reader has found nothing odd in it, and its lines end in CR LF and have 75 octets at most.
/// - It is ASCII or UTF-8. In 2.1, it is ASCII, and QUOTED-PRINTABLE is in UTF-8.
/// - The version has its parameters, and the encoding that they name.
///
/// Parts of a card that are no property are not written: dropped lines, blank lines, and text between lines.
/// PimContactCard::Bytes() has them.
///
/// **What the version does not have** is written in another form where programs have one, such as `X-ANNIVERSARY` for
/// ANNIVERSARY, and Report() says so. The table in docs/vcard-support.md lists every property with what each version
/// keeps. Line breaks of all kinds become line feeds, and control characters other than tabs are left out, so that no
/// value ends its line or its card.
///
/// Writing what was written in the same format yields the same bytes. A writer belongs to one thread; several writers
/// may work at the same time.
class PIMCONTACT_EXPORT PimContactWriter
{
public:
    /// \param a_device open for writing; must outlive the writer and remains the caller's. A device that is not open
    ///                 fails when it is written to for the first time.
    explicit PimContactWriter( QIODevice& a_device, PimContactFormat a_format = PimContactFormat::V30 );
    PimContactWriter( PimContactWriter&& a_other ) noexcept;
    PimContactWriter& operator=( PimContactWriter&& a_other ) noexcept;
    /// Does not call Finish().
    ~PimContactWriter();
    Q_DISABLE_COPY( PimContactWriter )

    /// What is written.
    PimContactFormat Format() const;

    /// The most notes that Report() keeps. Default: 1000. The others are counted.
    int MostNotes() const;
    void SetMostNotes( int a_most );

    /// Writes a card. A null card writes nothing. Linear in the length of the card, but for cards that are nested in
    /// it, which 3.0 writes as text with the escapes of all cards around them; deeper than two they are left out.
    /// \return false if the device has failed, now or before. Then nothing more is written. The device is written to in
    ///         large pieces, so a failure may show at a later call, and at the latest in Finish().
    bool Write( const PimContactCard& a_card );
    /// Writes the card of a contact, see PimContact::Card().
    bool Write( const PimContact& a_contact ) { return Write( a_contact.Card() ); }

    /// Ends the output, and writes what is still in memory. Call it once, behind the last contact; then write no more.
    /// Without any contact a vCard file is empty, and a jCard file has an empty array.
    /// \return false if the device has failed, now or before.
    bool Finish();

    /// The text of the device's error; empty if there was none.
    QString ErrorText() const;

    /// What has happened so far.
    PimContactWriteReport Report() const;

    /// \return a card as a text of its own; a null card is an empty text, and as jCard an empty array.
    static QByteArray TextOf( const PimContactCard& a_card, PimContactFormat a_format = PimContactFormat::V30 );
    /// \return the card of a contact as a text of its own.
    static QByteArray TextOf( const PimContact& a_contact, PimContactFormat a_format = PimContactFormat::V30 )
    {
        return TextOf( a_contact.Card(), a_format );
    }

private:
    std::unique_ptr<PimContactWriterPrivate> d;
};

} // namespace PimManager::Contacts
