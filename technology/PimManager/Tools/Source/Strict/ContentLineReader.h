/// \file
/// Unfolding, for those who want lines and not cards.

#pragma once

#include <QByteArray>

namespace PimManager::Tools
{

/// Puts the content lines of a text together as the parser does: a line that begins with white space goes on with the
/// one before, and so does a line after a QUOTED-PRINTABLE soft line break. A byte order mark and blanks before the
/// first line are left out. Lines end at CR LF, LF, CR, vertical tab or form feed, as a user sees it; the parser takes
/// a bare LF into the value.
class ContentLineReader
{
public:
    /// \param a_bytes any bytes; must outlive the reader.
    explicit ContentLineReader( const QByteArray& a_bytes );

    /// \param[out] a_line the next line without its end.
    /// \return false at the end of the text. Linear in the length of the line.
    bool Read( QByteArray& a_line );

private:
    void AppendLineOfFile( QByteArray& a_line );
    bool IsContinued( QByteArray& a_line );
    void SkipBlanks();

    const char* m_position;
    const char* const m_end;
    // The line of the file that was read last.
    QByteArray m_lineOfFile;
};

} // namespace PimManager::Tools
