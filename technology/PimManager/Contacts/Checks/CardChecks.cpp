#include "Checks/CardChecks.h"

#include "Checks/CardPlaces.h"
#include "Checks/ConvertedText.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace PimManager::Contacts::Checks
{

namespace
{

bool HasKind( const std::vector<PimContactExtent>& a_extents, PimContactExtentKind a_kind )
{
    return std::any_of( a_extents.begin(), a_extents.end(),
                        [a_kind]( const PimContactExtent& a_extent ) { return a_extent.Kind() == a_kind; } );
}

// Byte order marks and other text may precede BEGIN on its line.
bool BeginsWithBoundary( const std::vector<PimContactExtent>& a_extents )
{
    const auto isFirst = []( const PimContactExtent& a_extent )
    {
        return a_extent.Kind() == PimContactExtentKind::Boundary || a_extent.Kind() == PimContactExtentKind::Line ||
               a_extent.Bytes().endsWith( '\n' ) || a_extent.Bytes().endsWith( '\r' );
    };
    const auto first = std::find_if( a_extents.begin(), a_extents.end(), isFirst );
    return first != a_extents.end() && first->Kind() == PimContactExtentKind::Boundary;
}

// A line with a nested card has its own extent, and the extents of the card follow.
Broken BrokenLine( const PlacedLine& a_line, const PimContactExtent& a_extent, const CardPlaces& a_places )
{
    if ( a_line.m_place != a_places.InCard( a_extent.Offset() ) )
        return Same( "place of a line", a_line.m_place, a_places.InCard( a_extent.Offset() ) );
    const QByteArray bytes = a_line.m_line.Bytes();
    const PimContactCard nested = a_line.m_line.NestedCard();
    if ( nested.IsNull() )
        return Holds( bytes == a_extent.Bytes(), "bytes of a line are not those of its extent" );
    const qint64 begin = a_places.InCard( nested.Offset() ) - a_line.m_place;
    return FirstBroken(
        [&] { return Holds( bytes.startsWith( a_extent.Bytes() ), "a line does not begin with its extent" ); },
        [&] { return Holds( begin >= a_extent.Length(), "a nested card begins in the line that holds it" ); },
        [&]
        {
            const QByteArray part = Slice( bytes, begin, nested.Bytes().size() );
            return Holds( part == nested.Bytes(), "a nested card is not in the bytes of its line" );
        } );
}

Broken BrokenLines( const PimContactCard& a_card, const CardPlaces& a_places )
{
    const std::vector<PlacedLine> lines = a_places.LinesOf( a_card );
    const std::vector<PimContactExtent>& extents = a_places.Lines();
    if ( lines.size() != extents.size() )
        return Same( "number of lines", static_cast<qint64>( lines.size() ), static_cast<qint64>( extents.size() ) );
    for ( size_t i = 0; i < lines.size(); ++i )
    {
        if ( const Broken broken = BrokenLine( lines[i], extents[i], a_places ); !broken.isEmpty() )
            return broken;
    }
    return Broken();
}

// The checks of the lines of this card, nested or not.
Broken BrokenOwnLines( const PimContactCard& a_card )
{
    const QByteArray bytes = a_card.Bytes();
    qint64 end = 0;
    int count = 0;
    for ( const PimContactLine& line : a_card )
    {
        ++count;
        if ( line.OffsetInCard() < end )
            return "lines overlap or are in another order";
        const QByteArray lineBytes = line.Bytes();
        if ( lineBytes.isEmpty() || Slice( bytes, line.OffsetInCard(), lineBytes.size() ) != lineBytes )
            return "a line is not in the bytes of its card";
        end = line.OffsetInCard() + lineBytes.size();
        const PimContactCard nested = line.NestedCard();
        if ( const Broken broken = nested.IsNull() ? Broken() : BrokenOwnLines( nested ); !broken.isEmpty() )
            return broken;
    }
    return Same( "LineCount()", a_card.LineCount(), count );
}

Broken BrokenNestedRecord( const PimContactCard& a_nested, const PimContactCard& a_outer )
{
    return FirstBroken(
        [&] { return Holds( a_nested.IsNested(), "IsNested() is false" ); },
        [&] { return Same( "number of a nested card", a_nested.Number(), a_outer.Number() ); },
        [&]
        {
            return Holds( a_nested.Offset() > a_outer.Offset() && a_nested.FirstLine() >= a_outer.FirstLine(),
                          "a nested card begins before its outer card" );
        },
        [&] { return Holds( !a_outer.IsWhole() || a_nested.IsWhole(), "a whole card holds a card in part" ); },
        [&] { return Holds( a_nested.IsConverted() == a_outer.IsConverted(), "only one of both was converted" ); } );
}

Broken BrokenNestedRecords( const PimContactCard& a_card )
{
    return FirstBrokenOf( a_card,
                          [&a_card]( const PimContactLine& a_line )
                          {
                              const PimContactCard nested = a_line.NestedCard();
                              if ( nested.IsNull() )
                                  return Broken();
                              return FirstBroken( [&] { return BrokenNestedRecord( nested, a_card ); },
                                                  [&] { return BrokenNestedRecords( nested ); } );
                          } );
}

Broken BrokenWholeness( const PimContactCard& a_card, const CardPlaces& a_places )
{
    const bool isDropped = HasKind( a_places.All(), PimContactExtentKind::Dropped );
    return FirstBroken( [&] { return Holds( !( a_card.IsWhole() && isDropped ), "a whole card with a dropped line" ); },
                        [&] {
                            return Holds( !a_card.IsWhole() || ( a_card.HasBegin() && a_card.HasEnd() ),
                                          "a whole card without BEGIN or END" );
                        },
                        [&]
                        {
                            return Holds( a_card.IsFiltered() ==
                                              HasKind( a_places.All(), PimContactExtentKind::Filtered ),
                                          "IsFiltered() differs from the extents" );
                        },
                        [&] {
                            return Holds( a_card.HasBegin() == BeginsWithBoundary( a_places.All() ),
                                          "HasBegin() differs from the extents" );
                        } );
}

Broken BrokenRecord( const PimContactCard& a_card, const Subject& a_subject )
{
    const size_t line = LineAt( a_subject.m_lines, a_card.Offset() );
    return FirstBroken(
        [&] { return Same( "FirstLine()", a_card.FirstLine(), static_cast<qint64>( line ) + 1 ); },
        [&] { return Holds( !a_card.IsNull() && !a_card.IsNested(), "a card is null or nested" ); },
        [&] {
            return Holds( a_card.IsConverted() == IsUtf16( a_subject.m_bytes ), "IsConverted() differs from the file" );
        },
        [&] { return Holds( a_card.DefaultCharset() == a_subject.m_options.DefaultCharset(), "DefaultCharset()" ); },
        [&] { return BrokenNestedRecords( a_card ); } );
}

Broken BrokenCard( const PimContactCard& a_card, const Subject& a_subject )
{
    const CardPlaces places( a_subject.m_reading.m_extents, a_card );
    if ( places.All().empty() )
        return "no extent begins where the card begins";
    return FirstBroken( [&] { return Holds( a_card.Bytes() == places.Bytes(), "bytes differ from the extents" ); },
                        [&] { return BrokenLines( a_card, places ); }, [&] { return BrokenOwnLines( a_card ); },
                        [&] { return BrokenWholeness( a_card, places ); },
                        [&] { return BrokenRecord( a_card, a_subject ); } );
}

// The extents of a card are delivered before the card, and none after it.
Broken BrokenDelivery( const Subject& a_subject )
{
    const Reading& reading = a_subject.m_reading;
    qint64 number = 0;
    for ( size_t i = 0; i < reading.m_cards.size(); ++i )
    {
        const PimContactCard& card = reading.m_cards[i];
        if ( card.Number() <= number )
            return "numbers of cards do not ascend";
        number = card.Number();
        const size_t before = reading.m_extentsBefore[i];
        const auto after = reading.m_extents.begin() + static_cast<std::ptrdiff_t>( before );
        const bool isLate =
            after != reading.m_extents.end() &&
            std::any_of( after, std::min( after + 2, reading.m_extents.end() ),
                         [number]( const PimContactExtent& a_extent ) { return a_extent.Card() == number; } );
        if ( isLate || before == 0 )
            return InCard( "an extent comes after its card", card );
    }
    return Broken();
}

bool IsOfARefusedCard( PimContactExtentKind a_kind )
{
    return a_kind == PimContactExtentKind::Refused || a_kind == PimContactExtentKind::Blank ||
           a_kind == PimContactExtentKind::Mark;
}

// Each card that was begun has extents. They are Refused if and only if the card was not delivered.
Broken BrokenFates( const Subject& a_subject )
{
    const Reading& reading = a_subject.m_reading;
    auto card = reading.m_cards.begin();
    qint64 number = 0;
    for ( const PimContactExtent& extent : reading.m_extents )
    {
        if ( extent.Card() == 0 )
            continue;
        if ( extent.Card() > number + 1 )
            return "no extent of card " + QByteArray::number( number + 1 );
        number = extent.Card();
        while ( card != reading.m_cards.end() && card->Number() < number )
            ++card;
        const bool isDelivered = card != reading.m_cards.end() && card->Number() == number;
        if ( isDelivered ? extent.Kind() == PimContactExtentKind::Refused : !IsOfARefusedCard( extent.Kind() ) )
            return "extents and cards disagree about whether card " + QByteArray::number( number ) + " is delivered";
    }
    return Same( "cards that have extents", number, reading.m_report.Cards() );
}

qint64 NestedIn( const PimContactCard& a_card )
{
    qint64 count = 0;
    for ( const PimContactLine& line : a_card )
    {
        if ( const PimContactCard nested = line.NestedCard(); !nested.IsNull() )
            count += 1 + NestedIn( nested );
    }
    return count;
}

Broken BrokenCardCounts( const Subject& a_subject )
{
    const std::vector<PimContactCard>& cards = a_subject.m_reading.m_cards;
    const PimContactReport& report = a_subject.m_reading.m_report;
    std::array<qint64, s_kPimContactVersions> versions{};
    qint64 whole = 0;
    qint64 nested = 0;
    for ( const PimContactCard& card : cards )
    {
        whole += card.IsWhole() ? 1 : 0;
        nested += NestedIn( card );
        ++versions[static_cast<size_t>( card.Version() )];
    }
    const auto delivered = static_cast<qint64>( cards.size() );
    const qint64 all = report.CardsWhole() + report.CardsInPart() + report.CardsRefused();
    const Broken broken = FirstBroken( [&] { return Same( "CardsWhole()", report.CardsWhole(), whole ); },
                                       [&] { return Same( "CardsInPart()", report.CardsInPart(), delivered - whole ); },
                                       [&] { return Same( "CardsNested()", report.CardsNested(), nested ); },
                                       [&] { return Same( "Cards()", report.Cards(), all ); } );
    for ( int i = 0; broken.isEmpty() && i < s_kPimContactVersions; ++i )
    {
        if ( report.CardsOf( static_cast<PimContactVersion>( i ) ) != versions[static_cast<size_t>( i )] )
            return "CardsOf( version ) for version " + QByteArray::number( i );
    }
    return broken;
}

Broken BrokenLineEnds( const Subject& a_subject )
{
    const PimContactReport& report = a_subject.m_reading.m_report;
    if ( IsRefusedKind( report.FileKind() ) )
        return Broken();
    const std::array<qint64, s_kNoLineEnd> expected = LineEndsOf( a_subject.m_lines );
    for ( int i = 0; i < s_kNoLineEnd; ++i )
    {
        const Broken broken = Same( "LineEnds( kind )", report.LineEnds( static_cast<PimContactLineEnd>( i ) ),
                                    expected[static_cast<size_t>( i )] );
        if ( !broken.isEmpty() )
            return broken + " of kind " + QByteArray::number( i );
    }
    return Broken();
}

Broken BrokenCompleteness( const Subject& a_subject )
{
    const PimContactReport& report = a_subject.m_reading.m_report;
    const bool isMissing = report.Bytes( PimContactExtentKind::Dropped ) != 0 ||
                           report.Bytes( PimContactExtentKind::Refused ) != 0 || report.CardsRefused() != 0 ||
                           report.Bytes( PimContactExtentKind::Outside ) != 0;
    return FirstBroken( [&] { return Holds( report.IsComplete() == !isMissing, "IsComplete() differs" ); },
                        [&] { return Holds( !report.Summary().isEmpty(), "Summary() is empty" ); },
                        [&] { return Holds( !report.Charset().isEmpty(), "Charset() is empty" ); },
                        [&] { return Holds( !report.IsStopped(), "IsStopped(), but nothing stopped" ); },
                        [&] { return Holds( report.ErrorText().isEmpty(), "an error without a device" ); } );
}

} // namespace

Broken BrokenCards( const Subject& a_subject )
{
    const Broken broken = FirstBrokenOf( a_subject.m_reading.m_cards, [&a_subject]( const PimContactCard& a_card )
                                         { return InCard( BrokenCard( a_card, a_subject ), a_card ); } );
    return FirstBroken( [&] { return broken; }, [&] { return BrokenDelivery( a_subject ); },
                        [&] { return BrokenFates( a_subject ); } );
}

Broken BrokenCounts( const Subject& a_subject )
{
    return FirstBroken( [&] { return BrokenCardCounts( a_subject ); }, [&] { return BrokenLineEnds( a_subject ); },
                        [&] { return BrokenCompleteness( a_subject ); } );
}

} // namespace PimManager::Contacts::Checks
