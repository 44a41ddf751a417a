#include "Text/Buffer.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kLarge = 64 * 1024;
constexpr int s_kLeast = 256;

} // namespace

void Resize( QByteArray& a_buffer, int a_size )
{
    if ( a_buffer.capacity() > s_kLarge && a_size < a_buffer.capacity() / 4 )
        a_buffer = QByteArray();
    // An array whose memory was reserved keeps it when it gets shorter.
    if ( a_buffer.capacity() < a_size || a_buffer.capacity() == 0 )
        a_buffer.reserve( std::max( a_size, s_kLeast ) );
    a_buffer.resize( a_size );
}

void Empty( QByteArray& a_buffer )
{
    if ( a_buffer.isEmpty() && a_buffer.capacity() > 0 && a_buffer.capacity() <= s_kLarge )
        return;
    if ( a_buffer.capacity() > s_kLarge )
        a_buffer = QByteArray();
    // An array whose memory was reserved keeps it when it is empty.
    if ( a_buffer.capacity() == 0 )
        a_buffer.reserve( s_kLeast );
    a_buffer.resize( 0 );
}

void AppendAll( QByteArray& a_buffer, std::initializer_list<std::string_view> a_texts )
{
    size_t length = 0;
    for ( const std::string_view text : a_texts )
        length += text.size();
    const auto begin = a_buffer.size();
    a_buffer.resize( begin + static_cast<int>( length ) );
    char* out = a_buffer.data() + begin;
    for ( const std::string_view text : a_texts )
        out = std::copy( text.begin(), text.end(), out );
}

} // namespace PimManager::Contacts
