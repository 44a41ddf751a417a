#include "Commands/FindCommand.h"

#include "Commands/LimitOptions.h"
#include "Commands/ReadingCommand.h"
#include "Commands/SearchCommand.h"
#include "Outputs/MatchingNumbers.h"
#include "Terminal/TerminalText.h"

#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

// What the command line asks for.
struct Request
{
    QString m_text;
    SearchedAs m_as = SearchedAs::Text;
    PimPhoneBookOptions m_options;
    // 0 for all contacts.
    qint64 m_limit = 0;
};

// Returns what is wrong; empty if nothing is.
QString ReadRequest( const CommandLine& a_line, Request& a_request )
{
    a_request.m_text = QString::fromUtf8( WantedText( a_line ) );
    a_request.m_as = a_line.IsSet( s_kKeysOption ) ? SearchedAs::Keys : SearchedAs::Text;
    const bool hasDigit = std::any_of( a_request.m_text.begin(), a_request.m_text.end(),
                                       []( QChar a_character ) { return a_character.isDigit(); } );
    if ( a_request.m_as == SearchedAs::Keys && !hasDigit )
        return QStringLiteral( "--keys: \"%1\" has no digit; write the keys, such as 686 for Otmar" )
            .arg( ToTerminalText( a_request.m_text ) );
    const QString mistake = ReadSearchOptions( a_line, a_request.m_options );
    return mistake.isEmpty() ? ReadNumber( a_line, s_kLimitOption, a_request.m_limit ) : mistake;
}

QVector<PimPhoneBookMatch> Matches( const PimPhoneBook& a_book, const Request& a_request )
{
    QVector<PimPhoneBookMatch> matches =
        a_request.m_as == SearchedAs::Keys ? a_book.FindByKeys( a_request.m_text ) : a_book.Find( a_request.m_text );
    if ( a_request.m_limit > 0 && a_request.m_limit < matches.size() )
        matches.resize( static_cast<int>( a_request.m_limit ) );
    return matches;
}

// The contacts that are found by a number.
QVector<int> FoundByNumber( const QVector<PimPhoneBookMatch>& a_matches )
{
    QVector<int> contacts;
    for ( const PimPhoneBookMatch& match : a_matches )
    {
        if ( match.m_place == PimPhoneBookPlace::Number )
            contacts << match.m_contact;
    }
    return contacts;
}

// With the numbers that are found, or else the preferred one.
std::vector<FoundContact> Find( const PimContactBook& a_book, const Request& a_request )
{
    const QVector<PimPhoneBookMatch> matches = Matches( PimPhoneBook( a_book, a_request.m_options ), a_request );
    const QVector<QList<int>> numbers =
        MatchingNumbers( a_book, FoundByNumber( matches ), a_request.m_text, a_request.m_as, a_request.m_options );
    std::vector<FoundContact> found;
    int next = 0;
    for ( const PimPhoneBookMatch& match : matches )
    {
        QList<int> ids = match.m_place == PimPhoneBookPlace::Number ? numbers.at( next++ ) : QList<int>();
        if ( ids.isEmpty() )
            ids << a_book.At( match.m_contact ).Phones().Preferred().Id();
        found.push_back( { match.m_contact, ids, QString() } );
    }
    return found;
}

} // namespace

ExitStatus RunFind( const CommandLine& a_line, Console& a_console )
{
    Request request;
    const QString mistake = ReadRequest( a_line, request );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    return PrintFound( a_line, a_console, FoundTable::Grades::None,
                       [&request]( const PimContactBook& a_book ) { return Find( a_book, request ); } );
}

} // namespace PimManager::Tools
