#include "Outputs/DiagnosticText.h"

namespace PimManager::Tools
{

using namespace Contacts;

QString DiagnosticText( const QString& a_source, const PimContactDiagnostic& a_diagnostic )
{
    const QLatin1Char colon( ':' );
    return a_source + colon + QString::number( a_diagnostic.Line() ) + colon +
           QString::number( a_diagnostic.Column() ) + QStringLiteral( ": " ) +
           QString( NameOf( a_diagnostic.Severity() ) ) + QStringLiteral( ": " ) + a_diagnostic.Text() +
           QStringLiteral( " [" ) + QString( NameOf( a_diagnostic.Code() ) ) + QLatin1Char( ']' );
}

} // namespace PimManager::Tools
