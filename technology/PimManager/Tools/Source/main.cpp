#include "Outputs/OutputDevice.h"
#include "Outputs/UnfinishedFile.h"
#include "Program.h"
#include "Terminal/Console.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>

#include <array>
#include <clocale>
#include <csignal>
#include <fcntl.h>
#include <new>
#include <unistd.h>

using namespace PimManager::Tools;

namespace
{

// A standard descriptor that the caller closed would be given to the next file that anyone opens, Qt included. What
// takes its place here fails when it is used.
void HoldStandardDescriptors()
{
    for ( const int descriptor : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO } )
    {
        if ( ::fcntl( descriptor, F_GETFD ) < 0 )
            ::open( "/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY );
    }
}

// Unfinished files are removed on the way here.
ExitStatus Run( const QList<QByteArray>& a_arguments, Console& a_console )
{
    try
    {
        return RunProgram( a_arguments, a_console );
    }
    catch ( const std::bad_alloc& )
    {
        a_console.Tell( QStringLiteral( "there is not enough memory" ) );
        return ExitStatus::Trouble;
    }
}

} // namespace

int main( int argc, char* argv[] )
{
    HoldStandardDescriptors();
    // A reader that goes away early is told by the failing write.
    std::signal( SIGPIPE, SIG_IGN );
    // So is a file that reaches the limit of its size.
    std::signal( SIGXFSZ, SIG_IGN );
    UnfinishedFile::RemoveAllAtSignals();

    // Qt takes its arguments for text in the locale's encoding; ours stay bytes. It also sets the locale, and the
    // system's messages are wanted in ASCII.
    QByteArray name( "pimvcard" );
    std::array<char*, 2> names = { name.data(), nullptr };
    int count = 1;
    const QCoreApplication application( count, names.data() );
    std::setlocale( LC_ALL, "C" );

    QList<QByteArray> arguments;
    for ( int i = 1; i < argc; ++i )
        arguments.append( QByteArray( argv[i] ) );

    OutputDevice out( STDOUT_FILENO );
    OutputDevice err( STDERR_FILENO );
    Console console( out, err, ScreenOf( STDOUT_FILENO ), ScreenOf( STDERR_FILENO ) );
    return static_cast<int>( Run( arguments, console ) );
}
