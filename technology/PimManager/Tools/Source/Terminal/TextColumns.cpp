#include "Terminal/TextColumns.h"

#include "Terminal/Clusters.h"

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

const QChar s_kBlank = QLatin1Char( ' ' );

bool IsBreak( QChar a_before, QChar a_behind )
{
    return a_before == s_kBlank || a_before == QLatin1Char( '/' ) || a_behind == QLatin1Char( '@' );
}

// The length of the part before the next place where a text may be broken.
qsizetype PartLength( QStringView a_text, qsizetype a_kept )
{
    qsizetype length = std::max<qsizetype>( a_kept, 1 );
    while ( length < a_text.size() && !IsBreak( a_text[length - 1], a_text[length] ) )
        ++length;
    return std::min( length, a_text.size() );
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

/// The places where a line may end, from the start of a text to the end of the line.
class LineBreaks
{
public:
    LineBreaks( QStringView a_text, qsizetype a_kept ) :
        m_text( a_text ),
        m_kept( a_kept )
    {
    }

    void Visit( qsizetype a_place )
    {
        if ( a_place > 0 && IsBreak( m_text[a_place - 1], m_text[a_place] ) )
            ( a_place < m_kept ? m_lastInKept : m_last ) = a_place;
    }

    // The best place; a_otherwise if there is none.
    qsizetype Best( qsizetype a_otherwise ) const
    {
        if ( m_last > 0 )
            return m_last;
        return m_lastInKept > 0 ? m_lastInKept : a_otherwise;
    }

private:
    const QStringView m_text;
    const qsizetype m_kept;
    qsizetype m_last = 0;
    qsizetype m_lastInKept = 0;
};

// Where a line that starts with the text ends.
qsizetype LineLength( QStringView a_text, int a_columns, qsizetype a_kept )
{
    LineBreaks breaks( a_text, a_kept );
    qsizetype length = 0;
    for ( int columns = 0; columns <= a_columns && length < a_text.size(); )
    {
        breaks.Visit( length );
        const Cluster cluster = FirstCluster( a_text.mid( length ) );
        columns += cluster.m_columns;
        if ( columns > a_columns && cluster.m_text.front() != s_kBlank )
            return breaks.Best( std::max( length, qsizetype( 1 ) ) );
        length += cluster.m_text.size();
    }
    return length;
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

QStringList Wrapped( const QString& a_text, int a_columns, qsizetype a_kept )
{
    QStringList lines;
    QStringView rest = a_text;
    qsizetype kept = a_kept;
    do
    {
        const qsizetype length = LineLength( rest, a_columns, kept );
        const QStringView line = rest.left( length );
        lines << ( length < rest.size() ? WithoutLastBlank( line ) : line ).toString();
        rest = rest.mid( length );
        kept -= length;
    } while ( !rest.isEmpty() );
    return lines;
}

int WidestPart( const QString& a_text, qsizetype a_kept )
{
    int widest = 0;
    qsizetype kept = a_kept;
    for ( QStringView rest = a_text; !rest.isEmpty(); )
    {
        const QStringView part = rest.left( PartLength( rest, kept ) );
        widest = std::max( widest, ColumnsOf( WithoutLastBlank( part ) ) );
        rest = rest.mid( part.size() );
        kept -= part.size();
    }
    return widest;
}

} // namespace PimManager::Tools
