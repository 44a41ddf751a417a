#include "DocumentFile.h"

#include <QFile>

#include <gtest/gtest.h>

namespace PimManager::vCard::Documents
{

namespace
{

bool IsTableLine( const QString& a_line )
{
    return a_line.startsWith( QLatin1String( "| " ) ) || a_line.startsWith( QLatin1String( "|-" ) );
}

QStringList CellsOf( const QString& a_line )
{
    QStringList cells = a_line.mid( 1 ).split( QLatin1Char( '|' ) );
    cells.removeLast();
    for ( QString& cell : cells )
        cell = cell.trimmed();
    return cells;
}

} // namespace

QString DocumentText( const QString& a_name )
{
    QFile file( QStringLiteral( PIMVCARD_PROJECT "/" ) + a_name );
    EXPECT_TRUE( file.open( QIODevice::ReadOnly ) ) << a_name.toStdString();
    return QString::fromUtf8( file.readAll() );
}

std::vector<TableRow> TableRows( const QString& a_document, const QStringList& a_headings )
{
    std::vector<TableRow> rows;
    const QStringList lines = a_document.split( QLatin1Char( '\n' ) );
    QString heading;
    bool isWanted = false;
    for ( int i = 0; i < lines.size(); ++i )
    {
        const QString& line = lines[i];
        if ( line.startsWith( QLatin1Char( '#' ) ) )
            heading = line.section( QLatin1Char( ' ' ), 1 );
        if ( !IsTableLine( line ) )
            isWanted = false;
        else if ( CellsOf( line ) == a_headings )
            isWanted = true;
        else if ( isWanted && line.startsWith( QLatin1String( "| " ) ) )
            rows.push_back( { i + 1, heading, CellsOf( line ) } );
    }
    return rows;
}

QString WithoutQuotes( const QString& a_cell )
{
    const QLatin1Char quote( '`' );
    const bool isQuoted = a_cell.size() > 1 && a_cell.startsWith( quote ) && a_cell.endsWith( quote );
    return isQuoted ? a_cell.mid( 1, a_cell.size() - 2 ) : a_cell;
}

} // namespace PimManager::vCard::Documents
