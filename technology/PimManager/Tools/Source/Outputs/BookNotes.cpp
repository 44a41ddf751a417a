#include "Outputs/BookNotes.h"

#include "Outputs/ReportText.h"
#include "Terminal/Wording.h"

#include <QStringList>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// A book of usual cards exceeds these two first.
QString LimitHint( const PimContactReport& a_report )
{
    QStringList options;
    if ( a_report.Findings( PimContactDiagnosticCode::TooManyCards ) > 0 )
        options << QStringLiteral( "--max-cards" );
    if ( a_report.Findings( PimContactDiagnosticCode::BookTooLong ) > 0 )
        options << QStringLiteral( "--max-book-bytes" );
    const QString hint = options.join( QLatin1String( " and " ) );
    return hint.isEmpty() ? hint : QStringLiteral( "; set %1, 0 is no limit" ).arg( hint );
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
    const bool isBook = report.FileKind() == PimContactFileKind::AddressBook;
    const QString hint = isBook ? QStringLiteral( "; \"pimvcard check\" shows where" ) : QString();
    m_console.Remark( a_book.m_source + QStringLiteral( ": " ) + losses + LimitHint( report ) + hint );
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
