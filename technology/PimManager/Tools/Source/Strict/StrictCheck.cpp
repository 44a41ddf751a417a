#include "Strict/StrictCheck.h"

#include "Reading/InputDevice.h"
#include "Strict/BookAccount.h"
#include "Strict/BookReader.h"
#include "Strict/ComponentLog.h"
#include "Terminal/Wording.h"

#include <utility>

namespace PimManager::Tools
{

StrictCheck::StrictCheck( Console& a_console ) :
    m_console( a_console ),
    m_run( a_console, BookRun::WithoutReader::Stop )
{
}

ExitStatus StrictCheck::Run( const QList<QByteArray>& a_fileNames )
{
    return m_run.Finish( m_console.Close( m_run.Read( a_fileNames, *this ) ) );
}

void StrictCheck::BeginBook( const QString& a_source )
{
    m_source = a_source;
    m_status = ExitStatus::AllGiven;
}

void StrictCheck::ReadBook( InputDevice& a_input )
{
    Book book = Tools::ReadBook( a_input );
    if ( !book.m_refusal.isEmpty() )
    {
        m_console.Tell( m_console.ErrScreen().Isolated( m_source ) + QStringLiteral( ": " ) + book.m_refusal );
        m_status = ExitStatus::Trouble;
    }
    else if ( a_input.Error() == 0 && !m_run.IsOver() )
        Examine( std::move( book.m_bytes ) );
}

void StrictCheck::Examine( QByteArray&& a_bytes )
{
    BookAccount account;
    ExamineText( a_bytes, account );
    {
        const ComponentLog log( &m_console.Out() );
        ExamineCards( ParseBook( std::move( a_bytes ) ), account );
        account.m_failedCards = log.FailedCards();
    }
    Write( QStringLiteral( "the strict reader returns %1" )
               .arg( Counted( account.m_cards, QStringLiteral( "card" ), QStringLiteral( "cards" ) ) ) );
    const QStringList notes = NotesOn( account );
    for ( const QString& note : notes )
        Write( note );
    m_status = StatusOf( account );
}

ExitStatus StrictCheck::EndBook()
{
    return m_status;
}

void StrictCheck::Write( const QString& a_text )
{
    constexpr int s_kIndent = 4;
    const Screen& screen = m_console.OutScreen();
    const QString source = screen.Isolated( m_source );
    const QString text = screen.Wrapped( source + QStringLiteral( ": " ) + a_text, s_kIndent );
    m_console.Out().write( text.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
