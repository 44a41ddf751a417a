/// \file
/// Data that Contacts reads from a card in addition to the values of its lines.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>

#include <QStringList>

namespace PimManager::vCard::Documents
{

/// \return the readings that differ from the text as written: bytes with their media type, parameters, numbers and mail
///         addresses. Empty if nothing differs.
QStringList DecodedReadings( const Contacts::PimContactCard& a_card );

/// \return the same, with the further members of the properties in the JSON of the card: parts, types, preference,
///         label, call.
QStringList AllReadings( const Contacts::PimContactCard& a_card );

} // namespace PimManager::vCard::Documents
