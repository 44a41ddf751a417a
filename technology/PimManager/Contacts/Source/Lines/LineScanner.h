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
    /// The place of the first byte in the text.
    qint64 m_offset = 0;
    /// From 1.
    qint64 m_number = 1;
    /// Where the line begins, of which this may be only a part: behind a byte order mark, or behind another part.
    qint64 m_lineOffset = 0;
    /// Without the line ending. Of a long line the rest of it.
    qint64 m_length = 0;
    /// Of the line ending: 0 at the end of the text.
    int m_endLength = 0;
    /// It has bytes beyond ASCII.
    bool m_isWide = false;
    /// It has characters below U+0020 other than the tab.
    bool m_hasControls = false;
    /// The start of the line was taken by LineScanner::TakeOpen().
    bool m_isLong = false;
    /// What the line ending is; not of a last line without one.
    PimContactLineEnd m_endKind = PimContactLineEnd::CrLf;

    qint64 TextEnd() const { return m_offset + m_length; }
    qint64 End() const { return TextEnd() + m_endLength; }
};

/// Finds the end of one line in a text, with the flags of PhysicalLine. The search can be continued when more of the
/// text has come. It is the inner loop of reading: each byte is looked at once, a word at a time.
class LineEndSearch
{
public:
    /// \param a_begin where the search begins or continues.
    /// \return the place of the first CR or LF, or a_end.
    const char* Find( const char* a_begin, const char* a_end );

    bool IsWide() const { return m_isWide; }
    bool HasControls() const { return m_hasControls; }

    /// \param a_place a CR or LF before a_end.
    /// \param a_isAll no further byte comes.
    /// \return the length of the line ending: CR LF, LF, CR or CR CR LF. 0 if that depends on bytes to come.
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

/// Cuts a text that comes in pieces into lines, and keeps the bytes that are still needed. The lines are the same
/// however the text is cut into pieces. Bytes are addressed by their place in the text.
class LineScanner
{
public:
    /// Forgets the text.
    void Reset();

    void Append( std::string_view a_piece );
    /// To append bytes without a copy: room for that many, and how many of them there are now.
    char* Room( size_t a_size );
    void Grow( size_t a_size ) { m_size += a_size; }
    /// Appends a byte that completes no line, if that costs little. \return false if it does not.
    bool TakeByte( char a_byte )
    {
        if ( m_size % s_kCheckedBytes == 0 || a_byte == '\n' || m_bytes[m_size - 1] == '\r' )
            return false;
        m_bytes[m_size++] = a_byte;
        return true;
    }

    /// No byte follows.
    void Finish() { m_isFinished = true; }
    bool IsFinished() const { return m_isFinished; }

    /// \param[out] a_line the next line; its bytes are available until Release().
    /// \return false while the end of the next line has not come.
    bool Next( PhysicalLine& a_line );

    /// The place of the first byte that no line has taken.
    qint64 NextOffset() const { return m_bufferOffset + static_cast<qint64>( m_next ); }
    qint64 NextNumber() const { return m_number; }
    qint64 NextLineOffset() const { return m_lineOffset; }
    /// The start of the next line was taken by TakeOpen().
    bool IsLong() const { return m_isLong; }
    /// The length of what has come of the next line.
    qint64 OpenLength() const { return static_cast<qint64>( m_size - m_next ); }
    /// What has come of the next line, and of those behind it.
    std::string_view Rest() const { return std::string_view( m_bytes + m_next, m_size - m_next ); }
    /// Passes over whole lines.
    void PassLines( qint64 a_length, qint64 a_lines );
    /// Takes the first bytes of a line whose end has not come. The rest is returned by Next() as a long line.
    void TakeOpen( qint64 a_length );
    /// Passes over the first bytes of the next line. They are not part of it.
    void Pass( qint64 a_length );

    /// Bytes before this place are no longer needed.
    void Release( qint64 a_offset );

    /// The bytes at a place, valid until the next Append().
    const char* At( qint64 a_offset ) const { return m_bytes + ( a_offset - m_bufferOffset ); }
    std::string_view View( qint64 a_offset, qint64 a_length ) const
    {
        return std::string_view( At( a_offset ), static_cast<size_t>( a_length ) );
    }
    std::string_view TextOf( const PhysicalLine& a_line ) const { return View( a_line.m_offset, a_line.m_length ); }

    /// \param a_begin counts from the start of the line, and so does a_end.
    /// \return a part of a line. It has the line ending if a_end is the end of the text of the line.
    PhysicalLine PartOf( const PhysicalLine& a_line, qint64 a_begin, qint64 a_end ) const;
    /// \param a_offset where a line begins that Next() has already returned.
    /// \param a_end    the end of a line behind it, or of the text. The line is searched no further.
    /// \return the line once more. It is taken as a whole, even if it came in parts.
    PhysicalLine LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const;

private:
    // After so many single bytes the line is looked at again, whether it is too long. The capacity is a multiple of it.
    static constexpr size_t s_kCheckedBytes = 1024;

    void MakeRoom( size_t a_size );
    void Reallocate( size_t a_left, size_t a_capacity );

    // It grows without being copied where the system can do that.
    QByteArray m_buffer;
    char* m_bytes = nullptr;
    size_t m_size = 0;
    size_t m_capacity = 0;
    // The place of the first byte of the buffer in the text.
    qint64 m_bufferOffset = 0;
    // In the buffer: the first byte that is still needed, the first byte of the next line, and how far it was searched.
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
