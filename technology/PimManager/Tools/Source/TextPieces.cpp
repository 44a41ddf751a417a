#include "TextPieces.h"

#include <algorithm>

namespace PimManager::vCard::Tools
{

namespace
{

constexpr qsizetype s_kPiece = 16384;

qsizetype PieceLength( QStringView a_text )
{
    const qsizetype length = std::min( a_text.size(), s_kPiece );
    const bool cutsPair = length < a_text.size() && a_text[length - 1].isHighSurrogate();
    return cutsPair ? length + 1 : length;
}

} // namespace

void WriteEscaped( QIODevice& a_device, const QString& a_text, QString ( *a_escape )( QStringView ) )
{
    for ( QStringView rest = a_text; !rest.isEmpty(); )
    {
        const qsizetype length = PieceLength( rest );
        a_device.write( a_escape( rest.left( length ) ).toUtf8() );
        rest = rest.mid( length );
    }
}

} // namespace PimManager::vCard::Tools
