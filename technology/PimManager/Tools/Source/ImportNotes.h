/// \file
/// What a user should know beside the contacts.

#pragma once

#include "Console.h"
#include "ImportOutput.h"

namespace PimManager::vCard::Tools
{

/// Tells for each file what is missing, and sums up when the outputs are ready.
class ImportNotes : public ImportOutput
{
public:
    /// \param a_console must outlive the notes.
    explicit ImportNotes( Console& a_console );

    void TakeCard( const ImportedBook& a_book, const vCardImport::PimVCardImportedCard& a_card ) override;
    void EndBook( const ImportedBook& a_book ) override;

    /// \return files, contacts and what is missing, such as `2 files, 12 contacts (1 in part), 1 card refused`.
    QString Result() const override;

private:
    Console& m_console;
    qint64 m_files = 0;
    qint64 m_cards = 0;
    qint64 m_cardsInPart = 0;
    qint64 m_cardsRefused = 0;
    qint64 m_linesDropped = 0;
};

} // namespace PimManager::vCard::Tools
