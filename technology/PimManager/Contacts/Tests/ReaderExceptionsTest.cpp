// Handlers that throw, and memory that runs out: the exception leaves the call, what was delivered is right, and the
// reader works again after Reset().
//
// Memory runs out where operator new is called. What Qt's containers take from malloc() is not covered.

#include "Checks/Reading.h"
#include "Checks/Transcript.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

// The number of allocations until one fails; 0 for never.
long s_untilFailure = 0;
bool s_hasFailed = false;

bool IsToFail()
{
    if ( s_untilFailure == 0 || --s_untilFailure != 0 )
        return false;
    s_hasFailed = true;
    return true;
}

} // namespace

void* operator new( std::size_t a_size )
{
    void* memory = IsToFail() ? nullptr : std::malloc( a_size == 0 ? 1 : a_size );
    if ( !memory )
        throw std::bad_alloc();
    return memory;
}

void operator delete( void* a_memory ) noexcept
{
    std::free( a_memory );
}

void operator delete( void* a_memory, std::size_t ) noexcept
{
    std::free( a_memory );
}

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

/// While it exists, one allocation fails.
class FailingAllocation
{
public:
    explicit FailingAllocation( long a_which )
    {
        s_hasFailed = false;
        s_untilFailure = a_which;
    }
    ~FailingAllocation() { s_untilFailure = 0; }
    Q_DISABLE_COPY( FailingAllocation )
};

const QByteArray s_kText = "text outside\r\n"
                           "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Ada\r\nNOTE:one\r\n two\r\n\r\nTEL;;HOME:1\r\nEND:VCARD\r\n"
                           "BEGIN:VCARD\r\nVERSION:3.0\r\nN:M\xFCller\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:Agent\r\n"
                           "END:VCARD\r\n***\r\nEND:VCARD\r\n"
                           "BEGIN:VCARD\r\nVERSION:4.0\r\nNOTE;ENCODING=QUOTED-PRINTABLE:a=\r\nb\r\n"
                           "PHOTO;ENCODING=b:\r\nAAAA\r\nAAAA\r\n"
                           "BEGIN:VCARD\r\nFN:Bea\r\nEND:VCARD\r\nmore text\r\nFN:Cleo\r\nEND:VCARD\r\n";

struct Row
{
    const char* m_name;
    QByteArray m_text;
    /// The size of the pieces.
    qint64 m_piece;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

QByteArray InUtf16( const QByteArray& a_text )
{
    QByteArray bytes = "\xFF\xFE";
    for ( const char byte : a_text )
        bytes += QByteArray( 1, byte ) + '\0';
    return bytes;
}

/// A reader whose handlers take no memory.
class Recorder
{
public:
    Recorder()
    {
        m_cards.reserve( 100 );
        m_reader.SetCardHandler(
            [this]( const PimContactCard& a_card )
            {
                m_cards.push_back( a_card );
                Call( m_cardCalls );
                return true;
            } );
        m_reader.SetDiagnosticHandler( [this]( const PimContactDiagnostic& ) { Call( m_diagnosticCalls ); } );
        m_reader.SetExtentHandler( [this]( const PimContactExtent& ) { Call( m_extentCalls ); } );
    }

    PimContactReader& Reader() { return m_reader; }
    const std::vector<PimContactCard>& Cards() const { return m_cards; }

    /// Feeds everything and finishes. What is thrown leaves it.
    void Read( const Row& a_row )
    {
        m_isToStop = false;
        for ( qint64 begin = 0; begin < a_row.m_text.size() && !m_isToStop; begin += a_row.m_piece )
        {
            const qint64 size = std::min<qint64>( a_row.m_piece, a_row.m_text.size() - begin );
            m_isToStop = !m_reader.Feed( a_row.m_text.constData() + begin, size );
        }
        m_reader.Finish();
    }

    // Which call of a handler throws, from 1; 0 for none.
    long m_cardCalls = 0;
    long m_diagnosticCalls = 0;
    long m_extentCalls = 0;

private:
    static void Call( long& a_untilThrow )
    {
        if ( a_untilThrow != 0 && --a_untilThrow == 0 )
            throw std::runtime_error( "handler" );
    }

    PimContactReader m_reader;
    std::vector<PimContactCard> m_cards;
    bool m_isToStop = false;
};

void ExpectPrefix( const std::vector<PimContactCard>& a_cards, const std::vector<PimContactCard>& a_expected )
{
    ASSERT_LE( a_cards.size(), a_expected.size() );
    for ( size_t i = 0; i < a_cards.size(); ++i )
        EXPECT_EQ( TranscriptOf( a_cards[i] ).toStdString(), TranscriptOf( a_expected[i] ).toStdString() );
}

void ExpectNothingIsAccepted( PimContactReader& a_reader )
{
    QBuffer device;
    device.open( QIODevice::ReadOnly );
    PimContactCard card;
    EXPECT_TRUE( a_reader.NeedsReset() );
    EXPECT_FALSE( a_reader.Feed( "BEGIN:VCARD\r\n" ) );
    EXPECT_FALSE( a_reader.Finish() );
    EXPECT_EQ( a_reader.Next( device, card ), PimContactNext::Failed );
    EXPECT_TRUE( card.IsNull() );
}

void ExpectRightAgain( PimContactReader& a_reader, const QByteArray& a_text )
{
    EXPECT_TRUE( a_reader.Reset() );
    EXPECT_FALSE( a_reader.NeedsReset() );
    EXPECT_EQ( TranscriptOf( ReadInPieces( a_reader, a_text, {} ) ).toStdString(),
               TranscriptOf( ReadWhole( a_text ) ).toStdString() );
}

void ExpectStateAfterException( Recorder& a_recorder, const QByteArray& a_text )
{
    const PimContactReport report = a_recorder.Reader().Report();
    ExpectPrefix( a_recorder.Cards(), ReadWhole( a_text ).m_cards );
    EXPECT_EQ( report.CardsWhole() + report.CardsInPart(), static_cast<qint64>( a_recorder.Cards().size() ) );
    ExpectNothingIsAccepted( a_recorder.Reader() );
    ExpectRightAgain( a_recorder.Reader(), a_text );
}

class ReaderExceptionsTest : public testing::TestWithParam<Row>
{
protected:
    // Makes one call of a handler after the other throw, until there are no more calls. \return how many there were.
    static long ThrowAtEachCall( long Recorder::*a_call )
    {
        for ( long call = 1;; ++call )
        {
            Recorder recorder;
            recorder.*a_call = call;
            try
            {
                recorder.Read( GetParam() );
                return call - 1;
            }
            catch ( const std::runtime_error& )
            {
                SCOPED_TRACE( call );
                recorder.*a_call = 0;
                ExpectStateAfterException( recorder, GetParam().m_text );
            }
        }
    }
};

TEST_P( ReaderExceptionsTest, ThrowingCardHandlerLeavesTheCall )
{
    EXPECT_EQ( ThrowAtEachCall( &Recorder::m_cardCalls ), 5 );
}

TEST_P( ReaderExceptionsTest, ThrowingDiagnosticHandlerLeavesTheCall )
{
    EXPECT_GT( ThrowAtEachCall( &Recorder::m_diagnosticCalls ), 4 );
}

TEST_P( ReaderExceptionsTest, ThrowingExtentHandlerLeavesTheCall )
{
    EXPECT_GT( ThrowAtEachCall( &Recorder::m_extentCalls ), 20 );
}

// Makes one allocation after the other fail, until there are no more. \return how many led to an exception.
template <typename Attempt>
long FailEachAllocation( const QByteArray& a_text )
{
    long failures = 0;
    for ( long which = 1; !testing::Test::HasFailure(); ++which )
    {
        SCOPED_TRACE( which );
        Attempt attempt( a_text );
        bool isThrown = false;
        try
        {
            const FailingAllocation failing( which );
            attempt.Read();
        }
        catch ( const std::bad_alloc& )
        {
            isThrown = true;
        }
        if ( isThrown )
            attempt.ExpectStateAfterException();
        else
            attempt.ExpectResult();
        if ( !s_hasFailed )
            break;
        failures += isThrown ? 1 : 0;
    }
    return failures;
}

TEST_P( ReaderExceptionsTest, FailedAllocationLeavesTheCall )
{
    class Attempt
    {
    public:
        explicit Attempt( const QByteArray& ) {}
        void Read() { m_recorder.Read( GetParam() ); }
        void ExpectStateAfterException() { Contacts::ExpectStateAfterException( m_recorder, GetParam().m_text ); }
        // The standard library does without memory for sorting.
        void ExpectResult()
        {
            EXPECT_EQ( TranscriptOf( m_recorder.Reader().Report() ).toStdString(),
                       TranscriptOf( ReadWhole( GetParam().m_text ).m_report ).toStdString() );
            EXPECT_EQ( m_recorder.Cards().size(), 5U );
        }

    private:
        Recorder m_recorder;
    };
    EXPECT_GT( FailEachAllocation<Attempt>( GetParam().m_text ), 20 );
}

TEST_P( ReaderExceptionsTest, FailedAllocationLeavesNext )
{
    class Attempt
    {
    public:
        explicit Attempt( const QByteArray& a_text )
        {
            m_cards.reserve( 100 );
            m_device.setData( a_text );
            m_device.open( QIODevice::ReadOnly | QIODevice::Unbuffered );
        }
        void Read()
        {
            PimContactCard card;
            while ( m_reader.Next( m_device, card ) == PimContactNext::Card )
                m_cards.push_back( card );
        }
        void ExpectStateAfterException()
        {
            ExpectPrefix( m_cards, ReadWhole( GetParam().m_text ).m_cards );
            ExpectNothingIsAccepted( m_reader );
            ExpectRightAgain( m_reader, GetParam().m_text );
        }
        void ExpectResult()
        {
            EXPECT_EQ( TranscriptOf( m_reader.Report() ).toStdString(),
                       TranscriptOf( ReadWhole( GetParam().m_text ).m_report ).toStdString() );
            EXPECT_EQ( m_cards.size(), 5U );
        }

    private:
        QBuffer m_device;
        PimContactReader m_reader;
        std::vector<PimContactCard> m_cards;
    };
    EXPECT_GT( FailEachAllocation<Attempt>( GetParam().m_text ), 10 );
}

INSTANTIATE_TEST_SUITE_P( Texts, ReaderExceptionsTest,
                          testing::Values( Row{ "Whole", s_kText, 100000 }, Row{ "Pieces", s_kText, 7 },
                                           Row{ "LineFeeds", QByteArray( s_kText ).replace( "\r\n", "\n" ), 40 },
                                           Row{ "Utf16", InUtf16( QByteArray( s_kText ).replace( "\xFC", "u" ) ),
                                                33 } ),
                          []( const testing::TestParamInfo<Row>& a_info )
                          { return std::string( a_info.param.m_name ); } );

} // namespace

} // namespace PimManager::Contacts
