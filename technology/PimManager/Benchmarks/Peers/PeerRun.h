/// \file
/// The common part of the programs that read or write a book with one of the compared libraries.

#pragma once

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <sys/resource.h>

namespace PimManager::Peers
{

inline double ProcessorSeconds()
{
    timespec time = {};
    clock_gettime( CLOCK_PROCESS_CPUTIME_ID, &time );
    return static_cast<double>( time.tv_sec ) + static_cast<double>( time.tv_nsec ) / 1e9;
}

/// The main function of a peer: `PROGRAM FILE PASSES`. For each pass it prints the number of cards with a name, the
/// seconds of processor time, and the most memory of the process so far.
/// \param a_read  returns an object with all cards of a text, or the text that was written for it. This is the work
///                that is measured.
/// \param a_count returns the number of cards in it that have a FN property.
template <typename Text, typename Read, typename Count>
int Run( int a_argc, char* a_argv[], Read a_read, Count a_count )
{
    if ( a_argc != 3 )
        return 2;
    std::ifstream file( a_argv[1], std::ios::binary | std::ios::ate );
    Text text( static_cast<int>( file.tellg() ), '\0' );
    file.seekg( 0 );
    if ( !file.read( text.data(), static_cast<std::streamsize>( text.size() ) ) )
        return 2;
    for ( int pass = std::atoi( a_argv[2] ); pass > 0; --pass )
    {
        const double begin = ProcessorSeconds();
        const auto book = a_read( text );
        const double seconds = ProcessorSeconds() - begin;
        rusage usage = {};
        getrusage( RUSAGE_SELF, &usage );
        std::printf( "%d cards, %.6f seconds, %ld kilobytes\n", a_count( book ), seconds, usage.ru_maxrss );
    }
    return 0;
}

} // namespace PimManager::Peers
