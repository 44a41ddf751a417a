#include "Terminal/TextColumns.h"

#include "Terminal/Clusters.h"

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

constexpr QChar s_kBlank = QLatin1Char( ' ' );
constexpr QChar s_kFirstStrongIsolate = QChar( 0x2068 );
constexpr QChar s_kPopIsolate = QChar( 0x2069 );

bool IsBreak( QChar a_before, QChar a_behind )
{
    return a_before == s_kBlank || a_before == QLatin1Char( '/' ) || a_behind == QLatin1Char( '@' );
}

// The length of the part before the next place where a text may be broken.
qsizetype PartLength( QStringView a_text )
{
    qsizetype length = 1;
    while ( length < a_text.size() && !IsBreak( a_text[length - 1], a_text[length] ) )
        ++length;
    return length;
}

QStringView WithoutLastBlank( QStringView a_text )
{
    return a_text.endsWith( s_kBlank ) ? a_text.chopped( 1 ) : a_text;
}

// As many clusters as fit, and at least one.
qsizetype FittingLength( QStringView a_text, int a_columns )
{
    qsizetype length = 0;
    int columns = 0;
    while ( length < a_text.size() )
    {
        const Cluster cluster = FirstCluster( a_text.mid( length ) );
        columns += cluster.m_columns;
        if ( columns > a_columns && length > 0 )
            break;
        length += cluster.m_text.size();
    }
    return length;
}

// Where a line that starts with the text ends: at its last break that fits, else where the columns do.
qsizetype LineLength( QStringView a_text, int a_columns )
{
    qsizetype length = 0;
    qsizetype lastBreak = 0;
    for ( int columns = 0; columns <= a_columns && length < a_text.size(); )
    {
        if ( length > 0 && IsBreak( a_text[length - 1], a_text[length] ) )
            lastBreak = length;
        const Cluster cluster = FirstCluster( a_text.mid( length ) );
        columns += cluster.m_columns;
        if ( columns > a_columns && cluster.m_text.front() != s_kBlank )
            return lastBreak > 0 ? lastBreak : length;
        length += cluster.m_text.size();
    }
    return length;
}

// Isolates do not nest, because only Screen::Isolated() makes them.
void EndIsolatesWithLines( QStringList& a_lines )
{
    bool isOpen = false;
    for ( QString& line : a_lines )
    {
        if ( isOpen )
            line.prepend( s_kFirstStrongIsolate );
        isOpen = line.lastIndexOf( s_kFirstStrongIsolate ) > line.lastIndexOf( s_kPopIsolate );
        if ( isOpen )
            line.append( s_kPopIsolate );
    }
}

} // namespace

int ColumnsOf( QStringView a_text )
{
    int columns = 0;
    while ( !a_text.isEmpty() )
    {
        const Cluster cluster = FirstCluster( a_text );
        columns += cluster.m_columns;
        a_text = a_text.mid( cluster.m_text.size() );
    }
    return columns;
}

QString Padded( const QString& a_text, int a_columns )
{
    return a_text + QString( std::max( 0, a_columns - ColumnsOf( a_text ) ), s_kBlank );
}

QString Cut( const QString& a_text, int a_columns )
{
    if ( ColumnsOf( a_text ) <= a_columns )
        return a_text;
    const qsizetype length = a_columns > 1 ? FittingLength( a_text, a_columns - 1 ) : 0;
    return a_text.left( static_cast<int>( length ) ) + QChar( 0x2026 );
}

QStringList Wrapped( const QString& a_text, int a_columns )
{
    QStringList lines;
    QStringView rest = a_text;
    do
    {
        const qsizetype length = LineLength( rest, a_columns );
        const QStringView line = rest.left( length );
        lines << ( length < rest.size() ? WithoutLastBlank( line ) : line ).toString();
        rest = rest.mid( length );
    } while ( !rest.isEmpty() );
    EndIsolatesWithLines( lines );
    return lines;
}

int WidestPart( const QString& a_text )
{
    int widest = 0;
    for ( QStringView rest = a_text; !rest.isEmpty(); )
    {
        const QStringView part = rest.left( PartLength( rest ) );
        widest = std::max( widest, ColumnsOf( WithoutLastBlank( part ) ) );
        rest = rest.mid( part.size() );
    }
    return widest;
}

} // namespace PimManager::Tools
