#include "ContactsView.h"

#include "ContactPhotos.h"
#include "ContactsModel.h"

#include <QQmlContext>
#include <QQmlEngine>

ContactsView::ContactsView( const PimManager::Contacts::PimContactBook& a_book )
{
    auto* model = new ContactsModel( a_book, this );
    engine()->addImageProvider( QStringLiteral( "photos" ), new ContactPhotos( model->Contacts() ) ); // owns it
    rootContext()->setContextProperty( QStringLiteral( "contacts" ), model );
    setResizeMode( QQuickView::SizeRootObjectToView );
    setSource( QUrl( QStringLiteral( "qrc:/contacts.qml" ) ) );
}
