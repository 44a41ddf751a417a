/// \file
/// What the user should know besides the contacts.

#pragma once

#include "Outputs/BookOutput.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Reports for each file what is missing, and sums up at the end.
class BookNotes : public BookOutput
{
public:
    /// \param a_console must outlive the notes.
    explicit BookNotes( Console& a_console );

    void EndBook( const BookInRun& a_book ) override;

    /// \return files, contacts and what is missing, such as
    ///         `2 files, 12 contacts (1 in part), 1 card refused, 2 lines dropped`.
    QString Result() const override;

private:
    Console& m_console;
    qint64 m_files = 0;
    qint64 m_cards = 0;
    qint64 m_cardsInPart = 0;
    qint64 m_cardsRefused = 0;
    qint64 m_linesDropped = 0;
};

} // namespace PimManager::Tools
