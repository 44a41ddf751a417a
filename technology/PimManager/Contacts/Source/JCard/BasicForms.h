/// \file
/// Dates and times of jCard in the forms of vCard.

#pragma once

#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// Appends a date, a time, both, or an offset from UTC.
///
/// jCard has the extended forms of ISO 8601, vCard the basic ones (RFC 7095, section 3.5.3 to 3.5.7 and 3.5.9):
/// `1985-04-12` becomes `19850412`, `--04-12` becomes `--0412`, `12:34:56-08:00` becomes `123456-0800`. Forms without
/// day or month, such as `1985-04`, `--04` and `---12`, are the same in both. A date in the basic form remains as it
/// is.
///
/// \param a_text  the value in jCard.
/// \param a_isTime true if the text before a `T` is not a date. Without a `T`, the whole value is then a time or an
///                 offset.
/// \return false if it is none of these. Then nothing is appended.
bool AppendBasicForm( std::string_view a_text, bool a_isTime, std::string& a_out );

} // namespace PimManager::Contacts
