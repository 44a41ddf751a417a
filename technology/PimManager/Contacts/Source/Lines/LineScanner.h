/// \file
/// Physical lines.

#pragma once

#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// One line of a text.
struct PhysicalLine
{
    /// The offset of the first byte in the text.
    qint64 m_offset = 0;
    /// From 1.
    qint64 m_number = 1;
    /// The offset of the whole line. This object may be only a part of it, after a byte order mark or after another
    /// part.
    qint64 m_lineOffset = 0;
    /// The length without the line ending. For a long line, the length of the rest.
    qint64 m_length = 0;
    /// The length of the line ending: 0 at the end of the text.
    int m_endLength = 0;
    /// It has bytes beyond ASCII.
    bool m_isWide = false;
    /// It has characters below U+0020 other than the tab.
    bool m_hasControls = false;
    /// The start of the line was taken by LineScanner::TakeOpen().
    bool m_isLong = false;
    /// The line ending. Not valid for a last line without one.
    PimContactLineEnd m_endKind = PimContactLineEnd::CrLf;

    qint64 TextEnd() const { return m_offset + m_length; }
    qint64 End() const { return TextEnd() + m_endLength; }
};

/// Finds the end of one line in a text, with the flags of PhysicalLine. The search can be continued when more of the
/// text is available. This is the inner loop of reading: each byte is read once, a word at a time.
class LineEndSearch
{
public:
    /// \param a_begin the position where the search begins or continues.
    /// \return the position of the first CR or LF, or a_end.
    const char* Find( const char* a_begin, const char* a_end );

    bool IsWide() const { return m_isWide; }
    bool HasControls() const { return m_hasControls; }

    /// \param a_place a CR or LF before a_end.
    /// \param a_isAll true if no further byte follows.
    /// \return the length of the line ending: CR LF, LF, CR or CR CR LF. 0 if it depends on bytes that are not yet
    ///         available.
    static int LengthOfEnd( const char* a_place, const char* a_end, bool a_isAll )
    {
        const auto left = a_end - a_place;
        if ( *a_place == '\n' )
            return 1;
        if ( left >= 2 && a_place[1] == '\n' )
            return 2;
        if ( left >= 3 && a_place[1] == '\r' && a_place[2] == '\n' )
            return 3;
        const bool isOpen = left == 1 || ( left == 2 && a_place[1] == '\r' );
        return isOpen && !a_isAll ? 0 : 1;
    }

    /// \param a_place  a CR or LF.
    /// \param a_length what LengthOfEnd() returned for it.
    static PimContactLineEnd KindOf( const char* a_place, int a_length );

private:
    const char* PassVectors( const char* a_begin, const char* a_end );

    bool m_isWide = false;
    bool m_hasControls = false;
};

/// Cuts a text that is passed in pieces into lines, and keeps the bytes that are still needed. The lines do not depend
/// on how the text is cut into pieces. Bytes are addressed by their offset in the text.
class LineScanner
{
public:
    /// Forgets the text.
    void Reset();

    void Append( std::string_view a_piece );
    /// For appending bytes without a copy: memory for a number of bytes, and the number of bytes that were written to
    /// it.
    char* Room( size_t a_size );
    void Grow( size_t a_size ) { m_size += a_size; }
    /// Appends a byte that does not complete a line, if that is cheap. \return false if it is not.
    bool TakeByte( char a_byte )
    {
        if ( m_size % s_kCheckedBytes == 0 || a_byte == '\n' || m_bytes[m_size - 1] == '\r' )
            return false;
        m_bytes[m_size++] = a_byte;
        return true;
    }

    /// Ends the text. No byte follows.
    void Finish() { m_isFinished = true; }
    bool IsFinished() const { return m_isFinished; }

    /// \param[out] a_line the next line. Its bytes are available until Release().
    /// \return false if the end of the next line is not yet available.
    bool Next( PhysicalLine& a_line );

    /// The offset of the first byte after the lines that were taken.
    qint64 NextOffset() const { return m_bufferOffset + static_cast<qint64>( m_next ); }
    qint64 NextNumber() const { return m_number; }
    qint64 NextLineOffset() const { return m_lineOffset; }
    /// True if the start of the next line was taken by TakeOpen().
    bool IsLong() const { return m_isLong; }
    /// The number of available bytes from the start of the next line.
    qint64 OpenLength() const { return static_cast<qint64>( m_size - m_next ); }
    /// The available bytes from the start of the next line.
    std::string_view Rest() const { return std::string_view( m_bytes + m_next, m_size - m_next ); }
    /// Skips whole lines.
    void PassLines( qint64 a_length, qint64 a_lines );
    /// Takes the first bytes of a line whose end is not yet available. Next() returns the rest as a long line.
    void TakeOpen( qint64 a_length );
    /// Skips the first bytes of the next line. They are not part of it.
    void Pass( qint64 a_length );

    /// Bytes before this offset are no longer needed.
    void Release( qint64 a_offset );

    /// The bytes at an offset, valid until the next Append().
    const char* At( qint64 a_offset ) const { return m_bytes + ( a_offset - m_bufferOffset ); }
    std::string_view View( qint64 a_offset, qint64 a_length ) const
    {
        return std::string_view( At( a_offset ), static_cast<size_t>( a_length ) );
    }
    std::string_view TextOf( const PhysicalLine& a_line ) const { return View( a_line.m_offset, a_line.m_length ); }

    /// \param a_begin the position from the start of the line; a_end likewise.
    /// \return a part of a line. It includes the line ending if a_end is the end of the text of the line.
    PhysicalLine PartOf( const PhysicalLine& a_line, qint64 a_begin, qint64 a_end ) const;
    /// \param a_offset the offset of a line that Next() has already returned.
    /// \param a_end    the end of a later line or of the text. The search stops there.
    /// \return the line again, as a whole even if it was taken in parts.
    PhysicalLine LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const;

private:
    // After so many single bytes the line is checked again for being too long. The capacity is a multiple of this
    // number.
    static constexpr size_t s_kCheckedBytes = 1024;

    void MakeRoom( size_t a_size );
    void Reallocate( size_t a_left, size_t a_capacity );

    // It grows without a copy if the system supports that.
    QByteArray m_buffer;
    char* m_bytes = nullptr;
    size_t m_size = 0;
    size_t m_capacity = 0;
    // The offset of the first byte of the buffer in the text.
    qint64 m_bufferOffset = 0;
    // Positions in the buffer: the first byte that is still needed, the first byte of the next line, and the end of the
    // searched part.
    size_t m_kept = 0;
    size_t m_next = 0;
    size_t m_searched = 0;
    LineEndSearch m_search;
    bool m_isFinished = false;
    bool m_isLong = false;
    qint64 m_number = 1;
    qint64 m_lineOffset = 0;
};

} // namespace PimManager::Contacts
