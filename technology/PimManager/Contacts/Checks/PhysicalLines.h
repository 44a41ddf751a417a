/// \file
/// Finds the physical lines of a text, independently of the reader.

#pragma once

#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>
#include <QtGlobal>

#include <array>
#include <vector>

namespace PimManager::Contacts::Checks
{

/// For a last line without a line ending: one more than the last PimContactLineEnd.
constexpr int s_kNoLineEnd = static_cast<int>( PimContactLineEnd::CrCrLf ) + 1;

/// A line of a text.
struct PhysicalLine
{
    qint64 m_begin = 0;
    /// The line ending is between these two.
    qint64 m_textEnd = 0;
    qint64 m_end = 0;
    /// A PimContactLineEnd, or s_kNoLineEnd.
    int m_lineEnd = s_kNoLineEnd;
};

/// \return the lines in their order. A line ends at CR LF, LF, CR or CR CR LF.
std::vector<PhysicalLine> PhysicalLinesOf( const QByteArray& a_text );

/// \return the number of lines with each PimContactLineEnd.
std::array<qint64, s_kNoLineEnd> LineEndsOf( const std::vector<PhysicalLine>& a_lines );

/// \param a_offset a position in the text, up to its end.
/// \return the index of the line that contains it; the end of the text belongs to a last line without a line ending, or
///         else to an additional empty line.
size_t LineAt( const std::vector<PhysicalLine>& a_lines, qint64 a_offset );

} // namespace PimManager::Contacts::Checks
