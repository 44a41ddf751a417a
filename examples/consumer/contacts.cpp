// Prints the names and telephone numbers of an address book: the smallest program that uses PimManager::Contacts.
#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactBook.h>

#include <iostream>

using namespace PimManager::Contacts;

int main( int argc, char* argv[] )
{
    const QString name = QString::fromLocal8Bit( argc > 1 ? argv[1] : "contacts.vcf" );
    const PimContactBook book = PimContactBook::ReadFile( name );
    for ( const PimContactCard& card : book )
    {
        const PimContact contact( card );
        std::cout << contact.DisplayName().toStdString() << '\n';
        for ( const PimContactEntry& phone : contact.Phones() )
            std::cout << "    " << phone.Text().toStdString() << '\n';
    }
    std::cerr << book.Report().Summary().toStdString() << '\n';
    return book.Report().ErrorText().isEmpty() ? 0 : 1;
}
