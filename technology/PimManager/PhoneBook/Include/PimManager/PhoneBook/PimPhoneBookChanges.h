/// \file
/// What changed between two versions of an address book.
///
/// \code
/// const auto oldBook = PimContactBook::ReadFile( QStringLiteral( "old.vcf" ) );
/// const auto newBook = PimContactBook::ReadFile( QStringLiteral( "new.vcf" ) );
/// const auto changes = PimPhoneBookChanges::Compare( oldBook, newBook );
/// qInfo() << changes.Added().size() << "new," << changes.Removed().size() << "gone";
/// for ( const PimPhoneBookPair& pair : changes.Changed() ) {
///     const auto lines = PimPhoneBookChanges::LinesOf( oldBook.At( pair.m_old ), newBook.At( pair.m_new ) );
///     for ( const PimContactLine& line : lines.m_new )
///         qInfo() << newBook.At( pair.m_new ).DisplayName() << line.Name() << line.Text();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookExport.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QList>
#include <QSharedDataPointer>
#include <QVector>

namespace PimManager::PhoneBook
{

class PimPhoneBookChangesPrivate;

/// Why two contacts are the same person or organisation. The first reason that applies is given.
enum class PimPhoneBookBasis
{
    /// They have the same lines, or are equal contacts apart from UID and X-BT-UID.
    Content,
    /// They have the same UID.
    Uid,
    /// They have the same X-BT-UID (Bluetooth Phone Book Access Profile).
    BluetoothUid,
    /// They have the same name, or nearly so, and a number or mail address in common.
    NameAndNumber,
    /// They alone have this name, and at least one of them has no number and no mail address.
    Name
};

/// Two contacts that are the same person or organisation.
struct PimPhoneBookPair
{
    /// The index of the contact in the old book.
    int m_old;
    /// The index of the contact in the new book.
    int m_new;
    /// Why they are the same.
    PimPhoneBookBasis m_basis;
};

/// The lines that differ between two contacts, each list in the order of its card.
struct PimPhoneBookLines
{
    /// The lines that only the old contact has.
    QList<Contacts::PimContactLine> m_old;
    /// The lines that only the new contact has.
    QList<Contacts::PimContactLine> m_new;
};

/// The differences between two books. Implicitly shared; copying is cheap. Const functions may run in several threads
/// at once. It does not refer to the books, and nothing in them is merged or changed.
///
/// **Which contacts are the same.** Each contact of one book is paired with at most one of the other. Pairs are made in
/// the order of PimPhoneBookBasis, except that an equal content with another UID or X-BT-UID, or without one, counts
/// only after these identifiers:
///
/// - A UID is compared without `urn:uuid:` and letter case. If several contacts have the same one, those with equal
///   content are paired, then those with equal names, then the rest in the order of the books. X-BT-UID likewise.
/// - A name is the words of FN, or else of N, NICKNAME or ORG, in any order, without letter case, accents and
///   punctuation. With a number or mail address in common, one word may have a typing error (a letter that is missing,
///   added, wrong, or exchanged with the next one), or words may be missing. If two contacts fit equally well, those
///   that have more numbers and lines in common are paired. If there are none, equal names are paired in the order of
///   the books, and others remain added and removed.
/// - Numbers are in common if their extensions and their last digits are equal. PimPhoneBookOptions::EndingDigits() is
///   the number of these digits. Shorter numbers are equal as a whole, see PimPhoneBookNumber::National(). Mail
///   addresses are compared without letter case.
/// - If any contact kept its UID, contacts with different UIDs are not the same by name.
///
/// **What is a change.** A pair has changed unless the contacts are equal by Contacts::PimContact::operator==(). Then
/// version, folds, encodings, character sets, group names, and the letter case and order of parameters do not count,
/// but the order of fields of one kind does: the first number is the one that is dialled. In addition, UID does not
/// count if only one of the contacts has one, and X-BT-UID likewise. All other lines count, also REV and PRODID.
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

    /// Compares two books, which may be empty. Equal contacts are found without reading their fields. For books of n
    /// bytes, the work is in the order of n log n, whatever they contain. The changes need about 50 bytes for each
    /// contact. The comparison needs about 200 bytes for each contact without an equal one, and 3 KB if it has no UID
    /// of the other book either.
    ///
    /// \param a_options Region() and EndingDigits() are used to compare numbers.
    /// \return the differences. There is no error: a contact that fits nobody is added or removed.
    static PimPhoneBookChanges Compare( const Contacts::PimContactBook& a_old, const Contacts::PimContactBook& a_new,
                                        const PimPhoneBookOptions& a_options = PimPhoneBookOptions() );

    /// Compares two contacts line by line. Lines that are written differently but say the same are left out, and so are
    /// UID and X-BT-UID that do not count. VERSION and empty lines are shown only if nothing else differs.
    /// \return the lines that differ; none if the contacts are equal, see above. If they differ only in the order of
    ///         lines or in their groups, the lines that must move, in both lists. In the order of n log n.
    static PimPhoneBookLines LinesOf( const Contacts::PimContact& a_old, const Contacts::PimContact& a_new );

    /// \return true if no contact was added, removed or changed. Contacts in another order are no difference.
    bool IsEmpty() const;

    /// The contacts that only the new book has: their indices in it, ascending.
    QVector<int> Added() const;
    /// The contacts that only the old book has: their indices in it, ascending.
    QVector<int> Removed() const;
    /// The contacts that are in both books and differ, in the order of the new book.
    QVector<PimPhoneBookPair> Changed() const;
    /// The contacts whose place among the contacts of both books differs: the fewest whose move makes one order into
    /// the other, in the order of the new book. They may have changed as well.
    QVector<PimPhoneBookPair> Moved() const;
    /// All contacts that are in both books, in the order of the new book.
    QVector<PimPhoneBookPair> Pairs() const;

    /// \return the index of the same contact in the new book; -1 if there is none.
    /// \param a_old an index in the old book. -1 is returned for any other number. Constant time.
    int NewOf( int a_old ) const;
    /// \return the index of the same contact in the old book; -1 if there is none.
    /// \param a_new an index in the new book. -1 is returned for any other number. Constant time.
    int OldOf( int a_new ) const;

private:
    QSharedDataPointer<PimPhoneBookChangesPrivate> d;
};

} // namespace PimManager::PhoneBook

Q_DECLARE_TYPEINFO( PimManager::PhoneBook::PimPhoneBookPair, Q_PRIMITIVE_TYPE );
