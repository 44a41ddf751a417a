#include "Cards/Ledger.h"

#include "Cards/Extent.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

void Ledger::Reset( int a_mostDiagnostics )
{
    m_data = ReportData();
    m_offset = 0;
    m_mostDiagnostics = a_mostDiagnostics;
    m_announced.clear();
}

void Ledger::Pass( PimContactExtentKind a_kind, std::string_view a_bytes, qint64 a_card ) const
{
    m_extentHandler( PimContactExtentPrivate::Create( a_kind, m_offset, BytesOf( a_bytes ), a_card ) );
}

void Ledger::Report( PimContactDiagnosticCode a_code, qint64 a_card, const TextPlace& a_place, qint64 a_count )
{
    FlushUpTo( a_place.m_offset );
    Keep( a_code, a_card, a_place, a_count );
}

void Ledger::Flush( qint64 a_offset )
{
    while ( !m_announced.empty() && m_announced.front().m_offset <= a_offset )
    {
        const Announced first = m_announced.front();
        m_announced.pop_front();
        Keep( first.m_code, first.m_card, first.m_place, first.m_count );
    }
}

void Ledger::Keep( PimContactDiagnosticCode a_code, qint64 a_card, const TextPlace& a_place, qint64 a_count )
{
    ++m_data.m_findings[static_cast<size_t>( a_code )];
    const bool isKept = m_mostDiagnostics < 0 || m_data.m_diagnostics.size() < m_mostDiagnostics;
    if ( !isKept && !m_diagnosticHandler )
        return;
    const PimContactDiagnostic diagnostic = PimContactDiagnosticPrivate::Create( a_code, a_card, a_place, a_count );
    if ( isKept )
        m_data.m_diagnostics.append( diagnostic );
    if ( m_diagnosticHandler )
        m_diagnosticHandler( diagnostic );
}

} // namespace PimManager::Contacts
