// Prints the names and telephone numbers of an address book as they are written there: the smallest program that uses
// PimManager::Contacts.
#include <PimManager/Contacts/PimContactBook.h>

#include <iostream>

using namespace PimManager::Contacts;

int main( int argc, char* argv[] )
{
    const QString name = QString::fromLocal8Bit( argc > 1 ? argv[1] : "contacts.vcf" );
    const PimContactBook book = PimContactBook::ReadFile( name );
    for ( const PimContactCard& card : book )
    {
        for ( const PimContactLine& line : card )
        {
            if ( line.Name().toUpper() == "FN" )
                std::cout << line.Value().toStdString() << '\n';
            if ( line.Name().toUpper() == "TEL" )
                std::cout << "    " << line.Value().toStdString() << '\n';
        }
    }
    std::cerr << book.Report().Summary().toStdString() << '\n';
    return book.Report().ErrorText().isEmpty() ? 0 : 1;
}
