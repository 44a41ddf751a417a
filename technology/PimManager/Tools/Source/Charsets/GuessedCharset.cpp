#include "Charsets/GuessedCharset.h"

#include "Charsets/CharsetGuess.h"
#include "Terminal/Wording.h"

#include <PimManager/Contacts/PimContactOptions.h>

namespace PimManager::Tools
{

using namespace PimManager::Contacts;

GuessedCharset::GuessedCharset( QIODevice& a_input ) :
    m_device( a_input ),
    m_guess( GuessCharset( m_device.HoldBack( s_kGuessedStart ) ) )
{
}

QByteArray GuessedCharset::Name() const
{
    return m_guess.IsKnown() ? m_guess.Name() : PimContactOptions().DefaultCharset();
}

void GuessedCharset::Count( const PimContactCard& a_card )
{
    m_cards += a_card.UsesDefaultCharset() ? 1 : 0;
}

QString GuessedCharset::Note( const QString& a_source ) const
{
    if ( m_cards == 0 )
        return QString();
    const QString cards = Counted( m_cards, QStringLiteral( "card names no character set and was read as " ),
                                   QStringLiteral( "cards name no character set and were read as " ) );
    QString guessed;
    if ( m_guess.IsKnown() )
        guessed = m_cards == 1 ? QStringLiteral( ", which was guessed from its letters" )
                               : QStringLiteral( ", which was guessed from their letters" );
    return a_source + QStringLiteral( ": " ) + cards + QString::fromLatin1( Name() ) + guessed +
           QStringLiteral( ". Use --charset NAME if names look wrong." );
}

} // namespace PimManager::Tools
