/// \file
/// Generates two versions of an address book, and says which contacts are the same people.
///
/// \code
/// const ChangedBooks books = ChangedBookGenerator( 7 ).Make( 500 );
/// // the card 3 of books.m_new is the person of the card books.m_oldOf[3] of books.m_old
/// \endcode

#pragma once

#include <QByteArray>
#include <QList>
#include <QVector>
#include <QtGlobal>

#include <random>

namespace PimManager::vCard::MadeTexts
{

/// Two versions of a book.
struct ChangedBooks
{
    QByteArray m_old;
    QByteArray m_new;
    /// For each card of the new book: the card of the same person in the old book, from 0; -1 if there is none.
    QVector<int> m_oldOf;
    /// The number of cards in the old book.
    int m_oldSize = 0;
};

/// A person or company in a made book.
struct MadePerson
{
    int m_number = 0;
    QByteArray m_given;
    QByteArray m_family;
    QByteArray m_company;
    /// International, with digits only, such as `4930123456`.
    QList<QByteArray> m_numbers;
    QByteArray m_mail;
    QByteArray m_town;
    QByteArray m_birthday;
    QByteArray m_note;
    QByteArray m_photo;
    QByteArray m_uid;
    QByteArray m_bluetoothUid;
};

/// Generates books. The same seed and the same calls result in the same bytes on every machine.
///
/// The people have names with and without accents, of two words and of one; some have no number or no mail address.
/// Staff of a company have the number of its switchboard. Some fathers and sons have the same name and the same number
/// at home. From the old to the new book, people are removed and added, and get one to three of these changes: a typing
/// error in a name, family and given name exchanged, a number added or removed, a photo added, another note, mail
/// address or company. Each book has its own version (2.1, 3.0 or 4.0), folds, forms of numbers and order. UIDs are
/// missing in both books, in the new one, in a part of the new one, or nowhere.
class ChangedBookGenerator
{
public:
    explicit ChangedBookGenerator( quint32 a_seed );

    /// \param a_people the number of people in the old book, about.
    ChangedBooks Make( int a_people );

private:
    /// How a book is written.
    struct Style
    {
        int m_version = 30;
        int m_column = 75;
        quint32 m_numberForms = 1;
        /// Of a hundred cards, so many have a UID.
        quint32 m_uids = 0;
    };

    quint32 Below( quint32 a_bound );
    bool IsOneOf( quint32 a_hundred ) { return Below( 100 ) < a_hundred; }
    QByteArray Number( int a_digits );
    template <typename Words>
    QByteArray OneOf( const Words& a_words );
    QByteArray MadeName();
    QByteArray MadeNames( int a_count );
    QByteArray Telephone( int a_digits );
    QByteArray Birthday();
    QByteArray Identifier();
    Style MadeStyle();

    QList<MadePerson> People( int a_people );
    MadePerson Person();
    MadePerson SonOf( const MadePerson& a_father );
    void GiveNumbers( MadePerson& a_person );
    QList<MadePerson> Changed( const QList<MadePerson>& a_people );
    void Change( MadePerson& a_person );
    QByteArray WithTypo( QByteArray a_word );
    void Reorder( QList<MadePerson>& a_people );

    QByteArray Card( const MadePerson& a_person, const Style& a_style );
    QByteArray Line( const QByteArray& a_start, const QList<QByteArray>& a_values, const Style& a_style );
    QByteArray Form( const QByteArray& a_number, const Style& a_style );

    std::mt19937 m_random;
    int m_people = 0;
    QList<QByteArray> m_switchboards;
};

} // namespace PimManager::vCard::MadeTexts
