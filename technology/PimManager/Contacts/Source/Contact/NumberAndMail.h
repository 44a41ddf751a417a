/// \file
/// The number in a TEL and the address in an EMAIL.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_text   the text of a TEL.
/// \param a_buffer receives the number if it is not a part of the text.
/// \return the number. Of a `tel:` URI (RFC 3966) this is the number and `;ext=` with the extension, without other
///         parameters and without percent-encoding. Any other text is returned without white space at both ends.
std::string_view NumberOf( std::string_view a_text, QByteArray& a_buffer );

/// \param a_text   the text of an EMAIL.
/// \param a_buffer receives the address if it is not a part of the text.
/// \return the address: without `mailto:` and its header fields (RFC 6068), and without the name in
///         `"Omega" <omega@example.com>`. Any other text is returned without white space at both ends.
std::string_view MailOf( std::string_view a_text, QByteArray& a_buffer );

} // namespace PimManager::Contacts
