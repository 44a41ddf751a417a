/// \file
/// The character sets that the library decodes.
///
/// To decode the value of a line, use PimContactLine::Text() instead. It determines the character set of the line.
///
/// \code
/// const PimContactCharset charset = PimContactCharset::Of( "koi8_r" );
/// if ( charset.IsKnown() )
///     qInfo() << charset.Name() << charset.Decode( bytes ); // KOI8-R, and the text
/// else
///     qInfo() << "unknown; try one of" << PimContactCharset::Names();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

namespace PimManager::Contacts
{

/// A character set, or none. It is one number and cheap to copy, so it has no private class.
///
/// A label has the meaning that it has in practice: `ISO-8859-1` is windows-1252, `Shift_JIS` is code page 932, and
/// `GB2312` is GB18030. So several labels can denote the same character set, but each character set has one name.
///
/// All functions may be called in several threads at once.
class PIMCONTACT_EXPORT PimContactCharset
{
public:
    /// Creates an unknown character set.
    constexpr PimContactCharset() = default;

    /// Finds a character set by a label, as a card or a user writes it.
    ///
    /// Letter case, punctuation, and blanks around the label are ignored. UTF-16, UTF-32 and UTF-7 are unknown, because
    /// no line of a card can be in them. Constant time.
    /// \return the character set; an unknown one if none has the label.
    static PimContactCharset Of( const QByteArray& a_label );

    /// \return the names of all character sets, for example for a list in a user interface. Of() finds each of them.
    static QList<QByteArray> Names();

    /// \return false if no character set has the label.
    constexpr bool IsKnown() const { return m_number != 0; }

    /// \return the name, such as `windows-1252`; empty if the character set is unknown.
    QByteArray Name() const;

    /// Decodes a text. Each byte that belongs to no character becomes U+FFFD, and decoding continues at the next byte.
    /// If the character set is unknown, the text is decoded as UTF-8. Linear in the length of the text.
    ///
    /// \param a_bytes          the text; any bytes are allowed.
    /// \param[out] a_malformed receives the number of bytes that belong to no character, unless it is null.
    /// \return the text.
    /// \note   East Asian character sets need modules of the system's iconv(), see docs/embedded.md. Without them, all
    ///         bytes beyond ASCII count as malformed.
    QString Decode( const QByteArray& a_bytes, qint64* a_malformed = nullptr ) const;

    friend constexpr bool operator==( PimContactCharset a_left, PimContactCharset a_right )
    {
        return a_left.m_number == a_right.m_number;
    }
    friend constexpr bool operator!=( PimContactCharset a_left, PimContactCharset a_right )
    {
        return !( a_left == a_right );
    }

private:
    constexpr explicit PimContactCharset( quint8 a_number ) :
        m_number( a_number )
    {
    }

    quint8 m_number = 0;
};

} // namespace PimManager::Contacts
