/// \file
/// Pictures and other things that cards carry.

#pragma once

#include "PimVCardDecoding.h"

#include <QByteArray>

#include <optional>

namespace PimManager::vCard::Tools
{

/// \return the thing that a property carries as bytes: a picture, a sound or a key, or anything else in BASE64 or in a
///         `data:` URI whose bytes show what it is. Nothing when the value is text or an address.
std::optional<vCardImport::PimVCardAttachment> AttachmentIn( const PimVCardProperty& a_property );

/// \return true for a PHOTO and a LOGO.
bool IsPicture( const PimVCardProperty& a_property );

/// \return the media type to show a picture with: one of the raster types that all browsers know, by the bytes of the
///         picture and never by the card; empty for everything else, SVG among it, which can hold scripts.
QByteArray RasterTypeOf( const vCardImport::PimVCardAttachment& a_picture );

} // namespace PimManager::vCard::Tools
