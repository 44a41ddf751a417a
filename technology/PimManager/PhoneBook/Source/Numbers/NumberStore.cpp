#include "Numbers/NumberStore.h"

#include <algorithm>
#include <climits>

namespace PimManager::PhoneBook
{

using namespace std::string_view_literals;

int NumberStore::Append( int a_contact, int a_line, std::string_view a_digits, uint a_form,
                         std::string_view a_extension )
{
    const int number = Size();
    while ( m_firsts.size() <= static_cast<size_t>( a_contact ) )
        m_firsts.push_back( static_cast<quint32>( number ) );
    m_begins.push_back( static_cast<quint32>( m_bytes.size() ) );
    // A number without digits is not all marked: the zero ends its line.
    AddBytes( static_cast<uint>( a_line ), a_form, a_digits.empty() ? "\0"sv : a_digits, a_extension );
    return number;
}

void NumberStore::AddBytes( uint a_line, uint a_form, std::string_view a_digits, std::string_view a_extension )
{
    constexpr size_t s_kMostOfLine = ( CHAR_BIT * sizeof( uint ) + s_kBitsOfByte - 1 ) / s_kBitsOfByte;
    const size_t begin = m_bytes.size();
    m_bytes.resize( begin + 1 + s_kMostOfLine + a_digits.size() + a_extension.size() );
    char* place = &m_bytes[begin];
    *place++ = Marked( a_form );
    for ( uint line = a_line; line > 0; line >>= s_kBitsOfByte )
        *place++ = Marked( line );
    place = std::copy( a_digits.begin(), a_digits.end(), place );
    place = std::transform( a_extension.begin(), a_extension.end(), place, Marked );
    m_bytes.resize( static_cast<size_t>( place - m_bytes.data() ) );
}

void NumberStore::Squeeze()
{
    m_bytes.shrink_to_fit();
    m_begins.shrink_to_fit();
    m_firsts.shrink_to_fit();
}

std::string_view NumberStore::Digits( int a_number ) const
{
    const size_t begin = BeginOfDigits( a_number );
    if ( m_bytes[begin] == '\0' )
        return {};
    return std::string_view( m_bytes ).substr( begin, EndOfDigits( a_number ) - begin );
}

std::string NumberStore::Extension( int a_number ) const
{
    std::string extension;
    for ( size_t place = EndOfDigits( a_number ); place < End( a_number ); ++place )
        extension += static_cast<char>( Byte( place ) & s_kBits );
    return extension;
}

int NumberStore::LineOf( int a_number ) const
{
    uint line = 0;
    uint shift = 0;
    for ( size_t place = Begin( a_number ) + 1; IsMarked( place ); ++place, shift += s_kBitsOfByte )
        line |= ( Byte( place ) & s_kBits ) << shift;
    return static_cast<int>( line );
}

int NumberStore::ContactOf( int a_number ) const
{
    const auto after = std::upper_bound( m_firsts.begin(), m_firsts.end(), static_cast<quint32>( a_number ) );
    return static_cast<int>( after - m_firsts.begin() ) - 1;
}

size_t NumberStore::Bytes() const
{
    return m_bytes.capacity() + ( m_begins.capacity() + m_firsts.capacity() ) * sizeof( quint32 );
}

size_t NumberStore::End( int a_number ) const
{
    return a_number + 1 < Size() ? Begin( a_number + 1 ) : m_bytes.size();
}

size_t NumberStore::BeginOfDigits( int a_number ) const
{
    size_t place = Begin( a_number ) + 1;
    while ( IsMarked( place ) )
        ++place;
    return place;
}

size_t NumberStore::EndOfDigits( int a_number ) const
{
    size_t place = End( a_number );
    while ( IsMarked( place - 1 ) )
        --place;
    return place;
}

} // namespace PimManager::PhoneBook
