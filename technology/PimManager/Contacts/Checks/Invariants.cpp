#include "Checks/Invariants.h"

#include "Checks/CardChecks.h"
#include "Checks/ContactChecks.h"
#include "Checks/ConversionChecks.h"
#include "Checks/DiagnosticChecks.h"
#include "Checks/ExtentChecks.h"
#include "Checks/FilterChecks.h"
#include "Checks/LimitChecks.h"
#include "Checks/LineChecks.h"
#include "Checks/MarkerChecks.h"
#include "Checks/PieceChecks.h"
#include "Checks/RereadChecks.h"
#include "Checks/Transcript.h"
#include "Checks/WriteChecks.h"

#include <array>

namespace PimManager::Contacts::Checks
{

namespace
{

struct Check
{
    const char* m_name;
    Broken ( *m_find )( const Subject& a_subject );
};

// Later checks rely on earlier ones.
constexpr std::array s_kChecks = {
    Check{ "Extents", BrokenExtents },
    Check{ "Sums", BrokenSums },
    Check{ "Cards", BrokenCards },
    Check{ "Counts", BrokenCounts },
    Check{ "Lines", BrokenLineTexts },
    Check{ "Limits", BrokenLimits },
    Check{ "Diagnostics", BrokenDiagnostics },
    Check{ "Filter", BrokenFilter },
    Check{ "Pieces", BrokenPieces },
    Check{ "Reread", BrokenReread },
    Check{ "Markers", BrokenMarkers },
    Check{ "Objects", BrokenObjects },
    Check{ "Json", BrokenJson },
    Check{ "Contacts", BrokenContacts },
    Check{ "Writing", BrokenWriting },
};

} // namespace

QByteArray BrokenInvariantOf( const QByteArray& a_bytes, const PimContactOptions& a_options, unsigned a_seed )
{
    const Subject subject( a_bytes, a_options, a_seed );
    for ( const Check& check : s_kChecks )
    {
        if ( const Broken broken = check.m_find( subject ); !broken.isEmpty() )
            return QByteArray( check.m_name ) + ": " + broken + "\nThe whole:\n" + TranscriptOf( subject.m_reading );
    }
    return QByteArray();
}

} // namespace PimManager::Contacts::Checks
