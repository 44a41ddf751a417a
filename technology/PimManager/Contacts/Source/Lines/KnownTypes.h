/// \file
/// The types that vCard 2.1 lists.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return true for a type of vCard 2.1, section 2.9, and for any type that begins with `X-`, in any letter case.
bool IsType21( std::string_view a_type );

} // namespace PimManager::Contacts
