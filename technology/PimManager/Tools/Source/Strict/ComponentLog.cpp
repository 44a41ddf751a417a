#include "Strict/ComponentLog.h"

#include "PimVCardVocabulary.h"
#include "Terminal/TerminalText.h"

#include <QLoggingCategory>
#include <QStringList>

namespace PimManager::Tools
{

using namespace vCard;

namespace
{

// How the parser's error report puts its label and its message into one log message.
QString FailedCardReport()
{
    return QStringLiteral( "Error in \"" ) + s_kParseVCardsLabel + QStringLiteral( "\" ->\n  \"" ) +
           s_kErrCouldNotParseVCard + QStringLiteral( "\"" );
}

} // namespace

ComponentLog* ComponentLog::sm_current = nullptr;

ComponentLog::ComponentLog( QIODevice* a_shown ) :
    m_shown( a_shown )
{
    // The user's QT_LOGGING_RULES may have switched off what is counted, or asked for.
    QLoggingCategory* const category = QLoggingCategory::defaultCategory();
    category->setEnabled( QtCriticalMsg, true );
    category->setEnabled( QtDebugMsg, a_shown != nullptr );
    sm_current = this;
    m_former = qInstallMessageHandler( Handle );
}

ComponentLog::~ComponentLog()
{
    qInstallMessageHandler( m_former );
    sm_current = nullptr;
}

void ComponentLog::Handle( QtMsgType a_type, const QMessageLogContext& /*a_context*/, const QString& a_text )
{
    sm_current->Take( a_type, a_text );
}

void ComponentLog::Take( QtMsgType a_type, const QString& a_text )
{
    static const QString s_kFailedCard = FailedCardReport();
    if ( a_type == QtCriticalMsg && a_text == s_kFailedCard )
        ++m_failedCards;
    if ( m_shown != nullptr )
        Show( a_text );
}

void ComponentLog::Show( const QString& a_text )
{
    const QStringList lines = a_text.split( QLatin1Char( '\n' ) );
    for ( const QString& line : lines )
        m_shown->write( ToTerminalText( line ).toUtf8() + '\n' );
}

} // namespace PimManager::Tools
