/// \file
/// The form of URIs.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// \return true for a text in the form of a URI (RFC 3986): a scheme, a colon, and only characters that a URI may
///         contain. A `geo:` URI must also contain a position (RFC 5870, section 3.3).
bool IsConformingUri( std::string_view a_text );

} // namespace PimManager::Contacts
