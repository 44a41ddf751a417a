/// \file
/// The forms of dates and times in each version.

#pragma once

#include "Lines/PropertyRules.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <string_view>

namespace PimManager::Contacts
{

/// Checks a date or a time: in 4.0 by RFC 6350, section 4.3; in 3.0 by RFC 2425, section 5.8.4; in 2.1 by ISO 8601, in
/// the basic or the extended format. A day must exist.
///
/// \param a_type Date, Time, DateTime, DateAndOrTime or Timestamp.
bool IsDateOfType( std::string_view a_text, ValueType a_type, PimContactVersion a_version );

/// Checks an offset from UTC: `-0500` or `-05` in 4.0, `-05:00` in 3.0, any of them in 2.1.
bool IsOffset( std::string_view a_text, PimContactVersion a_version );

} // namespace PimManager::Contacts
