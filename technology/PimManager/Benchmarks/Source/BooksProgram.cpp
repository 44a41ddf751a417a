// pimvcard-books: writes a generated text to standard output.

#include "BookGenerator.h"
#include "HostileShapes.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <cstdio>

using namespace PimManager::vCard::MadeTexts;

namespace
{

constexpr int s_kWrongUse = 2;

int Usage()
{
    std::fputs( "usage: pimvcard-books book KIND CARDS     a phone book\n"
                "       pimvcard-books card                one card of 91 bytes\n"
                "       pimvcard-books hostile NAME BYTES  a hostile text, about that long\n"
                "       pimvcard-books names               the names of the hostile texts\n"
                "KIND is one of:",
                stderr );
    const QList<BookKind> kinds = AllBookKinds();
    for ( const BookKind kind : kinds )
        std::fprintf( stderr, " %s", NameOf( kind ).constData() );
    std::fputs( "\n", stderr );
    return s_kWrongUse;
}

int Write( const QByteArray& a_text )
{
    const auto length = static_cast<size_t>( a_text.size() );
    const bool isWritten = std::fwrite( a_text.constData(), 1, length, stdout ) == length;
    return isWritten && std::fflush( stdout ) == 0 ? 0 : 1;
}

int WriteBook( const QByteArray& a_kind, int a_cards )
{
    const QList<BookKind> kinds = AllBookKinds();
    const auto found =
        std::find_if( kinds.begin(), kinds.end(), [&]( BookKind a_one ) { return NameOf( a_one ) == a_kind; } );
    return found == kinds.end() ? Usage() : Write( BookGenerator().Book( *found, a_cards ) );
}

int WriteHostile( const QByteArray& a_name, int a_bytes )
{
    const QList<HostileShape> shapes = HostileShapes();
    const auto found = std::find_if( shapes.begin(), shapes.end(),
                                     [&]( const HostileShape& a_shape ) { return a_shape.m_name == a_name; } );
    return found == shapes.end() ? Usage() : Write( found->TextOfLength( a_bytes ) );
}

int WriteNames()
{
    QByteArray names;
    const QList<HostileShape> shapes = HostileShapes();
    for ( const HostileShape& shape : shapes )
        names += shape.m_name + '\n';
    return Write( names );
}

} // namespace

int main( int argc, char* argv[] )
{
    QList<QByteArray> arguments;
    for ( int i = 1; i < argc; ++i )
        arguments.append( QByteArray( argv[i] ) );
    const QByteArray command = arguments.value( 0 );
    const int size = arguments.value( 2 ).toInt();
    if ( command == "book" && size > 0 )
        return WriteBook( arguments.value( 1 ), size );
    if ( command == "hostile" && size > 0 )
        return WriteHostile( arguments.value( 1 ), size );
    if ( command == "card" )
        return Write( SmallCard() );
    return command == "names" ? WriteNames() : Usage();
}
