/// \file
/// What Contacts reads from a card beyond the values of its lines.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>

#include <QStringList>

namespace PimManager::vCard::Documents
{

/// \return what differs from the text as it is written: bytes with their media type, parameters, numbers and mail
///         addresses. Empty if nothing does.
QStringList DecodedReadings( const Contacts::PimContactCard& a_card );

/// \return the same, and what else the JSON of the card says of its properties: parts, types, preference, label, call.
QStringList AllReadings( const Contacts::PimContactCard& a_card );

} // namespace PimManager::vCard::Documents
