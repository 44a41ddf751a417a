/// \file
/// The text of an address book whose character set nothing names.

#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace PimManager::Tools
{

/// How much of an address book is looked at.
constexpr qint64 s_kGuessedStart = qint64( 1 ) << 20;

/// Words with a byte beyond ASCII in the order of a book, a line feed behind each.
struct UndeclaredWords
{
    /// Every word.
    QByteArray m_all;
    /// Each word once, because what occurs often says no more than what occurs once. No word is added to more than
    /// 16 KiB of them; words of more than 4 KiB are left out.
    QByteArray m_sample;
};

/// Finds the words that PimContactReader would read in the caller's default character set.
///
/// Words end at blanks and at the punctuation that no character of several bytes has in it. Linear in the length of the
/// start.
///
/// \param a_start the start of a book. Only the first s_kGuessedStart bytes are looked at. If they are all there, the
///                book may go on, so the last line is left out unless its card is complete.
UndeclaredWords UndeclaredWordsOf( const QByteArray& a_start );

} // namespace PimManager::Tools
