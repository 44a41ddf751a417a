/// \file
/// How the lines of a file end.

#pragma once

#include <QByteArray>

namespace PimManager::Tools
{

/// The line ends of a file by their kind.
struct LineEnds
{
    /// A pair of CR and LF counts as one.
    qint64 m_crLfs = 0;
    qint64 m_bareLfs = 0;
    qint64 m_bareCrs = 0;
    /// The file ends without a line end.
    bool m_isLastLineOpen = false;

    qint64 All() const { return m_crLfs + m_bareLfs + m_bareCrs; }
};

LineEnds CountLineEnds( const QByteArray& a_bytes );

} // namespace PimManager::Tools
