/// \file
/// Copies characters that need no escape in JSON: ASCII other than control characters, quotes and backslashes, and most
/// letters beyond ASCII. All other characters are left to JsonText.
///
/// Most texts are plain, so eight bytes are examined and copied at a time, in one word.

#pragma once

#include "Text/EightBytes.h"

#include <QtGlobal>

#include <array>
#include <cstring>
#include <string_view>

namespace PimManager::Contacts
{

/// \return true if one of eight bytes is anything else than plain ASCII: control characters, DEL, quotes, backslashes,
///         and all bytes beyond ASCII.
///
/// Each line has the highest bit of a byte set if the byte is of its kind. Other bytes may have it set only after a
/// byte that is of that kind, or if they are beyond ASCII.
inline bool HasSpecial( quint64 a_word )
{
    const quint64 wide = a_word | ( a_word + s_kOnes );
    const quint64 controls = a_word - s_kOnes * ' ';
    const quint64 quotes = ( a_word ^ ( s_kOnes * '"' ) ) - s_kOnes;
    const quint64 backslashes = ( a_word ^ ( s_kOnes * '\\' ) ) - s_kOnes;
    return ( ( wide | controls | quotes | backslashes ) & s_kHighBits ) != 0;
}

/// Copies a text of at least eight bytes. \return false if it has something special.
inline bool CopyWords( std::string_view a_text, char* a_out )
{
    const char* place = a_text.data();
    const char* const last = place + a_text.size() - s_kWord;
    quint64 word = 0;
    for ( char* out = a_out; place < last; place += s_kWord, out += s_kWord )
    {
        std::memcpy( &word, place, s_kWord );
        if ( HasSpecial( word ) )
            return false;
        std::memcpy( out, &word, s_kWord );
    }
    // It may overlap the previous word.
    std::memcpy( &word, last, s_kWord );
    std::memcpy( a_out + a_text.size() - s_kWord, &word, s_kWord );
    return !HasSpecial( word );
}

/// The same for a text of less than eight bytes, which are collected in one word, some of them twice.
inline bool CopyShort( std::string_view a_text, char* a_out )
{
    constexpr quint64 s_kBlanks = s_kOnes * ' ';
    const size_t size = a_text.size();
    const char* const text = a_text.data();
    if ( size >= sizeof( quint32 ) )
    {
        quint32 first = 0;
        quint32 last = 0;
        std::memcpy( &first, text, sizeof( first ) );
        std::memcpy( &last, text + size - sizeof( last ), sizeof( last ) );
        std::memcpy( a_out, &first, sizeof( first ) );
        std::memcpy( a_out + size - sizeof( last ), &last, sizeof( last ) );
        return !HasSpecial( quint64( first ) << 32U | last );
    }
    quint64 word = s_kBlanks;
    for ( size_t i = 0; i < size; ++i )
    {
        word = word << 8U | static_cast<uchar>( text[i] );
        a_out[i] = text[i];
    }
    return !HasSpecial( word );
}

inline bool IsPlain( char a_byte )
{
    return a_byte >= ' ' && a_byte < '\x7F' && a_byte != '"' && a_byte != '\\';
}

/// The length of the characters that begin with a byte, if none of them needs an escape and their other bytes may be
/// any tails; 0 for all other bytes. Other blocks have format characters, or overlong forms.
constexpr std::array<quint8, 256> FindLetterLengths()
{
    std::array<quint8, 256> lengths = {};
    for ( size_t lead = 0xC3; lead <= 0xD7; ++lead )
        lengths[lead] = 2;
    for ( const size_t lead : { 0xD9U, 0xDAU, 0xDDU, 0xDEU, 0xDFU } )
        lengths[lead] = 2;
    for ( size_t lead = 0xE3; lead <= 0xEC; ++lead )
        lengths[lead] = 3;
    return lengths;
}

constexpr std::array<quint8, 256> s_kLetterLengths = FindLetterLengths();

inline bool IsTail( char a_byte )
{
    return ( static_cast<uchar>( a_byte ) & 0xC0U ) == 0x80U;
}

/// Copies a character that needs no escape. \return its length, or 0 for any other character.
inline size_t CopyCharacter( const char* a_place, const char* a_end, char* a_out )
{
    a_out[0] = a_place[0];
    if ( IsPlain( a_place[0] ) )
        return 1;
    const size_t length = s_kLetterLengths[static_cast<uchar>( a_place[0] )];
    if ( length == 0 || static_cast<size_t>( a_end - a_place ) < length || !IsTail( a_place[1] ) )
        return 0;
    a_out[1] = a_place[1];
    if ( length == 2 )
        return 2;
    a_out[2] = a_place[2];
    return IsTail( a_place[2] ) ? 3 : 0;
}

} // namespace PimManager::Contacts
