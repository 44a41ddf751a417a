// Fuzz target: the scanner, controlled by the script at the start of the input.

#include "FuzzTarget.h"

#include "Agreement.h"
#include "ScannerInput.h"
#include "TokenCheck.h"

#include "SilentLog.h"

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    const QByteArray input = InputOf( a_data, a_size );
    const ScannerInput work = ReadScannerInput( input );
    vCard::Benchmarks::DropLogMessages();
    Demand( CheckTokens( work.m_text, TakeTokens( work.m_text, work.m_script ) ), input );
    Demand( CheckAgreement( work.m_text, work.m_script ), input );
    return 0;
}
