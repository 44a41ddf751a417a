/// \file
/// The white space of Unicode, in UTF-8. Other than in Bytes.h, it includes line feeds and the spaces beyond ASCII.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \return the length of the white space character at the start of a text; 0 if there is none.
size_t LengthOfWhiteSpace( std::string_view a_text );

/// \return true for a character of ASCII that is visible.
inline bool IsVisibleAscii( char a_byte )
{
    return a_byte > ' ' && a_byte < '\x7F';
}

/// \return the text without white space at both ends.
std::string_view RemovedOuterSpace( std::string_view a_text );
inline std::string_view WithoutOuterSpace( std::string_view a_text )
{
    const bool hasNone = a_text.empty() || ( IsVisibleAscii( a_text.front() ) && IsVisibleAscii( a_text.back() ) );
    return hasNone ? a_text : RemovedOuterSpace( a_text );
}

/// Appends the words of a text. One blank precedes each word, unless the result is empty before.
void AppendWords( std::string_view a_text, QByteArray& a_out );

/// \param a_buffer receives the words, unless single blanks divide them in the text already.
/// \return the words of a text, divided by single blanks.
std::string_view WordsIn( std::string_view a_text, QByteArray& a_buffer );

} // namespace PimManager::Contacts
