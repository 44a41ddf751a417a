/// \file
/// What a contact is recognised by: its name, numbers and mail addresses.

#pragma once

#include "Changes/PersonName.h"
#include "Changes/TextNumbers.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <vector>

namespace PimManager::PhoneBook
{

/// The texts of both books, as numbers.
struct PersonTexts
{
    TextNumbers m_words;
    TextNumbers m_names;
    TextNumbers m_addresses;
};

/// A contact with its name, numbers and mail addresses.
struct Person
{
    /// Reads a contact. The options say how numbers are read and how many of their last digits count.
    Person( const Contacts::PimContactCard& a_card, int a_index, const QString& a_uid,
            const PimPhoneBookOptions& a_options, PersonTexts& a_texts );

    Contacts::PimContactCard m_card;
    int m_index;
    PersonName m_name;
    quint64 m_nameNumber;
    std::vector<quint64> m_words;
    QString m_uid;
    /// Numbers and mail addresses, each once.
    std::vector<quint64> m_addresses;
};

/// \return true if both have a UID, but not the same one.
bool HaveOtherUids( const Person& a_first, const Person& a_second );

/// \return a number for each line other than names, numbers, mail addresses and the like, ascending; the smallest ones
///         if there are many, so that two cards with the same lines have the same numbers. Different lines may have
///         equal numbers as well, so they are no proof.
std::vector<quint64> LineNumbers( const Contacts::PimContactCard& a_card );

} // namespace PimManager::PhoneBook
