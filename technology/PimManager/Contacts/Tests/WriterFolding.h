/// \file
/// How programs that write address books fold their lines.

#pragma once

#include <QByteArray>

namespace PimManager::Contacts
{

/// Where a writer breaks a line.
enum class FoldAt
{
    Octets,      ///< at a number of bytes, also inside a character
    WholeOctets, ///< at a number of bytes, or up to three before, so that no character of UTF-8 is cut
    Characters,  ///< at a number of characters of UTF-8
    Words,       ///< before the last blank that still fits
};

/// A writer's habit.
struct Folding
{
    FoldAt m_at = FoldAt::Octets;
    /// The longest physical line, its first blank included, in bytes; for Characters in characters.
    int m_width = 75;
    /// What the writer inserts between two physical lines, line ending included, such as `CR LF blank` or `= CR LF`.
    /// What precedes the line ending counts as part of the line before it.
    QByteArray m_break = "\r\n ";
};

/// \param a_line a content line without a line ending.
/// \return the line, folded; still without a line ending.
QByteArray Folded( const QByteArray& a_line, const Folding& a_folding );

} // namespace PimManager::Contacts
