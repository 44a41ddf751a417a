#include "Checks/Reading.h"

namespace PimManager::Contacts::Checks
{

namespace
{

void Collect( PimContactReader& a_reader, Reading& a_reading )
{
    a_reader.SetCardHandler(
        [&a_reading]( const PimContactCard& a_card )
        {
            a_reading.m_extentsBefore.push_back( a_reading.m_extents.size() );
            a_reading.m_cards.push_back( a_card );
            return true;
        } );
    a_reader.SetDiagnosticHandler( [&a_reading]( const PimContactDiagnostic& a_diagnostic )
                                   { a_reading.m_diagnostics.push_back( a_diagnostic ); } );
    a_reader.SetExtentHandler( [&a_reading]( const PimContactExtent& a_extent )
                               { a_reading.m_extents.push_back( a_extent ); } );
}

void StopCollecting( PimContactReader& a_reader )
{
    a_reader.SetCardHandler( {} );
    a_reader.SetDiagnosticHandler( {} );
    a_reader.SetExtentHandler( {} );
}

// Copies the piece, so that the sanitizer finds reads beyond its end and references that are kept.
void FeedCopy( PimContactReader& a_reader, const QByteArray& a_bytes, qint64 a_begin, qint64 a_end )
{
    const std::vector<char> piece( a_bytes.constData() + a_begin, a_bytes.constData() + a_end );
    a_reader.Feed( piece.data(), a_end - a_begin );
}

} // namespace

Reading ReadWhole( const QByteArray& a_bytes, const PimContactOptions& a_options )
{
    return ReadInPieces( a_bytes, {}, a_options );
}

Reading ReadInPieces( const QByteArray& a_bytes, const std::vector<qint64>& a_places,
                      const PimContactOptions& a_options )
{
    PimContactReader reader( a_options );
    return ReadInPieces( reader, a_bytes, a_places );
}

Reading ReadInPieces( PimContactReader& a_reader, const QByteArray& a_bytes, const std::vector<qint64>& a_places )
{
    Reading reading;
    Collect( a_reader, reading );
    qint64 begin = 0;
    for ( const qint64 place : a_places )
    {
        FeedCopy( a_reader, a_bytes, begin, place );
        begin = place;
    }
    FeedCopy( a_reader, a_bytes, begin, a_bytes.size() );
    a_reader.Finish();
    reading.m_report = a_reader.Report();
    StopCollecting( a_reader );
    return reading;
}

Reading ReadByNext( QIODevice& a_device, const PimContactOptions& a_options, const std::function<bool()>& a_isMore )
{
    Reading reading;
    PimContactReader reader( a_options );
    Collect( reader, reading );
    reader.SetCardHandler( {} );
    PimContactCard card;
    for ( PimContactNext next = reader.Next( a_device, card );
          next == PimContactNext::Card || ( next == PimContactNext::Waiting && a_isMore() );
          next = reader.Next( a_device, card ) )
    {
        if ( next == PimContactNext::Card )
        {
            reading.m_extentsBefore.push_back( reading.m_extents.size() );
            reading.m_cards.push_back( card );
        }
    }
    reading.m_report = reader.Report();
    return reading;
}

} // namespace PimManager::Contacts::Checks
