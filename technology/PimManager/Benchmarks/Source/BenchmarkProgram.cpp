// pimvcard-benchmark: the component and the plain scanner over the same books, by the clock.

#include "BookGenerator.h"
#include "PimVCardTranscript.h"
#include "ScannerWork.h"
#include "SilentLog.h"

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QList>

#include <array>
#include <string>

using namespace PimManager;
using namespace PimManager::vCard::Benchmarks;
using namespace PimManager::vCard::MadeTexts;

namespace
{

// Each about a quarter to half a megabyte: beyond the caches of most machines, and still some turns a second for the
// plain scanner.
constexpr int s_kTextCards = 800;
constexpr int s_kPhotoCards = 120;
constexpr int s_kFoldedCards = 250;

constexpr int s_kFewestCards = 64;
constexpr int s_kMostCards = 4096;
constexpr int s_kGrowth = 4;

using Work = int ( * )( const QByteArray& );

struct Contender
{
    const char* m_name;
    Work m_parse;
    Work m_scan;
};

constexpr std::array<Contender, 2> s_kContenders = { {
    { "component", vCard::CountVCards, vCard::CountTokens },
    { "plain", vCardReference::CountVCards, vCardReference::CountTokens },
} };

int CardsOf( BookKind a_kind )
{
    if ( a_kind == BookKind::Photos )
        return s_kPhotoCards;
    return a_kind == BookKind::Folded ? s_kFoldedCards : s_kTextCards;
}

bool s_isEveryAnswerRight = true;

void Measure( benchmark::State& a_state, Work a_work, const QByteArray& a_text, int a_expected )
{
    int answer = a_expected;
    for ( [[maybe_unused]] const auto _ : a_state )
        benchmark::DoNotOptimize( answer = a_work( a_text ) );
    a_state.SetBytesProcessed( a_state.iterations() * a_text.size() );
    if ( answer == a_expected )
        return;
    a_state.SkipWithError( "wrong number of cards or tokens" );
    s_isEveryAnswerRight = false;
}

void MeasureGrowth( benchmark::State& a_state, Work a_work )
{
    const auto cards = static_cast<int>( a_state.range( 0 ) );
    Measure( a_state, a_work, BookGenerator().Book( BookKind::Text, cards ), cards );
    a_state.SetComplexityN( cards );
}

void Register( const QByteArray& a_subject, const Contender& a_contender, Work a_work, const QByteArray& a_text,
               int a_expected )
{
    const std::string name = ( a_subject + '/' + a_contender.m_name ).toStdString();
    benchmark::RegisterBenchmark( name.c_str(), Measure, a_work, a_text, a_expected )->Unit( benchmark::kMicrosecond );
}

void RegisterAll( const Contender& a_contender )
{
    const QList<BookKind> kinds = AllBookKinds();
    for ( const BookKind kind : kinds )
    {
        const int cards = CardsOf( kind );
        Register( NameOf( kind ), a_contender, a_contender.m_parse, BookGenerator().Book( kind, cards ), cards );
    }
    Register( "one-card", a_contender, a_contender.m_parse, SmallCard(), 1 );
    const QByteArray prepared = vCard::Prepared( BookGenerator().Book( BookKind::Text, s_kTextCards ) );
    Register( "scanner-alone", a_contender, a_contender.m_scan, prepared, vCardReference::CountTokens( prepared ) );

    const std::string growth = std::string( "text-growth/" ) + a_contender.m_name;
    benchmark::RegisterBenchmark( growth.c_str(), MeasureGrowth, a_contender.m_parse )
        ->RangeMultiplier( s_kGrowth )
        ->Range( s_kFewestCards, s_kMostCards )
        ->Complexity( benchmark::oN )
        ->Unit( benchmark::kMicrosecond );
}

} // namespace

int main( int argc, char* argv[] )
{
    DropLogMessages();
    for ( const Contender& contender : s_kContenders )
        RegisterAll( contender );
    benchmark::Initialize( &argc, argv );
    if ( benchmark::ReportUnrecognizedArguments( argc, argv ) )
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return s_isEveryAnswerRight ? 0 : 1;
}
