/// \file
/// The decoded text that the scanner reads. Programs that read contacts use PimVCardParser instead.

#pragma once

#include "PimVCardExport.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <QTextStream>

namespace PimManager::vCard
{

/// Reads UTF-8 directly from a byte array, one UTF-16 unit at a time, and reports exact byte positions.
///
/// It implements the operations of a QTextStream that the scanner and the grammar use, under the same names: reading a
/// QChar, atEnd(), pos(), seek(), readLine() and readAll(). status(), setStatus() and resetStatus() are inherited.
/// Every other operation of QTextStream, such as read( n ), readLineInto(), skipWhiteSpace() and `>>` into a text or a
/// number, can still be called, but belongs to the base class, which has no device. Such an operation reads nothing and
/// does not move the stream. For the same reason, do not read through a reference to the base class.
///
/// The stream stores no decoded text, so pos() and seek() take constant time.
///
/// \code
/// const QByteArray text( "FN:J\xC3\xB6rg\r\n" );
/// PimVCardTextStream stream( &text );
/// QChar character;
/// stream >> character; // 'F'; stream.pos() is 1
/// \endcode
class PIMVCARD_EXPORT PimVCardTextStream : public QTextStream
{
public:
    /// \param a_data UTF-8, whatever the locale. Not null, may be empty. The caller keeps ownership. The array must
    ///               outlive the stream and must not change. An incomplete character at its end is not part of the
    ///               text.
    explicit PimVCardTextStream( const QByteArray* a_data );

    /// Reads the next UTF-16 unit, including white space. A character above U+FFFF is read as two units, one after the
    /// other. A byte order mark is skipped at the start of the text, and at the position of the last seek(). Each byte
    /// that is not part of a UTF-8 sequence is read as one U+FFFD. At the end of the text, the unit is U+0000 and
    /// status() becomes ReadPastEnd.
    PimVCardTextStream& operator>>( QChar& a_character )
    {
        if ( m_next != m_end && IsAscii( *m_next ) && !IsInsidePair() )
            a_character = QLatin1Char( *m_next++ );
        else
            a_character = ReadBeyondAscii();
        return *this;
    }

    /// \return true if every unit of the text was read.
    bool atEnd() const { return m_next == m_end && !IsInsidePair(); }

    /// \return the position of the next character, in bytes from the start of the text. Between the halves of a
    ///         surrogate pair, the position after the pair.
    qint64 pos() const { return m_next - m_begin; }

    /// Moves to a position in bytes from the start of the text. The status does not change.
    /// \return false if the position is before the start or after the end of the text. Nothing changes then.
    bool seek( qint64 a_place );

    /// Reads up to and including the next LF or CR LF, or up to the end of the text.
    /// \return the line without its line ending, or without a carriage return at the end of the text. Null at the end
    ///         of the text. Linear in the length of the line.
    QString readLine();

    /// Reads the rest of the text.
    /// \return the text. Null at the end. Linear in its length.
    QString readAll();

    /// True between the halves of a surrogate pair.
    bool IsInsidePair() const { return m_lowSurrogate != 0; }

    /// True if the character is ASCII and is the byte directly before Next().
    bool IsDirectlyBehind( QChar a_character ) const
    {
        return a_character.unicode() < 0x80 && m_next != m_begin && QLatin1Char( m_next[-1] ) == a_character;
    }

    /// The bytes that are not read yet, from Next() to End().
    const char* Next() const { return m_next; }

    /// The end of these bytes.
    const char* End() const { return m_end; }

    /// Skips bytes, up to a_next.
    /// \pre a_next is the first byte of a character, from Next() to End(), and IsInsidePair() is false.
    void SkipTo( const char* a_next ) { m_next = a_next; }

    /// Skips the second half of a surrogate pair. Otherwise skips a byte order mark, if reading would skip it here.
    /// \return true if it skipped a half.
    bool PassMarkOrHalf();

private:
    static bool IsAscii( char a_byte ) { return static_cast<uchar>( a_byte ) < 0x80; }
    QChar ReadBeyondAscii();
    QChar TakeLowSurrogate();
    uint DecodeCharacter();
    bool SkipByteOrderMark();
    QString ReadTo( const char* a_end );

    const char* m_begin;
    const char* m_end;
    const char* m_next;
    // Where reading began. U+FEFF is a byte order mark only here.
    const char* m_origin;
    ushort m_lowSurrogate = 0;
};

} // namespace PimManager::vCard
