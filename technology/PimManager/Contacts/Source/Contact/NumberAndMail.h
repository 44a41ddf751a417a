/// \file
/// The number in a TEL and the address in an EMAIL.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// The parts of the text of a TEL. A missing part is empty.
struct NumberParts
{
    std::string_view m_number;
    std::string_view m_extension;
    std::string_view m_context; ///< of `phone-context` (RFC 3966, section 5.1.5)
    bool m_isUri = false;       ///< true for a `tel:` URI
};

/// Splits the text of a TEL into its parts.
///
/// The parameters of a `tel:` URI may have any order and letter case; the first one of a name is used. In any other
/// text, digits at the end are the extension if `x`, `ext`, `extn` or `extension` precedes them and a number precedes
/// this word: `555 ext. 12`, `555;ext=12`, `555x12`. Pauses such as `555,12`, `555p12` and `555w12` are a part of the
/// number.
///
/// \param a_text   the text of a TEL.
/// \param a_buffer receives the parts that are not parts of the text.
/// \return the parts without percent-encoding and without white space at both ends.
NumberParts NumberPartsOf( std::string_view a_text, QByteArray& a_buffer );

/// \param a_text   the text of a TEL.
/// \param a_buffer receives the number if it is not a part of the text.
/// \return the number. For a `tel:` URI (RFC 3966), it is the number and `;ext=` with the extension, without other
///         parameters and without percent-encoding. Any other text is returned without white space at both ends.
std::string_view NumberOf( std::string_view a_text, QByteArray& a_buffer );

/// The parts of the text of an EMAIL.
struct MailParts
{
    std::string_view m_address;
    std::string_view m_name; ///< of the person, empty if there is none
};

/// Splits the text of an EMAIL into its parts: `omega@example.com`, `mailto:omega@example.com?subject=x` (RFC 6068) or
/// `"Omega Iota" <omega@example.com>` (RFC 5322, section 3.4).
///
/// \param a_text   the text of an EMAIL.
/// \param a_buffer receives the parts that are not parts of the text.
/// \return the parts without white space at both ends. Around the name, quotes are removed, and inside them backslashes
///         that escape. Encoded words (RFC 2047) are not decoded.
MailParts MailPartsOf( std::string_view a_text, QByteArray& a_buffer );

/// \return the address of MailPartsOf().
std::string_view MailOf( std::string_view a_text, QByteArray& a_buffer );

} // namespace PimManager::Contacts
