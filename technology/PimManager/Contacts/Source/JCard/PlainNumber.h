/// \file
/// Numbers of JSON in the form of vCard.

#pragma once

#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// Appends a number without its exponent, which vCard does not have (RFC 7095, section 3.5.9 and 3.5.10): `1.30e5`
/// becomes `130000`, and `25e-3` becomes `0.025`. A number without an exponent is copied.
///
/// \param a_isInteger true to leave out the decimals as well: `3.14` becomes `3`.
/// \return false if it is no number of JSON, or one with an exponent above 30 or below -30; then nothing is appended.
bool AppendPlainNumber( std::string_view a_number, bool a_isInteger, std::string& a_out );

} // namespace PimManager::Contacts
