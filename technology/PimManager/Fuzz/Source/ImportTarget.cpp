// Fuzz target: any bytes through import.

#include "FuzzTarget.h"

#include "Violation.h"

#include "PimVCardImportInvariants.h"
#include "SilentLog.h"

#include <QString>

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    const QByteArray bytes = InputOf( a_data, a_size );
    vCard::Benchmarks::DropLogMessages();
    // Where the pieces end must be the same each time that the input is tried.
    const unsigned seed = NumberOf( bytes );
    Demand( QString::fromUtf8( vCardImport::BrokenInvariantOf( bytes, seed ) ), bytes );
    return 0;
}
