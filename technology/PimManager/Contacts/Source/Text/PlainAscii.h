/// \file
/// Checks whether a text consists of plain ASCII.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return true if a text consists of visible ASCII and blanks.
bool IsPrintableAscii( std::string_view a_text );

} // namespace PimManager::Contacts
