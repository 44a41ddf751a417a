/// \file
/// The contacts of a device: who is calling, and find as you type.
///
/// \code
/// PimPhoneBookOptions options;
/// options.SetRegion( QStringLiteral( "DE" ) );
/// const PimPhoneBook phoneBook( PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) ), options );
/// for ( const PimPhoneBookCaller& caller : phoneBook.WhoIs( QStringLiteral( "+49 30 901820" ) ) )
///     qInfo() << phoneBook.At( caller.m_contact ).DisplayName();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookExport.h>
#include <PimManager/PhoneBook/PimPhoneBookMatch.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVector>

namespace PimManager::PhoneBook
{

class PimPhoneBookPrivate;

/// A book of contacts with an index of their names and numbers. Implicitly shared; copying is cheap. Const functions
/// may run in several threads at once.
///
/// The index is made by the constructor and is in memory only. To change a contact, change the book and make a new
/// phone book of it.
class PIMPHONEBOOK_EXPORT PimPhoneBook
{
public:
    /// Creates an empty phone book.
    PimPhoneBook();
    /// Reads names, nicknames, organisations and numbers of each contact. For n contacts of bounded length, the work is
    /// in the order of n log n.
    explicit PimPhoneBook( const Contacts::PimContactBook& a_book,
                           const PimPhoneBookOptions& a_options = PimPhoneBookOptions() );
    PimPhoneBook( const PimPhoneBook& a_other );
    PimPhoneBook( PimPhoneBook&& a_other ) noexcept;
    PimPhoneBook& operator=( const PimPhoneBook& a_other );
    PimPhoneBook& operator=( PimPhoneBook&& a_other ) noexcept;
    ~PimPhoneBook();

    /// The book that the phone book was made of.
    Contacts::PimContactBook Book() const;
    PimPhoneBookOptions Options() const;

    /// The number of contacts.
    int Size() const;
    /// \param a_contact an index in the book, from 0 to Size() - 1.
    Contacts::PimContact At( int a_contact ) const;

    /// \return the indices of all contacts, sorted by name as the options say. Constant time.
    QVector<int> Sorted() const;

    /// \return the section of a contact in the sorted list: the first letter of its name, as the alphabet of the locale
    ///         has it, such as `A`. `#` for a name that does not begin with a letter.
    /// \param a_contact an index in the book, from 0 to Size() - 1.
    QString Section( int a_contact ) const;

    /// Finds the contacts that have a number.
    /// \param a_number a number as a network or a person gives it, as PimPhoneBookNumber::FromText() reads it; may be
    ///                 empty.
    /// \return all contacts with that number, the best grade first, and in the order of the book within a grade. The
    ///         grades are those of PimPhoneBookNumber::Compare(). A contact with several equal numbers is found once,
    ///         with the best one. Several contacts mean that the caller is ambiguous. Empty if nobody has the number.
    ///         The work grows with the length of the number and with the numbers that end with the same digits, but
    ///         not with the size of the book.
    QVector<PimPhoneBookCaller> WhoIs( const QString& a_number ) const;

    /// Finds the contacts that contain each word of a text.
    /// \param a_text what a person has typed so far.
    /// \return the contacts, the best place first. Within one place contacts that called recently are first, then the
    ///         contacts are in the order of Sorted(). All contacts if the text has no word.
    QVector<PimPhoneBookMatch> Find( const QString& a_text ) const;

    /// Finds the contacts whose names begin with letters on the keys of a telephone (ITU-T E.161), or that have the
    /// keys in a number. \param a_keys digits; `0` and `1` separate words in names. Other characters are ignored.
    /// \return as Find() does.
    QVector<PimPhoneBookMatch> FindByKeys( const QString& a_keys ) const;

    /// Sets the numbers of recent calls, the latest first. Find() and FindByKeys() prefer the contacts that WhoIs()
    /// finds for them with the grade Exact or National.
    void SetRecentCalls( const QStringList& a_numbers );

private:
    QSharedDataPointer<PimPhoneBookPrivate> d;
};

} // namespace PimManager::PhoneBook
