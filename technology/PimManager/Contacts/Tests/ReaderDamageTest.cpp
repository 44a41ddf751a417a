// Samples with damage: bytes replaced, removed, doubled and swapped, lines moved. The invariants hold for each.

#include "SampleFiles.h"

#include "Checks/Invariants.h"
#include "Checks/RandomOptions.h"

#include <QByteArray>
#include <QList>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

using Random = std::mt19937;

constexpr int s_kDamages = 40;
constexpr std::array<char, 21> s_kBytes = { '\0', '\n', '\r', ' ', '\t', '=',    ':',    ';',    ',',    '"',   '\\',
                                            '.',  'A',  '\v', '-', '#',  '\x1B', '\xC3', '\xA4', '\xEF', '\xFF' };

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

void SwapTwoParts( QByteArray& a_text, Random& a_random )
{
    const int place = PlaceIn( a_text, a_random );
    const int length = std::min( 1 + static_cast<int>( a_random() % 30 ), static_cast<int>( a_text.size() ) - place );
    const QByteArray part = a_text.mid( place, length );
    a_text.remove( place, length );
    a_text.insert( a_text.isEmpty() ? 0 : PlaceIn( a_text, a_random ), part );
}

void Damage( QByteArray& a_text, Random& a_random )
{
    if ( a_text.isEmpty() )
        return;
    const int place = PlaceIn( a_text, a_random );
    switch ( a_random() % 6 )
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
    case 4:
        SwapTwoParts( a_text, a_random );
        break;
    default:
        MoveALine( a_text, a_random );
        break;
    }
}

class ReaderDamageTest : public testing::TestWithParam<std::string>
{
};

TEST_P( ReaderDamageTest, InvariantsHoldForDamagedSample )
{
    const QByteArray sample = SampleFile( GetParam() + ".vcf" );
    Random random( static_cast<unsigned>( sample.size() ) );
    for ( unsigned round = 0; round < s_kDamages; ++round )
    {
        QByteArray text = sample;
        for ( auto count = 1 + random() % 4; count > 0; --count )
            Damage( text, random );
        const PimContactOptions options = round % 2 == 0 ? PimContactOptions() : RandomOptions( round );
        ASSERT_EQ( BrokenInvariantOf( text, options, round ).toStdString(), "" )
            << "round " << round << ": " << text.toPercentEncoding().toStdString();
    }
}

std::string TestNameOf( const testing::TestParamInfo<std::string>& a_info )
{
    std::string name = a_info.param;
    std::replace( name.begin(), name.end(), '-', '_' );
    return name;
}

INSTANTIATE_TEST_SUITE_P( Samples, ReaderDamageTest, testing::ValuesIn( SampleNames() ), TestNameOf );

} // namespace

} // namespace PimManager::Contacts
