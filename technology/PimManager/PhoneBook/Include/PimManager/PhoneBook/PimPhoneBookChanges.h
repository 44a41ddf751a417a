/// \file
/// What changed between two versions of an address book.
///
/// \code
/// const auto changes = PimPhoneBookChanges::Compare( PimContactBook::ReadFile( QStringLiteral( "old.vcf" ) ),
///                                                    PimContactBook::ReadFile( QStringLiteral( "new.vcf" ) ) );
/// qInfo() << changes.Added().size() << "new," << changes.Removed().size() << "gone," << changes.Changed().size()
///         << "changed";
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookExport.h>

#include <QSharedDataPointer>
#include <QVector>

namespace PimManager::PhoneBook
{

class PimPhoneBookChangesPrivate;

/// Two contacts that are the same person or organisation.
struct PimPhoneBookPair
{
    /// The index of the contact in the old book.
    int m_old;
    /// The index of the contact in the new book.
    int m_new;
};

/// The differences between two books. Implicitly shared; copying is cheap.
class PIMPHONEBOOK_EXPORT PimPhoneBookChanges
{
public:
    /// Creates the differences between two empty books: none.
    PimPhoneBookChanges();
    PimPhoneBookChanges( const PimPhoneBookChanges& a_other );
    PimPhoneBookChanges( PimPhoneBookChanges&& a_other ) noexcept;
    PimPhoneBookChanges& operator=( const PimPhoneBookChanges& a_other );
    PimPhoneBookChanges& operator=( PimPhoneBookChanges&& a_other ) noexcept;
    ~PimPhoneBookChanges();

    /// Compares two books.
    static PimPhoneBookChanges Compare( const Contacts::PimContactBook& a_old, const Contacts::PimContactBook& a_new );

    /// \return true if no contact was added, removed or changed. Contacts in another order are no difference.
    bool IsEmpty() const;

    /// The contacts that only the new book has: their indices in it, ascending.
    QVector<int> Added() const;
    /// The contacts that only the old book has: their indices in it, ascending.
    QVector<int> Removed() const;
    /// The contacts that are in both books and differ, in the order of the new book.
    QVector<PimPhoneBookPair> Changed() const;
    /// The contacts whose place among the contacts of both books differs: the fewest whose move makes one order into
    /// the other, in the order of the new book.
    QVector<PimPhoneBookPair> Moved() const;

    /// \return the index of the same contact in the new book; -1 if there is none.
    /// \param a_old an index in the old book. Constant time.
    int NewOf( int a_old ) const;
    /// \return the index of the same contact in the old book; -1 if there is none.
    /// \param a_new an index in the new book. Constant time.
    int OldOf( int a_new ) const;

private:
    QSharedDataPointer<PimPhoneBookChangesPrivate> d;
};

} // namespace PimManager::PhoneBook

Q_DECLARE_TYPEINFO( PimManager::PhoneBook::PimPhoneBookPair, Q_PRIMITIVE_TYPE );
