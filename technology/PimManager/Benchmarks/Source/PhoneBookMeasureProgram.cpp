// pimvcard-measure-phonebook: makes a phone book of an address book and uses it, for tools that watch a process from
// outside.
//
//   book FILE [SNAPSHOT]         reads the file into a book; ends without deleting it. Under massif, the heap with
//                                nothing but the book in it is written to the file SNAPSHOT.
//   index FILE [SNAPSHOT]        the same, and makes a phone book of it.
//   queries FILE                 prints what can be typed in up to four keys so that something is found: the beginnings
//                                of words, and all digits. Each line is `find TEXT` or `keys DIGITS`.
//   model FILE QUERIES [before]  types each line of the file QUERIES in a model. Under callgrind, the instructions of
//                                the last key, rows included, are dumped with the line as their trigger. With
//                                `before`, the last key is not typed, so that the difference of two runs is its work.
//   who FILE TIMES               asks that many times for the caller of each number of the book.
//   compare OLD NEW              compares two books.

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookChanges.h>
#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <set>
#if __has_include( <valgrind/callgrind.h> )
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT( name ) static_cast<void>( name )
#define VALGRIND_MONITOR_COMMAND( command ) static_cast<void>( command )
#endif

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

namespace
{

constexpr int s_kWrongUse = 2;
constexpr int s_kMostKeys = 4;

PimContactBook ReadBook( const char* a_name )
{
    const PimContactBook book = PimContactBook::ReadFile( QString::fromLocal8Bit( a_name ) );
    if ( book.IsEmpty() && !book.Report().ErrorText().isEmpty() )
    {
        std::fprintf( stderr, "pimvcard-measure-phonebook: cannot read %s\n", a_name );
        std::exit( s_kWrongUse );
    }
    return book;
}

PimPhoneBook PhoneBookOf( const PimContactBook& a_book )
{
    PimPhoneBookOptions options;
    options.SetRegion( QStringLiteral( "DE" ) );
    options.SetLocale( QLocale( QStringLiteral( "de_DE" ) ) );
    return PimPhoneBook( a_book, options );
}

// Ends the process here, so that deleting is not measured.
[[noreturn]] void End( int a_contacts )
{
    std::printf( "%d contacts\n", a_contacts );
    std::exit( 0 );
}

void TakeSnapshot( const char* a_name )
{
    if ( a_name == nullptr )
        return;
    const QByteArray command = QByteArrayLiteral( "snapshot " ) + a_name;
    VALGRIND_MONITOR_COMMAND( command.constData() );
}

void Book( const char* a_name, const char* a_snapshot )
{
    const PimContactBook book = ReadBook( a_name );
    TakeSnapshot( a_snapshot );
    End( book.Size() );
}

void Index( const char* a_name, const char* a_snapshot )
{
    const PimPhoneBook phoneBook = PhoneBookOf( ReadBook( a_name ) );
    TakeSnapshot( a_snapshot );
    End( phoneBook.Size() );
}

void AddBeginnings( const QString& a_text, std::set<QString>& a_beginnings )
{
    for ( const QString& word : a_text.toLower().split( QLatin1Char( ' ' ) ) )
    {
        for ( int size = 1; size <= std::min( s_kMostKeys, static_cast<int>( word.size() ) ); ++size )
            a_beginnings.insert( word.left( size ) );
    }
}

void PrintQueries( const char* a_name )
{
    std::set<QString> beginnings;
    for ( const PimContact& contact : ReadBook( a_name ) )
    {
        AddBeginnings( contact.DisplayName(), beginnings );
        AddBeginnings( contact.Organisations().Preferred().Name(), beginnings );
    }
    for ( const QString& beginning : beginnings )
        std::printf( "find %s\n", beginning.toUtf8().constData() );
    for ( int size = 1, end = 10; size <= s_kMostKeys; ++size, end *= 10 )
    {
        for ( int number = 0; number < end; ++number )
            std::printf( "find %0*d\nkeys %0*d\n", size, number, size, number );
    }
}

void Model( const char* a_name, const char* a_queries, bool a_hasLastKey )
{
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( ReadBook( a_name ) ) );
    QFile file( QString::fromLocal8Bit( a_queries ) );
    if ( !file.open( QIODevice::ReadOnly ) )
        std::exit( s_kWrongUse );
    for ( QByteArray line = file.readLine().trimmed(); !line.isEmpty(); line = file.readLine().trimmed() )
    {
        const QByteArray kind = line.left( 4 );
        const QString text = QString::fromUtf8( line.mid( 5 ) );
        const auto search = [&]( const QString& a_text )
        {
            if ( kind == "keys" )
                model.SetKeys( a_text );
            else
                model.SetFilter( a_text );
        };
        search( text.left( text.size() - 1 ) );
        CALLGRIND_ZERO_STATS;
        if ( a_hasLastKey )
            search( text );
        CALLGRIND_DUMP_STATS_AT( line.constData() );
    }
    End( model.PhoneBook().Size() );
}

void Who( const char* a_name, int a_times )
{
    const PimPhoneBook phoneBook = PhoneBookOf( ReadBook( a_name ) );
    QStringList numbers;
    for ( const PimContact& contact : phoneBook.Book() )
    {
        for ( const PimContactPhone& phone : contact.Phones() )
            numbers += phone.Number();
    }
    volatile int callers = 0;
    for ( int i = 0; i < a_times; ++i )
    {
        for ( const QString& number : numbers )
            callers = callers + static_cast<int>( phoneBook.WhoIs( number ).size() );
    }
    std::printf( "%d numbers, ", static_cast<int>( numbers.size() ) );
    End( phoneBook.Size() );
}

void Compare( const char* a_old, const char* a_new )
{
    const PimContactBook oldBook = ReadBook( a_old );
    const PimContactBook newBook = ReadBook( a_new );
    const PimPhoneBookChanges changes = PimPhoneBookChanges::Compare( oldBook, newBook );
    std::printf( "%d added, %d removed, %d changed, ", static_cast<int>( changes.Added().size() ),
                 static_cast<int>( changes.Removed().size() ), static_cast<int>( changes.Changed().size() ) );
    End( newBook.Size() );
}

} // namespace

int main( int argc, char* argv[] )
{
    const QByteArray command = argc >= 3 ? QByteArray( argv[1] ) : QByteArray();
    if ( command == "book" )
        Book( argv[2], argc > 3 ? argv[3] : nullptr );
    if ( command == "index" )
        Index( argv[2], argc > 3 ? argv[3] : nullptr );
    if ( command == "queries" )
    {
        PrintQueries( argv[2] );
        return 0;
    }
    if ( command == "model" && argc > 3 )
        Model( argv[2], argv[3], argc == 4 );
    if ( command == "who" && argc > 3 )
        Who( argv[2], std::atoi( argv[3] ) );
    if ( command == "compare" && argc > 3 )
        Compare( argv[2], argv[3] );
    std::fputs( "usage: pimvcard-measure-phonebook book|index FILE [SNAPSHOT]\n"
                "       pimvcard-measure-phonebook queries FILE\n"
                "       pimvcard-measure-phonebook model FILE QUERIES [before]\n"
                "       pimvcard-measure-phonebook who FILE TIMES\n"
                "       pimvcard-measure-phonebook compare OLD NEW\n",
                stderr );
    return s_kWrongUse;
}
