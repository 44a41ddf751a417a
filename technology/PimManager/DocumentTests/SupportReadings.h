/// \file
/// What the decoding helpers read from a property beyond its values as they stand.

#pragma once

#include "PimVCard.h"

#include <QStringList>

namespace PimManager::vCard::Documents
{

/// \return what the values become when they are decoded: text, bytes, a number, a mail address. Empty when the values
///         as they stand are the text that was meant.
QStringList DecodedReadings( const PimVCardProperty& a_property );

/// \return DecodedReadings(), and what else the helpers tell: parts, kinds, preference, label, address, call.
QStringList AllReadings( const PimVCard& a_card, const PimVCardProperty& a_property );

} // namespace PimManager::vCard::Documents
