/// \file
/// Dates and times of vCard in the forms of jCard.

#pragma once

#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// Appends a date, a time, both, or an offset from UTC in the extended form of ISO 8601. It is the reverse of
/// AppendBasicForm().
///
/// \param a_text  the value in vCard. A value in neither form is appended unchanged.
/// \param a_isTime true if a value without a `T` is a time or an offset.
void AppendExtendedForm( std::string_view a_text, bool a_isTime, std::string& a_out );

} // namespace PimManager::Contacts
