/// \file
/// The photos of contacts for QML.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QQuickImageProvider>
#include <QVector>

/// Decodes the preferred photo of a contact when QML requests it. The id is the row of the contact.
class ContactPhotos : public QQuickImageProvider
{
public:
    explicit ContactPhotos( const QVector<PimManager::Contacts::PimContact>& a_contacts );

    QImage requestImage( const QString& a_id, QSize* a_size, const QSize& a_wanted ) override;

private:
    QVector<PimManager::Contacts::PimContact> m_contacts;
};
