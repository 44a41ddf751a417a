/// \file
/// Which bytes a text has.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// What a writer looks for before it copies a line.
struct ByteFlags
{
    bool m_isAscii = true;
    bool m_hasDelete = false; ///< the control character 0x7F
    bool m_hasBackslash = false;

    bool IsAsciiWithoutDelete() const { return m_isAscii && !m_hasDelete; }
};

/// Finds all of them in one pass.
ByteFlags ByteFlagsOf( std::string_view a_text );

} // namespace PimManager::Contacts
