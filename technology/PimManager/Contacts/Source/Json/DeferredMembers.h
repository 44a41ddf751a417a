/// \file
/// Writes members of a contact that need more than one property.

#pragma once

#include "Text/JsonText.h"
#include "Json/ContactMember.h"

#include <PimManager/Contacts/PimContact.h>

namespace PimManager::Contacts
{

/// Appends a member with a comma before it, as PimContact reads it. Appends nothing if the contact has no such field.
///
/// It can write every member, but more slowly than ContactHead, which collects members while it reads the properties.
/// Photos and other media are always left to ContactHead.
void WriteDeferred( ContactMember a_member, const PimContact& a_contact, JsonText& a_json );

} // namespace PimManager::Contacts
