#include "Page/SortedPieces.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::Tools
{

SortedPieces::SortedPieces()
{
    m_file.open();
}

void SortedPieces::Add( const NamePlace& a_place, const QByteArray& a_direction, const QString& a_source )
{
    const qint64 begin = m_end;
    m_end = m_file.pos();
    m_pieces.push_back( { a_place, a_direction, a_source, begin, m_end - begin } );
}

const std::vector<SortedPieces::Piece>& SortedPieces::Sort()
{
    std::stable_sort( m_pieces.begin(), m_pieces.end(),
                      []( const Piece& a_left, const Piece& a_right ) { return a_left.m_place < a_right.m_place; } );
    return m_pieces;
}

void SortedPieces::Write( QIODevice& a_device, const Piece& a_piece )
{
    constexpr qint64 s_kBlock = 1 << 16;
    m_file.seek( a_piece.m_begin );
    for ( qint64 left = a_piece.m_size; left > 0; )
    {
        const QByteArray block = m_file.read( std::min( left, s_kBlock ) );
        if ( block.isEmpty() )
            break;
        a_device.write( block );
        left -= block.size();
    }
}

QString SortedPieces::Failure()
{
    const bool isComplete = m_file.isOpen() && m_file.flush() && m_file.error() == QFileDevice::NoError;
    return isComplete ? QString() : QStringLiteral( "temporary file: " ) + m_file.errorString();
}

} // namespace PimManager::Tools
