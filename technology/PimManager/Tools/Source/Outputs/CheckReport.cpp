#include "Outputs/CheckReport.h"

#include "Outputs/DiagnosticText.h"
#include "Outputs/ReportText.h"

#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;

CheckReport::CheckReport( QIODevice& a_device ) :
    m_device( a_device )
{
}

void CheckReport::TakeDiagnostic( const BookInRun& a_book, const PimContactDiagnostic& a_diagnostic )
{
    m_device.write( DiagnosticText( a_book.m_source, a_diagnostic ).toUtf8() + '\n' );
}

void CheckReport::EndBook( const BookInRun& a_book )
{
    m_device.write( a_book.m_source.toUtf8() + ": " + SummaryText( a_book.m_report, a_book.m_isReadToEnd ).toUtf8() +
                    '\n' );
}

} // namespace PimManager::Tools
