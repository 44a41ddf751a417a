#include "ContactsView.h"

#include "ContactPhotos.h"

#include <PimManager/PhoneBook/PimPhoneBookLoader.h>
#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <QDebug>
#include <QQmlContext>
#include <QQmlEngine>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

namespace
{

constexpr int s_kRecentCalls = 50;

} // namespace

// The engine owns the photos. It is deleted before the model and the loader, which are children of the view.
ContactsView::ContactsView( const QString& a_fileName ) :
    m_fileName( a_fileName ),
    m_model( new PimPhoneBookModel( this ) ),
    m_loader( new PimPhoneBookLoader( this ) ),
    m_photos( new ContactPhotos )
{
    m_loader->SetModel( m_model );
    engine()->addImageProvider( QStringLiteral( "photos" ), m_photos );
    rootContext()->setContextProperty( QStringLiteral( "view" ), this );
    rootContext()->setContextProperty( QStringLiteral( "contacts" ), m_model );
    rootContext()->setContextProperty( QStringLiteral( "loader" ), m_loader );
    setResizeMode( QQuickView::SizeRootObjectToView );
    setSource( QUrl( QStringLiteral( "qrc:/contacts.qml" ) ) );
    Reload();
}

void ContactsView::Reload()
{
    m_loader->Load( m_fileName );
}

QString ContactsView::Caller( const QString& a_number ) const
{
    const PimPhoneBook phoneBook = m_model->PhoneBook();
    const QVector<PimPhoneBookCaller> callers = phoneBook.WhoIs( a_number );
    if ( callers.isEmpty() )
        return QString();
    const QString name = phoneBook.At( callers.first().m_contact ).DisplayName();
    const bool isSure = callers.size() == 1 && callers.first().m_grade != PimPhoneBookGrade::Ending;
    return isSure ? name : QStringLiteral( "perhaps " ) + name;
}

void ContactsView::Call( const QString& a_number )
{
    qInfo().noquote() << "calling" << a_number;
    m_recentCalls.removeAll( a_number );
    m_recentCalls.prepend( a_number );
    m_recentCalls = m_recentCalls.mid( 0, s_kRecentCalls );
    m_model->SetRecentCalls( m_recentCalls );
}

QString ContactsView::PhotoSource( const QVariant& a_photo )
{
    return a_photo.canConvert<PimContactMedia>() ? m_photos->Source( a_photo.value<PimContactMedia>() ) : QString();
}
