// Runs the linked fuzz target with each file on the command line and with each file in the folders there. The exit
// status is 0 if every property held, and 2 if there was nothing to run. A broken property aborts.

#include "FuzzTarget.h"
#include "ReplayInputs.h"

#include <QFile>

#include <cstdio>
#include <utility>
#include <vector>

using namespace PimManager::vCard::Fuzz;

namespace
{

constexpr int s_kNothingTried = 2;

bool TryFile( const QString& a_path )
{
    std::printf( "%s\n", QFile::encodeName( a_path ).constData() );
    std::fflush( stdout );
    QFile file( a_path );
    if ( !file.open( QIODevice::ReadOnly ) )
        return false;
    const QByteArray bytes = file.readAll();
    // Memory of exactly that size, so that the sanitizer finds reads beyond the end.
    const std::vector<std::uint8_t> input( bytes.cbegin(), bytes.cend() );
    LLVMFuzzerTestOneInput( input.data(), input.size() );
    return true;
}

} // namespace

int main( int argc, char* argv[] )
{
    QStringList paths;
    for ( int i = 1; i < argc; ++i )
        paths.append( QFile::decodeName( argv[i] ) );
    ReplayInputs inputs = FindReplayInputs( paths );
    for ( const QString& file : std::as_const( inputs.m_files ) )
    {
        if ( !TryFile( file ) )
            inputs.m_error = QStringLiteral( "cannot read " ) + file;
    }
    if ( !inputs.m_error.isEmpty() )
    {
        std::fprintf( stderr, "%s: %s\n", argv[0], QFile::encodeName( inputs.m_error ).constData() );
        return s_kNothingTried;
    }
    std::printf( "%d inputs tried\n", static_cast<int>( inputs.m_files.size() ) );
    return 0;
}
