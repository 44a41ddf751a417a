// docs/limits.md: the figures of its tables are those of the code.

#include "BookReader.h"
#include "DocumentFile.h"

#include "PimVCardImportOptions.h"

#include <gtest/gtest.h>

#include <map>

using namespace PimManager::vCard::Documents;

namespace
{

QString Limits()
{
    return DocumentText( QStringLiteral( "docs/limits.md" ) );
}

qint64 Figure( QString a_cell )
{
    return a_cell.remove( QLatin1Char( ',' ) ).toLongLong();
}

TEST( LimitsTest, DefaultsOfImportAreThoseOfTheCode )
{
    const PimManager::vCardImport::PimVCardImportLimits limits;
    std::map<QString, qint64> defaults = {
        { QStringLiteral( "m_lineBytes" ), limits.m_lineBytes },
        { QStringLiteral( "m_valueBytes" ), limits.m_valueBytes },
        { QStringLiteral( "m_cardBytes" ), limits.m_cardBytes },
        { QStringLiteral( "m_nesting" ), limits.m_nesting },
        { QStringLiteral( "m_diagnostics" ), limits.m_diagnostics },
        { QStringLiteral( "m_cards" ), limits.m_cards },
    };
    for ( const TableRow& row : TableRows( Limits(), { QStringLiteral( "limit" ), QStringLiteral( "default" ),
                                                       QStringLiteral( "member" ), QStringLiteral( "beyond it" ) } ) )
    {
        const QString member = WithoutQuotes( row.m_cells[2] );
        ASSERT_EQ( defaults.count( member ), 1U ) << "line " << row.m_line;
        EXPECT_EQ( Figure( row.m_cells[1] ), defaults[member] ) << "line " << row.m_line;
        defaults.erase( member );
    }
    EXPECT_TRUE( defaults.empty() ) << defaults.begin()->first.toStdString();
}

TEST( LimitsTest, LargestFileToPrintIsThatOfTheCode )
{
    const QString bits = sizeof( void* ) < 8 ? QStringLiteral( "32 bits" ) : QStringLiteral( "64 bits" );
    int rows = 0;
    for ( const TableRow& row : TableRows(
              Limits(), { QStringLiteral( "what" ), QStringLiteral( "limit" ), QStringLiteral( "beyond it" ) } ) )
    {
        if ( !row.m_cells[0].startsWith( QLatin1String( "bytes of a " ) ) || !row.m_cells[0].endsWith( bits ) )
            continue;
        EXPECT_EQ( Figure( row.m_cells[1] ), PimManager::vCard::Tools::s_kLargestBook ) << "line " << row.m_line;
        ++rows;
    }
    EXPECT_EQ( rows, 2 );
}

} // namespace
