// Writes what the reader returns for a file, as in the reference results.

#include "Checks/Transcript.h"

#include <QFile>
#include <QString>

#include <cstdio>

int main( int argc, char* argv[] )
{
    QFile file( QString::fromLocal8Bit( argc == 2 ? argv[1] : "" ) );
    if ( !file.open( QIODevice::ReadOnly ) )
    {
        std::fputs( "usage: pimmanager-contacts-dump FILE\n", stderr );
        return 2;
    }
    using namespace PimManager::Contacts::Checks;
    const QByteArray text = TranscriptOf( ReadWhole( file.readAll() ) );
    const auto size = static_cast<size_t>( text.size() );
    return std::fwrite( text.constData(), 1, size, stdout ) == size ? 0 : 1;
}
