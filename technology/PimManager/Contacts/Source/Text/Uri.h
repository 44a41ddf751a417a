/// \file
/// Uniform resource identifiers (RFC 3986).

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return the length of the scheme at the start of a text, without its colon; 0 if there is none. A single letter is
///         not a scheme, because it may be the drive of a path.
size_t LengthOfScheme( std::string_view a_text );

/// \return true if a text begins with a scheme, and has no white space and no control characters.
bool IsUri( std::string_view a_text );

} // namespace PimManager::Contacts
