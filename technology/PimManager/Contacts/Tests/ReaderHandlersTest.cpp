// What handlers may do, how reading is stopped, and what Next() says about devices.

#include "Checks/Reading.h"
#include "Checks/Transcript.h"
#include "Checks/TrickleDevice.h"

#include <QBuffer>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

QByteArray CardText( const QByteArray& a_name )
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + a_name + "\r\nEND:VCARD\r\n";
}

const QByteArray s_kBook = CardText( "Ada" ) + CardText( "Bea" ) + CardText( "Cleo" );

QByteArray NameOfCard( const PimContactCard& a_card )
{
    const auto isName = []( const PimContactLine& a_line ) { return a_line.Name() == "FN"; };
    for ( const PimContactLine& line : a_card )
    {
        if ( isName( line ) )
            return line.Value() + ';';
    }
    return "?;";
}

/// Takes the names of cards.
class Names
{
public:
    /// \param a_most the handler stops the reading after so many cards.
    PimContactReader::CardHandler Taker( int a_most = 1000 )
    {
        return [this, a_most]( const PimContactCard& a_card )
        {
            m_names += NameOfCard( a_card ).toStdString();
            return ++m_count < a_most;
        };
    }

    std::string m_names;
    int m_count = 0;
};

// Next() up to the first return that is not Card. \return the names, and what came then.
std::string NamesByNext( PimContactReader& a_reader, QIODevice& a_device )
{
    std::string names;
    PimContactCard card;
    PimContactNext next = a_reader.Next( a_device, card );
    for ( ; next == PimContactNext::Card; next = a_reader.Next( a_device, card ) )
        names += NameOfCard( card ).toStdString();
    EXPECT_TRUE( card.IsNull() );
    return names + ( next == PimContactNext::End ? "end" : next == PimContactNext::Waiting ? "waiting" : "failed" );
}

TEST( ReaderHandlersTest, EmptyFileGivesNothing )
{
    PimContactReader reader;
    EXPECT_TRUE( reader.Feed( nullptr, 0 ) );
    EXPECT_TRUE( reader.Feed( QByteArray() ) );
    EXPECT_TRUE( reader.Finish() );
    EXPECT_EQ( reader.Report().FileKind(), PimContactFileKind::Empty );
    EXPECT_EQ( TranscriptOf( reader.Report() ).toStdString(), TranscriptOf( PimContactReport() ).toStdString() );
}

TEST( ReaderHandlersTest, FinishedReaderWantsNothing )
{
    PimContactReader reader;
    Names names;
    reader.SetCardHandler( names.Taker() );
    EXPECT_TRUE( reader.Feed( s_kBook ) );
    EXPECT_TRUE( reader.Finish() );
    EXPECT_FALSE( reader.Feed( s_kBook ) );
    EXPECT_TRUE( reader.Finish() );
    EXPECT_EQ( names.m_names, "Ada;Bea;Cleo;" );
    EXPECT_EQ( reader.Report().Bytes(), s_kBook.size() );
}

TEST( ReaderHandlersTest, CardsAreCountedWithoutHandler )
{
    PimContactReader reader;
    reader.Feed( s_kBook );
    reader.Finish();
    EXPECT_EQ( reader.Report().CardsWhole(), 3 );
}

// What a handler gets when it calls the reader that calls it.
std::string CallFromInside( PimContactReader& a_reader )
{
    QBuffer device;
    device.setData( CardText( "Dora" ) );
    device.open( QIODevice::ReadOnly );
    PimContactCard card;
    std::string answers;
    answers += a_reader.Feed( CardText( "Eve" ) ) ? "fed " : "";
    answers += a_reader.Finish() ? "finished " : "";
    answers += a_reader.Next( device, card ) == PimContactNext::Failed ? "" : "next ";
    answers += card.IsNull() ? "" : "card ";
    answers += a_reader.Reset() ? "reset " : "";
    answers += a_reader.NeedsReset() ? "needs-reset " : "";
    return answers;
}

TEST( ReaderHandlersTest, CallsFromInsideHandlersDoNothing )
{
    PimContactReader reader;
    std::string answers;
    std::string names;
    int calls = 0;
    reader.SetCardHandler(
        [&]( const PimContactCard& a_card )
        {
            ++calls;
            answers += CallFromInside( reader );
            names += NameOfCard( a_card ).toStdString();
            return true;
        } );
    reader.SetDiagnosticHandler(
        [&]( const PimContactDiagnostic& )
        {
            ++calls;
            answers += CallFromInside( reader );
        } );
    reader.SetExtentHandler(
        [&]( const PimContactExtent& )
        {
            ++calls;
            answers += CallFromInside( reader );
        } );
    const QByteArray text = "outside\n" + s_kBook + "more";
    reader.Feed( text );
    EXPECT_TRUE( reader.Finish() );
    EXPECT_EQ( answers, "" );
    EXPECT_EQ( names, "Ada;Bea;Cleo;" );
    EXPECT_GT( calls, 15 );
    EXPECT_EQ( TranscriptOf( reader.Report() ).toStdString(),
               TranscriptOf( ReadWhole( text ).m_report ).toStdString() );
}

TEST( ReaderHandlersTest, CallsFromInsideHandlersOfNextDoNothing )
{
    PimContactReader reader;
    std::string answers;
    int calls = 0;
    reader.SetExtentHandler(
        [&]( const PimContactExtent& )
        {
            ++calls;
            answers += CallFromInside( reader );
        } );
    QBuffer device;
    device.setData( s_kBook );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    EXPECT_EQ( NamesByNext( reader, device ), "Ada;Bea;Cleo;end" );
    EXPECT_EQ( answers, "" );
    EXPECT_GT( calls, 10 );
}

TEST( ReaderHandlersTest, ReportInsideCardHandlerCountsThatCard )
{
    PimContactReader reader;
    std::vector<PimContactReport> reports;
    reader.SetCardHandler(
        [&]( const PimContactCard& a_card )
        {
            reports.push_back( reader.Report() );
            EXPECT_EQ( reader.Report().Bytes(), a_card.Offset() + a_card.Bytes().size() );
            return true;
        } );
    reader.Feed( s_kBook );
    reader.Finish();
    ASSERT_EQ( reports.size(), 3U );
    for ( size_t i = 0; i < reports.size(); ++i )
    {
        EXPECT_EQ( reports[i].CardsWhole(), static_cast<qint64>( i ) + 1 );
        EXPECT_EQ( reports[i].CardsOf( PimContactVersion::V30 ), static_cast<qint64>( i ) + 1 );
        EXPECT_EQ( reports[i].Extents( PimContactExtentKind::Line ), 2 * static_cast<qint64>( i ) + 2 );
    }
}

TEST( ReaderHandlersTest, ReplacedHandlerReceivesTheRest )
{
    PimContactReader reader;
    Names first;
    Names second;
    reader.SetCardHandler( first.Taker() );
    reader.Feed( s_kBook + CardText( "Dora" ) );
    reader.SetCardHandler( second.Taker() );
    reader.Feed( CardText( "Eve" ) );
    reader.Finish();
    EXPECT_EQ( first.m_names + second.m_names, "Ada;Bea;Cleo;Dora;Eve;" );
}

// The text after the stop is of all kinds, so that nothing of it may be reported.
const QByteArray s_kAfterTheStop = "NOTE:text outside\nBEGIN:VCARD\nFN:Dora\n***\n";

struct StopRow
{
    const char* m_name;
    int m_most;
    qint64 m_piece;
};

std::ostream& operator<<( std::ostream& a_stream, const StopRow& a_row )
{
    return a_stream << a_row.m_name;
}

class ReaderStopTest : public testing::TestWithParam<StopRow>
{
};

TEST_P( ReaderStopTest, FalseOfTheCardHandlerStops )
{
    const QByteArray text = s_kBook + s_kAfterTheStop;
    PimContactReader reader;
    Names names;
    std::vector<PimContactExtent> extents;
    reader.SetCardHandler( names.Taker( GetParam().m_most ) );
    reader.SetExtentHandler( [&]( const PimContactExtent& a_extent ) { extents.push_back( a_extent ); } );
    for ( qint64 begin = 0; begin < text.size(); begin += GetParam().m_piece )
        reader.Feed( text.constData() + begin, std::min<qint64>( GetParam().m_piece, text.size() - begin ) );
    EXPECT_FALSE( reader.Feed( text ) );
    EXPECT_FALSE( reader.Finish() );
    EXPECT_FALSE( reader.Finish() );

    const PimContactReport report = reader.Report();
    EXPECT_EQ( names.m_names, std::string( "Ada;Bea;Cleo;" ).substr( 0, GetParam().m_most == 1 ? 4 : 8 ) );
    EXPECT_TRUE( report.IsStopped() );
    EXPECT_FALSE( report.IsComplete() );
    EXPECT_EQ( report.CardsWhole(), GetParam().m_most );
    EXPECT_EQ( report.Cards(), GetParam().m_most );
    EXPECT_EQ( report.Bytes(), CardText( "Ada" ).size() * GetParam().m_most );
    EXPECT_TRUE( report.Diagnostics().isEmpty() );
    EXPECT_EQ( report.LineEnds( PimContactLineEnd::Lf ), 0 );
    ASSERT_FALSE( extents.empty() );
    EXPECT_EQ( extents.back().Offset() + extents.back().Length(), report.Bytes() );
    EXPECT_FALSE( reader.NeedsReset() );
}

INSTANTIATE_TEST_SUITE_P( Rows, ReaderStopTest,
                          testing::Values( StopRow{ "FirstCard", 1, 100000 }, StopRow{ "SecondCard", 2, 100000 },
                                           StopRow{ "FirstCardInPieces", 1, 3 }, StopRow{ "SecondCardInBytes", 2, 1 } ),
                          []( const testing::TestParamInfo<StopRow>& a_info )
                          { return std::string( a_info.param.m_name ); } );

TEST( ReaderHandlersTest, StopInFinishIsAStop )
{
    PimContactReader reader;
    Names names;
    reader.SetCardHandler( names.Taker( 1 ) );
    reader.Feed( "BEGIN:VCARD\r\nFN:Ada" );
    EXPECT_FALSE( reader.Finish() );
    EXPECT_EQ( names.m_names, "Ada;" );
    EXPECT_TRUE( reader.Report().IsStopped() );
}

TEST( ReaderHandlersTest, StoppedReaderReadsAgainAfterReset )
{
    PimContactReader reader;
    Names stopped;
    reader.SetCardHandler( stopped.Taker( 1 ) );
    reader.Feed( s_kBook );
    Names names;
    reader.SetCardHandler( names.Taker() );
    EXPECT_TRUE( reader.Reset() );
    EXPECT_TRUE( reader.Feed( s_kBook ) );
    EXPECT_TRUE( reader.Finish() );
    EXPECT_EQ( names.m_names, "Ada;Bea;Cleo;" );
    EXPECT_FALSE( reader.Report().IsStopped() );
}

TEST( ReaderHandlersTest, RefusedKindWantsNothingMore )
{
    PimContactReader reader;
    const QByteArray archive = QByteArray( "\x1F\x8B\x08\x00", 4 ) + QByteArray( 60, '\1' );
    EXPECT_FALSE( reader.Feed( archive ) );
    EXPECT_TRUE( reader.Finish() );
    EXPECT_EQ( reader.Report().FileKind(), PimContactFileKind::Compressed );
    EXPECT_EQ( reader.Report().Bytes( PimContactExtentKind::Refused ), archive.size() );
    EXPECT_FALSE( reader.Report().IsComplete() );
}

TEST( ReaderNextTest, CardHandlerIsNotCalled )
{
    PimContactReader reader;
    Names names;
    reader.SetCardHandler( names.Taker( 1 ) );
    QBuffer device;
    device.setData( s_kBook );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    EXPECT_EQ( NamesByNext( reader, device ), "Ada;Bea;Cleo;end" );
    EXPECT_EQ( names.m_count, 0 );
}

TEST( ReaderNextTest, ReadingBeginsAtTheCurrentPosition )
{
    QBuffer device;
    device.setData( "BEGIN:VCARD\r\n" + s_kBook );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    device.seek( 13 );
    PimContactReader reader;
    EXPECT_EQ( NamesByNext( reader, device ), "Ada;Bea;Cleo;end" );
    EXPECT_EQ( reader.Report().CardsWhole(), 3 );
}

TEST( ReaderNextTest, EndIsReturnedEveryTime )
{
    QBuffer device;
    device.setData( s_kBook );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    PimContactReader reader;
    EXPECT_EQ( NamesByNext( reader, device ), "Ada;Bea;Cleo;end" );
    EXPECT_EQ( NamesByNext( reader, device ), "end" );
    device.close();
    EXPECT_EQ( NamesByNext( reader, device ), "end" );
    EXPECT_FALSE( reader.Feed( s_kBook ) );
    EXPECT_TRUE( reader.Finish() );
}

TEST( ReaderNextTest, EmptyDeviceIsAtItsEnd )
{
    QBuffer device;
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    PimContactReader reader;
    EXPECT_EQ( NamesByNext( reader, device ), "end" );
    EXPECT_EQ( reader.Report().FileKind(), PimContactFileKind::Empty );
}

TEST( ReaderNextTest, DeviceThatIsNotOpenFails )
{
    QBuffer device;
    PimContactReader reader;
    EXPECT_EQ( NamesByNext( reader, device ), "failed" );
    EXPECT_EQ( NamesByNext( reader, device ), "failed" );
    EXPECT_FALSE( reader.Report().ErrorText().isEmpty() );
    EXPECT_TRUE( reader.Reset() );
    device.setData( s_kBook );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    EXPECT_EQ( NamesByNext( reader, device ), "Ada;Bea;Cleo;end" );
}

TEST( ReaderNextTest, SequentialDeviceWithoutDataIsWaitedFor )
{
    TrickleDevice device( s_kBook, 3, 1 );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    PimContactReader reader;
    EXPECT_EQ( NamesByNext( reader, device ), "waiting" );
    EXPECT_EQ( NamesByNext( reader, device ), "waiting" );
    QByteArray names;
    while ( device.Arrive() )
        names += QByteArray::fromStdString( NamesByNext( reader, device ) );
    EXPECT_EQ( names.replace( "waiting", "" ).toStdString(), "Ada;Bea;Cleo;end" );
    EXPECT_EQ( reader.Report().CardsWhole(), 3 );
}

TEST( ReaderNextTest, ClosedSequentialDeviceIsAtItsEnd )
{
    TrickleDevice device( s_kBook, 3, 100000 );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    PimContactReader reader;
    device.Arrive();
    std::string names;
    for ( int i = 0; i < 200; ++i )
        names += NamesByNext( reader, device );
    device.close();
    names += NamesByNext( reader, device );
    EXPECT_EQ( names.substr( names.size() - 3 ), "end" );
    EXPECT_EQ( reader.Report().CardsWhole(), 3 );
    EXPECT_TRUE( reader.Report().IsComplete() );
}

/// Returns some bytes and then fails.
class FailingDevice : public QIODevice
{
public:
    FailingDevice( const QByteArray& a_bytes, bool a_isSequential ) :
        m_bytes( a_bytes ),
        m_isSequential( a_isSequential )
    {
        open( QIODevice::ReadOnly | QIODevice::Unbuffered );
    }

    bool isSequential() const override { return m_isSequential; }
    qint64 size() const override { return 1000000; }
    bool atEnd() const override { return false; }
    qint64 bytesAvailable() const override { return 1000; }

protected:
    qint64 readData( char* a_bytes, qint64 a_size ) override
    {
        if ( m_bytes.isEmpty() )
        {
            setErrorString( QStringLiteral( "the cable is out" ) );
            return -1;
        }
        const auto size = static_cast<int>( std::min<qint64>( a_size, m_bytes.size() ) );
        std::copy_n( m_bytes.constData(), size, a_bytes );
        m_bytes.remove( 0, size );
        return size;
    }
    qint64 writeData( const char*, qint64 ) override { return -1; }

private:
    QByteArray m_bytes;
    bool m_isSequential;
};

class ReaderFailingDeviceTest : public testing::TestWithParam<bool>
{
};

TEST_P( ReaderFailingDeviceTest, CardsBeforeTheFailureAreReturned )
{
    FailingDevice device( s_kBook + "BEGIN:VCARD\r\nFN:Dora\r\n", GetParam() );
    PimContactReader reader;
    const std::string names = NamesByNext( reader, device );
    EXPECT_EQ( names.substr( 0, 13 ), "Ada;Bea;Cleo;" );
    EXPECT_EQ( names.substr( names.size() - 6 ), "failed" );
    EXPECT_EQ( NamesByNext( reader, device ), "failed" );
    EXPECT_EQ( reader.Report().ErrorText().toStdString(), "the cable is out" );
    EXPECT_FALSE( reader.Report().IsComplete() );
}

INSTANTIATE_TEST_SUITE_P( Devices, ReaderFailingDeviceTest, testing::Bool(),
                          []( const testing::TestParamInfo<bool>& a_info )
                          { return std::string( a_info.param ? "Sequential" : "RandomAccess" ); } );

} // namespace

} // namespace PimManager::Contacts
