#include "Outputs/StandardFindings.h"

#include <PimManager/Contacts/PimContactDiagnostic.h>
#include <PimManager/Contacts/PimContactLine.h>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// What does not conform is delivered all the same, so any other finding is worse.
constexpr int s_kSeverity = static_cast<int>( PimContactSeverity::Note ) - 1;

QString TextOf( const QString& a_source, const PimContactFinding& a_finding )
{
    return a_source + QLatin1Char( ':' ) + QString::number( a_finding.Line() ) + QStringLiteral( ":1: invalid: " ) +
           a_finding.Text() + QStringLiteral( " (" ) + a_finding.Section() + QStringLiteral( ") [" ) +
           QString( NameOf( a_finding.Code() ) ) + QLatin1Char( ']' );
}

} // namespace

QStringList StandardFindings::Of( const QString& a_source, const PimContactCard& a_card )
{
    QStringList findings;
    Examine( a_source, a_card, findings );
    return findings;
}

void StandardFindings::Examine( const QString& a_source, const PimContactCard& a_card, QStringList& a_findings )
{
    const QList<PimContactFinding> findings = PimContactConformance( a_card ).Findings();
    for ( const PimContactFinding& finding : findings )
    {
        ++m_counts[static_cast<size_t>( finding.Code() )];
        a_findings << TextOf( a_source, finding );
    }
    for ( const PimContactLine& line : a_card )
    {
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            Examine( a_source, nested, a_findings );
    }
}

QList<FindingCount> StandardFindings::Counts() const
{
    QList<FindingCount> counts;
    for ( size_t i = 0; i < m_counts.size(); ++i )
    {
        const auto code = static_cast<PimContactFindingCode>( i );
        if ( m_counts[i] > 0 )
            counts << FindingCount{ s_kSeverity, { m_counts[i], QString( NameOf( code ) ) } };
    }
    return counts;
}

} // namespace PimManager::Tools
