#include "Checks/MarkerChecks.h"

#include "Checks/CardPlaces.h"
#include "Checks/ConvertedText.h"

#include <algorithm>
#include <random>

namespace PimManager::Contacts::Checks
{

namespace
{

constexpr int s_kMarkers = 3;

/// A text with an inserted word.
struct MarkedText
{
    QByteArray m_text;
    QByteArray m_marker;
    qint64 m_place = 0;
};

bool IsLineEnd( char a_byte )
{
    return a_byte == '\r' || a_byte == '\n';
}

// Never between the bytes of a line ending.
qint64 PlaceFor( const QByteArray& a_text, qint64 a_place )
{
    const char* bytes = a_text.constData();
    while ( a_place > 0 && a_place < a_text.size() && IsLineEnd( bytes[a_place - 1] ) && IsLineEnd( bytes[a_place] ) )
        ++a_place;
    return a_place;
}

MarkedText Marked( const QByteArray& a_text, std::minstd_rand& a_random )
{
    const auto bound = static_cast<unsigned>( a_text.size() ) + 1;
    MarkedText marked{ a_text, "qZXq" + QByteArray::number( static_cast<uint>( a_random() % 1000 ) ), 0 };
    marked.m_place = PlaceFor( a_text, static_cast<qint64>( a_random() % bound ) );
    marked.m_text.insert( static_cast<decltype( a_text.size() )>( marked.m_place ), marked.m_marker );
    return marked;
}

bool MayHoldMarkers( PimContactExtentKind a_kind )
{
    return a_kind != PimContactExtentKind::Boundary && a_kind != PimContactExtentKind::Blank &&
           a_kind != PimContactExtentKind::Mark;
}

bool IsIn( const PimContactLine& a_line, const QByteArray& a_marker )
{
    const QList<QByteArray> parameters = a_line.Parameters();
    return a_line.Group().contains( a_marker ) || a_line.Name().contains( a_marker ) ||
           a_line.Value().contains( a_marker ) ||
           std::any_of( parameters.begin(), parameters.end(),
                        [&a_marker]( const QByteArray& a_parameter ) { return a_parameter.contains( a_marker ); } );
}

// The texts of the line whose extent contains the word.
bool IsInLine( const PimContactExtent& a_extent, const Reading& a_reading, const QByteArray& a_marker )
{
    const auto card =
        std::lower_bound( a_reading.m_cards.begin(), a_reading.m_cards.end(), a_extent.Card(),
                          []( const PimContactCard& a_card, qint64 a_number ) { return a_card.Number() < a_number; } );
    if ( card == a_reading.m_cards.end() || card->Number() != a_extent.Card() )
        return false;
    const CardPlaces places( a_reading.m_extents, *card );
    const std::vector<PlacedLine> lines = places.LinesOf( *card );
    const auto extent = std::find( places.Lines().begin(), places.Lines().end(), a_extent );
    const auto index = static_cast<size_t>( extent - places.Lines().begin() );
    return index < lines.size() && IsIn( lines[index].m_line, a_marker );
}

bool IsTold( const Reading& a_reading, const QString& a_marker )
{
    return a_reading.m_report.Summary().contains( a_marker ) ||
           std::any_of( a_reading.m_diagnostics.begin(), a_reading.m_diagnostics.end(),
                        [&a_marker]( const PimContactDiagnostic& a_diagnostic )
                        { return a_diagnostic.Text().contains( a_marker ); } );
}

Broken BrokenExtent( const PimContactExtent& a_extent, const MarkedText& a_marked, const Reading& a_reading )
{
    if ( !MayHoldMarkers( a_extent.Kind() ) )
        return "in an extent of kind " + QByteArray( NameOf( a_extent.Kind() ).latin1() );
    if ( a_extent.Kind() != PimContactExtentKind::Line )
        return Broken();
    const bool isWhole = a_extent.Offset() <= a_marked.m_place &&
                         a_extent.Offset() + a_extent.Length() >= a_marked.m_place + a_marked.m_marker.size();
    return FirstBroken(
        [&] { return Holds( isWhole, "partly in a line" ); },
        [&] { return Holds( IsInLine( a_extent, a_reading, a_marked.m_marker ), "not in the texts of its line" ); } );
}

Broken BrokenMarker( const MarkedText& a_marked, const PimContactOptions& a_options )
{
    const Reading reading = ReadWhole( a_marked.m_text, a_options );
    const qint64 end = a_marked.m_place + a_marked.m_marker.size();
    if ( IsTold( reading, QString::fromLatin1( a_marked.m_marker ) ) )
        return "in the text of a diagnostic";
    return FirstBrokenOf( reading.m_extents,
                          [&]( const PimContactExtent& a_extent )
                          {
                              const bool isOutside =
                                  a_extent.Offset() >= end || a_extent.Offset() + a_extent.Length() <= a_marked.m_place;
                              return isOutside ? Broken() : BrokenExtent( a_extent, a_marked, reading );
                          } );
}

} // namespace

Broken BrokenMarkers( const Subject& a_subject )
{
    std::minstd_rand random( a_subject.m_seed + 7 );
    for ( int i = 0; i < s_kMarkers; ++i )
    {
        const MarkedText marked = Marked( a_subject.m_text, random );
        const Broken broken = IsUtf16( marked.m_text ) ? Broken() : BrokenMarker( marked, a_subject.m_options );
        if ( !broken.isEmpty() )
            return "the word " + marked.m_marker + " at " + QByteArray::number( marked.m_place ) + " is " + broken;
    }
    return Broken();
}

} // namespace PimManager::Contacts::Checks
