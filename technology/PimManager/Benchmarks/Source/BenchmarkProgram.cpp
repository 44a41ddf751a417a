// pimvcard-benchmark: measures the time of the component and of the plain scanner for the same books.

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

// Each book has about a quarter to half a megabyte. That exceeds the caches of most machines, and the plain scanner
// still completes several runs a second.
constexpr int s_kTextCards = 800;
constexpr int s_kPhotoCards = 120;
constexpr int s_kFoldedCards = 250;

constexpr int s_kFewestCards = 64;
constexpr int s_kMostCards = 4096;
constexpr int s_kGrowth = 4;

using Parse = PimVCardHeldCards ( * )( const QByteArray& );
using Scan = int ( * )( const QByteArray& );

struct Contender
{
    const char* m_name;
    Parse m_parse;
    Scan m_scan;
};

constexpr std::array<Contender, 2> s_kContenders = { {
    { "component", vCard::ParsedCards, vCard::CountTokens },
    { "plain", vCardReference::ParsedCards, vCardReference::CountTokens },
} };

int CardsOf( BookKind a_kind )
{
    if ( a_kind == BookKind::Photos )
        return s_kPhotoCards;
    return a_kind == BookKind::Folded ? s_kFoldedCards : s_kTextCards;
}

bool s_isEveryAnswerRight = true;

void Conclude( benchmark::State& a_state, const QByteArray& a_text, bool a_isRight )
{
    a_state.SetBytesProcessed( a_state.iterations() * a_text.size() );
    if ( a_isRight )
        return;
    a_state.SkipWithError( "wrong number of cards or tokens" );
    s_isEveryAnswerRight = false;
}

// The clock is stopped while cards are deleted.
void MeasureParsing( benchmark::State& a_state, Parse a_parse, const QByteArray& a_text, int a_expected )
{
    bool isRight = true;
    for ( [[maybe_unused]] const auto _ : a_state )
    {
        PimVCardHeldCards held = a_parse( a_text );
        a_state.PauseTiming();
        isRight = isRight && held.m_count == a_expected;
        held.m_cards.reset();
        a_state.ResumeTiming();
    }
    Conclude( a_state, a_text, isRight );
}

void MeasureParsingAndDeleting( benchmark::State& a_state, Parse a_parse, const QByteArray& a_text, int a_expected )
{
    bool isRight = true;
    for ( [[maybe_unused]] const auto _ : a_state )
        isRight = a_parse( a_text ).m_count == a_expected && isRight;
    Conclude( a_state, a_text, isRight );
}

void MeasureScanning( benchmark::State& a_state, Scan a_scan, const QByteArray& a_text, int a_expected )
{
    bool isRight = true;
    for ( [[maybe_unused]] const auto _ : a_state )
        isRight = a_scan( a_text ) == a_expected && isRight;
    Conclude( a_state, a_text, isRight );
}

void MeasureGrowth( benchmark::State& a_state, Parse a_parse )
{
    const auto cards = static_cast<int>( a_state.range( 0 ) );
    MeasureParsing( a_state, a_parse, BookGenerator().Book( BookKind::Text, cards ), cards );
    a_state.SetComplexityN( cards );
}

template <typename Measure, typename Work>
void Register( const QByteArray& a_subject, const Contender& a_contender, Measure a_measure, Work a_work,
               const QByteArray& a_text, int a_expected )
{
    const std::string name = ( a_subject + '/' + a_contender.m_name ).toStdString();
    benchmark::RegisterBenchmark( name.c_str(), a_measure, a_work, a_text, a_expected )
        ->Unit( benchmark::kMicrosecond );
}

void RegisterAll( const Contender& a_contender )
{
    const Parse parse = a_contender.m_parse;
    const QList<BookKind> kinds = AllBookKinds();
    for ( const BookKind kind : kinds )
    {
        const int cards = CardsOf( kind );
        Register( NameOf( kind ), a_contender, MeasureParsing, parse, BookGenerator().Book( kind, cards ), cards );
    }
    const QByteArray text = BookGenerator().Book( BookKind::Text, s_kTextCards );
    Register( "text-and-deletion", a_contender, MeasureParsingAndDeleting, parse, text, s_kTextCards );
    Register( "one-card", a_contender, MeasureParsingAndDeleting, parse, SmallCard(), 1 );
    const QByteArray prepared = vCard::Prepared( text );
    Register( "scanner-alone", a_contender, MeasureScanning, a_contender.m_scan, prepared,
              vCardReference::CountTokens( prepared ) );

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
