/// \file
/// The data of a PimPhoneBook.

#pragma once

#include "Callers/CallerIndex.h"
#include "Numbers/NumberStore.h"
#include "Search/SearchIndex.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookMatch.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QSharedData>
#include <QString>
#include <QVector>

#include <memory>

namespace PimManager::PhoneBook
{

/// What is read from the contacts of a book.
struct PhoneBookIndex
{
    NumberStore m_numbers;
    CallerIndex m_callers;
    // Refers to m_numbers.
    SearchIndex m_search;
};

class PimPhoneBookPrivate : public QSharedData
{
public:
    Contacts::PimContactBook m_book;
    PimPhoneBookOptions m_options;
    Dialling m_home;
    // Never changed, so that copies share it.
    std::shared_ptr<const PhoneBookIndex> m_index = std::make_shared<PhoneBookIndex>();
    // The contacts of recent calls, the latest first.
    QVector<int> m_recent;
};

} // namespace PimManager::PhoneBook
