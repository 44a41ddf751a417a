// qml-contacts FILE: shows the contacts of an address book.
#include "ContactsView.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QDebug>
#include <QGuiApplication>

using namespace PimManager::Contacts;

int main( int argc, char* argv[] )
{
    const QGuiApplication application( argc, argv );
    const QString name = QGuiApplication::arguments().value( 1, QStringLiteral( "contacts.vcf" ) );
    const PimContactBook book = PimContactBook::ReadFile( name );
    qInfo().noquote() << book.Report().Summary();
    ContactsView view( book );
    view.show();
    return QGuiApplication::exec();
}
