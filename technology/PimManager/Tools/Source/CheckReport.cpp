#include "CheckReport.h"

#include "DiagnosticText.h"
#include "ReportText.h"

#include <QIODevice>

namespace PimManager::vCard::Tools
{

using namespace Contacts;

CheckReport::CheckReport( QIODevice& a_device ) :
    m_device( a_device )
{
}

void CheckReport::BeginBook( const QString& a_source, PimContactReader& a_reader )
{
    m_source = a_source;
    a_reader.SetDiagnosticHandler( [this]( const PimContactDiagnostic& a_diagnostic )
                                   { m_device.write( DiagnosticText( m_source, a_diagnostic ).toUtf8() + '\n' ); } );
}

void CheckReport::EndBook( const PimContactReport& a_report, bool a_isReadToEnd )
{
    m_device.write( m_source.toUtf8() + ": " + SummaryText( a_report, a_isReadToEnd ).toUtf8() + '\n' );
}

} // namespace PimManager::vCard::Tools
