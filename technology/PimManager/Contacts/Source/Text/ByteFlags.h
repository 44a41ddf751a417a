/// \file
/// The kinds of bytes in a text.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// The kinds of bytes that a writer checks before it copies a line.
struct ByteFlags
{
    bool m_isAscii = true;
    bool m_hasDelete = false; ///< the control character 0x7F
    bool m_hasBackslash = false;

    bool IsAsciiWithoutDelete() const { return m_isAscii && !m_hasDelete; }
};

/// Determines all flags in one pass.
ByteFlags ByteFlagsOf( std::string_view a_text );

} // namespace PimManager::Contacts
