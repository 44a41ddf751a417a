// qml-contacts FILE: shows the contacts of an address book, finds them and tells who has a number.
#include "ContactsView.h"

#include <PimManager/PhoneBook/PimPhoneBookLoader.h>

#include <QDebug>
#include <QGuiApplication>

using namespace PimManager::PhoneBook;

int main( int argc, char* argv[] )
{
    const QGuiApplication application( argc, argv );
    ContactsView view( QGuiApplication::arguments().value( 1, QStringLiteral( "contacts.vcf" ) ) );
    QObject::connect( &view.Loader(), &PimPhoneBookLoader::Loaded, &view,
                      [&view] { qInfo().noquote() << view.Loader().Report().Summary(); } );
    view.show();
    return QGuiApplication::exec();
}
