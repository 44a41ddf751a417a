/// \file
/// Text in columns.

#pragma once

#include "Terminal/Screen.h"

#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

namespace PimManager::Tools
{

/// Writes rows below headings, in columns as wide as their cells. Rows may have several lines.
///
/// On a terminal, cells are wrapped into its width. If columns become too narrow for their words, the cells of the last
/// ones are written below each other, in one column:
///
///     NAME              NUMBER, MAIL
///     Nell Brackwater   +1-555-0101 boat phone
///                       nell@example.com
///
/// The first rows are held back until the widths are known from them; the rest is written as it comes.
class TextTable
{
public:
    /// What a column keeps on one line if it can.
    enum class Kept
    {
        Words,
        Entries
    };

    struct Column
    {
        QString m_heading;
        Kept m_kept;
        /// Anything longer is wrapped if another column then becomes wide enough.
        int m_longest;
        /// True for a last column that is below others only if two columns are left.
        bool m_isApart = false;
    };

    /// Safe for a terminal. Its entries are written below each other.
    using Cell = QStringList;
    using Row = std::vector<Cell>;

    /// \param a_device must be open and outlive the table.
    TextTable( QIODevice& a_device, const Screen& a_screen, std::vector<Column> a_columns );

    /// \param a_row a cell for each column.
    void Add( const Row& a_row );

    /// Writes what was held back; nothing if there are no rows.
    void End();

private:
    // The width of a column.
    struct Need
    {
        // To wrap nothing.
        int m_whole = 0;
        // To wrap nothing that is to be kept.
        int m_least = 0;
    };

    void WriteWaiting();
    std::vector<Need> FindLayout() const;
    std::vector<Need> NeedsOf( size_t a_columns ) const;
    void AddNeeds( const Row& a_row, std::vector<Need>& a_needs ) const;
    size_t PlaceOf( size_t a_column, size_t a_columns ) const;
    Row Stacked( const Row& a_row, size_t a_columns ) const;
    Row Headings( size_t a_columns ) const;
    static std::vector<int> LeastOf( const std::vector<Need>& a_needs );
    void FindWidths( const std::vector<Need>& a_needs );
    void Narrow( const std::vector<int>& a_least );
    int Available( size_t a_columns ) const;
    QStringList LinesOf( const Row& a_row ) const;
    QStringList LinesOf( const Cell& a_cell, int a_width ) const;
    QString LineOf( const std::vector<QStringList>& a_cells, int a_line ) const;
    void WriteRow( const Row& a_row );

    QIODevice& m_device;
    const Screen m_screen;
    const std::vector<Column> m_columns;
    bool m_isWaiting = true;
    std::vector<Row> m_waiting;
    // Of the columns that are side by side.
    std::vector<int> m_widths;
};

} // namespace PimManager::Tools
