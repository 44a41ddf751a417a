/// \file
/// What each fuzz target is: one function over one input. libFuzzer calls it, and so does the replay program.

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <numeric>

/// Tries one input. Comes back only if every property holds; else it tells which one is broken, shows the input and
/// aborts.
/// \param a_data the input; may be anything, and null when there is none of it.
/// \return 0
extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size );

namespace PimManager::vCard::Fuzz
{

/// The input as Qt knows bytes, in the memory that it stands in: reading past its end is found by the sanitizer.
inline QByteArray InputOf( const std::uint8_t* a_data, std::size_t a_size )
{
    return QByteArray::fromRawData( reinterpret_cast<const char*>( a_data ), static_cast<int>( a_size ) );
}

/// A number that depends on nothing but the input, for what is decided by chance: 32-bit FNV-1a.
inline unsigned NumberOf( const QByteArray& a_input )
{
    const auto addByte = []( std::uint32_t a_number, char a_byte )
    { return ( a_number ^ static_cast<unsigned char>( a_byte ) ) * 16777619U; };
    return std::accumulate( a_input.cbegin(), a_input.cend(), std::uint32_t{ 2166136261U }, addByte );
}

} // namespace PimManager::vCard::Fuzz
