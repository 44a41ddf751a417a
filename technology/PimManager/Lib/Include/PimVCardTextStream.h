/// \file
/// The decoded text under the scanner. Programs that want contacts use PimVCardParser instead.

#pragma once

#include "PimVCardExport.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <QTextStream>

namespace PimManager::vCard
{

/// Reads UTF-8 straight from a byte array, a UTF-16 unit at a time, and knows its place to the byte.
///
/// It implements the operations of a QTextStream that the scanner and the grammar use, under the same names: reading a
/// QChar, atEnd(), pos(), seek(), readLine() and readAll(). status(), setStatus() and resetStatus() are those of the
/// base class. Every other operation of QTextStream, such as read( n ), readLineInto(), skipWhiteSpace() and `>>` into
/// a text or a number, can still be called, but belongs to the base class, which has no device: it reads nothing and
/// does not move the stream. For the same reason, do not read through a reference to the base class.
///
/// The stream holds no decoded text, so pos() and seek() take constant time.
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
    /// \param a_data UTF-8 under every locale; not null, may be empty. It stays the caller's, must outlive the stream
    ///               and must not change. A character that its end cuts off is not part of the text.
    explicit PimVCardTextStream( const QByteArray* a_data );

    /// Reads the next UTF-16 unit, white space included; the halves of a character beyond U+FFFF come one after the
    /// other. A byte order mark is skipped at the start of the text and at a place that seek() went to. Each byte that
    /// belongs to no UTF-8 sequence reads as one U+FFFD. At the end of the text the unit is U+0000 and status() becomes
    /// ReadPastEnd.
    PimVCardTextStream& operator>>( QChar& a_character )
    {
        if ( m_next != m_end && IsAscii( *m_next ) && !IsInsidePair() )
            a_character = QLatin1Char( *m_next++ );
        else
            a_character = ReadBeyondAscii();
        return *this;
    }

    /// \return true when every unit of the text was read.
    bool atEnd() const { return m_next == m_end && !IsInsidePair(); }

    /// \return the place of the next character, in bytes from the start of the text; between the halves of a surrogate
    ///         pair, the place behind the pair.
    qint64 pos() const { return m_next - m_begin; }

    /// Goes to a place in bytes from the start of the text. The status stays as it is.
    /// \return false, with nothing changed, for a place before the start or behind the end of the text.
    bool seek( qint64 a_place );

    /// Reads up to the next LF or CR LF and over it, or up to the end of the text.
    /// \return the line without its end, or without a carriage return that ends the text; null at the end of the text.
    /// Linear in its length.
    QString readLine();

    /// Reads all that is left.
    /// \return the text; null at the end. Linear in its length.
    QString readAll();

    /// True between the halves of a surrogate pair.
    bool IsInsidePair() const { return m_lowSurrogate != 0; }

    /// True if the character is ASCII and stands directly before the next byte.
    bool IsDirectlyBehind( QChar a_character ) const
    {
        return a_character.unicode() < 0x80 && m_next != m_begin && QLatin1Char( m_next[-1] ) == a_character;
    }

    /// The bytes that were not read yet, from Next() to End().
    const char* Next() const { return m_next; }

    /// Where those bytes end.
    const char* End() const { return m_end; }

    /// Passes over bytes, up to a_next.
    /// \pre a_next is the first byte of a character, from Next() to End(), and IsInsidePair() is false.
    void SkipTo( const char* a_next ) { m_next = a_next; }

    /// Passes over the second half of a surrogate pair, or over a byte order mark where one would be swallowed.
    /// \return true if it was a half.
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
    // Where reading began: there alone U+FEFF is a byte order mark.
    const char* m_origin;
    ushort m_lowSurrogate = 0;
};

} // namespace PimManager::vCard
