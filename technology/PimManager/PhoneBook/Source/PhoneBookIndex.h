/// \file
/// The data of a PimPhoneBook.

#pragma once

#include "Callers/CallerIndex.h"
#include "Numbers/NumberStore.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookMatch.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QSharedData>
#include <QString>
#include <QVector>

namespace PimManager::PhoneBook
{

class PimPhoneBookPrivate : public QSharedData
{
public:
    Contacts::PimContactBook m_book;
    PimPhoneBookOptions m_options;
    QVector<int> m_sorted;
    NumberStore m_numbers;
    CallerIndex m_callers;
};

} // namespace PimManager::PhoneBook
