#include "Outputs/ContactTable.h"

#include "Outputs/TableCells.h"
#include "Terminal/ShortText.h"

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

std::vector<TextTable::Column> Columns( bool a_areBooksNamed )
{
    std::vector<TextTable::Column> columns = {
        NameColumn(), NumberColumn(), { QStringLiteral( "MAIL" ), TextTable::Kept::Words, 16 }, OrganisationColumn() };
    if ( a_areBooksNamed )
        columns.push_back( BookColumn() );
    return columns;
}

} // namespace

ContactTable::ContactTable( QIODevice& a_device, const Screen& a_screen, const QList<QByteArray>& a_books ) :
    m_screen( a_screen ),
    m_books( BookNames( a_books ) ),
    m_table( a_device, a_screen, Columns( !m_books.isEmpty() ) )
{
}

void ContactTable::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    const PimContact contact( a_card );
    TextTable::Row row = { NameCell( contact, m_screen ), FieldCell( contact.Phones(), &PimContactPhone::Text ),
                           FieldCell( contact.Mails(), &PimContactMail::Address ),
                           OrganisationCell( contact, m_screen ) };
    if ( !m_books.isEmpty() )
        row.push_back( { m_screen.Isolated( m_books.value( a_book.m_source ) ) } );
    m_table.Add( row );
}

/// \param a_text of a field, such as its number.
template <class Field>
TextTable::Cell ContactTable::FieldCell( const PimContactList<Field>& a_fields,
                                         QString ( Field::*a_text )() const ) const
{
    QStringList texts;
    for ( const Field& field : a_fields )
        texts << EntryText( ( field.*a_text )(), field, m_screen );
    return ShortenedList( texts );
}

} // namespace PimManager::Tools
