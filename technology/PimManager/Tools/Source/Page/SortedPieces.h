/// \file
/// Pieces of the page in the order of the names.

#pragma once

#include "Page/NameOrder.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

#include <vector>

class QIODevice;

namespace PimManager::Tools
{

/// Keeps what is written for each contact in a temporary file, which has no name where the system allows that, and
/// returns it in the order of the names. Only names and places are in memory, so pictures may be large.
class SortedPieces
{
public:
    struct Piece
    {
        NamePlace m_place;
        // An attribute, see DirectionOf().
        QByteArray m_direction;
        QString m_source;
        qint64 m_begin = 0;
        qint64 m_size = 0;
    };

    SortedPieces();
    Q_DISABLE_COPY( SortedPieces )

    /// Where to write the next piece.
    QIODevice& Device() { return m_file; }

    /// What was written since the last call is a piece. The parameters are those of Piece.
    void Add( const NamePlace& a_place, const QByteArray& a_direction, const QString& a_source );

    /// \return all pieces, sorted; those of one name in the order in which they were added.
    const std::vector<Piece>& Sort();

    /// Copies what was written.
    void Write( QIODevice& a_device, const Piece& a_piece );

    /// \return why the file is not complete; empty if it is.
    QString Failure();

private:
    QTemporaryFile m_file;
    std::vector<Piece> m_pieces;
    qint64 m_end = 0;
};

} // namespace PimManager::Tools
