#include "Terminal/Screen.h"

#include "Terminal/CodePoints.h"
#include "Terminal/TextColumns.h"

#include <QByteArray>

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

constexpr QChar s_kFirstStrongIsolate = QChar( 0x2068 );
constexpr QChar s_kPopIsolate = QChar( 0x2069 );

// The number in COLUMNS, what the terminal reports, or what is usual.
int WidthOf( int a_descriptor )
{
    constexpr int s_kUsual = 80;
    constexpr int s_kMost = 10000;
    const int wanted = qgetenv( "COLUMNS" ).toInt();
    if ( wanted > 0 && wanted <= s_kMost )
        return wanted;
    winsize size = {};
    const bool isKnown = ::ioctl( a_descriptor, TIOCGWINSZ, &size ) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : s_kUsual;
}

QString Start( Ink a_ink )
{
    switch ( a_ink )
    {
    case Ink::Heading:
        return QStringLiteral( "\x1B[1m" );
    case Ink::Warning:
        return QStringLiteral( "\x1B[33m" );
    case Ink::Error:
        return QStringLiteral( "\x1B[31m" );
    }
    return QString();
}

bool IsFromRightToLeft( QStringView a_text )
{
    bool isFound = false;
    ForEachCodePoint( a_text,
                      [&isFound]( uint a_codePoint, QStringView /*a_units*/ )
                      {
                          const QChar::Direction direction = QChar::direction( a_codePoint );
                          isFound = isFound || direction == QChar::DirR || direction == QChar::DirAL ||
                                    direction == QChar::DirAN;
                      } );
    return isFound;
}

} // namespace

QString Screen::Painted( const QString& a_text, Ink a_ink ) const
{
    if ( !m_isColoured || a_text.isEmpty() )
        return a_text;
    return Start( a_ink ) + a_text + QStringLiteral( "\x1B[0m" );
}

QString Screen::Wrapped( const QString& a_text, int a_indent ) const
{
    constexpr int s_kNarrowest = 16;
    if ( !IsTerminal() )
        return a_text;
    return Tools::Wrapped( a_text, std::max( m_columns - a_indent, s_kNarrowest ) )
        .join( QLatin1Char( '\n' ) + QString( a_indent, QLatin1Char( ' ' ) ) );
}

QString Screen::Isolated( const QString& a_text ) const
{
    if ( !IsTerminal() || !IsFromRightToLeft( a_text ) )
        return a_text;
    return s_kFirstStrongIsolate + a_text + s_kPopIsolate;
}

Screen ScreenOf( int a_descriptor )
{
    if ( ::isatty( a_descriptor ) == 0 )
        return {};
    return { WidthOf( a_descriptor ), CanRewriteLines() && qgetenv( "NO_COLOR" ).isEmpty() };
}

bool CanRewriteLines()
{
    const QByteArray kind = qgetenv( "TERM" );
    return !kind.isEmpty() && kind != "dumb";
}

} // namespace PimManager::Tools
