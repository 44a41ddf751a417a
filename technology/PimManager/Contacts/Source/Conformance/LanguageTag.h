/// \file
/// Language tags.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return true for a well-formed language tag such as `de-CH` (RFC 5646, section 2.1), in any letter case. Whether its
///         parts are registered is not checked.
bool IsLanguageTag( std::string_view a_text );

} // namespace PimManager::Contacts
