#include "Outputs/CheckReport.h"

#include "Outputs/DiagnosticText.h"
#include "Outputs/ReportText.h"

#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;

CheckReport::CheckReport( QIODevice& a_device, Conformance a_conformance ) :
    m_device( a_device ),
    m_isStandardChecked( a_conformance == Conformance::Checked )
{
}

void CheckReport::BeginBook( const BookInRun& /*a_book*/, const PimContactReader& /*a_reader*/ )
{
    m_values.Clear();
    m_standard.Clear();
}

void CheckReport::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    Write( m_values.Of( a_book.m_source, a_card ) );
    if ( m_isStandardChecked )
        Write( m_standard.Of( a_book.m_source, a_card ) );
}

void CheckReport::Write( const QStringList& a_findings )
{
    for ( const QString& finding : a_findings )
        m_device.write( finding.toUtf8() + '\n' );
}

void CheckReport::TakeDiagnostic( const BookInRun& a_book, const PimContactDiagnostic& a_diagnostic )
{
    m_device.write( DiagnosticText( a_book.m_source, a_diagnostic ).toUtf8() + '\n' );
}

void CheckReport::EndBook( const BookInRun& a_book )
{
    const QList<FindingCount> invalid = m_standard.Counts();
    if ( !invalid.isEmpty() )
        m_status = ExitStatus::SomeRefused;
    const QString summary = SummaryText( a_book.m_report, a_book.m_isReadToEnd, m_values.Counts() + invalid );
    m_device.write( a_book.m_source.toUtf8() + ": " + summary.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
