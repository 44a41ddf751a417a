#include <PimManager/Contacts/PimContactBook.h>

#include <iostream>

using namespace PimManager::Contacts;

int main( int argc, char* argv[] )
{
    const QString name = QString::fromLocal8Bit( argc > 1 ? argv[1] : "contacts.vcf" );
    const PimContactBook book = PimContactBook::ReadFile( name );
    for ( const PimContact& contact : book )
    {
        std::cout << qUtf8Printable( contact.DisplayName() ) << '\n';
        for ( const PimContactPhone& phone : contact.Phones() )
            std::cout << "    " << qUtf8Printable( phone.Text() + "  " + phone.Purpose() ) << '\n';
    }
    std::cout << qUtf8Printable( book.Report().Summary() ) << '\n';
    return book.Report().ErrorText().isEmpty() ? 0 : 1;
}
