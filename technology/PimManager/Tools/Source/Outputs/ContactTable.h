/// \file
/// Contacts as a table.

#pragma once

#include "Outputs/BookOutput.h"

#include <PimManager/Contacts/PimContact.h>

#include <QStringList>

#include <array>
#include <vector>

class QIODevice;

namespace PimManager::Tools
{

/// Writes a line a contact, and further lines for further numbers and addresses:
///
///     NAME              NUMBER                   MAIL              ORGANISATION
///     Nell Brackwater   +1-555-0101 boat phone   nell@example.com  Lanthorn Tide Office
///                       +1-555-0102 home
///
/// The first contacts are held back until the widths of the columns are known from them; the rest is written as it
/// comes. Long texts and lists are cut as in ShortText.h, and nothing drives a terminal.
class ContactTable : public BookOutput
{
public:
    /// \param a_device  must be open and outlive the table.
    /// \param a_columns the width to keep, into which long cells are wrapped; 0 to wrap nothing.
    ContactTable( QIODevice& a_device, int a_columns );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;

private:
    static constexpr size_t s_kColumns = 4;
    // The lines of each cell.
    using Row = std::array<QStringList, s_kColumns>;

    static Row RowOf( const Contacts::PimContact& a_contact );
    void WriteWaiting();
    void FindWidths();
    void NarrowWidths();
    void WriteRow( const Row& a_row );
    void WriteLine( const std::array<QString, s_kColumns>& a_cells );

    QIODevice& m_device;
    const int m_columns;
    bool m_isWaiting = true;
    std::vector<Row> m_waiting;
    std::array<int, s_kColumns> m_widths = {};
};

} // namespace PimManager::Tools
