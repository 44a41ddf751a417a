#include "Terminal/Clusters.h"

#include "Terminal/CodePoints.h"

#include <algorithm>
#include <utf8proc.h>

namespace PimManager::Tools
{

namespace
{

constexpr int s_kMostColumns = 2;

int ColumnsOf( uint a_codePoint )
{
    return utf8proc_charwidth( static_cast<utf8proc_int32_t>( a_codePoint ) );
}

bool IsOfClass( uint a_codePoint, utf8proc_boundclass_t a_class )
{
    return utf8proc_get_property( static_cast<utf8proc_int32_t>( a_codePoint ) )->boundclass == a_class;
}

// A digit becomes the picture of a key.
bool CanBecomePicture( uint a_codePoint )
{
    const bool isKey = ( a_codePoint >= '0' && a_codePoint <= '9' ) || a_codePoint == '#' || a_codePoint == '*';
    return isKey || IsOfClass( a_codePoint, UTF8PROC_BOUNDCLASS_EXTENDED_PICTOGRAPHIC );
}

// The columns of a cluster up to and including a character behind its first one.
int ColumnsWith( int a_columns, uint a_previous, uint a_codePoint )
{
    constexpr uint s_kPictureSelector = 0xFE0F;
    const bool isFlag = IsOfClass( a_codePoint, UTF8PROC_BOUNDCLASS_REGIONAL_INDICATOR );
    if ( isFlag || ( a_codePoint == s_kPictureSelector && CanBecomePicture( a_previous ) ) )
        return s_kMostColumns;
    // A vowel behind its consonant may have a column of its own. A part of a picture or of a syllable has none.
    const bool isApart = IsOfClass( a_codePoint, UTF8PROC_BOUNDCLASS_SPACINGMARK );
    return isApart ? a_columns + ColumnsOf( a_codePoint ) : std::max( a_columns, ColumnsOf( a_codePoint ) );
}

} // namespace

Cluster FirstCluster( QStringView a_text )
{
    uint previous = FirstCodePoint( a_text );
    Cluster cluster = { a_text.left( UnitsOf( previous ) ), ColumnsOf( previous ) };
    utf8proc_int32_t state = 0;
    while ( cluster.m_text.size() < a_text.size() )
    {
        const uint next = FirstCodePoint( a_text.mid( cluster.m_text.size() ) );
        const bool isEnd = utf8proc_grapheme_break_stateful( static_cast<utf8proc_int32_t>( previous ),
                                                             static_cast<utf8proc_int32_t>( next ), &state );
        const int columns = ColumnsWith( cluster.m_columns, previous, next );
        if ( isEnd || columns > s_kMostColumns )
            break;
        cluster = { a_text.left( cluster.m_text.size() + UnitsOf( next ) ), columns };
        previous = next;
    }
    return cluster;
}

} // namespace PimManager::Tools
