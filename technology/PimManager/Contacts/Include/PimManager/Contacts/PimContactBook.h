/// \file
/// A whole address book in memory.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// for ( const PimContactCard& card : book )
///     qInfo() << card.Number() << card.LineCount();
/// if ( !book.Report().IsComplete() )
///     qWarning().noquote() << book.Report().Summary();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>
#include <QSharedDataPointer>
#include <QString>

class QIODevice;

namespace PimManager::Contacts
{

class PimContactBookPrivate;

/// A list of cards and the report on the file that they came from. Implicitly shared; copying is cheap. A book takes at
/// most three times the bytes of its cards and 250 bytes a card.
class PIMCONTACT_EXPORT PimContactBook
{
public:
    using const_iterator = const PimContactCard*;

    /// Creates an empty book.
    PimContactBook();
    PimContactBook( const PimContactBook& a_other );
    PimContactBook( PimContactBook&& a_other ) noexcept;
    PimContactBook& operator=( const PimContactBook& a_other );
    PimContactBook& operator=( PimContactBook&& a_other ) noexcept;
    ~PimContactBook();

    /// Reads a file.
    /// \param a_name the file name.
    /// \return the cards of the file. If it cannot be opened or read, the cards up to that place; Report().ErrorText()
    ///         then says why.
    static PimContactBook ReadFile( const QString& a_name, const PimContactOptions& a_options = PimContactOptions() );

    /// Reads a device from its current position to its end.
    /// \param a_device open for reading; remains the caller's. A sequential device is waited for, each time up to 30
    ///                 seconds.
    /// \return the cards. If the device fails, those up to that place; Report().ErrorText() then says why.
    static PimContactBook Read( QIODevice& a_device, const PimContactOptions& a_options = PimContactOptions() );

    /// Reads bytes.
    /// \param a_bytes any bytes; may be empty. The book does not refer to them.
    static PimContactBook FromBytes( const QByteArray& a_bytes,
                                     const PimContactOptions& a_options = PimContactOptions() );

    /// The number of cards.
    int Size() const;
    /// True if there are no cards.
    bool IsEmpty() const;

    /// \param a_index from 0 to Size() less 1.
    const PimContactCard& At( int a_index ) const;

    /// Valid until the book is changed or destroyed.
    const_iterator begin() const;
    const_iterator end() const;

    /// Adds a card at the end. Amortised constant time. A null card is not added.
    void Append( const PimContactCard& a_card );

    /// Removes a card. \param a_index from 0 to Size() less 1.
    void Remove( int a_index );

    /// Moves a card so that it is at another index afterwards. Both are from 0 to Size() less 1.
    void Move( int a_from, int a_to );

    /// The report on the file that was read. Changing the book does not change it.
    PimContactReport Report() const;

    /// \return true if the cards are equal and in the same order. Reports are not compared.
    bool operator==( const PimContactBook& a_other ) const;
    bool operator!=( const PimContactBook& a_other ) const;

private:
    QSharedDataPointer<PimContactBookPrivate> d;
};

} // namespace PimManager::Contacts
