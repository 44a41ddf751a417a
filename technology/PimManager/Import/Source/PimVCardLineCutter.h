/// \file
/// Physical lines.

#pragma once

#include "PimVCardDiagnostic.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::vCardImport
{

/// One line of the file, as it stands there.
struct PimVCardPhysicalLine
{
    /// Without the line end. Of a line that is let go, the rest of it.
    std::string_view m_text;
    /// CR LF, LF, CR, CR CR LF; empty at the end of the file.
    std::string_view m_end;
    /// Of the first byte, in the file.
    PimVCardPosition m_position;
    /// The start of the line was let go.
    bool m_isLong = false;
};

/// Cuts a text that comes in pieces into lines. The same lines come however the text is cut into pieces.
class PimVCardLineCutter
{
public:
    /// \param a_offset   of the first byte in the file.
    /// \param a_isUtf16 offsets count UTF-16 units, two bytes each, of a text that is now UTF-8.
    void Begin( qint64 a_offset, bool a_isUtf16 );

    void Feed( const QByteArray& a_piece );
    /// No byte follows.
    void Finish() { m_isFinished = true; }

    /// \param[out] a_line the next line; valid until the next call of any operation.
    /// \return false while the end of the next line has not come.
    bool Next( PimVCardPhysicalLine& a_line );

    /// What has come of a line whose end has not. Valid until the next call of any operation.
    std::string_view Open() const;
    /// Lets go what has come of it; when its end comes, it is told as a long line.
    void LetGo();

private:
    const char* FindEnd( const char* a_from ) const;
    std::string_view LineEndAt( const char* a_place ) const;
    const char* BufferEnd() const { return m_buffer.constData() + m_buffer.size(); }
    qint64 LengthInFile( std::string_view a_text ) const;

    QByteArray m_buffer;
    int m_next = 0;
    // Up to here there is no line end.
    int m_searched = 0;
    bool m_isFinished = false;
    bool m_isUtf16 = false;
    bool m_isLong = false;
    qint64 m_number = 1;
    qint64 m_offset = 0;
    qint64 m_lengthLetGo = 0;
};

} // namespace PimManager::vCardImport
