/// \file
/// The visible part of a picture.

#pragma once

#include <QRect>

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// \param a_text the value of X-ABCROP-RECTANGLE: `ABClipRect_1&0&12&320&320&hash`, which is left, bottom or top,
///               width and height.
/// \return nothing for any other text.
std::optional<QRect> CropIn( std::string_view a_text );

} // namespace PimManager::Contacts
