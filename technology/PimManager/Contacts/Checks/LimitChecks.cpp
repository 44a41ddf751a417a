#include "Checks/LimitChecks.h"

#include <algorithm>

namespace PimManager::Contacts::Checks
{

namespace
{

constexpr qint64 s_kGreatestNesting = 64;

// A limit of 0 or less means no limit.
Broken Within( const char* a_what, qint64 a_found, qint64 a_limit )
{
    if ( a_limit <= 0 || a_found <= a_limit )
        return Broken();
    return QByteArray( a_what ) + ' ' + QByteArray::number( a_found ) + " beyond the limit of " +
           QByteArray::number( a_limit );
}

qint64 DepthOf( const PimContactCard& a_card )
{
    qint64 depth = 0;
    for ( const PimContactLine& line : a_card )
    {
        if ( const PimContactCard nested = line.NestedCard(); !nested.IsNull() )
            depth = std::max( depth, 1 + DepthOf( nested ) );
    }
    return depth;
}

Broken BrokenCard( const PimContactCard& a_card, const PimContactOptions& a_options )
{
    const QByteArray bytes = a_card.Bytes();
    const auto lines = static_cast<qint64>( PhysicalLinesOf( bytes ).size() );
    const qint64 nesting = a_options.Nesting() <= 0 ? s_kGreatestNesting : a_options.Nesting();
    return FirstBroken( [&] { return Within( "bytes of a card", bytes.size(), a_options.CardBytes() ); },
                        [&] { return Within( "lines of a card", lines, a_options.CardLines() ); },
                        [&] { return Within( "nesting", DepthOf( a_card ), nesting ); } );
}

Broken BrokenBook( const Subject& a_subject )
{
    qint64 bytes = 0;
    for ( const PimContactCard& card : a_subject.m_reading.m_cards )
        bytes += card.Bytes().size();
    const auto cards = static_cast<qint64>( a_subject.m_reading.m_cards.size() );
    return FirstBroken( [&] { return Within( "cards", cards, a_subject.m_options.Cards() ); },
                        [&] { return Within( "bytes of all cards", bytes, a_subject.m_options.BookBytes() ); } );
}

Broken BrokenLineLengths( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_extents,
                          [&a_subject]( const PimContactExtent& a_extent )
                          {
                              return a_extent.Kind() == PimContactExtentKind::Line
                                         ? Within( "bytes of a line", a_extent.Length(),
                                                   a_subject.m_options.LineBytes() )
                                         : Broken();
                          } );
}

} // namespace

Broken BrokenLimits( const Subject& a_subject )
{
    return FirstBroken(
        [&]
        {
            return FirstBrokenOf( a_subject.m_reading.m_cards, [&a_subject]( const PimContactCard& a_card )
                                  { return BrokenCard( a_card, a_subject.m_options ); } );
        },
        [&] { return BrokenBook( a_subject ); }, [&] { return BrokenLineLengths( a_subject ); } );
}

} // namespace PimManager::Contacts::Checks
