/// \file
/// The work of a program that shows all data of a contact.

#pragma once

#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContact;

} // namespace PimManager::Contacts

/// Reads every typed field of a contact, with all texts, kinds and bytes.
/// \return a number that depends on all of them, so that the compiler leaves nothing out.
qint64 TakeFields( const PimManager::Contacts::PimContact& a_contact );
