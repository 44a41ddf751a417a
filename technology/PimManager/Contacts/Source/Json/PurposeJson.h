/// \file
/// Writes what a property is for.

#pragma once

#include "Contact/LineParameters.h"
#include "Json/JsonText.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Whether the type INTERNET is written. Every mail address has it, so it says nothing about one.
enum class InternetType
{
    Written,
    LeftOut,
};

/// Writes the member `types`, and `label` and `preference` if there are any.
void WritePurpose( const LineParameters& a_parameters, std::string_view a_label, InternetType a_internet,
                   JsonText& a_json );

} // namespace PimManager::Contacts
