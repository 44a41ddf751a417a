/// \file
/// Recognises media types by their first bytes.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Recognises JPEG, PNG, GIF, WebP, HEIF, AVIF, TIFF, BMP and icons, WAV, MP3, Ogg, AMR, MIDI, FLAC and AU.
///
/// \param a_start the first s_kSignatureBytes bytes (see FileSignature.h), or all of them if there are fewer.
/// \return a media type such as `image/jpeg`; empty if the type is unknown. Text that begins with `BM` is not a BMP
///         image: the four reserved bytes of its header must be zero.
std::string_view MediaTypeBySignature( std::string_view a_start );

/// \return true for a media type without parameters, such as `image/svg+xml` (RFC 6838, section 4.2).
bool IsMediaType( std::string_view a_text );

/// \return a media type in lower case and without parameters; empty if the text is not a media type, such as `JPEG`.
QByteArray MediaTypeNamed( std::string_view a_text );

} // namespace PimManager::Contacts
