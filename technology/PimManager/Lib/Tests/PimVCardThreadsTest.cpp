// Parsers that run concurrently, each on its own thread, have the results and log messages of a single parser.

#include "PimVCardParser.h"
#include "PimVCardTestPhotos.h"
#include "PimVCardTestResults.h"

#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>

namespace PimManager::vCard
{

namespace
{

constexpr int s_kThreads = 8;
constexpr int s_kRounds = 5;

struct BookRow
{
    const char* m_name;
    QByteArray m_text;
    size_t m_cards;
};

QByteArray CardText( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\n" + a_lines + "END:VCARD\r\n";
}

QByteArray GoodCards()
{
    return CardText( "VERSION:3.0\r\nFN:J\xC3\xB6rg\\, junior\r\nitem1.ADR;TYPE=HOME,POSTAL:;;1 Oven Row;Port\r\n" ) +
           CardText( "N;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:M=C3=BC=\r\nller;Ada\r\nTEL;CELL;X=\"a;b\":1\r\n" ) +
           CardText( "NOTE:folded\r\n  here\r\nX-\xC3:not a name\r\n" ) + CardText( "FN:last\r\n" );
}

QByteArray BrokenCards()
{
    return CardText( "FN before:x\r\n" ) + CardText( "TEL;TYPE=\x07:x\r\n" ) +
           CardText( "X;ENCODING=b;ENCODING=QUOTED-PRINTABLE:x\r\n" ) + CardText( "N:\\n\r\n" ) +
           CardText( "FN:kept\r\n" );
}

QByteArray Photos()
{
    QByteArray card;
    for ( const char* photo : { s_kPhotoA, s_kPhotoB, s_kPhotoC } )
        card += QByteArray( "PHOTO;ENCODING=b;TYPE=JPEG:" ) + photo + "\r\n";
    return CardText( card ) + CardText( "FN:x\r\n" + card );
}

const std::vector<BookRow>& Books()
{
    static const std::vector<BookRow> s_books = {
        { "good cards and one refused", GoodCards().repeated( 5 ), 15 },
        { "broken cards", BrokenCards().repeated( 3 ), 3 },
        { "photos", Photos(), 2 },
        { "bare line feeds", GoodCards().replace( "\r\n", "\n" ), 0 },
        { "malformed UTF-8", CardText( "FN:\xFF\xC3\xF0\x9F\r\n" ).repeated( 4 ), 4 },
        { "nothing", QByteArray(), 0 },
    };
    return s_books;
}

/// Keeps a separate list of messages for each thread.
class ThreadLog
{
public:
    ThreadLog() :
        m_former( qInstallMessageHandler( Collect ) )
    {
    }
    ~ThreadLog() { qInstallMessageHandler( m_former ); }
    Q_DISABLE_COPY( ThreadLog )

    /// The messages of this thread since the last call, without the milliseconds.
    static std::vector<std::string> TakeMessages()
    {
        static const QRegularExpression s_time( QStringLiteral( "[0-9]+ ms$" ) );
        std::vector<std::string> texts;
        for ( QString& text : t_messages )
            texts.push_back( text.remove( s_time ).toStdString() );
        t_messages.clear();
        return texts;
    }

private:
    static void Collect( QtMsgType /*a_type*/, const QMessageLogContext& /*a_context*/, const QString& a_text )
    {
        t_messages.append( a_text );
    }

    inline static thread_local QStringList t_messages;
    QtMessageHandler m_former;
};

struct Outcome
{
    std::vector<CardData> m_cards;
    std::vector<std::string> m_log;

    bool operator==( const Outcome& a_other ) const { return m_cards == a_other.m_cards && m_log == a_other.m_log; }
};

Outcome OutcomeOf( const QByteArray& a_text )
{
    PimVCardParser parser( a_text );
    Outcome outcome{ Take( parser.ParseVCards() ).value(), {} };
    outcome.m_log = ThreadLog::TakeMessages();
    return outcome;
}

std::vector<Outcome> OutcomesOfAllBooks()
{
    std::vector<Outcome> outcomes;
    for ( const BookRow& book : Books() )
        outcomes.push_back( OutcomeOf( book.m_text ) );
    return outcomes;
}

// Does the work on all threads, which start at the same time.
void RunOnThreads( const std::function<void( int )>& a_work )
{
    std::atomic<int> waiting = s_kThreads;
    std::vector<std::thread> threads;
    threads.reserve( s_kThreads );
    for ( int i = 0; i < s_kThreads; ++i )
    {
        threads.emplace_back(
            [&, i]
            {
                --waiting;
                while ( waiting > 0 )
                    std::this_thread::yield();
                a_work( i );
            } );
    }
    for ( std::thread& thread : threads )
        thread.join();
}

} // namespace

TEST( ThreadsTest, BooksYieldTheirCards )
{
    const ThreadLog log;
    const std::vector<Outcome> outcomes = OutcomesOfAllBooks();
    for ( size_t i = 0; i < outcomes.size(); ++i )
        EXPECT_EQ( outcomes[i].m_cards.size(), Books()[i].m_cards ) << Books()[i].m_name;
}

TEST( ThreadsTest, ConcurrentParsersHaveTheResultsOfOneParser )
{
    const ThreadLog log;
    const std::vector<Outcome> expected = OutcomesOfAllBooks();
    std::vector<std::vector<int>> differences( s_kThreads, std::vector<int>( Books().size() ) );
    RunOnThreads(
        [&]( int a_thread )
        {
            for ( size_t i = 0; i < s_kRounds * Books().size(); ++i )
            {
                const size_t book = ( static_cast<size_t>( a_thread ) + i ) % Books().size();
                if ( !( OutcomeOf( Books()[book].m_text ) == expected[book] ) )
                    ++differences[static_cast<size_t>( a_thread )][book];
            }
        } );
    for ( size_t thread = 0; thread < s_kThreads; ++thread )
    {
        for ( size_t book = 0; book < Books().size(); ++book )
            EXPECT_EQ( differences[thread][book], 0 ) << "thread " << thread << ", " << Books()[book].m_name;
    }
}

// Cards share names with the thread that parsed them. The names outlive the thread and may be deleted on another one.
TEST( ThreadsTest, CardsOutliveTheThreadThatParsedThem )
{
    const ThreadLog log;
    const QByteArray& text = Books().front().m_text;
    const std::vector<CardData> expected = OutcomeOf( text ).m_cards;
    std::vector<QList<PimVCard*>*> lists( s_kThreads );
    RunOnThreads( [&]( int a_thread )
                  { lists[static_cast<size_t>( a_thread )] = PimVCardParser( text ).ParseVCards(); } );
    RunOnThreads(
        [&]( int a_thread )
        {
            const QByteArray own = text;
            PimVCardParser parser( own );
            delete parser.ParseVCard();
            std::optional<std::vector<CardData>> cards = Take( lists[static_cast<size_t>( a_thread )] );
            EXPECT_EQ( cards.value(), expected ) << "thread " << a_thread;
        } );
}

// One thread continues to parse, and so to use the names that it keeps, while other threads delete its cards.
TEST( ThreadsTest, CardsMayBeDeletedOnOtherThreadsWhileTheirOwnParses )
{
    const ThreadLog log;
    const QByteArray& text = Books().front().m_text;
    const std::vector<CardData> expected = OutcomeOf( text ).m_cards;
    for ( int round = 0; round < s_kRounds; ++round )
    {
        std::vector<std::thread> threads;
        for ( int i = 0; i < s_kThreads; ++i )
        {
            QList<PimVCard*>* const cards = PimVCardParser( text ).ParseVCards();
            threads.emplace_back( [cards, &expected] { EXPECT_EQ( Take( cards ).value(), expected ); } );
        }
        EXPECT_EQ( OutcomeOf( text ).m_cards, expected ) << "round " << round;
        for ( std::thread& thread : threads )
            thread.join();
    }
}

} // namespace PimManager::vCard
