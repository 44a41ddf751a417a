/// \file
/// A whole address book in memory.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// for ( const PimContact& contact : book )
///     qInfo() << contact.DisplayName() << contact.Phones().Preferred().Number();
/// if ( !book.Report().IsComplete() )
///     qWarning().noquote() << book.Report().Summary();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReport.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QByteArray>
#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QtGlobal>

#include <iterator>

class QIODevice;

namespace PimManager::Contacts
{

class PimContactBookPrivate;

/// The contacts of a file, and the report on it. Implicitly shared; copying is cheap.
///
/// A book contains cards. It uses at most three times the bytes of its cards, plus 250 bytes for each card. A contact
/// is created from its card at each access. To change a contact in the book, edit it and pass it to Replace().
class PIMCONTACT_EXPORT PimContactBook
{
public:
    class const_iterator;
    class CardRange;

    /// Creates an empty book.
    PimContactBook();
    PimContactBook( const PimContactBook& a_other );
    PimContactBook( PimContactBook&& a_other ) noexcept;
    PimContactBook& operator=( const PimContactBook& a_other );
    PimContactBook& operator=( PimContactBook&& a_other ) noexcept;
    ~PimContactBook();

    /// Reads a file.
    /// \param a_name the file name.
    /// \return the cards of the file. If it cannot be opened or read, the cards up to the error; Report().ErrorText()
    ///         then describes it.
    static PimContactBook ReadFile( const QString& a_name, const PimContactOptions& a_options = PimContactOptions() );

    /// Reads a device from its current position to its end.
    /// \param a_device open for reading; remains the caller's. If a sequential device has no data, the function waits
    ///                 up to 30 seconds for more, each time.
    /// \return the cards. If the device fails, the cards up to the failure; Report().ErrorText() then describes it.
    static PimContactBook Read( QIODevice& a_device, const PimContactOptions& a_options = PimContactOptions() );

    /// Reads bytes.
    /// \param a_bytes any bytes; may be empty. The book does not refer to them.
    static PimContactBook FromBytes( const QByteArray& a_bytes,
                                     const PimContactOptions& a_options = PimContactOptions() );

    /// Writes all contacts to a device, as PimContactWriter does.
    /// \param a_device open for writing; remains the caller's.
    /// \return a report on the data that the format could not express. Its ErrorText() is not empty if the device
    ///         failed.
    PimContactWriteReport Save( QIODevice& a_device, PimContactFormat a_format = PimContactFormat::V30 ) const;

    /// Writes all contacts to a file. An existing file is replaced only after everything was written. If that fails, it
    /// does not change.
    /// \param a_name the file name.
    PimContactWriteReport Save( const QString& a_name, PimContactFormat a_format = PimContactFormat::V30 ) const;

    /// The number of cards.
    int Size() const;
    /// True if there are no cards.
    bool IsEmpty() const;

    /// \param a_index from 0 to Size() - 1.
    PimContact At( int a_index ) const;
    const PimContactCard& CardAt( int a_index ) const;

    /// The contacts in the order of the file. Valid until the book is changed or destroyed.
    const_iterator begin() const;
    const_iterator end() const;

    /// The cards in the order of the file. Valid until the book is changed or destroyed, so a temporary book cannot
    /// return them.
    CardRange Cards() const&;
    CardRange Cards() && = delete;

    /// Finds the members of a group by their UID (RFC 6350, section 6.6.5). A `urn:uuid:` prefix and letter case are
    /// ignored.
    /// \return the contacts in the order of the book. Members that are not in the book are left out. Linear in the
    ///         length of the book.
    QList<PimContact> MembersOf( const PimContact& a_group ) const;

    /// Adds a card at the end. Amortised constant time. A null card is not added.
    void Append( const PimContactCard& a_card );
    /// Adds the card of a contact at the end. A null contact is not added.
    void Append( const PimContact& a_contact ) { Append( a_contact.Card() ); }

    /// Replaces a card by the card of a contact. A null contact changes nothing.
    /// \param a_index from 0 to Size() - 1.
    void Replace( int a_index, const PimContact& a_contact );

    /// Removes a card. \param a_index from 0 to Size() - 1.
    void Remove( int a_index );

    /// Moves a card to another index. Both indexes are from 0 to Size() - 1.
    void Move( int a_from, int a_to );

    /// The report on the file that was read. Changing the book does not change it.
    PimContactReport Report() const;

    /// \return true if the cards are equal and in the same order. Reports are not compared.
    bool operator==( const PimContactBook& a_other ) const;
    bool operator!=( const PimContactBook& a_other ) const;

private:
    QSharedDataPointer<PimContactBookPrivate> d;
};

/// Iterates over the contacts of a book. Each contact is created when the iterator is dereferenced.
class PIMCONTACT_EXPORT PimContactBook::const_iterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = PimContact;
    using difference_type = qptrdiff;
    using pointer = const PimContact*;
    using reference = PimContact;

    reference operator*() const { return PimContact( *m_card ); }
    const_iterator& operator++()
    {
        ++m_card;
        return *this;
    }
    const_iterator operator++( int )
    {
        const const_iterator before = *this;
        ++m_card;
        return before;
    }
    bool operator==( const const_iterator& a_other ) const { return m_card == a_other.m_card; }
    bool operator!=( const const_iterator& a_other ) const { return m_card != a_other.m_card; }

private:
    friend class PimContactBook; // creates iterators
    explicit const_iterator( const PimContactCard* a_card ) :
        m_card( a_card )
    {
    }

    const PimContactCard* m_card;
};

/// The cards of a book.
class PIMCONTACT_EXPORT PimContactBook::CardRange
{
public:
    const PimContactCard* begin() const { return m_begin; }
    const PimContactCard* end() const { return m_end; }

private:
    friend class PimContactBook; // creates ranges
    CardRange( const PimContactCard* a_begin, const PimContactCard* a_end ) :
        m_begin( a_begin ),
        m_end( a_end )
    {
    }

    const PimContactCard* m_begin;
    const PimContactCard* m_end;
};

} // namespace PimManager::Contacts
