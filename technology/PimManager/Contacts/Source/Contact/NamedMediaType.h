/// \file
/// The media type that the parameters of a line name.

#pragma once

#include "Contact/FieldParameters.h"
#include "Lines/PropertyTable.h"

#include <QString>

#include <string_view>

namespace PimManager::Contacts
{

/// \return the first part of the media types that a property has without saying it, such as `image/` of PHOTO.
std::string_view MainTypeOf( PropertyId a_property );

/// \param a_property   of the line: a TYPE such as JPEG belongs to it, because a PHOTO is an image.
/// \param a_parameters read with kinds that are no media types, such as HOME.
/// \return MEDIATYPE as written, or else a media type by the first word of TYPE; empty without both.
QString NamedMediaType( PropertyId a_property, const FieldParameters& a_parameters );

} // namespace PimManager::Contacts
