/// \file
/// Encodes characters as UTF-8.

#pragma once

#include <QtGlobal>

namespace PimManager::Contacts
{

/// The greatest length of a character in UTF-8.
constexpr size_t s_kLongestUtf8 = 4;

/// Writes a character.
///
/// \param a_character at most U+10FFFF, and no surrogate.
/// \param a_end       room for s_kLongestUtf8 bytes.
/// \return the end of the character in \a a_end.
inline char* WriteUtf8( char32_t a_character, char* a_end )
{
    const auto tail = [a_character]( unsigned a_shift )
    { return static_cast<char>( 0x80U | ( a_character >> a_shift & 0x3FU ) ); };
    if ( a_character < 0x80 )
    {
        *a_end++ = static_cast<char>( a_character );
        return a_end;
    }
    if ( a_character < 0x800 )
        *a_end++ = static_cast<char>( 0xC0U | a_character >> 6U );
    else
    {
        if ( a_character < 0x10000 )
            *a_end++ = static_cast<char>( 0xE0U | a_character >> 12U );
        else
        {
            *a_end++ = static_cast<char>( 0xF0U | a_character >> 18U );
            *a_end++ = tail( 12 );
        }
        *a_end++ = tail( 6 );
    }
    *a_end++ = tail( 0 );
    return a_end;
}

} // namespace PimManager::Contacts
