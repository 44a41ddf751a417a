/// \file
/// The name of a contact, for comparisons.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QString>
#include <QStringList>

namespace PimManager::PhoneBook
{

/// How much two names agree.
enum class NameAgreement
{
    None,
    /// All words of one name are in the other, and at least two.
    Part,
    /// One letter of one word is missing, added, wrong, or exchanged with the next one, or a blank is.
    Typo,
    /// The words are equal in any order, or neither contact has a name.
    Same
};

/// The words of FN, or else of N, NICKNAME or ORG, without letter case, accents and punctuation.
class PersonName
{
public:
    explicit PersonName( const Contacts::PimContact& a_contact );

    bool IsEmpty() const { return m_words.isEmpty(); }
    /// The words in the order of their letters. At most eight.
    const QStringList& Words() const { return m_words; }
    /// The same for the same words in any order. Empty for no name.
    const QString& Key() const { return m_key; }

    NameAgreement Compare( const PersonName& a_other ) const;

private:
    QStringList m_words;
    QString m_key;
    // All letters as written.
    QString m_letters;
};

/// \return true if one letter is missing, added, wrong, or exchanged with the next one. False for equal words. Linear.
bool IsTypo( const QString& a_first, const QString& a_second );

} // namespace PimManager::PhoneBook
