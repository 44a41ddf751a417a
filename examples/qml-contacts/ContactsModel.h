/// \file
/// The contacts of a book for a ListView.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QAbstractListModel>
#include <QVector>

/// The contacts in the order of their sort names. The roles in QML are `contact` (PimContact), `phone`
/// (PimContactPhone, the preferred one), `section`, `initials` and `picture`, the URL of the photo at the image
/// provider ContactPhotos.
class ContactsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        ContactRole = Qt::UserRole,
        PhoneRole,
        SectionRole,
        InitialsRole,
        PictureRole,
    };

    explicit ContactsModel( const PimManager::Contacts::PimContactBook& a_book, QObject* a_parent = nullptr );

    const QVector<PimManager::Contacts::PimContact>& Contacts() const { return m_contacts; }

    int rowCount( const QModelIndex& a_parent = QModelIndex() ) const override;
    QVariant data( const QModelIndex& a_index, int a_role ) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QVector<PimManager::Contacts::PimContact> m_contacts;
};
