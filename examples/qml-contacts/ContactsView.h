/// \file
/// The window with the phone book.

#pragma once

#include <QQuickView>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace PimManager::PhoneBook
{
class PimPhoneBookLoader;
class PimPhoneBookModel;
} // namespace PimManager::PhoneBook

class ContactPhotos;

/// Loads a file and shows its contacts. QML knows the view as `view`, its model as `contacts` and its loader as
/// `loader`.
class ContactsView : public QQuickView
{
    Q_OBJECT

public:
    explicit ContactsView( const QString& a_fileName );

    /// Reads the file again. The list keeps its place.
    Q_INVOKABLE void Reload();
    /// \return who has a number, such as `Nell Brackwater`, or `perhaps` and a name if only the last digits are equal.
    Q_INVOKABLE QString Caller( const QString& a_number ) const;
    /// Prints a number as if it was called. Later searches prefer its contact.
    Q_INVOKABLE void Call( const QString& a_number );
    /// \param a_photo a photo as the model gives it.
    /// \return its address; empty if there is none.
    Q_INVOKABLE QString PhotoSource( const QVariant& a_photo );

    PimManager::PhoneBook::PimPhoneBookModel& Model() { return *m_model; }
    PimManager::PhoneBook::PimPhoneBookLoader& Loader() { return *m_loader; }

private:
    QString m_fileName;
    PimManager::PhoneBook::PimPhoneBookModel* m_model;
    PimManager::PhoneBook::PimPhoneBookLoader* m_loader;
    ContactPhotos* m_photos;
    QStringList m_recentCalls;
};
