/// \file
/// The marks that some address books write around labels.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return the text between two marks. The whole text unless it has both of them.
std::string_view Unwrapped( std::string_view a_text, std::string_view a_begin, std::string_view a_end );

/// \return a label without the marks of a built-in one: `Home` for `_$!<Home>!$_`. White space at both ends is removed.
std::string_view WithoutLabelMarks( std::string_view a_label );

/// \return `Home` for `_$!<Home>!$_`; empty for a label without these marks, which is free text.
std::string_view BuiltInLabel( std::string_view a_label );

} // namespace PimManager::Contacts
