#include "PimVCardReporter.h"

namespace PimManager::vCardImport
{

PimVCardReporter::PimVCardReporter( PimVCardImportAccount& a_account, int a_kept,
                                    const PimVCardImporter::DiagnosticHandler& a_diagnostics,
                                    const PimVCardImporter::RejectHandler& a_rejects ) :
    m_account( a_account ),
    m_kept( a_kept ),
    m_diagnostics( a_diagnostics ),
    m_rejects( a_rejects )
{
}

void PimVCardReporter::Report( PimVCardDiagnosticCode a_code, qint64 a_card, const PimVCardPosition& a_position,
                               qint64 a_count )
{
    const PimVCardDiagnostic diagnostic = { a_code, SeverityOf( a_code ), a_card, a_position, a_count };
    ++m_account.m_findings[static_cast<size_t>( a_code )];
    if ( m_kept <= 0 || m_account.m_diagnostics.size() < m_kept )
        m_account.m_diagnostics.append( diagnostic );
    if ( m_diagnostics != nullptr )
        m_diagnostics( diagnostic );
}

void PimVCardReporter::ReportOnce( PimVCardDiagnosticCode a_code, const PimVCardPosition& a_position )
{
    if ( m_account.Findings( a_code ) == 0 )
        Report( a_code, -1, a_position );
}

void PimVCardReporter::Reject( const PimVCardReject& a_reject )
{
    if ( m_rejects != nullptr )
        m_rejects( a_reject );
}

} // namespace PimManager::vCardImport
