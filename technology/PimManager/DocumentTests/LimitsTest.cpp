// Checks that the limits in docs/strict-reader.md and docs/embedded.md are those of the code, and that they fit into
// the devices.

#include "DocumentFile.h"
#include "Strict/BookReader.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace PimManager::vCard::Documents;

namespace
{

// The memory that a program needs according to docs/embedded.md.
constexpr qint64 s_kEmptyProgram = 9'000'000;
constexpr qint64 s_kReaderForCardByte = 6;
constexpr qint64 s_kBookForCardByte = 3;
constexpr qint64 s_kBookForCard = 250;
constexpr qint64 s_kComponentForTextByte = 28;

// "1,000" or "3 MiB".
qint64 Figure( const QString& a_cell )
{
    const QString digits = a_cell.section( QLatin1Char( ' ' ), 0, 0 ).remove( QLatin1Char( ',' ) );
    bool isNumber = false;
    const qint64 number = digits.toLongLong( &isNumber );
    EXPECT_TRUE( isNumber ) << a_cell.toStdString();
    return a_cell.endsWith( QLatin1String( " MiB" ) ) ? number * 1024 * 1024 : number;
}

// The limits of docs/embedded.md for a device, in the order of the table.
struct Device
{
    qint64 m_bytes = 0;
    qint64 m_cardBytes = 0;
    qint64 m_bookCardBytes = 0;
    qint64 m_bookBytes = 0;
    qint64 m_bookCards = 0;
    qint64 m_textBytes = 0;
};

std::vector<Device> Devices()
{
    std::vector<Device> devices = { { 64'000'000 }, { 128'000'000 }, { 256'000'000 } };
    const std::vector<TableRow> rows = TableRows( DocumentText( QStringLiteral( "docs/embedded.md" ) ),
                                                  { QStringLiteral( "memory of the device" ), QStringLiteral( "64 MB" ),
                                                    QStringLiteral( "128 MB" ), QStringLiteral( "256 MB" ) } );
    EXPECT_EQ( rows.size(), 5U );
    if ( rows.size() != 5U )
        return {};
    for ( int i = 0; i < static_cast<int>( devices.size() ); ++i )
    {
        Device& device = devices[static_cast<size_t>( i )];
        device.m_cardBytes = Figure( rows[0].m_cells[i + 1] );
        device.m_bookCardBytes = Figure( rows[1].m_cells[i + 1] );
        device.m_bookBytes = Figure( rows[2].m_cells[i + 1] );
        device.m_bookCards = Figure( rows[3].m_cells[i + 1] );
        device.m_textBytes = Figure( rows[4].m_cells[i + 1] );
    }
    return devices;
}

TEST( LimitsTest, LargestTextIsThatOfTheCode )
{
    const QString bits = sizeof( void* ) < 8 ? QStringLiteral( "32-bit" ) : QStringLiteral( "64-bit" );
    const QRegularExpression expression( QStringLiteral( "([0-9,]+) bytes with %1 " ).arg( bits ) );
    const QString document = DocumentText( QStringLiteral( "docs/strict-reader.md" ) );
    const QRegularExpressionMatch match = expression.match( document );
    ASSERT_TRUE( match.hasMatch() );
    EXPECT_EQ( Figure( match.captured( 1 ) ), PimManager::Tools::s_kLargestBook );
}

TEST( LimitsTest, LimitsForDevicesLeaveHalfOfTheMemory )
{
    const std::vector<Device> devices = Devices();
    ASSERT_FALSE( devices.empty() );
    for ( const Device& device : devices )
    {
        SCOPED_TRACE( device.m_bytes );
        const qint64 available = device.m_bytes / 2 - s_kEmptyProgram;
        EXPECT_LT( s_kReaderForCardByte * device.m_cardBytes, available );
        EXPECT_LT( s_kReaderForCardByte * device.m_bookCardBytes + s_kBookForCardByte * device.m_bookBytes +
                       s_kBookForCard * device.m_bookCards,
                   available );
        EXPECT_LT( s_kComponentForTextByte * device.m_textBytes, available );
    }
}

TEST( LimitsTest, LargestDeviceTakesTheDefaultLimitOfACard )
{
    const std::vector<Device> devices = Devices();
    ASSERT_FALSE( devices.empty() );
    EXPECT_EQ( devices.back().m_cardBytes, PimManager::Contacts::PimContactOptions().CardBytes() );
}

} // namespace
