/// \file
/// Decides which character set applies to a line of a card.

#pragma once

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// The source of the character set of a line. The numbers are stored in cards.
enum class LineCharset : quint8
{
    Utf8 = 0,      ///< nowhere; the line is UTF-8 or ASCII
    Default = 1,   ///< the caller's default
    Card = 2,      ///< the first CHARSET parameter of the card whose value is known
    Line = 3,      ///< the CHARSET parameter of the line
    Iso2022Jp = 4, ///< nowhere; the line has the escape sequences of ISO-2022-JP
};

/// \return true if the name is that of a character set other than UTF-8 and ASCII (see Charset::Of()).
bool IsKnownCharset( std::string_view a_name );

/// \return true if the text has an escape character, so that it may be in ISO-2022-JP.
bool MayBeShifted( std::string_view a_text );

/// Decides about the lines of one card. The first rule that applies decides:
///
/// 1. A line with an escape character and a known CHARSET that does not contain ASCII, such as ISO-2022-JP, is in that
///    character set.
/// 2. A line with an escape sequence of ISO-2022-JP (`ESC $ B` or `ESC $ @`) is in ISO-2022-JP.
/// 3. If the whole card is valid UTF-8, each line is UTF-8, whatever CHARSET it names.
/// 4. A line in ASCII is UTF-8.
/// 5. A line with a known CHARSET that contains ASCII is in that character set.
/// 6. A line with more complete characters of UTF-8 than malformed bytes is UTF-8 that was damaged.
/// 7. Any other line is in the card's character set. Without one, it is in the caller's default if that is known, or
///    else in UTF-8.
class CharsetChoice
{
public:
    /// \param a_isCardUtf8     true if the card is valid UTF-8.
    /// \param a_hasCardCharset true if a line of the card names a known character set.
    /// \param a_isDefaultKnown true if the caller's default is known and not UTF-8.
    CharsetChoice( bool a_isCardUtf8, bool a_hasCardCharset, bool a_isDefaultKnown );

    /// \param a_text  the line with its continuation lines joined.
    /// \param a_named the value of its CHARSET parameter; empty if there is none.
    LineCharset Of( std::string_view a_text, std::string_view a_named ) const;

private:
    bool m_isCardUtf8;
    LineCharset m_cardCharset;
};

} // namespace PimManager::Contacts
