/// \file
/// The pictures of cards.

#pragma once

#include <PimManager/Contacts/PimContactBinary.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QByteArray>

namespace PimManager::Tools
{

/// \return true for a PHOTO and a LOGO.
bool IsPicture( const Contacts::PimContactLine& a_line );

/// \return true if the value is the address of something that is not in the card, such as `https://…` or `cid:…`: the
///         VALUE parameter says so, or the value begins with a scheme (RFC 3986, section 3.1).
bool IsLink( const Contacts::PimContactLine& a_line );

/// \return the media type to show a picture with: one of the raster types that all browsers know, by the bytes of the
///         picture and never by the card. Empty for everything else, among it SVG, which can hold scripts, and for
///         damaged pictures.
QByteArray RasterTypeOf( const Contacts::PimContactBinary& a_picture );

/// \return the ending of a file with this picture by its bytes, such as `jpg`; `bin` if they are of no known type.
QByteArray FileEndingOf( const Contacts::PimContactBinary& a_picture );

} // namespace PimManager::Tools
