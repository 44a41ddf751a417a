/// \file
/// Where findings go.

#pragma once

#include "PimVCardImportAccount.h"
#include "PimVCardImporter.h"

namespace PimManager::vCardImport
{

/// Writes findings into the account and tells them to the caller's handlers.
class PimVCardReporter
{
public:
    PimVCardReporter( PimVCardImportAccount& a_account, int a_kept,
                      const PimVCardImporter::DiagnosticHandler& a_diagnostics,
                      const PimVCardImporter::RejectHandler& a_rejects );

    void Report( PimVCardDiagnosticCode a_code, qint64 a_card, const PimVCardPosition& a_position, qint64 a_count = 1 );
    /// The same as Report() the first time, nothing later.
    void ReportOnce( PimVCardDiagnosticCode a_code, const PimVCardPosition& a_position );
    void Reject( const PimVCardReject& a_reject );
    bool AreRejectsWanted() const { return m_rejects != nullptr; }

    PimVCardImportAccount& Account() { return m_account; }

private:
    PimVCardImportAccount& m_account;
    int m_kept;
    PimVCardImporter::DiagnosticHandler m_diagnostics;
    PimVCardImporter::RejectHandler m_rejects;
};

} // namespace PimManager::vCardImport
