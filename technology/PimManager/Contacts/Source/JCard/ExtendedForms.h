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
/// \param a_text  the value in vCard. What has neither form is appended as it is.
/// \param a_isTime without a `T` the whole value is a time or an offset.
void AppendExtendedForm( std::string_view a_text, bool a_isTime, std::string& a_out );

} // namespace PimManager::Contacts
