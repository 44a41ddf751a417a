/// \file
/// The character sets that a card may name.

#pragma once

#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// One of the character sets that this library decodes, or none. It is one byte and may be stored.
///
/// A label has the meaning that it has in practice, as in the Encoding standard of the web: `ISO-8859-1` is
/// windows-1252, `Shift_JIS` is code page 932, `GB2312` is GB18030, and `US-ASCII` is UTF-8.
class Charset
{
public:
    /// The single-byte character sets are contiguous, from Windows1250 to MacCyrillic.
    enum class Id : quint8
    {
        Unknown,
        Utf8,
        Windows1250,
        Windows1251,
        Windows1252,
        Windows1253,
        Windows1254,
        Windows1255,
        Windows1256,
        Windows1257,
        Windows1258,
        Windows874,
        Iso8859Part2,
        Iso8859Part3,
        Iso8859Part4,
        Iso8859Part5,
        Iso8859Part6,
        Iso8859Part7,
        Iso8859Part8,
        Iso8859Part10,
        Iso8859Part13,
        Iso8859Part14,
        Iso8859Part15,
        Iso8859Part16,
        Koi8R,
        Koi8U,
        Ibm437,
        Ibm850,
        Ibm852,
        Ibm866,
        Macintosh,
        MacCyrillic,
        ShiftJis,
        EucJp,
        EucKr,
        Gb18030,
        Big5,
        Iso2022Jp,
    };

    /// No character set.
    constexpr Charset() = default;
    constexpr explicit Charset( Id a_id ) :
        m_id( a_id )
    {
    }

    /// Finds a character set by a label, as a card or a caller writes it. Letter case, punctuation, and blanks around
    /// the label are ignored.
    ///
    /// Labels are unknown if they are longer than 40 bytes, or have characters other than letters, digits and
    /// `-_.:+()`. All forms of UTF-16, UTF-32 and UTF-7 are unknown, because no line of a card can be in them. So are
    /// ISO-2022-KR, ISO-2022-CN and HZ, which the Encoding standard rejects as well.
    ///
    /// \note The time does not depend on the label, and nothing is allocated. May be called in several threads.
    static Charset Of( std::string_view a_label );

    /// \return the name of every character set, for a message about an unknown one.
    static std::vector<std::string_view> Names();

    constexpr Id Value() const { return m_id; }
    constexpr bool IsKnown() const { return m_id != Id::Unknown; }
    constexpr bool IsUtf8() const { return m_id == Id::Utf8; }
    /// \return true if each byte is a character, see SingleByteTables.h.
    constexpr bool IsSingleByte() const { return m_id >= Id::Windows1250 && m_id <= Id::MacCyrillic; }
    /// \return false if a text without bytes beyond 0x7F may have characters other than ASCII, as in ISO-2022-JP after
    ///         an escape sequence. True for Shift_JIS, GB18030 and Big5, although a byte below 0x80 may be the second
    ///         one of a character.
    constexpr bool ContainsAscii() const { return m_id != Id::Iso2022Jp; }

    /// \return the usual name, such as `windows-1252`, which Of() finds. Empty if there is no character set.
    std::string_view Name() const;

    friend constexpr bool operator==( Charset a_left, Charset a_right ) { return a_left.m_id == a_right.m_id; }
    friend constexpr bool operator!=( Charset a_left, Charset a_right ) { return a_left.m_id != a_right.m_id; }

private:
    Id m_id = Id::Unknown;
};

} // namespace PimManager::Contacts
