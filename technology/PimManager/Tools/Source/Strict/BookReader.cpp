#include "Strict/BookReader.h"

#include "Reading/InputDevice.h"

#include <vector>

namespace PimManager::Tools
{

namespace
{

constexpr qint64 s_kBlock = 1 << 18;

Book TooLarge( qint64 a_limit )
{
    return { {},
             QStringLiteral( "is too large: more than %1 bytes cannot be read at once; leave out --strict" )
                 .arg( a_limit ) };
}

} // namespace

Book ReadBook( InputDevice& a_input, qint64 a_limit )
{
    if ( a_input.FileSize() > a_limit )
        return TooLarge( a_limit );
    std::vector<char> block( static_cast<size_t>( s_kBlock ) );
    Book book;
    book.m_bytes.reserve( static_cast<int>( a_input.FileSize() ) );
    qint64 count = 0;
    while ( ( count = a_input.read( block.data(), s_kBlock ) ) > 0 )
    {
        if ( book.m_bytes.size() + count > a_limit )
            return TooLarge( a_limit );
        book.m_bytes.append( block.data(), static_cast<int>( count ) );
    }
    return book;
}

} // namespace PimManager::Tools
