// Fuzz target: ParseVCards with whole texts.

#include "FuzzTarget.h"

#include "Agreement.h"
#include "OperationOutcome.h"

#include "SilentLog.h"

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    const QByteArray text = InputOf( a_data, a_size );
    vCard::Benchmarks::DropLogMessages();
    Demand( CheckOutcome( TryOperation( text, PimVCardParserCall::ParseVCards ) ), text );
    Demand( CheckAgreement( text, { PimVCardParserCall::ParseVCards } ), text );
    return 0;
}
