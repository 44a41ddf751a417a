#include "Checks/PieceChecks.h"

#include "Checks/Transcript.h"
#include "Checks/TrickleDevice.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QBuffer>

#include <numeric>
#include <random>

namespace PimManager::Contacts::Checks
{

namespace
{

// The first line that differs, with the line before it.
QByteArray DifferenceOf( const QByteArray& a_found, const QByteArray& a_expected )
{
    const QList<QByteArray> found = a_found.split( '\n' );
    const QList<QByteArray> expected = a_expected.split( '\n' );
    auto line = found.size() - found.size();
    while ( line < found.size() && line < expected.size() && found.at( line ) == expected.at( line ) )
        ++line;
    return "line " + QByteArray::number( line + 1 ) + ": <" + found.value( line ) + "> instead of <" +
           expected.value( line ) + '>';
}

Broken SameText( const char* a_how, const QByteArray& a_found, const QByteArray& a_expected )
{
    return a_found == a_expected
               ? Broken()
               : "differs when read by " + QByteArray( a_how ) + ", " + DifferenceOf( a_found, a_expected );
}

Reading ReadBuffer( const Subject& a_subject )
{
    QBuffer buffer;
    buffer.setData( a_subject.m_bytes );
    buffer.open( QIODevice::ReadOnly );
    return ReadByNext( buffer, a_subject.m_options, [] { return false; } );
}

Reading ReadTrickle( const Subject& a_subject )
{
    TrickleDevice device( a_subject.m_bytes, a_subject.m_seed );
    device.open( a_subject.m_seed % 2 == 0 ? QIODevice::ReadOnly : QIODevice::ReadOnly | QIODevice::Unbuffered );
    return ReadByNext( device, a_subject.m_options, [&device] { return device.Arrive(); } );
}

Reading ReadAfterAnotherFile( const Subject& a_subject )
{
    PimContactReader reader( a_subject.m_options );
    reader.Feed( a_subject.m_bytes.left( static_cast<int>( a_subject.m_seed % 1000 ) ) );
    if ( a_subject.m_seed % 2 == 0 )
        reader.Finish();
    reader.Reset();
    return ReadInPieces( reader, a_subject.m_bytes, {} );
}

// A limit that no line reaches. With a limit for lines every card takes the slow path.
Reading ReadOnTheLongerRoad( const Subject& a_subject )
{
    PimContactOptions options = a_subject.m_options;
    if ( options.LineBytes() <= 0 )
        options.SetLineBytes( qint64( 1 ) << 40 );
    return ReadWhole( a_subject.m_bytes, options );
}

QByteArray TranscriptOf( const PimContactBook& a_book )
{
    QByteArray text;
    for ( const PimContactCard& card : a_book.Cards() )
        text += Checks::TranscriptOf( card );
    return text + Checks::TranscriptOf( a_book.Report() );
}

PimContactBook BookFromDevice( const Subject& a_subject )
{
    TrickleDevice device( a_subject.m_bytes, a_subject.m_seed + 1 );
    device.open( QIODevice::ReadOnly );
    return PimContactBook::Read( device, a_subject.m_options );
}

Broken BrokenBooks( const Subject& a_subject )
{
    const Reading& reading = a_subject.m_reading;
    const QByteArray expected = Checks::TranscriptOf( reading.m_cards ) + Checks::TranscriptOf( reading.m_report );
    return FirstBroken(
        [&]
        {
            const PimContactBook book = PimContactBook::FromBytes( a_subject.m_bytes, a_subject.m_options );
            return SameText( "PimContactBook::FromBytes()", TranscriptOf( book ), expected );
        },
        [&] { return SameText( "PimContactBook::Read()", TranscriptOf( BookFromDevice( a_subject ) ), expected ); } );
}

} // namespace

Broken BrokenPieces( const Subject& a_subject )
{
    const QByteArray expected = Checks::TranscriptOf( a_subject.m_reading );
    const auto isSame = [&expected]( const char* a_how, const Reading& a_reading )
    { return SameText( a_how, Checks::TranscriptOf( a_reading ), expected ); };
    const auto readAt = [&a_subject]( const std::vector<qint64>& a_places )
    { return ReadInPieces( a_subject.m_bytes, a_places, a_subject.m_options ); };
    const qint64 size = a_subject.m_bytes.size();
    return FirstBroken( [&] { return isSame( "pieces", readAt( RandomPlaces( size, a_subject.m_seed ) ) ); },
                        [&] { return isSame( "single bytes", readAt( AllPlaces( size ) ) ); },
                        [&] { return isSame( "the longer road", ReadOnTheLongerRoad( a_subject ) ); },
                        [&] { return isSame( "Next() from a buffer", ReadBuffer( a_subject ) ); },
                        [&] { return isSame( "Next() from a slow device", ReadTrickle( a_subject ) ); },
                        [&] { return isSame( "a used reader", ReadAfterAnotherFile( a_subject ) ); },
                        [&] { return BrokenBooks( a_subject ); } );
}

std::vector<qint64> RandomPlaces( qint64 a_size, unsigned a_seed )
{
    std::minstd_rand random( a_seed + 1 );
    const auto longest = static_cast<unsigned>( 1 + random() % ( random() % 8 == 0 ? 5000 : 40 ) );
    std::vector<qint64> places;
    for ( qint64 place = 0; place < a_size; place += static_cast<qint64>( random() ) % ( longest + 1 ) )
        places.push_back( place );
    return places;
}

std::vector<qint64> AllPlaces( qint64 a_size )
{
    std::vector<qint64> places( static_cast<size_t>( a_size ) );
    std::iota( places.begin(), places.end(), 0 );
    return places;
}

} // namespace PimManager::Contacts::Checks
