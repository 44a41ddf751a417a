#include "BookReader.h"

#include "InputDevice.h"

#include <algorithm>
#include <vector>

namespace PimManager::vCard::Tools
{

namespace
{

constexpr qint64 s_kBlock = 1 << 18;

Book Refusal( const QString& a_reason )
{
    return { QByteArray(), a_reason };
}

Book TooLarge( qint64 a_limit )
{
    return Refusal( QStringLiteral( "is too large: more than %1 bytes cannot be read at once" ).arg( a_limit ) );
}

Book ReadAll( InputDevice& a_input, qint64 a_limit )
{
    std::vector<char> block( static_cast<size_t>( s_kBlock ) );
    QByteArray bytes;
    bytes.reserve( static_cast<int>( std::min( a_input.FileSize(), a_limit ) ) );
    for ( ;; )
    {
        const qint64 count = a_input.read( block.data(), s_kBlock );
        if ( a_input.Error() != 0 )
            return Refusal( a_input.Reason() );
        if ( count <= 0 )
            return { bytes, QString() };
        if ( bytes.size() + count > a_limit )
            return TooLarge( a_limit );
        bytes.append( block.data(), static_cast<int>( count ) );
    }
}

} // namespace

Book ReadBook( const QByteArray& a_fileName, qint64 a_limit )
{
    InputDevice input( a_fileName );
    if ( input.Error() != 0 )
        return Refusal( input.Reason() );
    if ( input.FileSize() > a_limit )
        return TooLarge( a_limit );
    return ReadAll( input, a_limit );
}

} // namespace PimManager::vCard::Tools
