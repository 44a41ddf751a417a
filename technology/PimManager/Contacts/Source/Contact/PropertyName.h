/// \file
/// The properties that have a meaning of their own for a contact.

#pragma once

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// The first six are what a contact is called by, the best one first.
enum class PropertyName : quint8
{
    Fn,
    N,
    Nickname,
    Org,
    Email,
    Tel,
    Adr,
    Version,
    CallTime, ///< X-IRMC-CALL-DATETIME
    Other,
};

/// \param a_name in any letter case.
PropertyName PropertyNameOf( std::string_view a_name );

} // namespace PimManager::Contacts
