// Samples with damage: bytes replaced, taken away and doubled, lines moved. The invariants hold for each.

#include "PimVCardImportInvariants.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace PimManager::vCardImport
{

namespace
{

using Random = std::mt19937;

constexpr int s_kDamages = 60;
constexpr std::array<char, 20> s_kBytes = { '\0', '\n', '\r', ' ',  '\t', '=',    ':',    ';',    ',',    '"',
                                            '\\', '.',  'A',  '\v', '-',  '\x1B', '\xC3', '\xA4', '\xEF', '\xFF' };

int PlaceIn( const QByteArray& a_text, Random& a_random )
{
    return static_cast<int>( a_random() % static_cast<unsigned>( a_text.size() ) );
}

void MoveALine( QByteArray& a_text, Random& a_random )
{
    QList<QByteArray> lines = a_text.split( '\n' );
    const auto count = static_cast<unsigned>( lines.size() );
    lines.move( static_cast<int>( a_random() % count ), static_cast<int>( a_random() % count ) );
    a_text = lines.join( '\n' );
}

void Damage( QByteArray& a_text, Random& a_random )
{
    if ( a_text.isEmpty() )
        return;
    const int place = PlaceIn( a_text, a_random );
    switch ( a_random() % 5 )
    {
    case 0:
        a_text[place] = s_kBytes[a_random() % s_kBytes.size()];
        break;
    case 1:
        a_text.remove( place, 1 + static_cast<int>( a_random() % 12 ) );
        break;
    case 2:
        a_text.insert( place, s_kBytes[a_random() % s_kBytes.size()] );
        break;
    case 3:
        a_text.insert( PlaceIn( a_text, a_random ), a_text.mid( place, 40 ) );
        break;
    default:
        MoveALine( a_text, a_random );
        break;
    }
}

TEST( PimVCardImportDamageTest, InvariantsHoldForDamagedSamples )
{
    Random random( 17 );
    const QDir folder( QStringLiteral( PIMVCARD_IMPORT_DATA ) );
    const QStringList names = folder.entryList( { QStringLiteral( "*.vcf" ) }, QDir::Files, QDir::Name );
    ASSERT_FALSE( names.isEmpty() );
    for ( const QString& name : names )
    {
        QFile file( folder.filePath( name ) );
        ASSERT_TRUE( file.open( QIODevice::ReadOnly ) ) << name.toStdString();
        const QByteArray sample = file.readAll();
        for ( unsigned round = 0; round < s_kDamages; ++round )
        {
            QByteArray text = sample;
            for ( auto count = 1 + random() % 4; count > 0; --count )
                Damage( text, random );
            const QByteArray broken = BrokenInvariantOf( text, round );
            ASSERT_TRUE( broken.isEmpty() )
                << name.toStdString() << ": " << broken.toStdString() << text.toPercentEncoding().toStdString();
        }
    }
}

} // namespace

} // namespace PimManager::vCardImport
