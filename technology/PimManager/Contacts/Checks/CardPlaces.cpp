#include "Checks/CardPlaces.h"

#include <algorithm>
#include <iterator>

namespace PimManager::Contacts::Checks
{

namespace
{

bool IsKept( const PimContactExtent& a_extent )
{
    return a_extent.Kind() != PimContactExtentKind::Filtered;
}

qint64 KeptLengthOf( const PimContactExtent& a_extent )
{
    return IsKept( a_extent ) ? a_extent.Length() : 0;
}

} // namespace

CardPlaces::CardPlaces( const std::vector<PimContactExtent>& a_extents, const PimContactCard& a_card )
{
    const auto isBefore = []( const PimContactExtent& a_extent, qint64 a_offset )
    { return a_extent.Offset() < a_offset; };
    auto extent = std::lower_bound( a_extents.begin(), a_extents.end(), a_card.Offset(), isBefore );
    qint64 place = 0;
    for ( ; extent != a_extents.end() && extent->Card() == a_card.Number(); ++extent )
    {
        m_all.push_back( *extent );
        m_places.push_back( place );
        place += KeptLengthOf( *extent );
        if ( extent->Kind() == PimContactExtentKind::Line )
            m_lines.push_back( *extent );
    }
}

QByteArray CardPlaces::Bytes() const
{
    QByteArray bytes;
    for ( const PimContactExtent& extent : m_all )
        bytes += IsKept( extent ) ? extent.Bytes() : QByteArray();
    return bytes;
}

qint64 CardPlaces::InCard( qint64 a_offset ) const
{
    const auto next = std::upper_bound( m_all.begin(), m_all.end(), a_offset,
                                        []( qint64 a_place, const PimContactExtent& a_extent )
                                        { return a_place < a_extent.Offset(); } );
    if ( next == m_all.begin() )
        return 0;
    const auto extent = std::prev( next );
    const qint64 begin = m_places[static_cast<size_t>( extent - m_all.begin() )];
    return begin + std::min( a_offset - extent->Offset(), KeptLengthOf( *extent ) );
}

std::vector<PlacedLine> CardPlaces::LinesOf( const PimContactCard& a_card ) const
{
    std::vector<PlacedLine> lines;
    AppendLines( a_card, lines );
    return lines;
}

// Recursive, but the reader limits the nesting of cards.
void CardPlaces::AppendLines( const PimContactCard& a_card, std::vector<PlacedLine>& a_lines ) const
{
    const qint64 begin = InCard( a_card.Offset() );
    for ( const PimContactLine& line : a_card )
    {
        a_lines.push_back( { line, a_card.FoldStyle(), begin + line.OffsetInCard() } );
        if ( const PimContactCard nested = line.NestedCard(); !nested.IsNull() )
            AppendLines( nested, a_lines );
    }
}

} // namespace PimManager::Contacts::Checks
