#include "ContactPhotos.h"

using namespace PimManager::Contacts;

ContactPhotos::ContactPhotos( const QVector<PimContact>& a_contacts ) :
    QQuickImageProvider( QQuickImageProvider::Image ),
    m_contacts( a_contacts )
{
}

QImage ContactPhotos::requestImage( const QString& a_id, QSize* a_size, const QSize& a_wanted )
{
    const PimContact contact = m_contacts.value( a_id.toInt() );
    const QImage image = QImage::fromData( contact.Photos().Preferred().Bytes() );
    *a_size = image.size();
    if ( image.isNull() || a_wanted.isEmpty() )
        return image;
    return image.scaled( a_wanted, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation );
}
