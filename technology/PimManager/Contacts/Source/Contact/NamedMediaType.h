/// \file
/// The media type that the parameters of a line name.

#pragma once

#include "Contact/FieldParameters.h"
#include "Lines/PropertyTable.h"

#include <QString>

#include <string_view>

namespace PimManager::Contacts
{

/// \return the implied first part of the media types of a property, such as `image/` for PHOTO.
std::string_view MainTypeOf( PropertyId a_property );

/// \param a_property   the property of the line. It completes a TYPE such as JPEG, because a PHOTO is an image.
/// \param a_parameters the parameters, read with kinds that are not media types, such as HOME.
/// \return MEDIATYPE as written, or else a media type from the first word of TYPE. Empty if there is neither.
QString NamedMediaType( PropertyId a_property, const FieldParameters& a_parameters );

} // namespace PimManager::Contacts
