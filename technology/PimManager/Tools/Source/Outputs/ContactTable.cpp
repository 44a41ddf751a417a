#include "Outputs/ContactTable.h"

#include "Terminal/ShortText.h"
#include "Terminal/TerminalText.h"
#include "Terminal/Wording.h"

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

QString WithoutFolder( const QByteArray& a_fileName )
{
    const auto slash = a_fileName.lastIndexOf( '/' );
    return slash < 0 ? SourceName( a_fileName ) : ToShownFileName( a_fileName.mid( slash + 1 ) );
}

// The names of several files, without their folders if they differ all the same.
QMap<QString, QString> BookNames( const QList<QByteArray>& a_fileNames )
{
    QMap<QString, QString> whole;
    QMap<QString, QString> bySource;
    QMap<QString, QString> byName;
    for ( const QByteArray& fileName : a_fileNames )
    {
        const QString source = SourceName( fileName );
        const QString name = WithoutFolder( fileName );
        whole.insert( source, source );
        bySource.insert( source, name );
        byName.insert( name, source );
    }
    if ( whole.size() < 2 )
        return {};
    return byName.size() == bySource.size() ? bySource : whole;
}

std::vector<TextTable::Column> Columns( bool a_areBooksNamed )
{
    using Kept = TextTable::Kept;
    std::vector<TextTable::Column> columns = { { QStringLiteral( "NAME" ), Kept::Words, 14 },
                                               { QStringLiteral( "NUMBER" ), Kept::Entries, 24 },
                                               { QStringLiteral( "MAIL" ), Kept::Words, 16 },
                                               { QStringLiteral( "ORGANISATION" ), Kept::Words, 16 } };
    if ( a_areBooksNamed )
        columns.push_back( { QStringLiteral( "BOOK" ), Kept::Words, 20, true } );
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
    TextTable::Row row = { { CellText( ShownName( contact ) ) },
                           FieldCell( contact.Phones(), &PimContactPhone::Text ),
                           FieldCell( contact.Mails(), &PimContactMail::Address ),
                           {} };
    const PimContactList<PimContactOrganisation> organisations = contact.Organisations();
    if ( !organisations.isEmpty() )
        row.back() << CellText( organisations.constFirst().Text() );
    if ( !m_books.isEmpty() )
        row.push_back( { m_screen.Isolated( m_books.value( a_book.m_source ) ) } );
    m_table.Add( row );
}

QString ContactTable::CellText( const QString& a_text ) const
{
    return m_screen.Isolated( ToTerminalText( Shortened( a_text.simplified() ) ) );
}

/// \param a_text of a field, such as its number.
template <class Field>
TextTable::Cell ContactTable::FieldCell( const PimContactList<Field>& a_fields,
                                         QString ( Field::*a_text )() const ) const
{
    QStringList texts;
    for ( const Field& field : a_fields )
        texts << ( CellText( ( field.*a_text )() ) + QLatin1Char( ' ' ) + CellText( field.Purpose() ) ).trimmed();
    return ShortenedList( texts );
}

} // namespace PimManager::Tools
