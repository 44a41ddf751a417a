/// \file
/// The components of a name or an address.

#pragma once

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// The parts of an N or ADR in the order of the value. Those that are not there are empty.
using NamedParts = std::array<std::string_view, 7>;

} // namespace PimManager::Contacts
