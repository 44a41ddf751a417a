// Writes what import gives for a file, as the reference results hold it.

#include "PimVCardImportDump.h"

#include <QFile>

#include <cstdio>

int main( int argc, char* argv[] )
{
    QFile file( QString::fromLocal8Bit( argc == 2 ? argv[1] : "" ) );
    if ( !file.open( QIODevice::ReadOnly ) )
    {
        std::fputs( "usage: pimmanager-vcardimport-dump FILE\n", stderr );
        return 2;
    }
    using namespace PimManager::vCardImport;
    const QByteArray text = DumpOf( PimVCardImporter().Import( file.readAll() ) );
    return std::fwrite( text.constData(), 1, static_cast<size_t>( text.size() ), stdout ) ==
                   static_cast<size_t>( text.size() )
               ? 0
               : 1;
}
