/// \file
/// What `pimvcard check` prints without `--extents`.

#pragma once

#include "Outputs/BookOutput.h"

class QIODevice;

namespace PimManager::Tools
{

/// Writes one line for each finding as soon as it is made, in the form that compilers use, and a summary after each
/// file:
///
///     book.vcf:12:7: repaired: the last line has no line ending [last-line-end]
///     book.vcf: 3 cards: 3 whole; CR LF line endings; UTF-8 (valid); version 3.0; 1 × last-line-end
class CheckReport : public BookOutput
{
public:
    /// \param a_device must be open and outlive the report.
    explicit CheckReport( QIODevice& a_device );

    void TakeDiagnostic( const BookInRun& a_book, const Contacts::PimContactDiagnostic& a_diagnostic ) override;
    void EndBook( const BookInRun& a_book ) override;

private:
    QIODevice& m_device;
};

} // namespace PimManager::Tools
