/// \file
/// One property with decoded values, for programs to read.

#pragma once

#include "Contact.h"
#include "JsonStream.h"

namespace PimManager::vCard::Tools
{

/// Writes a property as an object, see docs/json.md.
void WritePropertyJson( JsonStream& a_json, const PimVCard& a_card, const PimVCardProperty& a_property );

/// Writes the members `label` and `preference`, each only when there is one.
void WriteLabelAndPreference( JsonStream& a_json, const ContactEntry& a_entry );

} // namespace PimManager::vCard::Tools
