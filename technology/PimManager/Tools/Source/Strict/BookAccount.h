/// \file
/// What became of the cards of one file.

#pragma once

#include "ExitStatus.h"
#include "Strict/BookParser.h"
#include "Strict/LineEnds.h"

#include <QByteArray>
#include <QStringList>

namespace PimManager::Tools
{

/// The figures of one file. ExamineText() and ExamineCards() fill them.
struct BookAccount
{
    /// Bytes in the file.
    qint64 m_size = 0;
    /// Lines that begin a card, see IsBeginLine(), in the whole file. NUL bytes are overlooked, so the lines of UTF-16
    /// text are found.
    qint64 m_beginLines = 0;
    /// Up to the first NUL byte.
    LineEnds m_lineEnds;
    /// Where the parser stops reading: the first NUL byte; -1 when there is none.
    qint64 m_nulPosition = -1;
    /// Cards given.
    qint64 m_cards = 0;
    /// Failures that the parser reported while it read the cards. The caller sets it.
    qint64 m_failedCards = 0;
    /// Cards with another card's BEGIN line among their properties, such as `card 2 (Nell Brackwater)`; safe for a
    /// terminal.
    QStringList m_swallowers;

    /// \return the BEGIN lines that gave no card, and at least one for each failed card and each swallower; not
    ///         negative.
    qint64 Refused() const;

    /// \return false when the file holds no BEGIN line and gave no card.
    bool HoldsVCards() const { return m_beginLines > 0 || m_cards > 0; }
};

/// Counts what can be told without parsing.
void ExamineText( const QByteArray& a_bytes, BookAccount& a_account );

/// Counts the cards that came.
void ExamineCards( const Cards& a_cards, BookAccount& a_account );

/// \return AllGiven for an empty file.
ExitStatus StatusOf( const BookAccount& a_account );

/// \return what the user should know beside the cards, a sentence each, without the name of the file; safe for a
///         terminal. Empty when every card was given.
QStringList NotesOn( const BookAccount& a_account );

} // namespace PimManager::Tools
