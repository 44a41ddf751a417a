/// \file
/// The property names of the standards.

#pragma once

#include "Lines/PropertyTable.h"

#include <string_view>

namespace PimManager::Contacts
{

/// \return true for a property name of vCard 2.1, RFC 2426, RFC 6350 and its extensions (RFC 6474, 6715, 8605, 9554 and
///         9555), in any letter case, including BEGIN and END. Constant time.
bool IsKnownName( std::string_view a_name );

/// \return false for TEL, EMAIL, BDAY and other names whose values are one word, a number, a date or a picture, because
///         a line of text cannot continue such a value. True for every other name, known or not.
bool HoldsText( std::string_view a_name );

/// \return true for PHOTO, LOGO, SOUND and KEY.
bool IsMediaProperty( PropertyId a_property );
bool IsMediaName( std::string_view a_name );

/// \return true for a known name whose value is text, such as FN, TEL and REV; false for PHOTO, LOGO, SOUND, KEY and
///         AGENT, and for BEGIN, END and VERSION, which are handled with the card.
bool IsKnownTextName( std::string_view a_name );

/// \return true for N, FN and NICKNAME.
bool IsPersonName( std::string_view a_name );

} // namespace PimManager::Contacts
