/// \file
/// The TYPE words for the kinds of phones, addresses and messengers.

#pragma once

#include "Contact/VersionWords.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactKinds.h>

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_word a word of TYPE, or the text of a built-in label (see BuiltInLabel()), in any letter case. `X-` and
///               `X-EVOLUTION-` before the word are ignored.
/// \return the kinds that PimContactKinds.h lists for the word. No kind for any other word.
PimContactPhoneKinds PhoneKindsOf( std::string_view a_word );
PimContactAddressKinds AddressKindsOf( std::string_view a_word );

/// The same for mail addresses, messengers and web pages.
PimContactKinds KindsOf( std::string_view a_word );

/// \return true for INTERNET, which is the default type of an EMAIL (RFC 2426, section 3.3.2).
bool IsMailDefault( std::string_view a_word );

/// \param a_word a TYPE word that is not a kind.
/// \return the label: `Boat` for `X-Boat`, and any other word unchanged.
std::string_view CustomLabelOf( std::string_view a_word );

/// \return a word of TYPE for each kind, in the order of the enum. A word that the version does not define begins with
///         `X-`. Kinds that the enum does not have are left out.
KindWords PhoneWordsOf( PimContactPhoneKinds a_kinds, PimContactVersion a_version );
KindWords AddressWordsOf( PimContactAddressKinds a_kinds, PimContactVersion a_version );

/// The same for mail addresses, messengers and web pages.
KindWords WordsOf( PimContactKinds a_kinds, PimContactVersion a_version );

} // namespace PimManager::Contacts
