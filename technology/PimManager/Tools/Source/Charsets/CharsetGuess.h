/// \file
/// The character set of address books that do not name theirs.
///
/// To read a book in it, use GuessedCharset instead.

#pragma once

#include "Charsets/UndeclaredWords.h"

#include <PimManager/Contacts/PimContactCharset.h>

#include <QByteArray>

namespace PimManager::Tools
{

/// Guesses the character set of the text in a book that is not UTF-8 and names none.
///
/// A character set is guessed if every byte belongs to a character of it, if these are common ones of a language that
/// is written in it, and if no other character set explains the text nearly as well. Character sets that decode the
/// text to the same characters do not compete: the one whose languages fit best is guessed.
///
/// Nearly all guesses on 20 contacts are right; CharsetGuessTest counts them. A character set that is not in
/// UsedCharsets() may be taken for one that is, if the letters of both happen to be common ones.
///
/// \param a_start the start of the book: s_kGuessedStart bytes, or the whole book. Nothing that follows is looked at,
///                so a file and a pipe have the same result. Linear in its length.
/// \return the character set; unknown if there is no such text, or if none fits it, or several do.
Contacts::PimContactCharset GuessCharset( const QByteArray& a_start );

} // namespace PimManager::Tools
