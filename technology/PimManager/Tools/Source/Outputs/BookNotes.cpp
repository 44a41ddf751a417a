#include "Outputs/BookNotes.h"

#include "Outputs/DiagnosticText.h"
#include "Outputs/ReportText.h"
#include "Terminal/Wording.h"

#include <QStringList>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

QString LimitHint( const PimContactReport& a_report )
{
    QStringList options;
    for ( int number = 0; number < s_kPimContactDiagnosticCodes; ++number )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( number );
        if ( a_report.Findings( code ) > 0 )
            options << LimitOptionOf( code );
    }
    options.removeAll( QString() );
    const QString hint = options.join( QLatin1String( " and " ) );
    return hint.isEmpty() ? hint : QStringLiteral( "; raise %1 (0 is no limit)" ).arg( hint );
}

QString NextStep( PimContactFileKind a_kind )
{
    switch ( a_kind )
    {
    case PimContactFileKind::AddressBook:
        return QStringLiteral( "; \"pimvcard check\" shows where" );
    case PimContactFileKind::Compressed:
        return QStringLiteral( "; unpack it first" );
    default:
        return QStringLiteral( "; export the contacts as vCard" );
    }
}

} // namespace

BookNotes::BookNotes( Console& a_console ) :
    m_console( a_console )
{
}

void BookNotes::EndBook( const BookInRun& a_book )
{
    const PimContactReport& report = a_book.m_report;
    ++m_files;
    m_cards += report.CardsWhole() + report.CardsInPart();
    m_cardsInPart += report.CardsInPart();
    m_cardsRefused += report.CardsRefused();
    m_linesDropped += report.Extents( PimContactExtentKind::Dropped );
    const QString losses = LossesText( report, a_book.m_isReadToEnd );
    m_console.Out().Flush();
    if ( losses.isEmpty() || !m_console.IsOpen() )
        return;
    const QString source = m_console.ErrScreen().Isolated( a_book.m_source );
    m_console.Remark( source + QStringLiteral( ": " ) + losses + LimitHint( report ) + NextStep( report.FileKind() ) );
}

QString BookNotes::Result() const
{
    QString result = Counted( m_files, QStringLiteral( "file" ), QStringLiteral( "files" ) ) + QStringLiteral( ", " ) +
                     Counted( m_cards, QStringLiteral( "contact" ), QStringLiteral( "contacts" ) );
    if ( m_cardsInPart > 0 )
        result += QStringLiteral( " (%1 in part)" ).arg( m_cardsInPart );
    result += QStringLiteral( ", " ) +
              Counted( m_cardsRefused, QStringLiteral( "card refused" ), QStringLiteral( "cards refused" ) );
    return result + QStringLiteral( ", " ) +
           Counted( m_linesDropped, QStringLiteral( "line dropped" ), QStringLiteral( "lines dropped" ) );
}

} // namespace PimManager::Tools
