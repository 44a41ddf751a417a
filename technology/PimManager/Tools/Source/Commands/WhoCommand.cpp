#include "Commands/WhoCommand.h"

#include "Commands/ReadingCommand.h"
#include "Commands/SearchCommand.h"

#include <PimManager/PhoneBook/PimPhoneBook.h>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

QString WordFor( PimPhoneBookGrade a_grade )
{
    switch ( a_grade )
    {
    case PimPhoneBookGrade::Exact:
        return QStringLiteral( "exact" );
    case PimPhoneBookGrade::National:
        return QStringLiteral( "national" );
    case PimPhoneBookGrade::Ending:
        return QStringLiteral( "ending" );
    case PimPhoneBookGrade::None:
        break;
    }
    return QString();
}

std::vector<FoundContact> Callers( const PimPhoneBook& a_book, const QString& a_number )
{
    std::vector<FoundContact> found;
    for ( const PimPhoneBookCaller& caller : a_book.WhoIs( a_number ) )
        found.push_back( { caller.m_contact, { caller.m_line }, WordFor( caller.m_grade ) } );
    return found;
}

} // namespace

ExitStatus RunWho( const CommandLine& a_line, Console& a_console )
{
    PimPhoneBookOptions options;
    const QString mistake = ReadSearchOptions( a_line, options );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    const QString number = QString::fromUtf8( WantedText( a_line ) );
    return PrintFound( a_line, a_console, FoundTable::Grades::Shown,
                       [&]( const PimContactBook& a_book )
                       { return Callers( PimPhoneBook( a_book, options ), number ); } );
}

} // namespace PimManager::Tools
