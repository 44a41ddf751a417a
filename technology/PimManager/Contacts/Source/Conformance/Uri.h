/// \file
/// The form of URIs.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return true for a text that has the form of a URI (RFC 3986): a scheme, a colon, and only characters that a URI may
///         have. A `geo:` URI must have a position as well (RFC 5870, section 3.3).
bool IsConformingUri( std::string_view a_text );

} // namespace PimManager::Contacts
