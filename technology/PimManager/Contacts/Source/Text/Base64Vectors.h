/// \file
/// Decodes BASE64 with vectors of 16 characters.

#pragma once

#include <cstddef>

namespace PimManager::Contacts
{

/// Decodes 16 characters at once, and skips the breaks of folded lines: CR LF and one blank or tab. Ends before the
/// first 16 characters with any other character that is not in the alphabet. Does nothing on processors without the
/// required instructions.
///
/// \param a_size the length of the text.
/// \param a_out  advances by 12 bytes for each 16 characters. Four bytes after them are overwritten.
/// \return the number of characters decoded, with the breaks.
size_t DecodeBase64Vectors( const char* a_text, size_t a_size, char*& a_out );

} // namespace PimManager::Contacts
