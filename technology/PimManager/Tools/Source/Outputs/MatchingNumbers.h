/// \file
/// The numbers by which a search finds contacts.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QList>
#include <QString>
#include <QVector>

namespace PimManager::Tools
{

enum class SearchedAs
{
    Text, ///< as PimPhoneBook::Find() does
    Keys  ///< as PimPhoneBook::FindByKeys() does
};

/// \param a_contacts indices in the book.
/// \return for each of the contacts the ids of the TEL lines that contain the text, or else one of its words. Linear in
///         the number of these lines.
QVector<QList<int>> MatchingNumbers( const Contacts::PimContactBook& a_book, const QVector<int>& a_contacts,
                                     const QString& a_text, SearchedAs a_as,
                                     const PhoneBook::PimPhoneBookOptions& a_options );

} // namespace PimManager::Tools
