#include "Outputs/CheckReport.h"

#include "Outputs/DiagnosticText.h"
#include "Outputs/ReportText.h"

#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

Ink InkOf( const QString& a_severity )
{
    if ( a_severity == NameOf( PimContactSeverity::Refused ) || a_severity == NameOf( PimContactSeverity::Dropped ) )
        return Ink::Error;
    return a_severity == NameOf( PimContactSeverity::Repaired ) ? Ink::Warning : Ink::Heading;
}

} // namespace

CheckReport::CheckReport( QIODevice& a_device, Conformance a_conformance, const Screen& a_screen ) :
    m_device( a_device ),
    m_screen( a_screen ),
    m_isStandardChecked( a_conformance == Conformance::Checked )
{
}

void CheckReport::BeginBook( const BookInRun& a_book, const PimContactReader& /*a_reader*/ )
{
    m_source = m_screen.Isolated( a_book.m_source );
    m_values.Clear();
    m_standard.Clear();
}

void CheckReport::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    Write( m_values.Of( m_source, a_card ) );
    if ( m_isStandardChecked )
        Write( m_standard.Of( m_source, a_card ) );
}

void CheckReport::TakeDiagnostic( const BookInRun& /*a_book*/, const PimContactDiagnostic& a_diagnostic )
{
    Write( { DiagnosticText( m_source, a_diagnostic ) } );
}

void CheckReport::EndBook( const BookInRun& a_book )
{
    const QList<FindingCount> invalid = m_standard.Counts();
    if ( !invalid.isEmpty() )
        m_status = ExitStatus::SomeRefused;
    const QString summary = SummaryText( a_book.m_report, a_book.m_isReadToEnd, m_values.Counts() + invalid );
    m_device.write( ( m_source + QStringLiteral( ": " ) + summary + QLatin1Char( '\n' ) ).toUtf8() );
}

void CheckReport::Write( const QStringList& a_findings )
{
    for ( const QString& finding : a_findings )
        m_device.write( Painted( finding ).toUtf8() + '\n' );
}

// The severity is between the first two colons with a blank behind the name.
QString CheckReport::Painted( const QString& a_finding ) const
{
    if ( !m_screen.m_isColoured )
        return a_finding;
    const QString colon = QStringLiteral( ": " );
    const auto start = a_finding.indexOf( colon, m_source.size() ) + colon.size();
    const auto end = a_finding.indexOf( colon, start );
    const QString severity = a_finding.mid( start, end - start );
    return a_finding.left( start ) + m_screen.Painted( severity, InkOf( severity ) ) + a_finding.mid( end );
}

} // namespace PimManager::Tools
