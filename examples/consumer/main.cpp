// Prints the names and telephone numbers of an address book: the smallest program that uses both libraries.
#include <PimVCardDecoding.h>
#include <PimVCardImporter.h>

#include <QFile>

#include <iostream>

using namespace PimManager;

int main( int argc, char* argv[] )
{
    QFile file( QString::fromLocal8Bit( argc > 1 ? argv[1] : "contacts.vcf" ) );
    if ( !file.open( QIODevice::ReadOnly ) )
        return 1;
    vCardImport::PimVCardImporter importer;
    const vCardImport::PimVCardImportResult result = importer.Import( file.readAll() );
    for ( const vCardImport::PimVCardImportedCard& card : result.m_cards )
    {
        std::cout << vCardImport::DisplayNameOf( *card.m_card ).toStdString() << '\n';
        for ( const vCard::PimVCardProperty* property : card.m_card->GetProperties() )
            if ( vCardImport::IsNamed( *property, "TEL" ) )
                std::cout << "    " << vCardImport::TelephoneNumberOf( *property ).toStdString() << '\n';
    }
}
