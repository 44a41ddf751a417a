/// \file
/// Percent-encoding (RFC 3986, section 2.1).

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_place the position of a percent sign.
/// \return the byte that is encoded there; -1 if two hexadecimal digits do not follow.
int PercentByte( std::string_view a_text, size_t a_place );

/// Appends a text without its percent-encoding. A percent sign that encodes nothing is kept.
void AppendPercentDecoded( std::string_view a_text, QByteArray& a_out );

} // namespace PimManager::Contacts
