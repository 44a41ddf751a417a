#include "ImportNotes.h"

#include "AccountText.h"
#include "Wording.h"

namespace PimManager::vCard::Tools
{

ImportNotes::ImportNotes( Console& a_console ) :
    m_console( a_console )
{
}

void ImportNotes::TakeCard( const ImportedBook& /*a_book*/, const vCardImport::PimVCardImportedCard& a_card )
{
    ++m_cards;
    m_cardsInPart += a_card.m_isWhole ? 0 : 1;
}

void ImportNotes::EndBook( const ImportedBook& a_book )
{
    const vCardImport::PimVCardImportAccount& account = a_book.m_account;
    ++m_files;
    m_cardsRefused += account.m_cardsRefused;
    m_linesDropped += account.m_linesDropped;
    const QString losses = LossesText( account );
    m_console.Out().Flush();
    if ( losses.isEmpty() || !m_console.IsOpen() )
        return;
    const QString hint = account.m_beginLines > 0 ? QStringLiteral( "; \"pimvcard check\" shows where" ) : QString();
    m_console.Tell( a_book.m_source + QStringLiteral( ": " ) + losses + hint );
}

QString ImportNotes::Result() const
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

} // namespace PimManager::vCard::Tools
