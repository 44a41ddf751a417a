#include "ContactPhotos.h"

#include <QCryptographicHash>
#include <QMutexLocker>
#include <QPainter>

using namespace PimManager::Contacts;

namespace
{

// Some more than any screen shows.
constexpr int s_kPhotos = 200;

// The middle of a picture, in a circle.
QImage Circle( const QImage& a_image, const QSize& a_size )
{
    QImage circle( a_size, QImage::Format_ARGB32_Premultiplied );
    circle.fill( Qt::transparent );
    const QImage scaled = a_image.scaled( a_size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation );
    QPainter painter( &circle );
    painter.setRenderHint( QPainter::Antialiasing );
    QBrush brush( scaled );
    brush.setTransform( QTransform::fromTranslate( ( a_size.width() - scaled.width() ) / 2.0,
                                                   ( a_size.height() - scaled.height() ) / 2.0 ) );
    painter.setBrush( brush );
    painter.setPen( Qt::NoPen );
    painter.drawEllipse( circle.rect() );
    return circle;
}

} // namespace

ContactPhotos::ContactPhotos() :
    QQuickImageProvider( QQuickImageProvider::Image ),
    m_photos( s_kPhotos )
{
}

QString ContactPhotos::Source( const PimContactMedia& a_photo )
{
    const QByteArray hash = QCryptographicHash::hash( a_photo.Bytes(), QCryptographicHash::Sha1 ).toHex();
    const QString id = QString::fromLatin1( hash );
    const QMutexLocker locker( &m_mutex );
    m_photos.insert( id, new PimContactMedia( a_photo ) );
    return QStringLiteral( "image://photos/" ) + id;
}

QImage ContactPhotos::requestImage( const QString& a_id, QSize* a_size, const QSize& a_wanted )
{
    PimContactMedia photo;
    {
        const QMutexLocker locker( &m_mutex );
        if ( m_photos.contains( a_id ) )
            photo = *m_photos.object( a_id );
    }
    const QImage image = QImage::fromData( photo.Bytes() );
    *a_size = image.size();
    return image.isNull() || a_wanted.isEmpty() ? image : Circle( image, a_wanted );
}
