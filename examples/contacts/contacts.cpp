#include <PimManager/Contacts/PimContactBook.h>
#include <iostream>

int main( int, char* argv[] )
{
    const auto book = PimManager::Contacts::PimContactBook::ReadFile( QString::fromLocal8Bit( argv[1] ) );
    for ( const auto& contact : book )
        for ( const auto& phone : contact.Phones() )
            std::cout << qUtf8Printable( contact.DisplayName() + ": " + phone.Text() + ' ' + phone.Purpose() ) << '\n';
    std::cout << qUtf8Printable( book.Report().Summary() ) << '\n';
}
