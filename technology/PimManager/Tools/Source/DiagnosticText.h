/// \file
/// Diagnostics as compilers write them.

#pragma once

#include "PimVCardDiagnostic.h"

#include <QString>

namespace PimManager::vCard::Tools
{

/// \param a_source the name of the file, safe for a terminal.
/// \return one line without its end, such as `book.vcf:12:7: repaired: the last line has no line end [last-line-end]`.
QString DiagnosticText( const QString& a_source, const vCardImport::PimVCardDiagnostic& a_diagnostic );

} // namespace PimManager::vCard::Tools
