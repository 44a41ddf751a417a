// pimvcard-measure: parses one file, for tools that watch a process from outside.
//
//   keep FILE [SNAPSHOT]  parses once, keeps the cards, tells their number and the most memory that the process had at
//                         once; ends without deleting the cards. Under massif, the heap with nothing but the cards in
//                         it is written to the file SNAPSHOT.
//   heap FILE             parses once, drops text and parser, and tells the number of the cards and how many bytes they
//                         take on the heap, with what the allocator adds.
//   drop FILE TIMES       parses that many times, each time with a new parser, and deletes the cards.

#include "PimVCard.h"
#include "PimVCardParser.h"
#include "SilentLog.h"

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <memory>
#include <sys/resource.h>
#if __has_include( <valgrind/valgrind.h> )
#include <valgrind/valgrind.h>
#else
#define VALGRIND_MONITOR_COMMAND( command ) static_cast<void>( command )
#endif

using namespace PimManager::vCard;

namespace
{

constexpr int s_kWrongUse = 2;

QByteArray Contents( const char* a_name )
{
    QFile file( QString::fromLocal8Bit( a_name ) );
    if ( file.open( QIODevice::ReadOnly | QIODevice::Unbuffered ) )
        return file.readAll();
    std::fprintf( stderr, "pimvcard-measure: cannot read %s\n", a_name );
    std::exit( s_kWrongUse );
}

long PeakResidentKilobytes()
{
    rusage usage = {};
    getrusage( RUSAGE_SELF, &usage );
    return usage.ru_maxrss;
}

void TakeHeapSnapshot( const char* a_file )
{
    const QByteArray command = QByteArrayLiteral( "snapshot " ) + a_file;
    VALGRIND_MONITOR_COMMAND( command.constData() );
}

int Keep( const char* a_file, const char* a_snapshot )
{
    QByteArray text = Contents( a_file );
    auto parser = std::make_unique<PimVCardParser>( text );
    const QList<PimVCard*>* const cards = parser->ParseVCards();
    std::printf( "%d cards, %ld kilobytes\n", static_cast<int>( cards->size() ), PeakResidentKilobytes() );
    std::fflush( stdout );
    parser.reset();
    text = QByteArray();
    if ( a_snapshot != nullptr )
        TakeHeapSnapshot( a_snapshot );
    std::_Exit( 0 );
}

qint64 HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>( info.uordblks ) + static_cast<qint64>( info.hblkhd );
}

// The first text fills the caches of the thread.
int Heap( const char* a_file )
{
    qDeleteAll( *std::unique_ptr<QList<PimVCard*>>( PimVCardParser( Contents( a_file ) ).ParseVCards() ) );
    const qint64 before = HeapInUse();
    const QList<PimVCard*>* const cards = PimVCardParser( Contents( a_file ) ).ParseVCards();
    std::printf( "%d cards, %lld bytes\n", static_cast<int>( cards->size() ),
                 static_cast<long long>( HeapInUse() - before ) );
    std::fflush( stdout );
    std::_Exit( 0 );
}

int Drop( const char* a_file, int a_times )
{
    const QByteArray text = Contents( a_file );
    int count = 0;
    for ( int i = 0; i < a_times; ++i )
    {
        PimVCardParser parser( text );
        const std::unique_ptr<QList<PimVCard*>> cards( parser.ParseVCards() );
        count += static_cast<int>( cards->size() );
        qDeleteAll( *cards );
    }
    std::printf( "%d cards\n", count );
    return 0;
}

} // namespace

int main( int argc, char* argv[] )
{
    Benchmarks::DropLogMessages();
    if ( argc >= 3 && std::strcmp( argv[1], "keep" ) == 0 )
        return Keep( argv[2], argc > 3 ? argv[3] : nullptr );
    if ( argc == 3 && std::strcmp( argv[1], "heap" ) == 0 )
        return Heap( argv[2] );
    if ( argc == 4 && std::strcmp( argv[1], "drop" ) == 0 )
        return Drop( argv[2], std::atoi( argv[3] ) );
    std::fputs( "usage: pimvcard-measure keep FILE [SNAPSHOT]\n       pimvcard-measure heap FILE\n"
                "       pimvcard-measure drop FILE TIMES\n",
                stderr );
    return s_kWrongUse;
}
