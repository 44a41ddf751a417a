// docs/limits.md: the figures of the program are those of the code.

#include "DocumentFile.h"
#include "Strict/BookReader.h"

#include <gtest/gtest.h>

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

TEST( LimitsTest, LargestFileToPrintIsThatOfTheCode )
{
    const QString bits = sizeof( void* ) < 8 ? QStringLiteral( "32 bits" ) : QStringLiteral( "64 bits" );
    int rows = 0;
    for ( const TableRow& row : TableRows(
              Limits(), { QStringLiteral( "what" ), QStringLiteral( "limit" ), QStringLiteral( "beyond it" ) } ) )
    {
        if ( !row.m_cells[0].startsWith( QLatin1String( "bytes of a " ) ) || !row.m_cells[0].endsWith( bits ) )
            continue;
        EXPECT_EQ( Figure( row.m_cells[1] ), PimManager::Tools::s_kLargestBook ) << "line " << row.m_line;
        ++rows;
    }
    EXPECT_EQ( rows, 2 );
}

} // namespace
