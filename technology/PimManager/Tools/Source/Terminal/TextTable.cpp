#include "Terminal/TextTable.h"

#include "Terminal/TextColumns.h"

#include <QIODevice>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace PimManager::Tools
{

namespace
{

constexpr size_t s_kWaiting = 200;
constexpr size_t s_kFewest = 2;
constexpr int s_kGap = 2;
constexpr int s_kNarrowest = 8;
// Without a terminal one long cell does not push all others to the right.
constexpr int s_kWidest = 48;

int Sum( const std::vector<int>& a_numbers )
{
    return std::accumulate( a_numbers.begin(), a_numbers.end(), 0 );
}

} // namespace

TextTable::TextTable( QIODevice& a_device, const Screen& a_screen, std::vector<Column> a_columns ) :
    m_device( a_device ),
    m_screen( a_screen ),
    m_columns( std::move( a_columns ) )
{
}

void TextTable::Add( const Row& a_row )
{
    if ( !m_isWaiting )
    {
        WriteRow( a_row );
        return;
    }
    m_waiting.push_back( a_row );
    if ( m_waiting.size() == s_kWaiting )
        WriteWaiting();
}

void TextTable::End()
{
    if ( m_isWaiting && !m_waiting.empty() )
        WriteWaiting();
}

void TextTable::WriteWaiting()
{
    m_isWaiting = false;
    FindWidths( FindLayout() );
    Row headings = Stacked( Headings( m_widths.size() ), m_widths.size() );
    for ( Cell& cell : headings )
        cell = Cell( cell.join( QLatin1Char( ' ' ) ) );
    const QStringList lines = LinesOf( headings );
    for ( const QString& line : lines )
        m_device.write( m_screen.Painted( line, Ink::Heading ).toUtf8() + '\n' );
    for ( const Row& row : m_waiting )
        WriteRow( row );
    m_waiting.clear();
    m_waiting.shrink_to_fit();
}

// As many columns side by side as leave their words whole.
std::vector<TextTable::Need> TextTable::FindLayout() const
{
    for ( size_t columns = m_columns.size();; --columns )
    {
        std::vector<Need> needs = NeedsOf( columns );
        if ( !m_screen.IsTerminal() || columns <= s_kFewest || Sum( LeastOf( needs ) ) <= Available( columns ) )
            return needs;
    }
}

std::vector<TextTable::Need> TextTable::NeedsOf( size_t a_columns ) const
{
    std::vector<Need> needs( a_columns );
    AddNeeds( Headings( a_columns ), needs );
    for ( const Row& row : m_waiting )
        AddNeeds( row, needs );
    return needs;
}

void TextTable::AddNeeds( const Row& a_row, std::vector<Need>& a_needs ) const
{
    for ( size_t i = 0; i < a_row.size(); ++i )
    {
        const Column& column = m_columns[i];
        Need& need = a_needs[PlaceOf( i, a_needs.size() )];
        for ( const QString& entry : a_row[i] )
        {
            const int whole = ColumnsOf( entry );
            const int kept = column.m_kept == Kept::Entries ? whole : WidestPart( entry );
            need.m_whole = std::max( need.m_whole, whole );
            need.m_least = std::max( need.m_least, std::min( kept, column.m_longest ) );
        }
    }
}

// Where a column is if so many are side by side.
size_t TextTable::PlaceOf( size_t a_column, size_t a_columns ) const
{
    const bool isLastApart = m_columns.back().m_isApart && a_columns > s_kFewest;
    if ( isLastApart && a_column == m_columns.size() - 1 )
        return a_columns - 1;
    return std::min( a_column, a_columns - ( isLastApart ? 2 : 1 ) );
}

TextTable::Row TextTable::Stacked( const Row& a_row, size_t a_columns ) const
{
    Row row( a_columns );
    for ( size_t column = 0; column < a_row.size(); ++column )
        row[PlaceOf( column, a_columns )] << a_row[column];
    return row;
}

// With a comma where another one follows in the same place.
TextTable::Row TextTable::Headings( size_t a_columns ) const
{
    Row row;
    for ( size_t column = 0; column < m_columns.size(); ++column )
    {
        const bool isLast =
            column + 1 == m_columns.size() || PlaceOf( column, a_columns ) != PlaceOf( column + 1, a_columns );
        row.push_back( { m_columns[column].m_heading + ( isLast ? QString() : QStringLiteral( "," ) ) } );
    }
    return row;
}

// Takes from the widest column until the lines fit: first where no word has to be wrapped for it.
void TextTable::FindWidths( const std::vector<Need>& a_needs )
{
    for ( const Need& need : a_needs )
        m_widths.push_back( m_screen.IsTerminal() ? need.m_whole : std::min( need.m_whole, s_kWidest ) );
    Narrow( LeastOf( a_needs ) );
    Narrow( std::vector<int>( a_needs.size(), s_kNarrowest ) );
}

std::vector<int> TextTable::LeastOf( const std::vector<Need>& a_needs )
{
    std::vector<int> least;
    std::transform( a_needs.begin(), a_needs.end(), std::back_inserter( least ),
                    []( const Need& a_need ) { return a_need.m_least; } );
    return least;
}

void TextTable::Narrow( const std::vector<int>& a_least )
{
    int excess = Sum( m_widths ) - Available( m_widths.size() );
    while ( m_screen.IsTerminal() && excess > 0 )
    {
        int* widest = nullptr;
        for ( size_t column = 0; column < m_widths.size(); ++column )
        {
            const bool canGive = m_widths[column] > a_least[column];
            if ( canGive && ( widest == nullptr || m_widths[column] > *widest ) )
                widest = &m_widths[column];
        }
        if ( widest == nullptr )
            return;
        --*widest;
        --excess;
    }
}

int TextTable::Available( size_t a_columns ) const
{
    return m_screen.m_columns - s_kGap * ( static_cast<int>( a_columns ) - 1 );
}

QStringList TextTable::LinesOf( const Row& a_row ) const
{
    std::vector<QStringList> cells;
    int lines = 1;
    for ( size_t column = 0; column < a_row.size(); ++column )
    {
        cells.push_back( LinesOf( a_row[column], m_widths[column] ) );
        lines = std::max( lines, static_cast<int>( cells.back().size() ) );
    }
    QStringList texts;
    for ( int line = 0; line < lines; ++line )
        texts << LineOf( cells, line );
    return texts;
}

QStringList TextTable::LinesOf( const Cell& a_cell, int a_width ) const
{
    if ( !m_screen.IsTerminal() )
        return a_cell;
    QStringList lines;
    for ( const QString& entry : a_cell )
        lines << Wrapped( entry, a_width );
    return lines;
}

// The line does not end in blanks.
QString TextTable::LineOf( const std::vector<QStringList>& a_cells, int a_line ) const
{
    QString text;
    QString blanks;
    for ( size_t column = 0; column < a_cells.size(); ++column )
    {
        const QString cell = a_cells[column].value( a_line );
        if ( !cell.isEmpty() )
            text += std::exchange( blanks, QString() ) + cell;
        blanks += QString( std::max( 0, m_widths[column] - ColumnsOf( cell ) ) + s_kGap, QLatin1Char( ' ' ) );
    }
    return text;
}

void TextTable::WriteRow( const Row& a_row )
{
    const QStringList lines = LinesOf( Stacked( a_row, m_widths.size() ) );
    for ( const QString& line : lines )
        m_device.write( line.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
