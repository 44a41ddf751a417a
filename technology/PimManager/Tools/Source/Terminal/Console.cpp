#include "Terminal/Console.h"

#include <cerrno>

namespace PimManager::Tools
{

Console::Console( OutputDevice& a_out, OutputDevice& a_err, const Screen& a_outScreen, const Screen& a_errScreen ) :
    m_out( a_out ),
    m_err( a_err ),
    m_outScreen( a_outScreen ),
    m_errScreen( a_errScreen )
{
}

void Console::Remark( const QString& a_text )
{
    if ( m_areRemarksWanted )
        Write( a_text, Ink::Heading );
}

void Console::Write( const QString& a_text, Ink a_ink )
{
    constexpr int s_kIndent = 2;
    const QString start = QStringLiteral( "pimvcard:" );
    const QString text = m_errScreen.Wrapped( start + QLatin1Char( ' ' ) + a_text, s_kIndent );
    m_out.Flush();
    m_err.write( ( m_errScreen.Painted( start, a_ink ) + text.mid( start.size() ) + QLatin1Char( '\n' ) ).toUtf8() );
    m_err.Flush();
}

ExitStatus Console::Show( const QString& a_text )
{
    m_out.write( a_text.toUtf8() );
    return Close( ExitStatus::AllGiven );
}

ExitStatus Console::Refuse( const QString& a_text, const QString& a_command )
{
    Tell( a_text );
    Tell( QStringLiteral( "\"%1 --help\" shows how to use it" ).arg( a_command ) );
    return ExitStatus::Trouble;
}

ExitStatus Console::Close( ExitStatus a_status )
{
    m_out.Flush();
    if ( m_out.Error() == 0 || m_out.Error() == EPIPE )
        return a_status;
    Tell( QStringLiteral( "the output cannot be written: " ) + qt_error_string( m_out.Error() ) );
    return ExitStatus::Trouble;
}

} // namespace PimManager::Tools
