/// \file
/// Text from a file, made so that a terminal shows it and does nothing else.

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace PimManager::Tools
{

/// Tells if a character may not reach a terminal as it is: control characters (C0, DEL, C1), line and paragraph
/// separators, halves of surrogate pairs, noncharacters, and format characters such as those that turn the direction of
/// writing. The joiners U+200C and U+200D pass: Persian, Hindi and many pictures are unreadable without them.
bool IsUnsafeOnTerminal( uint a_codePoint );

/// \return the text with each unsafe character written as `\n`, `\r`, `\t`, `\x1b`, `\u202e` or `\u{e0001}`. All other
///         characters stay, the backslash among them: the result is for reading and has no way back.
QString ToTerminalText( QStringView a_text );

/// As ToTerminalText(), for one value of a card: a backslash comes as `\\` and a semicolon as `\;`, so that values
/// joined by semicolons can be told apart and an escape shown is never the file's own text.
QString ToTerminalValue( QStringView a_text );

/// \param a_fileName as the system gave it; any bytes.
/// \return the name as UTF-8 reads it, with U+FFFD where it is not UTF-8, safe for a terminal. Never empty.
QString ToShownFileName( const QByteArray& a_fileName );

} // namespace PimManager::Tools
