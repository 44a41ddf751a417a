/// \file
/// The data of a PimPhoneBook.

#pragma once

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
};

} // namespace PimManager::PhoneBook
