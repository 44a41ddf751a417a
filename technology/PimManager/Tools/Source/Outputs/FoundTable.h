/// \file
/// Contacts that a search has found, as a table.

#pragma once

#include "Outputs/BookOutput.h"
#include "Terminal/TextTable.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QIODevice;

namespace PimManager::Tools
{

/// A contact that was found.
struct FoundContact
{
    /// Its index in the book.
    int m_contact = 0;
    /// The ids of the TEL lines to show.
    QList<int> m_numbers;
    /// How certain it is that the contact is meant; empty if that is no question.
    QString m_grade;
};

/// Keeps the contacts of all books in memory, searches them at the end, and writes a line for each one that is found:
///
///     NAME              NUMBER                   MATCH     ORGANISATION
///     Nell Brackwater   +1-555-0101 boat phone   national  Lanthorn Tide Office
///
/// The column MATCH is there if the search grades what it finds. The rest is as in ContactTable.
class FoundTable : public BookOutput
{
public:
    /// Finds contacts in a book, the best one first.
    using Search = std::function<std::vector<FoundContact>( const Contacts::PimContactBook& )>;

    enum class Grades
    {
        Shown,
        None
    };

    /// \param a_device must be open and outlive the table.
    /// \param a_books  the names of all files that are read.
    FoundTable( QIODevice& a_device, const Screen& a_screen, const QList<QByteArray>& a_books, Grades a_grades,
                Search a_search );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;

    /// \return the number of contacts found, such as `2 found`.
    QString Result() const override;

    /// The number of contacts found. Known after End().
    size_t Found() const { return m_found; }

private:
    void Write( const FoundContact& a_found );
    TextTable::Cell NumberCell( const Contacts::PimContact& a_contact, const QList<int>& a_ids ) const;
    QStringList OtherNumbers( const Contacts::PimContact& a_contact, const QSet<int>& a_ids ) const;

    const Screen m_screen;
    // What the table calls each file, by its name for messages; empty if there is one book.
    const QMap<QString, QString> m_bookNames;
    const bool m_hasGrades;
    const Search m_search;
    TextTable m_table;
    Contacts::PimContactBook m_contacts;
    // The name of the file of each contact, for messages.
    QStringList m_sources;
    size_t m_found = 0;
};

} // namespace PimManager::Tools
