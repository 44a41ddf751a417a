#include "Contact/CropRectangle.h"

#include <array>
#include <charconv>

namespace PimManager::Contacts
{

std::optional<QRect> CropIn( std::string_view a_text )
{
    std::string_view text = a_text;
    std::array<int, 4> numbers = {};
    for ( int& number : numbers )
    {
        const size_t mark = text.find( '&' );
        if ( mark == std::string_view::npos )
            return std::nullopt;
        text.remove_prefix( mark + 1 );
        const auto result = std::from_chars( text.data(), text.data() + text.size(), number );
        if ( result.ec != std::errc() )
            return std::nullopt;
    }
    if ( numbers[2] <= 0 || numbers[3] <= 0 )
        return std::nullopt;
    return QRect( numbers[0], numbers[1], numbers[2], numbers[3] );
}

} // namespace PimManager::Contacts
