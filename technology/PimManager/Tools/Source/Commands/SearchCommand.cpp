#include "Commands/SearchCommand.h"

#include "Commands/ReadingCommand.h"
#include "Terminal/TerminalText.h"

#include <sys/stat.h>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

// A user who forgets the last argument has the last book taken for it.
void RemarkOnFileName( const CommandLine& a_line, Console& a_console )
{
    const QByteArray wanted = WantedText( a_line );
    struct stat status = {};
    if ( ::stat( wanted.constData(), &status ) == 0 )
        a_console.Remark( QStringLiteral( "%1 is a file, but was not read: the last argument is what to look for" )
                              .arg( a_console.ErrScreen().Isolated( ToShownFileName( wanted ) ) ) );
}

} // namespace

QByteArray WantedText( const CommandLine& a_line )
{
    return a_line.Arguments().constLast();
}

QString ReadSearchOptions( const CommandLine& a_line, PimPhoneBookOptions& a_options )
{
    const QString region = QString::fromUtf8( a_line.Value( s_kRegionOption ) );
    a_options.SetLocale( QLocale( QLocale::English ) );
    a_options.SetRegion( region );
    const bool isKnown = !a_line.IsSet( s_kRegionOption ) || !a_options.Region().isEmpty();
    return isKnown ? QString()
                   : QStringLiteral( "unknown region: \"%1\"; write the two letters of a country, such as DE" )
                         .arg( ToTerminalText( region ) );
}

ExitStatus PrintFound( const CommandLine& a_line, Console& a_console, FoundTable::Grades a_grades,
                       const FoundTable::Search& a_search )
{
    QList<QByteArray> books = a_line.Arguments();
    books.removeLast();
    bool isFound = false;
    const auto search = [&]( const PimContactBook& a_book )
    {
        std::vector<FoundContact> found = a_search( a_book );
        isFound = !found.empty();
        return found;
    };
    const ExitStatus status =
        PrintBooks( a_line, a_console, books,
                    std::make_unique<FoundTable>( a_console.Out(), a_console.OutScreen(), books, a_grades, search ) );
    // Whether something of a book is left out is told, and is no answer to the question.
    const bool isAnswered = status == ExitStatus::AllGiven || status == ExitStatus::SomeRefused;
    if ( isAnswered && !isFound )
        RemarkOnFileName( a_line, a_console );
    const ExitStatus answer = isFound ? ExitStatus::AllGiven : ExitStatus::SomeRefused;
    return isAnswered ? answer : status;
}

} // namespace PimManager::Tools
