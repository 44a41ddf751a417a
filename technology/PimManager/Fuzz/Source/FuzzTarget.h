/// \file
/// The function of each fuzz target. libFuzzer and the replay program call it.

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <numeric>

/// Runs one input. Returns only if every property holds. Otherwise it prints the broken property and the input, and
/// aborts.
/// \param a_data the input; any bytes. May be null if the input is empty.
/// \return 0
extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size );

namespace PimManager::vCard::Fuzz
{

/// The input as a QByteArray that refers to its memory, so that the sanitizer finds reads beyond its end.
inline QByteArray InputOf( const std::uint8_t* a_data, std::size_t a_size )
{
    return QByteArray::fromRawData( reinterpret_cast<const char*>( a_data ), static_cast<int>( a_size ) );
}

/// A number that depends only on the input, for random choices: 32-bit FNV-1a.
inline unsigned NumberOf( const QByteArray& a_input )
{
    const auto addByte = []( std::uint32_t a_number, char a_byte )
    { return ( a_number ^ static_cast<unsigned char>( a_byte ) ) * 16777619U; };
    return std::accumulate( a_input.cbegin(), a_input.cend(), std::uint32_t{ 2166136261U }, addByte );
}

} // namespace PimManager::vCard::Fuzz
