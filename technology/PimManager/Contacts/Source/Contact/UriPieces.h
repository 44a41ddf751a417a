/// \file
/// Takes URIs and similar texts apart.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// Removes a scheme, such as `tel:`, or another beginning, in any letter case.
/// \return false if the text does not begin with it.
bool RemoveScheme( std::string_view& a_text, std::string_view a_scheme );

/// Removes what precedes the first delimiter, or everything if there is none, and the delimiter.
/// \return what was removed, without the delimiter.
std::string_view TakeUpTo( char a_delimiter, std::string_view& a_rest );

} // namespace PimManager::Contacts
