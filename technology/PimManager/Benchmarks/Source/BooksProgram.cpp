// pimvcard-books: writes a generated text to standard output.

#include "BookGenerator.h"
#include "BookStyles.h"
#include "HostileShapes.h"
#include "PhoneBookGenerator.h"
#include "ReaderShapes.h"

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
    std::fputs( "usage: pimvcard-books book KIND CARDS [STYLE]  a phone book\n"
                "       pimvcard-books phone-book CARDS         short cards with many different names and numbers\n"
                "       pimvcard-books card                     one card of 91 bytes\n"
                "       pimvcard-books hostile NAME BYTES       a hostile text, about that long\n"
                "       pimvcard-books names                    the names of the hostile texts\n"
                "       pimvcard-books reader-names             the names of those, and of further ones for Contacts\n"
                "       pimvcard-books styles clean|damaged     the names of the styles of a book\n"
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

template <typename Row>
const Row* Named( const QList<Row>& a_rows, const QByteArray& a_name )
{
    const auto found =
        std::find_if( a_rows.begin(), a_rows.end(), [&]( const Row& a_row ) { return a_row.m_name == a_name; } );
    return found == a_rows.end() ? nullptr : &*found;
}

template <typename Row>
QByteArray NamesOf( const QList<Row>& a_rows )
{
    QByteArray names;
    for ( const Row& row : a_rows )
        names += row.m_name + '\n';
    return names;
}

int WriteBook( const QByteArray& a_kind, int a_cards, const QByteArray& a_style )
{
    const QList<BookKind> kinds = AllBookKinds();
    const auto found =
        std::find_if( kinds.begin(), kinds.end(), [&]( BookKind a_one ) { return NameOf( a_one ) == a_kind; } );
    if ( found == kinds.end() )
        return Usage();
    const QByteArray book = BookGenerator().Book( *found, a_cards );
    if ( a_style.isEmpty() )
        return Write( book );
    const QList<BookStyle> styles = CleanStyles() + DamagedStyles();
    const BookStyle* const style = Named( styles, a_style );
    return style == nullptr ? Usage() : Write( style->m_convert( book ) );
}

int WriteHostile( const QByteArray& a_name, int a_bytes )
{
    const QList<HostileShape> shapes = HostileShapes();
    if ( const HostileShape* const shape = Named( shapes, a_name ) )
        return Write( shape->TextOfLength( a_bytes ) );
    const QList<ReaderShape> readerShapes = ReaderShapes();
    const ReaderShape* const shape = Named( readerShapes, a_name );
    return shape == nullptr ? Usage() : Write( shape->TextOfLength( a_bytes ) );
}

int WriteStyles( const QByteArray& a_group )
{
    if ( a_group == "clean" )
        return Write( NamesOf( CleanStyles() ) );
    return a_group == "damaged" ? Write( NamesOf( DamagedStyles() ) ) : Usage();
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
        return WriteBook( arguments.value( 1 ), size, arguments.value( 3 ) );
    if ( command == "phone-book" && arguments.value( 1 ).toInt() > 0 )
        return Write( PhoneBookGenerator().Book( arguments.value( 1 ).toInt() ) );
    if ( command == "hostile" && size > 0 )
        return WriteHostile( arguments.value( 1 ), size );
    if ( command == "card" )
        return Write( SmallCard() );
    if ( command == "names" )
        return Write( NamesOf( HostileShapes() ) );
    if ( command == "reader-names" )
        return Write( NamesOf( HostileShapes() ) + NamesOf( ReaderShapes() ) );
    return command == "styles" ? WriteStyles( arguments.value( 1 ) ) : Usage();
}
