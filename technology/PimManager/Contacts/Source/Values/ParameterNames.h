/// \file
/// The names of the parameters that determine how a value is read.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

constexpr std::string_view s_kTypeParameter = "TYPE";
constexpr std::string_view s_kValueParameter = "VALUE";
constexpr std::string_view s_kEncodingParameter = "ENCODING";
constexpr std::string_view s_kCharsetParameter = "CHARSET";

} // namespace PimManager::Contacts
