// Tells who has a telephone number: caller BOOK NUMBER [REGION]. The region is that of the telephone, such as DE.
#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <iostream>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

int main( int argc, char* argv[] )
{
    if ( argc < 3 )
    {
        std::cerr << "usage: caller BOOK NUMBER [REGION]\n";
        return 2;
    }
    PimPhoneBookOptions options;
    options.SetRegion( QString::fromLocal8Bit( argc > 3 ? argv[3] : "" ) );
    const PimPhoneBook phoneBook( PimContactBook::ReadFile( QString::fromLocal8Bit( argv[1] ) ), options );
    const auto callers = phoneBook.WhoIs( QString::fromLocal8Bit( argv[2] ) );
    for ( const PimPhoneBookCaller& caller : callers )
    {
        const PimContact contact = phoneBook.At( caller.m_contact );
        const PimContactLine line = contact.Line( caller.m_line );
        std::cout << qUtf8Printable( contact.DisplayName() + QStringLiteral( ": " ) + contact.FieldOf( line ).Text() )
                  << ( caller.m_grade == PimPhoneBookGrade::Ending ? ", perhaps\n" : "\n" );
    }
    return callers.isEmpty() ? 1 : 0;
}
