/// \file
/// The backslashes of a value.

#pragma once

#include "Lines/LineIndex.h"

#include <string_view>

namespace PimManager::Contacts
{

/// The backslashes before a character that needs no escape.
struct UnknownEscapes
{
    qint64 m_count = 0;
    /// The position of the first one in the line.
    quint32 m_first = 0;
};

/// \param a_line a content line without its last line ending; may have continuation lines.
/// \return true if there are backslashes in its value that precede neither a backslash, a comma, a semicolon, a colon
///         nor the letter n (RFC 2426, section 4; RFC 6350, section 3.4).
bool HasUnknownEscapes( std::string_view a_line, const IndexEntry& a_entry );

/// Counts these backslashes.
UnknownEscapes UnknownEscapesIn( std::string_view a_line, const IndexEntry& a_entry );

} // namespace PimManager::Contacts
