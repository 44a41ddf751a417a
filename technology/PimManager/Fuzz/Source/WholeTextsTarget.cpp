// Fuzz target: whole texts through ParseVCards.

#include "FuzzTarget.h"

#include "Agreement.h"
#include "GivingBack.h"
#include "OperationOutcome.h"

#include "SilentLog.h"

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

namespace
{

// Two long texts are parsed to see what giving back does, so it is asked of one input in eight.
bool IsChosenForLongText( const QByteArray& a_text )
{
    return qChecksum( a_text.constData(), static_cast<uint>( a_text.size() ) ) % 8 == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    const QByteArray text = InputOf( a_data, a_size );
    vCard::Benchmarks::DropLogMessages();
    Demand( CheckOutcome( TryOperation( text, PimVCardParserCall::ParseVCards ) ), text );
    Demand( CheckAgreement( text, { PimVCardParserCall::ParseVCards } ), text );
    if ( IsChosenForLongText( text ) )
        Demand( CheckGivingBack( text ), text );
    return 0;
}
