#include "Outputs/ContactTable.h"

#include "Terminal/ShortText.h"
#include "Terminal/TerminalText.h"
#include "Terminal/TextColumns.h"
#include "Terminal/Wording.h"

#include <QIODevice>

#include <algorithm>
#include <numeric>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr size_t s_kWaiting = 200;
constexpr int s_kGap = 2;
constexpr int s_kNarrowest = 8;
// Without a terminal one long cell does not push all others to the right.
constexpr int s_kWidest = 48;

QString CellText( const QString& a_text )
{
    return ToTerminalText( Shortened( a_text.simplified() ) );
}

/// \param a_text of a field, such as its number.
template <class Field>
QStringList FieldTexts( const PimContactList<Field>& a_fields, QString ( Field::*a_text )() const )
{
    QStringList texts;
    for ( const Field& field : a_fields )
    {
        const QString purpose = CellText( field.Purpose() );
        texts << ( CellText( ( field.*a_text )() ) + QLatin1Char( ' ' ) + purpose ).trimmed();
    }
    return ShortenedList( texts );
}

QStringList WrappedLines( const QStringList& a_lines, int a_columns )
{
    QStringList wrapped;
    for ( const QString& line : a_lines )
        wrapped << Wrapped( line, a_columns );
    return wrapped;
}

} // namespace

ContactTable::ContactTable( QIODevice& a_device, int a_columns ) :
    m_device( a_device ),
    m_columns( a_columns )
{
}

void ContactTable::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    const Row row = RowOf( PimContact( a_card ) );
    if ( !m_isWaiting )
    {
        WriteRow( row );
        return;
    }
    m_waiting.push_back( row );
    if ( m_waiting.size() == s_kWaiting )
        WriteWaiting();
}

void ContactTable::End()
{
    if ( m_isWaiting && !m_waiting.empty() )
        WriteWaiting();
}

ContactTable::Row ContactTable::RowOf( const PimContact& a_contact )
{
    const PimContactList<PimContactOrganisation> organisations = a_contact.Organisations();
    const QString organisation = organisations.isEmpty() ? QString() : organisations.constFirst().Text();
    return { QStringList( CellText( ShownName( a_contact ) ) ),
             FieldTexts( a_contact.Phones(), &PimContactPhone::Text ),
             FieldTexts( a_contact.Mails(), &PimContactMail::Address ), QStringList( CellText( organisation ) ) };
}

void ContactTable::WriteWaiting()
{
    m_isWaiting = false;
    m_waiting.insert( m_waiting.begin(),
                      Row{ QStringList( QStringLiteral( "NAME" ) ), QStringList( QStringLiteral( "NUMBER" ) ),
                           QStringList( QStringLiteral( "MAIL" ) ), QStringList( QStringLiteral( "ORGANISATION" ) ) } );
    FindWidths();
    for ( const Row& row : m_waiting )
        WriteRow( row );
    m_waiting.clear();
    m_waiting.shrink_to_fit();
}

void ContactTable::FindWidths()
{
    for ( const Row& row : m_waiting )
    {
        for ( size_t column = 0; column < s_kColumns; ++column )
        {
            for ( const QString& line : row.at( column ) )
                m_widths.at( column ) = std::max( m_widths.at( column ), ColumnsOf( line ) );
        }
    }
    if ( m_columns > 0 )
        NarrowWidths();
    else
        for ( int& width : m_widths )
            width = std::min( width, s_kWidest );
}

// Takes from the widest column until the line fits.
void ContactTable::NarrowWidths()
{
    const int available = m_columns - s_kGap * static_cast<int>( s_kColumns - 1 );
    int sum = std::accumulate( m_widths.begin(), m_widths.end(), 0 );
    for ( ; sum > available; --sum )
    {
        int& widest = *std::max_element( m_widths.begin(), m_widths.end() );
        if ( widest <= s_kNarrowest )
            return;
        --widest;
    }
}

void ContactTable::WriteRow( const Row& a_row )
{
    Row row = a_row;
    int lines = 1;
    for ( size_t column = 0; column < s_kColumns; ++column )
    {
        if ( m_columns > 0 )
            row.at( column ) = WrappedLines( row.at( column ), m_widths.at( column ) );
        lines = std::max( lines, static_cast<int>( row.at( column ).size() ) );
    }
    for ( int line = 0; line < lines; ++line )
        WriteLine( { row[0].value( line ), row[1].value( line ), row[2].value( line ), row[3].value( line ) } );
}

void ContactTable::WriteLine( const std::array<QString, s_kColumns>& a_cells )
{
    QString line;
    QString blanks;
    for ( size_t column = 0; column < s_kColumns; ++column )
    {
        const QString& cell = a_cells.at( column );
        if ( !cell.isEmpty() )
            line += blanks + cell;
        blanks = cell.isEmpty() ? blanks : QString();
        blanks += QString( std::max( 0, m_widths.at( column ) - ColumnsOf( cell ) ) + s_kGap, QLatin1Char( ' ' ) );
    }
    m_device.write( line.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
