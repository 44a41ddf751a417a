/// \file
/// Reads dates and times in the forms of address books.
///
/// Only unambiguous forms are read. Any other text is not a date. Nothing is allocated, and a text that is too long for
/// a date is refused without being read.

#pragma once

#include "Contact/DateFields.h"

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// The type of the value as declared by its line.
enum class DateHint
{
    Any,  ///< a date, a date and a time, or `T` and a time
    Time, ///< a time, with `T` or without it (VALUE=time)
    Text, ///< not a date (VALUE=text)
};

/// Reads the forms of RFC 6350, section 4.3, in the basic and the extended format, and those that programs write
/// instead: `1985-4-2`, `1985/04/12`, a blank instead of `T`, zeros for an unknown year, month or day, and fractions of
/// a second, which are dropped. White space at both ends is ignored.
///
/// \param a_omittedYear the value of X-APPLE-OMIT-YEAR. This year means that the year is unknown.
/// \return nothing if it is not a date, such as `12.04.1985`, a day that does not exist, or an empty text.
std::optional<DateFields> ReadDate( std::string_view a_text, DateHint a_hint = DateHint::Any,
                                    const std::optional<int>& a_omittedYear = std::nullopt );

/// \param a_text such as `20240311T084512Z`. A call has a complete date and time, local or in UTC.
std::optional<DateFields> ReadCallTime( std::string_view a_text );

/// \param a_text such as `-0500`, `-05:00`, `+02` or `Z`.
/// \return minutes, positive east of Greenwich; nothing if it is not an offset from UTC.
std::optional<int> ReadOffset( std::string_view a_text );

} // namespace PimManager::Contacts
