#include "Text/UnsafeCharacters.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Range
{
    char32_t m_first;
    char32_t m_last;
};

// Beyond Latin-1, in their order. Noncharacters at the end of a plane are not listed.
constexpr std::array s_kRanges = {
    Range{ 0x0600, 0x0605 },   Range{ 0x061C, 0x061C },   Range{ 0x06DD, 0x06DD },   Range{ 0x070F, 0x070F },
    Range{ 0x0890, 0x0891 },   Range{ 0x08E2, 0x08E2 },   Range{ 0x180E, 0x180E },   Range{ 0x200B, 0x200B },
    Range{ 0x200E, 0x200F },   Range{ 0x2028, 0x202E },   Range{ 0x2060, 0x2064 },   Range{ 0x2066, 0x206F },
    Range{ 0xD800, 0xDFFF },   Range{ 0xFDD0, 0xFDEF },   Range{ 0xFEFF, 0xFEFF },   Range{ 0xFFF9, 0xFFFB },
    Range{ 0x110BD, 0x110BD }, Range{ 0x110CD, 0x110CD }, Range{ 0x13430, 0x1343F }, Range{ 0x1BCA0, 0x1BCA3 },
    Range{ 0x1D173, 0x1D17A }, Range{ 0xE0001, 0xE0001 }, Range{ 0xE0020, 0xE007F } };

} // namespace

bool IsUnsafe( char32_t a_character )
{
    if ( a_character < s_kRanges.front().m_first )
        return a_character < 0x20 || ( a_character >= 0x7F && a_character < 0xA0 ) || a_character == 0xAD;
    // Most letters of Asia.
    if ( a_character >= 0x2070 && a_character < 0xD800 )
        return false;
    if ( ( a_character & 0xFFFEU ) == 0xFFFEU )
        return true;
    const auto* const range =
        std::lower_bound( s_kRanges.begin(), s_kRanges.end(), a_character,
                          []( const Range& a_range, char32_t a_wanted ) { return a_range.m_last < a_wanted; } );
    return range != s_kRanges.end() && range->m_first <= a_character;
}

} // namespace PimManager::Contacts
