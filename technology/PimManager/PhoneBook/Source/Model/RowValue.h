/// \file
/// What a row of the model shows.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QVariant>

namespace PimManager::PhoneBook
{

/// \param a_role a role of PimPhoneBookModel that depends on the contact only.
/// \return an invalid value for another role.
QVariant RowValue( const Contacts::PimContact& a_contact, int a_role );

} // namespace PimManager::PhoneBook
