/// \file
/// The grammar of the component, PimManager::vCard.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>

namespace PimManager::Contacts
{

/// Checks whether the component reads a card in the same way as Contacts. The component reports errors to Qt's log
/// only, so a card is checked before it is parsed. The check is a little stricter than the component:
///
/// - The card has BEGIN, properties, empty lines and END. All lines end in CR LF.
/// - It is UTF-8, without control characters and byte order marks. The line breaks of Unicode do not occur either,
///   because the component may take them for folds.
/// - Groups, names, and parameter values without quotes consist of letters, digits and hyphens. ENCODING is
///   QUOTED-PRINTABLE, BASE64, B, 7BIT or 8BIT, and at most one of the first three.
/// - A backslash does not begin a component, and precedes a backslash, comma, semicolon or colon. BASE64 contains its
///   own characters and semicolons only.
/// - One blank follows the line ending of a fold, and it is not text. The component removes all blanks.
/// - Soft line breaks occur in values whose ENCODING is QUOTED-PRINTABLE. They do not follow an encoded line break,
///   because the component makes a blank of both.
///
/// \return true if PimVCardParser reports no error and loses no text. QUOTED-PRINTABLE and BASE64 are not decoded.
bool IsReadByComponent( const PimContactCard& a_card );

} // namespace PimManager::Contacts
