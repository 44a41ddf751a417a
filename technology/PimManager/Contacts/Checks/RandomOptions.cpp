#include "Checks/RandomOptions.h"

#include <array>
#include <random>

namespace PimManager::Contacts::Checks
{

namespace
{

using Random = std::minstd_rand;

// Small limits have an effect more often than large ones.
qint64 RandomLimit( Random& a_random, qint64 a_default, unsigned a_small )
{
    switch ( a_random() % 6 )
    {
    case 0:
        return static_cast<qint64>( a_random() % a_small ) + 1;
    case 1:
        return static_cast<qint64>( a_random() % ( a_small * 20 ) ) + 1;
    case 2:
        return static_cast<qint64>( a_random() % 3 ) - 1;
    default:
        return a_default;
    }
}

void ChooseLimits( PimContactOptions& a_options, Random& a_random )
{
    a_options.SetCardBytes( RandomLimit( a_random, a_options.CardBytes(), 150 ) );
    a_options.SetLineBytes( RandomLimit( a_random, a_options.LineBytes(), 40 ) );
    a_options.SetCardLines( RandomLimit( a_random, a_options.CardLines(), 10 ) );
    a_options.SetNesting( static_cast<int>( RandomLimit( a_random, a_options.Nesting(), 3 ) ) );
    a_options.SetCards( RandomLimit( a_random, a_options.Cards(), 4 ) );
    a_options.SetBookBytes( RandomLimit( a_random, a_options.BookBytes(), 300 ) );
    a_options.SetDiagnostics( static_cast<int>( RandomLimit( a_random, a_options.Diagnostics(), 5 ) ) );
}

void ChooseFilter( PimContactOptions& a_options, Random& a_random )
{
    static constexpr std::array s_kNames = { "N", "fn", "TEL", "note", "PHOTO", "Agent", "X-A", "ADR" };
    a_options.SetMediaWanted( a_random() % 4 != 0 );
    if ( a_random() % 3 != 0 )
        return;
    QList<QByteArray> names;
    for ( auto count = 1 + a_random() % 4; count > 0; --count )
        names.append( s_kNames[a_random() % s_kNames.size()] );
    a_options.SetNames( names );
}

void ChooseCharset( PimContactOptions& a_options, Random& a_random )
{
    static constexpr std::array s_kCharsets = { "windows-1252", "UTF-8", "koi8-r", "Shift_JIS", "no-such-charset", "" };
    if ( a_random() % 2 == 0 )
        a_options.SetDefaultCharset( s_kCharsets[a_random() % s_kCharsets.size()] );
}

} // namespace

PimContactOptions RandomOptions( unsigned a_seed )
{
    Random random( a_seed + 1 );
    random.discard( 3 );
    PimContactOptions options;
    if ( random() % 4 == 0 )
        return options;
    ChooseLimits( options, random );
    ChooseFilter( options, random );
    ChooseCharset( options, random );
    return options;
}

} // namespace PimManager::Contacts::Checks
