#include "Terminal/Progress.h"

#include "Outputs/OutputDevice.h"
#include "Terminal/TextColumns.h"
#include "Terminal/Wording.h"

#include <QList>
#include <QStringList>

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

// The parts in a line. Those at a_places are removed, one after the other, until it fits.
QString Fitting( QStringList a_parts, const QList<int>& a_places, int a_columns )
{
    QString text = a_parts.join( QStringLiteral( ", " ) );
    for ( const int place : a_places )
    {
        if ( ColumnsOf( text ) <= a_columns )
            break;
        a_parts.removeAt( place );
        text = a_parts.join( QStringLiteral( ", " ) );
    }
    return Cut( text, std::max( a_columns, 1 ) );
}

} // namespace

QString ProgressText( const ProgressState& a_state, int a_columns )
{
    const QString cards = Counted( a_state.m_cards, QStringLiteral( "card" ), QStringLiteral( "cards" ) );
    // A file may grow while it is read.
    const qint64 bytes = a_state.m_allBytes > 0 ? std::min( a_state.m_bytes, a_state.m_allBytes ) : a_state.m_bytes;
    if ( a_state.m_allBytes <= 0 || bytes <= 0 )
        return Fitting( { SizeText( bytes ), cards }, { 1 }, a_columns );
    const double share = double( bytes ) / double( a_state.m_allBytes );
    const double left = double( a_state.m_milliseconds ) * ( 1 - share ) / share;
    const QStringList parts = { QStringLiteral( "%1 %" ).arg( int( 100 * share ) ),
                                SizeText( bytes ) + QStringLiteral( " of " ) + SizeText( a_state.m_allBytes ), cards,
                                QStringLiteral( "about %1 left" ).arg( TimeText( qint64( left ) ) ) };
    return Fitting( parts, { 2, 1, 1 }, a_columns );
}

Progress::Progress( OutputDevice* a_terminal ) :
    m_terminal( a_terminal )
{
}

Progress::~Progress()
{
    Hide();
}

bool Progress::Show( const ProgressState& a_state, int a_columns )
{
    if ( m_terminal == nullptr || a_state.m_milliseconds < m_next )
        return false;
    m_next = a_state.m_milliseconds + s_kPeriod;
    Hide();
    m_terminal->write( ProgressText( a_state, a_columns - 1 ).toUtf8() );
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
