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
    /// \param a_book any book; may be empty. It is shared with the phone book.
    explicit PimPhoneBook( const Contacts::PimContactBook& a_book,
                           const PimPhoneBookOptions& a_options = PimPhoneBookOptions() );
    PimPhoneBook( const PimPhoneBook& a_other );
    PimPhoneBook( PimPhoneBook&& a_other ) noexcept;
    PimPhoneBook& operator=( const PimPhoneBook& a_other );
    PimPhoneBook& operator=( PimPhoneBook&& a_other ) noexcept;
    ~PimPhoneBook();

    /// The book that the phone book was made of.
    Contacts::PimContactBook Book() const;
    /// The options that it was made with.
    PimPhoneBookOptions Options() const;

    /// The number of contacts.
    int Size() const;
    /// \param a_contact an index in the book, from 0 to Size() - 1.
    Contacts::PimContact At( int a_contact ) const;

    /// \return the indices of all contacts, sorted by section and by name as the options say. Constant time.
    ///
    /// The name is PimContact::SortName(). If the options ask for the given name, it is given name and family name, if
    /// the contact has any of these. Names are compared as QCollator does in the locale; equal ones are in the order of
    /// the book.
    QVector<int> Sorted() const;

    /// \return the section of a contact in the sorted list: the first letter of its name, as the alphabet of the locale
    ///         has it, such as `A`. Never empty. Logarithmic in the number of sections.
    ///
    /// A letter with an accent is in the section of the plain letter, unless it is a letter of the alphabet: `Ä` is in
    /// `A` in German, and a section after `Z` in Swedish. The same applies to pairs such as `Ch` in Czech. Letters of
    /// other scripts have sections of their own. Kana are in the section of the first kana of their row, Hangul in that
    /// of the first consonant, and Chinese characters in that of the first letter of their pinyin if the locale sorts
    /// by it, and otherwise in `漢`. `#` is for names that do not begin with a letter. It is the last section. The
    /// contacts of a section follow each other in Sorted().
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

    /// Finds the contacts that contain each word of a text, in any order. A word is contained if it begins a word of
    /// the name, the nicknames or the organisations, or if it is digits and a part of a number. Two words may begin the
    /// same word.
    ///
    /// - **Words** are letters, digits and their marks; everything else divides words. Words with neither white space,
    ///   comma nor semicolon between them are also one word: `oneil`, `neil` and `o'neil` each find O'Neil. In Chinese,
    ///   Japanese and Korean names, each character may begin a word; in a word of more than 32 such parts, each of the
    ///   first 32. The first 96 bytes of a word in UTF-8 are compared.
    /// - **Letter case and accents** are ignored: `muller`, `müller` and `mueller` each find Müller; `müller` and
    ///   `mueller` also find Mueller. The same applies to other letters with two spellings, such as `ø` (`o`, `oe`),
    ///   `å` (`a`, `aa`), `ß` (`s`, `ss`) and `đ` (`d`, `dj`). Vowel marks of Hebrew and Arabic are ignored. Katakana
    ///   is the same as hiragana, and full width the same as half width.
    /// - **Names** are N, FN and NICKNAME in all languages of the card, the pronunciation and the maiden name. If a
    ///   contact has none of these and no organisation, it is found by DisplayName(), such as its mail address.
    /// - **Numbers** are found by their digits, in whichever notation. Digits after `+` or beginning with `0` may also
    ///   begin a number in another notation, if that has three digits: `030` finds +49 30 and `+49 30` finds 030 if the
    ///   region is `DE`, and `0049 30` finds +49 30.
    ///
    /// For n contacts, each word takes time in the order of n / 64 and of the words and contacts found. Parts of
    /// numbers take time in the order of the contacts that contain each three of the digits.
    ///
    /// \param a_text what a person has typed so far; may be anything.
    /// \return the contacts, the best place first. Within one place, contacts that called recently come first, and the
    ///         others follow in the order of Sorted(). All contacts if the text has no word. Empty if none contains it.
    QVector<PimPhoneBookMatch> Find( const QString& a_text ) const;

    /// Finds the contacts whose names begin with letters on the keys of a telephone, or that have the keys in a number.
    ///
    /// The keys are one number, and words between `0` and `1`, of which at least one must be in a name or organisation.
    /// Latin letters are on the keys of ITU-T E.161, Greek, Cyrillic, Hebrew and Arabic ones on those of telephones
    /// with these letters. The first 16 keys of a word are compared. Words with characters on no key, such as Chinese
    /// ones, end before them.
    /// \param a_keys digits, also of other scripts. `+` makes the number international; any other character is ignored.
    /// \return as Find() does.
    QVector<PimPhoneBookMatch> FindByKeys( const QString& a_keys ) const;

    /// Sets the numbers of recent calls, the latest first. Find() and FindByKeys() prefer the contacts that WhoIs()
    /// finds for them with the grade Exact or National.
    /// \param a_numbers in any notation; may be empty.
    void SetRecentCalls( const QStringList& a_numbers );

private:
    QSharedDataPointer<PimPhoneBookPrivate> d;
};

} // namespace PimManager::PhoneBook
