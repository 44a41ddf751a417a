#include "DiagnosticText.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

QString DiagnosticText( const QString& a_source, const PimVCardDiagnostic& a_diagnostic )
{
    const QLatin1Char colon( ':' );
    return a_source + colon + QString::number( a_diagnostic.m_position.m_line ) + colon +
           QString::number( a_diagnostic.m_position.m_column ) + QStringLiteral( ": " ) +
           QString( NameOf( a_diagnostic.m_severity ) ) + QStringLiteral( ": " ) + TextOf( a_diagnostic ) +
           QStringLiteral( " [" ) + QString( NameOf( a_diagnostic.m_code ) ) + QLatin1Char( ']' );
}

} // namespace PimManager::vCard::Tools
