/// \file
/// Is a text UTF-8? (RFC 3629, section 4)

#pragma once

#include <string_view>

namespace PimManager::vCardImport
{

/// \param a_text not empty.
/// \return the length in bytes of the character that the text begins with, 1 to 4; 0 if it is malformed or cut off.
int Utf8LengthOfFirst( std::string_view a_text );

/// What a text looks like as UTF-8.
struct PimVCardUtf8Census
{
    /// Characters of more than one byte.
    int m_wide = 0;
    /// Bytes that belong to no character.
    int m_malformed = 0;

    bool IsAscii() const { return m_wide == 0 && m_malformed == 0; }
    bool IsValid() const { return m_malformed == 0; }
};

PimVCardUtf8Census Utf8CensusOf( std::string_view a_text );

/// \return the number of UTF-16 units of a valid text.
long long Utf16Units( std::string_view a_utf8 );

} // namespace PimManager::vCardImport
