#include "PimVCardImportAccount.h"

namespace PimManager::vCardImport
{

qint64 PimVCardImportAccount::Findings( PimVCardDiagnosticCode a_code ) const
{
    return m_findings[static_cast<size_t>( a_code )];
}

qint64 PimVCardImportAccount::Findings( PimVCardSeverity a_severity ) const
{
    qint64 findings = 0;
    for ( int code = 0; code < s_kDiagnosticCodes; ++code )
    {
        if ( SeverityOf( static_cast<PimVCardDiagnosticCode>( code ) ) == a_severity )
            findings += m_findings[static_cast<size_t>( code )];
    }
    return findings;
}

bool PimVCardImportAccount::AddsUp() const
{
    const qint64 cards = m_cardsWhole + m_cardsInPart + m_cardsRefused + m_cardsNested;
    const qint64 lines = m_linesDelivered + m_linesBoundary + m_linesDropped + m_linesRefused + m_linesFiltered +
                         m_linesBlank + m_linesOutside;
    return cards == m_beginLines && lines == m_lines;
}

} // namespace PimManager::vCardImport
