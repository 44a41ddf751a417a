/// \file
/// Diagnostics in the form that compilers use.

#pragma once

#include <PimManager/Contacts/PimContactDiagnostic.h>

#include <QString>

namespace PimManager::Tools
{

/// \param a_source the name of the file, safe for a terminal.
/// \return one line without its line ending, such as
///         `book.vcf:12:7: repaired: the last line has no line ending [last-line-end]`.
QString DiagnosticText( const QString& a_source, const Contacts::PimContactDiagnostic& a_diagnostic );

} // namespace PimManager::Tools
