/// \file
/// The grammar of the component, PimManager::vCard.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>

namespace PimManager::Contacts
{

/// \return true if PimVCardParser reads the card from its bytes without an error, and if each of its values is the text
///         that Contacts reads, before QUOTED-PRINTABLE and BASE64 are decoded.
///
/// All of the following must hold. They are a little stricter than the component, which reports errors to Qt's log only;
/// so a card must be known to be free of errors before it is parsed.
///
/// - The card has BEGIN, properties, empty lines and END, without other text. All lines end in CR LF.
/// - It is UTF-8. Control characters, byte order marks, and the line breaks of Unicode, which the component may take for
///   folds, do not occur.
/// - Groups, names, and parameter values without quotes consist of letters, digits and hyphens. ENCODING is one of
///   QUOTED-PRINTABLE, BASE64, B, 7BIT and 8BIT, and occurs once.
/// - A backslash begins no component, and precedes a backslash, comma, semicolon or colon. BASE64 has no other
///   characters than its own and semicolons.
/// - The blank of a fold is a single one that does not belong to the text. The component removes all blanks.
/// - Soft line breaks occur only where ENCODING says QUOTED-PRINTABLE, and not behind an encoded line break, which the
///   component changes into a blank.
bool IsReadByComponent( const PimContactCard& a_card );

} // namespace PimManager::Contacts
