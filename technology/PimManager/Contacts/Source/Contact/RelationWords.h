/// \file
/// The words for the relations of a contact.

#pragma once

#include "Contact/VersionWords.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactKinds.h>

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_word a word of TYPE in RELATED, or the text of a built-in label (see BuiltInLabel()), in any letter case.
///               `X-` before the word is ignored.
/// \return the kind that PimContactKinds.h lists for the word. No kind for any other word.
PimContactRelationKinds RelationKindsOf( std::string_view a_word );

/// \param a_property the name of a property, such as X-SPOUSE, X-EVOLUTION-MANAGER, X-MS-CHILD or
///                   X-KADDRESSBOOK-X-AssistantsName, in any letter case.
/// \return the kind of all values of the property. No kind for any other property, RELATED included.
PimContactRelationKinds RelationKindsOfProperty( std::string_view a_property );

/// \return a word of TYPE for each kind, in the order of the enum. All of them begin with `X-`, except those that
///         version 4.0 defines.
KindWords RelationWordsOf( PimContactRelationKinds a_kinds, PimContactVersion a_version );

} // namespace PimManager::Contacts
