/// \file
/// Geographical positions.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactPosition.h>

#include <QString>

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// Reads the text of a GEO, independently of the locale:
///
/// - `geo:37.386013,-122.082932;u=10` (RFC 5870)
/// - `37.386013;-122.082932` (RFC 2426, section 3.4.2)
/// - in version 2.1, `-122.082932,37.386013` with the longitude first
///
/// \param a_version the version of the card.
/// \return nothing for any other text, for another reference system than WGS 84, and for a latitude beyond 90 or a
///         longitude beyond 180 degrees.
std::optional<PimContactPosition> GeoPositionOf( std::string_view a_text, PimContactVersion a_version );

/// \return the position as a `geo:` URI.
QString GeoUriOf( const PimContactPosition& a_position );

} // namespace PimManager::Contacts
