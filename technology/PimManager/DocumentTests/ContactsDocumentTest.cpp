// Checks that the words and severities in docs/vcard-support.md and the limits in docs/developing-an-app.md are those
// of the code.

#include "DocumentFile.h"

#include <PimManager/Contacts/PimContactDiagnostic.h>
#include <PimManager/Contacts/PimContactExtent.h>
#include <PimManager/Contacts/PimContactOptions.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <map>
#include <string>
#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::vCard::Documents;

namespace
{

using Words = std::vector<std::string>;

std::vector<TableRow> SupportRows( const QStringList& a_headings )
{
    return TableRows( DocumentText( QStringLiteral( "docs/vcard-support.md" ) ), a_headings );
}

std::vector<TableRow> LimitRows()
{
    return TableRows( DocumentText( QStringLiteral( "docs/developing-an-app.md" ) ),
                      { QStringLiteral( "limit" ), QStringLiteral( "function" ), QStringLiteral( "default" ),
                        QStringLiteral( "beyond it" ) } );
}

std::string Word( const QString& a_cell )
{
    return WithoutQuotes( a_cell ).toStdString();
}

// `1,000`, `16 MiB` or `none`; -1 for anything else.
qint64 Figure( const QString& a_cell )
{
    const std::map<QString, qint64> units = { { QString(), 1 },
                                              { QStringLiteral( "MiB" ), qint64( 1 ) << 20 },
                                              { QStringLiteral( "GiB" ), qint64( 1 ) << 30 } };
    if ( a_cell == QLatin1String( "none" ) )
        return 0;
    const auto unit = units.find( a_cell.section( QLatin1Char( ' ' ), 1 ) );
    bool isNumber = false;
    const qint64 number =
        a_cell.section( QLatin1Char( ' ' ), 0, 0 ).remove( QLatin1Char( ',' ) ).toLongLong( &isNumber );
    return isNumber && unit != units.end() ? number * unit->second : -1;
}

TEST( ContactsDocumentTest, DiagnosticsAreThoseOfTheCode )
{
    Words documented;
    for ( const TableRow& row :
          SupportRows( { QStringLiteral( "word" ), QStringLiteral( "severity" ), QStringLiteral( "meaning" ) } ) )
    {
        documented.push_back( Word( row.m_cells[0] ) + " " + row.m_cells[1].toStdString() );
        EXPECT_FALSE( row.m_cells[2].isEmpty() ) << "line " << row.m_line;
    }
    Words expected;
    for ( int i = 0; i < s_kPimContactDiagnosticCodes; ++i )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( i );
        expected.push_back( NameOf( code ).data() + std::string( " " ) + NameOf( SeverityOf( code ) ).data() );
    }
    EXPECT_EQ( documented, expected );
}

TEST( ContactsDocumentTest, ExtentsAreThoseOfTheCode )
{
    Words documented;
    for ( const TableRow& row : SupportRows( { QStringLiteral( "extent" ), QStringLiteral( "bytes" ) } ) )
        documented.push_back( Word( row.m_cells[0] ) );
    Words expected;
    for ( int i = 0; i < s_kPimContactExtentKinds; ++i )
        expected.emplace_back( NameOf( static_cast<PimContactExtentKind>( i ) ).data() );
    EXPECT_EQ( documented, expected );
}

TEST( ContactsDocumentTest, DefaultLimitsAreThoseOfTheCode )
{
    std::map<std::string, qint64> documented;
    for ( const TableRow& row : LimitRows() )
        documented[Word( row.m_cells[1] )] = Figure( row.m_cells[2] );
    const PimContactOptions options;
    const std::map<std::string, qint64> expected = {
        { "SetCardBytes()", options.CardBytes() },
        { "SetLineBytes()", options.LineBytes() },
        { "SetCardLines()", options.CardLines() },
        { "SetNesting()", options.Nesting() },
        { "SetCards()", options.Cards() },
        { "SetBookBytes()", options.BookBytes() },
        { "SetDiagnostics()", options.Diagnostics() },
    };
    EXPECT_EQ( documented, expected );
}

} // namespace
