/// \file
/// Eight bytes of a text in one number, the first byte lowest, so that all of them are examined together.

#pragma once

#include <QtEndian>
#include <QtGlobal>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace PimManager::Contacts
{

/// 1 in each byte. A multiple has the same number in each byte.
constexpr quint64 s_kOnes = 0x0101010101010101U;
/// The highest bit of each byte.
constexpr quint64 s_kHighBits = s_kOnes << 7U;
constexpr size_t s_kWord = sizeof( quint64 );

/// \param a_place the address of at least eight bytes.
inline quint64 WordAt( const char* a_place )
{
    quint64 word = 0;
    std::memcpy( &word, a_place, s_kWord );
    return qFromLittleEndian( word );
}

/// \return the first eight bytes of a text, which may be empty. After a shorter text, the bytes are zero.
inline quint64 FirstEight( std::string_view a_text )
{
    // The first and the last half of a shorter text, which may overlap.
    const auto halves = [a_text]( auto a_first, auto a_last )
    {
        const size_t place = a_text.size() - sizeof( a_last );
        std::memcpy( &a_first, a_text.data(), sizeof( a_first ) );
        std::memcpy( &a_last, a_text.data() + place, sizeof( a_last ) );
        return quint64( qFromLittleEndian( a_first ) ) | quint64( qFromLittleEndian( a_last ) ) << ( 8 * place );
    };
    if ( a_text.size() >= s_kWord )
        return WordAt( a_text.data() );
    if ( a_text.size() >= sizeof( quint32 ) )
        return halves( quint32(), quint32() );
    if ( a_text.size() >= sizeof( quint16 ) )
        return halves( quint16(), quint16() );
    return a_text.empty() ? 0 : static_cast<uchar>( a_text.front() );
}

/// The same for the first a_length bytes of a text, without a branch for each length where the text is long enough.
/// \param a_length from 1 to the length of the text.
inline quint64 FirstEightOf( std::string_view a_text, size_t a_length )
{
    if ( a_text.size() < s_kWord )
        return FirstEight( a_text.substr( 0, a_length ) );
    const size_t missing = s_kWord - std::min( a_length, s_kWord );
    return WordAt( a_text.data() ) & ( ~quint64( 0 ) >> ( 8 * missing ) );
}

/// \return a hash value of a short text: of its length, and of its first and last eight bytes, which may overlap. Its
///         highest bits are mixed best.
/// \param a_seed distinguishes equal texts.
inline quint64 HashOfEnds( std::string_view a_text, quint64 a_seed = 0 )
{
    const quint64 first = FirstEight( a_text ) + a_seed;
    const quint64 last = FirstEight( a_text.substr( a_text.size() - std::min( a_text.size(), s_kWord ) ) );
    return ( first * 0x9E3779B97F4A7C15ULL + last + a_text.size() ) * 0xD6E8FEB86659FD93ULL;
}

/// The same as FirstEight(), but after a shorter text, the bytes are those of a filler.
inline quint64 FirstEight( std::string_view a_text, char a_filler )
{
    const quint64 missing = a_text.size() < s_kWord ? ~quint64( 0 ) << ( 8 * a_text.size() ) : 0;
    return FirstEight( a_text ) | ( missing & s_kOnes * static_cast<uchar>( a_filler ) );
}

/// \return the high bit of each byte that is a letter of ASCII, from a first one to a last one.
constexpr quint64 LettersOfEight( quint64 a_bytes, char a_first, char a_last )
{
    // A sum has its high bit set if the low seven bits of the byte are at least a letter.
    const quint64 low = a_bytes & ~s_kHighBits;
    const quint64 fromFirst = low + static_cast<quint64>( 0x80 - a_first ) * s_kOnes;
    const quint64 behindLast = low + static_cast<quint64>( 0x80 - a_last - 1 ) * s_kOnes;
    return fromFirst & ~behindLast & ~a_bytes & s_kHighBits;
}

/// \return eight bytes with the letters of ASCII in upper case.
constexpr quint64 UpperOfEight( quint64 a_bytes )
{
    return a_bytes - ( LettersOfEight( a_bytes, 'a', 'z' ) >> 2U );
}

/// \return eight bytes with the letters of ASCII in lower case.
constexpr quint64 LowerOfEight( quint64 a_bytes )
{
    return a_bytes + ( LettersOfEight( a_bytes, 'A', 'Z' ) >> 2U );
}

} // namespace PimManager::Contacts
