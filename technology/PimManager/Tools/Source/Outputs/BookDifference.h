/// \file
/// What changed between two address books.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/DifferenceWriter.h"
#include "Terminal/Console.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <QString>

#include <memory>
#include <vector>

namespace PimManager::Tools
{

/// Keeps two books in memory, and compares them at the end. First come the contacts that were removed, in the order of
/// the old book, then those that were added or changed, in the order of the new one.
///
/// Books are not compared if one of them was not read to its end, or contains no vCard: contacts would look removed
/// that may be there. If cards or lines of a book were left out, a message says so.
class BookDifference : public BookOutput
{
public:
    /// \param a_console must outlive the output.
    BookDifference( Console& a_console, std::unique_ptr<DifferenceWriter> a_writer );

    void BeginBook( const BookInRun& a_book, const Contacts::PimContactReader& a_reader ) override;
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void EndBook( const BookInRun& a_book ) override;
    void End() override;

    QStringList Failures() const override { return m_failures; }

    /// \return SomeRefused if the books differ.
    ExitStatus Status() const override;

    /// \return such as `2 added, 1 removed, 3 changed, 0 moved`; empty if the books are not compared.
    QString Result() const override;

private:
    struct Book
    {
        QString m_source;
        Contacts::PimContactBook m_contacts;
        bool m_isComparable = false;
        bool m_isWhole = false;
    };

    bool AreComparable() const;
    void Write();
    void WarnOfLosses();

    Console& m_console;
    const std::unique_ptr<DifferenceWriter> m_writer;
    // The old one and the new one.
    std::vector<Book> m_books;
    PhoneBook::PimPhoneBookChanges m_changes;
    QStringList m_failures;
};

} // namespace PimManager::Tools
