#include "Terminal/Progress.h"

#include "Outputs/OutputDevice.h"
#include "Terminal/Wording.h"

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

constexpr qint64 s_kPeriod = 200;

QString SizeText( qint64 a_bytes )
{
    constexpr qint64 s_kKilobyte = 1000;
    constexpr qint64 s_kMegabyte = 1000 * s_kKilobyte;
    if ( a_bytes >= s_kMegabyte )
        return QStringLiteral( "%1 MB" ).arg( a_bytes / s_kMegabyte );
    return QStringLiteral( "%1 KB" ).arg( a_bytes / s_kKilobyte );
}

QString TimeText( qint64 a_milliseconds )
{
    constexpr qint64 s_kSecond = 1000;
    constexpr qint64 s_kMinute = 60 * s_kSecond;
    constexpr qint64 s_kHour = 60 * s_kMinute;
    if ( a_milliseconds >= 2 * s_kHour )
        return QStringLiteral( "%1 h" ).arg( a_milliseconds / s_kHour );
    if ( a_milliseconds >= 2 * s_kMinute )
        return QStringLiteral( "%1 min" ).arg( a_milliseconds / s_kMinute );
    return QStringLiteral( "%1 s" ).arg( a_milliseconds / s_kSecond + 1 );
}

} // namespace

QString ProgressText( const ProgressState& a_state )
{
    const QString cards = Counted( a_state.m_cards, QStringLiteral( "card" ), QStringLiteral( "cards" ) );
    // A file may grow while it is read.
    const qint64 bytes = a_state.m_allBytes > 0 ? std::min( a_state.m_bytes, a_state.m_allBytes ) : a_state.m_bytes;
    if ( a_state.m_allBytes <= 0 || bytes <= 0 )
        return SizeText( bytes ) + QStringLiteral( ", " ) + cards;
    const double share = double( bytes ) / double( a_state.m_allBytes );
    const double left = double( a_state.m_milliseconds ) * ( 1 - share ) / share;
    return QStringLiteral( "%1 %, %2 of %3, %4, about %5 left" )
        .arg( int( 100 * share ) )
        .arg( SizeText( bytes ), SizeText( a_state.m_allBytes ), cards, TimeText( qint64( left ) ) );
}

Progress::Progress( OutputDevice* a_terminal ) :
    m_terminal( a_terminal )
{
}

Progress::~Progress()
{
    Hide();
}

bool Progress::Show( const ProgressState& a_state )
{
    if ( m_terminal == nullptr || a_state.m_milliseconds < m_next )
        return false;
    m_next = a_state.m_milliseconds + s_kPeriod;
    Hide();
    m_terminal->write( ProgressText( a_state ).toUtf8() );
    m_terminal->Flush();
    m_isShown = true;
    return true;
}

void Progress::Hide()
{
    if ( !m_isShown )
        return;
    // Back to the start of the line, and everything behind it away.
    m_terminal->write( "\r\x1B[K" );
    m_terminal->Flush();
    m_isShown = false;
}

} // namespace PimManager::Tools
