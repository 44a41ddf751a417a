#include "CheckReport.h"

#include "AccountText.h"
#include "DiagnosticText.h"

#include <QIODevice>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

QString SummaryOf( const PimVCardImportAccount& a_account )
{
    if ( a_account.m_bytes == 0 )
        return QStringLiteral( "is empty" );
    const QStringList findings = FindingsTexts( a_account );
    QStringList facts = { CardsText( a_account ), LineEndsText( a_account ), EncodingText( a_account ) };
    if ( a_account.m_beginLines > 0 )
        facts << VersionsText( a_account );
    facts << ( findings.isEmpty() ? QStringLiteral( "nothing to mend" ) : findings.join( QStringLiteral( ", " ) ) );
    if ( a_account.m_isStopped )
        facts << QStringLiteral( "not read to its end" );
    return facts.join( QStringLiteral( "; " ) );
}

} // namespace

CheckReport::CheckReport( QIODevice& a_device ) :
    m_device( a_device )
{
}

void CheckReport::TakeDiagnostic( const ImportedBook& a_book, const PimVCardDiagnostic& a_diagnostic )
{
    m_device.write( DiagnosticText( a_book.m_source, a_diagnostic ).toUtf8() + '\n' );
}

void CheckReport::EndBook( const ImportedBook& a_book )
{
    m_device.write( a_book.m_source.toUtf8() + ": " + SummaryOf( a_book.m_account ).toUtf8() + '\n' );
}

} // namespace PimManager::vCard::Tools
