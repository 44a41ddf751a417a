/// \file
/// Recognises cards whose BEGIN is missing.

#pragma once

#include "Cards/CardRecord.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Example of lines outside cards:
///
///     hello         text outside cards
///     FN:Omega      IsKnownProperty(): held back from here on
///     TEL:555
///     END:VCARD     IsContact(): the lines from FN to END are a card
///
/// \param a_line a physical line without its line ending.
/// \return true if the line is clearly a property with a known name. Lines outside cards are held back from such a line
///         on, because they may be a card.
bool IsKnownProperty( std::string_view a_line );

/// \param a_index the index of an outermost card.
/// \param a_bytes the bytes of the card.
/// \return true if one of the lines is FN, N, TEL, EMAIL or ORG, filtered or not. If END follows, the lines are then a
///         card without BEGIN.
bool IsContact( const CardIndex& a_index, std::string_view a_bytes );

} // namespace PimManager::Contacts
