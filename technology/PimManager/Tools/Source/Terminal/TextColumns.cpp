#include "Terminal/TextColumns.h"

#include "Terminal/CodePoints.h"

#include <algorithm>
#include <array>

namespace PimManager::Tools
{

namespace
{

struct Range
{
    uint m_first;
    uint m_last;
};

// Blocks of Unicode whose characters are wide (East Asian Width W and F), in order.
constexpr std::array<Range, 14> s_kWide = {
    Range{ 0x1100, 0x115F },   Range{ 0x2E80, 0x303E },  Range{ 0x3041, 0x33FF }, Range{ 0x3400, 0x4DBF },
    Range{ 0x4E00, 0x9FFF },   Range{ 0xA000, 0xA4CF },  Range{ 0xA960, 0xA97F }, Range{ 0xAC00, 0xD7A3 },
    Range{ 0xF900, 0xFAFF },   Range{ 0xFE30, 0xFE6F },  Range{ 0xFF00, 0xFF60 }, Range{ 0xFFE0, 0xFFE6 },
    Range{ 0x1F300, 0x1FAFF }, Range{ 0x20000, 0x3FFFD } };

bool IsWide( uint a_codePoint )
{
    const auto* const range =
        std::find_if( s_kWide.begin(), s_kWide.end(),
                      [a_codePoint]( const Range& a_range ) { return a_codePoint <= a_range.m_last; } );
    return range != s_kWide.end() && a_codePoint >= range->m_first;
}

int ColumnsOf( uint a_codePoint )
{
    switch ( QChar::category( a_codePoint ) )
    {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        return IsWide( a_codePoint ) ? 2 : 1;
    }
}

// Where a line that starts with the text ends: behind its last blank that fits, else where the columns do.
qsizetype LineLength( QStringView a_text, int a_columns )
{
    int columns = 0;
    qsizetype length = 0;
    qsizetype behindBlank = 0;
    while ( length < a_text.size() )
    {
        const uint codePoint = FirstCodePoint( a_text.mid( length ) );
        columns += ColumnsOf( codePoint );
        if ( columns > a_columns && codePoint != ' ' )
            return behindBlank > 0 ? behindBlank : length;
        length += UnitsOf( codePoint );
        if ( codePoint == ' ' )
            behindBlank = length;
        if ( columns > a_columns )
            return length;
    }
    return length;
}

} // namespace

int ColumnsOf( QStringView a_text )
{
    int columns = 0;
    ForEachCodePoint( a_text, [&columns]( uint a_codePoint, QStringView /*a_units*/ )
                      { columns += ColumnsOf( a_codePoint ); } );
    return columns;
}

QString Padded( const QString& a_text, int a_columns )
{
    return a_text + QString( std::max( 0, a_columns - ColumnsOf( a_text ) ), QLatin1Char( ' ' ) );
}

QStringList Wrapped( const QString& a_text, int a_columns )
{
    QStringList lines;
    QStringView rest = a_text;
    do
    {
        const qsizetype length = LineLength( rest, a_columns );
        QString line = rest.left( length ).toString();
        if ( length < rest.size() && line.endsWith( QLatin1Char( ' ' ) ) )
            line.chop( 1 );
        lines << line;
        rest = rest.mid( length );
    } while ( !rest.isEmpty() );
    return lines;
}

} // namespace PimManager::Tools
