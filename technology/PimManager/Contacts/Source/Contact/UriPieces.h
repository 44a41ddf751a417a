/// \file
/// Splits URIs and similar texts.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// Removes a scheme such as `tel:`, or another prefix, in any letter case.
/// \return false if the text does not begin with it.
bool RemoveScheme( std::string_view& a_text, std::string_view a_scheme );

/// Removes the text up to and including the first delimiter, or everything if there is none.
/// \return the removed text without the delimiter.
std::string_view TakeUpTo( char a_delimiter, std::string_view& a_rest );

} // namespace PimManager::Contacts
