// pimvcard-measure-contacts: reads an address book with Contacts, for tools that watch a process from outside.
//
//   keep FILE [SNAPSHOT]         reads the file into a book; ends without deleting it. Under massif, the heap with
//                                nothing but the book in it is written to the file SNAPSHOT.
//   lines FILE                   the same, and copies group, name, parameters and value of every line.
//   pieces FILE BYTES [LIMIT]    feeds the file in pieces of that many bytes, and drops each card. LIMIT is the largest
//                                card in bytes.
//   stream FILE TIMES            feeds the file that many times over as one text, in pieces of 64 KB, and drops each
//                                card; the file is the only text in memory.
//   json FILE                    reads the file in pieces of 64 KB, writes each card as JSON, and drops both.
//   write FILE FORMAT            the same, but writes each card as 21, 30, 40 or jcard.
//   values FILE                  reads the file into a book and decodes FN, TEL and EMAIL of each card.
//   fields FILE                  the same, but takes every typed field of each card.
//
// Each prints the number of cards, the bytes that were read, and the most memory that the process had at once.

#include "ContactFields.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactJson.h>
#include <PimManager/Contacts/PimContactReader.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QByteArray>
#include <QFile>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/resource.h>
#include <vector>
#if __has_include( <valgrind/valgrind.h> )
#include <valgrind/valgrind.h>
#else
#define VALGRIND_MONITOR_COMMAND( command ) static_cast<void>( command )
#endif

using namespace PimManager::Contacts;

namespace
{

constexpr int s_kWrongUse = 2;
constexpr qint64 s_kBlock = qint64( 64 ) * 1024;

void Open( QFile& a_file, const char* a_name )
{
    a_file.setFileName( QString::fromLocal8Bit( a_name ) );
    if ( a_file.open( QIODevice::ReadOnly | QIODevice::Unbuffered ) )
        return;
    std::fprintf( stderr, "pimvcard-measure-contacts: cannot read %s\n", a_name );
    std::exit( s_kWrongUse );
}

void Print( const PimContactReport& a_report )
{
    rusage usage = {};
    getrusage( RUSAGE_SELF, &usage );
    std::printf( "%lld cards, %lld bytes, %ld kilobytes\n",
                 static_cast<long long>( a_report.CardsWhole() + a_report.CardsInPart() ),
                 static_cast<long long>( a_report.Bytes() ), usage.ru_maxrss );
}

PimContactBook ReadBook( const char* a_name )
{
    QFile file;
    Open( file, a_name );
    return PimContactBook::Read( file );
}

// Ends the process at once, so that deleting the book is not measured.
[[noreturn]] void EndWith( const PimContactBook& a_book )
{
    Print( a_book.Report() );
    std::fflush( stdout );
    std::_Exit( 0 );
}

int Keep( const char* a_name, const char* a_snapshot )
{
    const PimContactBook book = ReadBook( a_name );
    if ( a_snapshot != nullptr )
    {
        const QByteArray command = QByteArrayLiteral( "snapshot " ) + a_snapshot;
        VALGRIND_MONITOR_COMMAND( command.constData() );
    }
    EndWith( book );
}

qint64 CopiedBytes( const PimContactLine& a_line )
{
    qint64 bytes = a_line.Group().size() + a_line.Name().size() + a_line.Value().size();
    const QList<QByteArray> parameters = a_line.Parameters();
    for ( const QByteArray& parameter : parameters )
        bytes += parameter.size();
    return bytes;
}

int Lines( const char* a_name )
{
    const PimContactBook book = ReadBook( a_name );
    volatile qint64 bytes = 0; // written, so that the compiler leaves no copy out
    for ( const PimContactCard& card : book.Cards() )
    {
        for ( const PimContactLine& line : card )
            bytes = bytes + CopiedBytes( line );
    }
    EndWith( book );
}

bool DropCard( const PimContactCard& /*a_card*/ )
{
    return true;
}

int Pieces( const char* a_name, qint64 a_bytes, qint64 a_limit )
{
    QFile file;
    Open( file, a_name );
    PimContactOptions options;
    if ( a_limit > 0 )
        options.SetCardBytes( a_limit );
    PimContactReader reader( options );
    reader.SetCardHandler( DropCard );
    std::vector<char> block( static_cast<size_t>( std::max( a_bytes, s_kBlock / a_bytes * a_bytes ) ) );
    qint64 read = 0;
    while ( ( read = file.read( block.data(), static_cast<qint64>( block.size() ) ) ) > 0 )
    {
        for ( qint64 begin = 0; begin < read; begin += a_bytes )
            reader.Feed( block.data() + begin, std::min( a_bytes, read - begin ) );
    }
    reader.Finish();
    Print( reader.Report() );
    return 0;
}

// Reads a file in blocks and calls a function for each card.
template <class Take>
int ForEachCard( const char* a_name, Take a_take )
{
    QFile file;
    Open( file, a_name );
    PimContactReader reader;
    reader.SetCardHandler(
        [&a_take]( const PimContactCard& a_card )
        {
            a_take( a_card );
            return true;
        } );
    for ( QByteArray piece = file.read( s_kBlock ); !piece.isEmpty(); piece = file.read( s_kBlock ) )
        reader.Feed( piece );
    reader.Finish();
    Print( reader.Report() );
    return 0;
}

int Json( const char* a_name )
{
    PimContactJson json;
    QByteArray text;
    return ForEachCard( a_name,
                        [&json, &text]( const PimContactCard& a_card )
                        {
                            text.resize( 0 );
                            json.Append( a_card, text );
                        } );
}

// Accepts all output and discards it.
class Drain : public QIODevice
{
protected:
    qint64 readData( char* /*a_bytes*/, qint64 /*a_most*/ ) override { return -1; }
    qint64 writeData( const char* /*a_bytes*/, qint64 a_size ) override { return a_size; }
};

int Write( const char* a_name, const QByteArray& a_format )
{
    const QList<QByteArray> names = { "21", "30", "40", "jcard" };
    const auto format = names.indexOf( a_format );
    if ( format < 0 )
        return s_kWrongUse;
    Drain device;
    device.open( QIODevice::WriteOnly | QIODevice::Unbuffered );
    PimContactWriter writer( device, static_cast<PimContactFormat>( format ) );
    const int result = ForEachCard( a_name, [&writer]( const PimContactCard& a_card ) { writer.Write( a_card ); } );
    return writer.Finish() ? result : 1;
}

bool IsNameNumberOrMail( const PimContactLine& a_line )
{
    return a_line.IsNamed( QLatin1String( "FN" ) ) || a_line.IsNamed( QLatin1String( "TEL" ) ) ||
           a_line.IsNamed( QLatin1String( "EMAIL" ) );
}

int Values( const char* a_name )
{
    const PimContactBook book = ReadBook( a_name );
    volatile qint64 characters = 0; // written, so that the compiler leaves no text out
    for ( const PimContactCard& card : book.Cards() )
    {
        for ( const PimContactLine& line : card )
        {
            if ( IsNameNumberOrMail( line ) )
                characters = characters + line.Text().size();
        }
    }
    EndWith( book );
}

int Fields( const char* a_name )
{
    const PimContactBook book = ReadBook( a_name );
    volatile qint64 sum = 0; // written, so that the compiler leaves nothing out
    for ( const PimContact& contact : book )
        sum = sum + TakeFields( contact );
    EndWith( book );
}

int Stream( const char* a_name, int a_times )
{
    QFile file;
    Open( file, a_name );
    const QByteArray text = file.readAll();
    PimContactOptions options;
    options.SetCards( 0 );
    options.SetBookBytes( 0 );
    PimContactReader reader( options );
    reader.SetCardHandler( DropCard );
    for ( int i = 0; i < a_times; ++i )
    {
        for ( qint64 begin = 0; begin < text.size(); begin += s_kBlock )
            reader.Feed( text.constData() + begin, std::min( s_kBlock, text.size() - begin ) );
    }
    reader.Finish();
    Print( reader.Report() );
    return 0;
}

} // namespace

int main( int argc, char* argv[] )
{
    const QByteArray command = argc >= 3 ? QByteArray( argv[1] ) : QByteArray();
    const qint64 number = argc >= 4 ? std::atoll( argv[3] ) : 0;
    if ( command == "keep" )
        return Keep( argv[2], argc > 3 ? argv[3] : nullptr );
    if ( command == "lines" )
        return Lines( argv[2] );
    if ( command == "pieces" && number > 0 )
        return Pieces( argv[2], number, argc > 4 ? std::atoll( argv[4] ) : 0 );
    if ( command == "json" )
        return Json( argv[2] );
    if ( command == "write" && argc > 3 )
        return Write( argv[2], argv[3] );
    if ( command == "values" )
        return Values( argv[2] );
    if ( command == "fields" )
        return Fields( argv[2] );
    if ( command == "stream" && number > 0 )
        return Stream( argv[2], static_cast<int>( number ) );
    std::fputs( "usage: pimvcard-measure-contacts keep FILE [SNAPSHOT]\n       pimvcard-measure-contacts lines FILE\n"
                "       pimvcard-measure-contacts pieces FILE BYTES [LIMIT]\n"
                "       pimvcard-measure-contacts stream FILE TIMES\n       pimvcard-measure-contacts json FILE\n"
                "       pimvcard-measure-contacts values FILE\n       pimvcard-measure-contacts fields FILE\n"
                "       pimvcard-measure-contacts write FILE 21|30|40|jcard\n",
                stderr );
    return s_kWrongUse;
}
