#include "Outputs/TableCells.h"

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

} // namespace

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

QString CellText( const QString& a_text, const Screen& a_screen )
{
    return a_screen.Isolated( ToTerminalText( Shortened( a_text.simplified() ) ) );
}

QString EntryText( const QString& a_text, const PimContactField& a_field, const Screen& a_screen )
{
    return ( CellText( a_text, a_screen ) + QLatin1Char( ' ' ) + CellText( a_field.Purpose(), a_screen ) ).trimmed();
}

TextTable::Cell NameCell( const PimContact& a_contact, const Screen& a_screen )
{
    return { CellText( ShownName( a_contact ), a_screen ) };
}

TextTable::Cell OrganisationCell( const PimContact& a_contact, const Screen& a_screen )
{
    const PimContactList<PimContactOrganisation> organisations = a_contact.Organisations();
    return organisations.isEmpty() ? TextTable::Cell()
                                   : TextTable::Cell( CellText( organisations.constFirst().Text(), a_screen ) );
}

TextTable::Column NameColumn()
{
    return { QStringLiteral( "NAME" ), TextTable::Kept::Words, 14 };
}

TextTable::Column NumberColumn()
{
    return { QStringLiteral( "NUMBER" ), TextTable::Kept::Entries, 24 };
}

TextTable::Column OrganisationColumn()
{
    return { QStringLiteral( "ORGANISATION" ), TextTable::Kept::Words, 16 };
}

TextTable::Column BookColumn()
{
    return { QStringLiteral( "BOOK" ), TextTable::Kept::Words, 20, true };
}

} // namespace PimManager::Tools
