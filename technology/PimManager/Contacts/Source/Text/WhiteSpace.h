/// \file
/// The white space of Unicode, in UTF-8. Other than in Bytes.h, it includes line feeds and the spaces beyond ASCII.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \return the length of the white space character at the start of a text; 0 if there is none.
size_t LengthOfWhiteSpace( std::string_view a_text );

/// \return the text without white space at both ends.
std::string_view WithoutOuterSpace( std::string_view a_text );

/// Appends the words of a text. One blank precedes each word, unless the result is empty before.
void AppendWords( std::string_view a_text, QByteArray& a_out );

} // namespace PimManager::Contacts
