#include "Outputs/CheckReport.h"

#include "Outputs/DiagnosticText.h"
#include "Outputs/ReportText.h"

#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr int s_kIndent = 4;

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
    const QString text = m_screen.Wrapped( m_source + QStringLiteral( ": " ) + summary, s_kIndent );
    m_device.write( text.toUtf8() + '\n' );
}

void CheckReport::Write( const QStringList& a_findings )
{
    for ( const QString& finding : a_findings )
        m_device.write( Shown( finding ).toUtf8() + '\n' );
}

// The severity is between the first two colons with a blank behind the name.
QString CheckReport::Shown( const QString& a_finding ) const
{
    if ( !m_screen.IsTerminal() )
        return a_finding;
    const QString colon = QStringLiteral( ": " );
    const auto start = a_finding.indexOf( colon, m_source.size() ) + colon.size();
    const QString severity = a_finding.mid( start, a_finding.indexOf( colon, start ) - start );
    const QString text = m_screen.Wrapped( a_finding, s_kIndent );
    const auto place = text.indexOf( severity + QLatin1Char( ':' ), m_source.size() );
    return place < 0 ? text
                     : text.left( place ) + m_screen.Painted( severity, InkOf( severity ) ) +
                           text.mid( place + severity.size() );
}

} // namespace PimManager::Tools
