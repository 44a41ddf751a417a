// pimvcard-measure-import: imports, for tools that watch a process from outside.
//
//   keep FILE           imports once and keeps the cards; ends without deleting them.
//   drop FILE TIMES     imports that many times, and deletes each card as it comes.
//   stream FILE COPIES  pushes the file that many times over through one import, in pieces of 64 KB, and deletes each
//                       card as it comes; the file is the only text in memory.
//
// Each tells the number of cards, the bytes that were read, and the most memory that the process had at once.

#include "PimVCardImporter.h"
#include "SilentLog.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/resource.h>

using namespace PimManager::vCardImport;

namespace
{

constexpr int s_kWrongUse = 2;
constexpr int s_kPiece = 64 * 1024;

QByteArray Contents( const char* a_name )
{
    QFile file( QString::fromLocal8Bit( a_name ) );
    if ( file.open( QIODevice::ReadOnly | QIODevice::Unbuffered ) )
        return file.readAll();
    std::fprintf( stderr, "pimvcard-measure-import: cannot read %s\n", a_name );
    std::exit( s_kWrongUse );
}

void Tell( const PimVCardImportAccount& a_account )
{
    rusage usage = {};
    getrusage( RUSAGE_SELF, &usage );
    std::printf( "%lld cards, %lld bytes, %ld kilobytes\n",
                 static_cast<long long>( a_account.m_cardsWhole + a_account.m_cardsInPart ),
                 static_cast<long long>( a_account.m_bytes ), usage.ru_maxrss );
}

bool DropCard( const PimVCardImportedCard& /*a_card*/ )
{
    return true;
}

int Keep( const char* a_file )
{
    const QByteArray text = Contents( a_file );
    const PimVCardImportResult result = PimVCardImporter().Import( text );
    Tell( result.m_account );
    std::fflush( stdout );
    std::_Exit( 0 );
}

int Drop( const char* a_file, int a_times )
{
    const QByteArray text = Contents( a_file );
    PimVCardImporter importer;
    PimVCardImportAccount account;
    for ( int i = 0; i < a_times; ++i )
        account = importer.Import( text, DropCard );
    Tell( account );
    return 0;
}

int Stream( const char* a_file, int a_copies )
{
    const QByteArray text = Contents( a_file );
    const auto size = static_cast<int>( text.size() );
    PimVCardImportOptions options;
    options.m_limits.m_cards = 0;
    PimVCardImporter importer( options );
    importer.SetCardHandler( DropCard );
    for ( int copy = 0; copy < a_copies; ++copy )
    {
        for ( int begin = 0; begin < size; begin += s_kPiece )
        {
            const int length = std::min( s_kPiece, size - begin );
            importer.Feed( QByteArray::fromRawData( text.constData() + begin, length ) );
        }
    }
    Tell( importer.Finish() );
    return 0;
}

} // namespace

int main( int argc, char* argv[] )
{
    PimManager::vCard::Benchmarks::DropLogMessages();
    if ( argc == 3 && std::strcmp( argv[1], "keep" ) == 0 )
        return Keep( argv[2] );
    if ( argc == 4 && std::strcmp( argv[1], "drop" ) == 0 )
        return Drop( argv[2], std::atoi( argv[3] ) );
    if ( argc == 4 && std::strcmp( argv[1], "stream" ) == 0 )
        return Stream( argv[2], std::atoi( argv[3] ) );
    std::fputs( "usage: pimvcard-measure-import keep FILE\n       pimvcard-measure-import drop FILE TIMES\n"
                "       pimvcard-measure-import stream FILE COPIES\n",
                stderr );
    return s_kWrongUse;
}
