// Fuzz target: the reader of address books with any bytes, and with options that depend on the bytes.

#include "FuzzTarget.h"

#include "Violation.h"

#include "Checks/Invariants.h"
#include "Checks/RandomOptions.h"

#include <QString>

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    const QByteArray bytes = InputOf( a_data, a_size );
    // The same for each run of an input. Half of the inputs are read with the default options.
    const unsigned seed = NumberOf( bytes );
    const Contacts::PimContactOptions options =
        seed % 2 == 0 ? Contacts::PimContactOptions() : Contacts::Checks::RandomOptions( seed );
    Demand( QString::fromUtf8( Contacts::Checks::BrokenInvariantOf( bytes, options, seed ) ), bytes );
    return 0;
}
