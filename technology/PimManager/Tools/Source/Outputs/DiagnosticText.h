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

/// \return the option that sets the limit which a finding is about, such as `--max-cards`; empty for other findings.
QString LimitOptionOf( Contacts::PimContactDiagnosticCode a_code );

} // namespace PimManager::Tools
