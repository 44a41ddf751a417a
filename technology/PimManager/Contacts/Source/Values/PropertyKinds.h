/// \file
/// How the values of properties are divided.

#pragma once

#include "Lines/PropertyTable.h"
#include "Values/PartReader.h"

#include <PimManager/Contacts/PimContactCard.h>

namespace PimManager::Contacts
{

/// Determines the delimiters of the value of a property.
///
/// | property | 2.1 | 3.0, and without a version | 4.0 |
/// |---|---|---|---|
/// | N, ADR | semicolons | semicolons, and commas inside components | as 3.0 |
/// | ORG | semicolons | semicolons | semicolons |
/// | NICKNAME, CATEGORIES | commas | commas | commas |
/// | GEO | nothing | semicolons | nothing |
/// | GENDER, CLIENTPIDMAP | nothing | nothing | semicolons |
/// | any other | nothing | nothing | nothing |
///
/// The sources are vCard 2.1, section 2; RFC 2426, section 3; and RFC 6350, section 6. Version 2.1 has neither NICKNAME
/// nor CATEGORIES, but phones write lists into its cards.
Delimiters DelimitersOf( PropertyId a_property, PimContactVersion a_version );

} // namespace PimManager::Contacts
