/// \file
/// Contacts as a table.

#pragma once

#include "Outputs/BookOutput.h"
#include "Terminal/TextTable.h"

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

class QIODevice;

namespace PimManager::Tools
{

/// Writes a line a contact, and further lines for further numbers and addresses, see TextTable:
///
///     NAME              NUMBER                   MAIL              ORGANISATION
///     Nell Brackwater   +1-555-0101 boat phone   nell@example.com  Lanthorn Tide Office
///                       +1-555-0102 home
///
/// If there are several books, a last column names the book of each contact. Long texts and lists are cut as in
/// ShortText.h, and nothing in a card drives a terminal.
class ContactTable : public BookOutput
{
public:
    /// \param a_device must be open and outlive the table.
    /// \param a_books  the names of all files that are read.
    ContactTable( QIODevice& a_device, const Screen& a_screen, const QList<QByteArray>& a_books );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override { m_table.End(); }

private:
    template <class Field>
    TextTable::Cell FieldCell( const Contacts::PimContactList<Field>& a_fields,
                               QString ( Field::*a_text )() const ) const;

    const Screen m_screen;
    // What the table calls each file, by its name for messages; empty if there is one book.
    const QMap<QString, QString> m_books;
    TextTable m_table;
};

} // namespace PimManager::Tools
