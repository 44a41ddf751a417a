// Prints the names and telephone numbers of an address book. It uses the objects of the component, but reads with
// PimManager::Contacts.
#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactVCard.h>

#include <PimVCard.h>

#include <iostream>

using namespace PimManager;

static void Print( const vCard::PimVCard& a_card )
{
    for ( const vCard::PimVCardProperty* property : a_card.GetProperties() )
    {
        const std::string value = property->GetValues().join( QLatin1Char( ';' ) ).toStdString();
        if ( property->GetName().toUpper() == QLatin1String( "FN" ) )
            std::cout << value << '\n';
        if ( property->GetName().toUpper() == QLatin1String( "TEL" ) )
            std::cout << "    " << value << '\n';
    }
}

int main( int argc, char* argv[] )
{
    using namespace PimManager::Contacts;
    const QString name = QString::fromLocal8Bit( argc > 1 ? argv[1] : "contacts.vcf" );
    const PimContactBook book = PimContactBook::ReadFile( name );
    for ( const PimContactCard& card : book.Cards() )
        Print( *PimContactVCard::FromCard( card ).Get() );
}
