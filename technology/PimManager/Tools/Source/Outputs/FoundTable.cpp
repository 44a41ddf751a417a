#include "Outputs/FoundTable.h"

#include "Outputs/TableCells.h"
#include "Terminal/ShortText.h"

#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

std::vector<TextTable::Column> Columns( bool a_hasGrades, bool a_areBooksNamed )
{
    std::vector<TextTable::Column> columns = { NameColumn(), NumberColumn() };
    if ( a_hasGrades )
        columns.push_back( { QStringLiteral( "MATCH" ), TextTable::Kept::Words, 8 } );
    columns.push_back( OrganisationColumn() );
    if ( a_areBooksNamed )
        columns.push_back( BookColumn() );
    return columns;
}

} // namespace

FoundTable::FoundTable( QIODevice& a_device, const Screen& a_screen, const QList<QByteArray>& a_books, Grades a_grades,
                        Search a_search ) :
    m_screen( a_screen ),
    m_bookNames( BookNames( a_books ) ),
    m_hasGrades( a_grades == Grades::Shown ),
    m_search( std::move( a_search ) ),
    m_table( a_device, a_screen, Columns( m_hasGrades, !m_bookNames.isEmpty() ) )
{
}

void FoundTable::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    m_contacts.Append( a_card );
    m_sources << a_book.m_source;
}

void FoundTable::End()
{
    const std::vector<FoundContact> all = m_search( m_contacts );
    m_found = all.size();
    for ( const FoundContact& found : all )
        Write( found );
    m_table.End();
}

QString FoundTable::Result() const
{
    return QStringLiteral( "%1 found" ).arg( m_found );
}

void FoundTable::Write( const FoundContact& a_found )
{
    const PimContact contact = m_contacts.At( a_found.m_contact );
    TextTable::Row row = { NameCell( contact, m_screen ), NumberCell( contact, a_found.m_numbers ) };
    if ( m_hasGrades )
        row.push_back( { a_found.m_grade } );
    row.push_back( OrganisationCell( contact, m_screen ) );
    if ( !m_bookNames.isEmpty() )
        row.push_back( { m_screen.Isolated( m_bookNames.value( m_sources.at( a_found.m_contact ) ) ) } );
    m_table.Add( row );
}

TextTable::Cell FoundTable::NumberCell( const PimContact& a_contact, const QList<int>& a_ids ) const
{
    QSet<int> ids( a_ids.begin(), a_ids.end() );
    QStringList texts;
    for ( const PimContactPhone& phone : a_contact.Phones() )
    {
        if ( ids.remove( phone.Id() ) )
            texts << EntryText( phone.Text(), phone, m_screen );
    }
    return ShortenedList( texts + OtherNumbers( a_contact, ids ) );
}

// A number in another language than that of the contact is no field of its own.
QStringList FoundTable::OtherNumbers( const PimContact& a_contact, const QSet<int>& a_ids ) const
{
    QStringList texts;
    int id = 0;
    for ( const PimContactLine& line : a_ids.isEmpty() ? PimContactCard() : a_contact.Card() )
    {
        if ( !a_ids.contains( ++id ) )
            continue;
        const PimContactText field = a_contact.FieldOf( line );
        texts << EntryText( field.Text(), field, m_screen );
    }
    return texts;
}

} // namespace PimManager::Tools
