/// \file
/// The character set that a line names.

#pragma once

#include "Lines/LineHead.h"

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_head the head of the line.
/// \param a_line the line with its continuation lines joined.
/// \return the value of the first CHARSET parameter, or else the first bare parameter that is a known character set
///         other than UTF-8, such as `SHIFT_JIS`. Empty if the line names none.
std::string_view NamedCharset( const LineHead& a_head, std::string_view a_line );

} // namespace PimManager::Contacts
