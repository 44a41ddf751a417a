/// \file
/// The photos of contacts for QML.

#pragma once

#include <PimManager/Contacts/PimContactMedia.h>

#include <QCache>
#include <QMutex>
#include <QQuickImageProvider>
#include <QString>

/// Decodes photos when QML requests them, in the thread of QML for images. Equal photos have the same address, so a
/// photo that did not change is not loaded again with another phone book.
class ContactPhotos : public QQuickImageProvider
{
public:
    ContactPhotos();

    /// \return the address of a photo at this provider, which is named `photos`.
    QString Source( const PimManager::Contacts::PimContactMedia& a_photo );

    QImage requestImage( const QString& a_id, QSize* a_size, const QSize& a_wanted ) override;

private:
    QMutex m_mutex;
    QCache<QString, PimManager::Contacts::PimContactMedia> m_photos;
};
