/// \file
/// What `pimvcard check` prints.

#pragma once

#include "ImportOutput.h"

class QIODevice;

namespace PimManager::vCard::Tools
{

/// Writes each finding as it is made, in a line as compilers write them, and behind them a line for each file:
///
///     book.vcf:12:7: repaired: the last line has no line end [last-line-end]
///     book.vcf: 3 cards: 3 whole; LF line ends; UTF-8 (valid); version 3.0; 1 × line-end, 1 × last-line-end
class CheckReport : public ImportOutput
{
public:
    /// \param a_device must be open and outlive the report.
    explicit CheckReport( QIODevice& a_device );

    void TakeDiagnostic( const ImportedBook& a_book, const vCardImport::PimVCardDiagnostic& a_diagnostic ) override;
    void EndBook( const ImportedBook& a_book ) override;

private:
    QIODevice& m_device;
};

} // namespace PimManager::vCard::Tools
