/// \file
/// Recognises cards whose BEGIN is missing.

#pragma once

#include "Cards/CardRecord.h"

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_line a physical line without its line ending.
/// \return true if the line is clearly a property with a known name. Lines outside cards are held from such a line on.
bool IsKnownProperty( std::string_view a_line );

/// \param a_index the index of an outermost card.
/// \param a_bytes the bytes of the card.
/// \return true if one of the lines is FN, N, TEL, EMAIL or ORG, filtered or not. Lines that end with END are then a
///         card without BEGIN.
bool IsContact( const CardIndex& a_index, std::string_view a_bytes );

} // namespace PimManager::Contacts
