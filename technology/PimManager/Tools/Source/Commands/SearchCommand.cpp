#include "Commands/SearchCommand.h"

#include "Commands/ReadingCommand.h"

namespace PimManager::Tools
{

using namespace Contacts;

QByteArray WantedText( const CommandLine& a_line )
{
    return a_line.Arguments().constLast();
}

PhoneBook::PimPhoneBookOptions SearchOptions()
{
    PhoneBook::PimPhoneBookOptions options;
    options.SetLocale( QLocale( QLocale::English ) );
    return options;
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
    const ExitStatus answer = isFound ? ExitStatus::AllGiven : ExitStatus::SomeRefused;
    return isAnswered ? answer : status;
}

} // namespace PimManager::Tools
