// Fuzz target: one public parse operation on a new parser. The first byte of the input selects it, counted from '0'.

#include "FuzzTarget.h"

#include "Agreement.h"
#include "OperationOutcome.h"

#include "SilentLog.h"

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

namespace
{

using Call = PimVCardParserCall;

Call CallOf( std::uint8_t a_byte )
{
    constexpr int calls = static_cast<int>( s_kLastParserCall ) + 1;
    return static_cast<Call>( static_cast<std::uint8_t>( a_byte - '0' ) % calls );
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    if ( a_size == 0 )
        return 0;
    const Call call = CallOf( *a_data );
    const QByteArray text = InputOf( a_data + 1, a_size - 1 );
    const QByteArray input = InputOf( a_data, a_size );
    vCard::Benchmarks::DropLogMessages();
    Demand( CheckOutcome( TryOperation( text, call ) ), input );
    if ( call == Call::ParseEnd )
        Demand( CheckAgreement( text, { Call::ParseProperty, call } ), input );
    else
        Demand( CheckAgreement( text, { call } ), input );
    return 0;
}
