/// \file
/// The bytes of an index.

#pragma once

#include <QtGlobal>

#include <vector>

namespace PimManager::Contacts
{

/// Bytes of an index in other memory. Not owned.
struct IndexBytes
{
    const uchar* m_data = nullptr;
    quint32 m_size = 0;
};

/// Numbers are stored with seven bits in each byte, the lowest first. The high bit is set if more bytes follow.
constexpr uint s_kNumberContinues = 0x80;
constexpr uint s_kBitsOfNumberByte = 7;
constexpr size_t s_kLongestNumber = 5;

/// Writes a number. \return the position after it. At most s_kLongestNumber bytes are written.
inline uchar* WriteNumber( uchar* a_place, quint32 a_number )
{
    for ( ; a_number >= s_kNumberContinues; a_number >>= s_kBitsOfNumberByte )
        *a_place++ = static_cast<uchar>( a_number | s_kNumberContinues );
    *a_place = static_cast<uchar>( a_number );
    return a_place + 1;
}

/// A number, and the position after it.
struct NumberEnd
{
    const uchar* m_end;
    quint32 m_number;
};

/// Reads a number of at least two bytes.
NumberEnd ReadLongNumber( const uchar* a_place );

/// Reads a number and steps after it.
inline quint32 ReadNumber( const uchar*& a_place )
{
    if ( *a_place < s_kNumberContinues )
        return *a_place++;
    // Without the address of a_place, which stays in a register.
    const NumberEnd number = ReadLongNumber( a_place );
    a_place = number.m_end;
    return number.m_number;
}

/// A growing run of bytes. It keeps its memory when it is cleared.
class IndexBuffer
{
public:
    void Clear() { m_size = 0; }
    /// Frees the memory if it is large.
    void Release();
    void Add( IndexBytes a_bytes )
    {
        if ( a_bytes.m_size > 0 )
            Copy( a_bytes );
    }

    /// \return memory for this many bytes. After writing, pass their end to End().
    uchar* Begin( size_t a_most )
    {
        if ( m_bytes.size() - m_size < a_most )
            Grow( a_most );
        return m_bytes.data() + m_size;
    }
    void End( const uchar* a_end ) { m_size = static_cast<size_t>( a_end - m_bytes.data() ); }

    IndexBytes Bytes() const { return { m_bytes.data(), static_cast<quint32>( m_size ) }; }

private:
    void Copy( IndexBytes a_bytes );
    void Grow( size_t a_size );

    std::vector<uchar> m_bytes;
    size_t m_size = 0;
};

} // namespace PimManager::Contacts
