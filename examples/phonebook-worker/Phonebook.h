/// \file
/// The interface for the rest of the program.

#pragma once

#include "Contact.h"

#include <QObject>
#include <QSemaphore>
#include <QThread>

/// The contacts of one file. More contacts arrive while the file is read in a separate thread. The object belongs to
/// the thread that creates it, needs its event loop, and emits all signals there.
class Phonebook : public QObject
{
    Q_OBJECT

public:
    explicit Phonebook( const QString& a_fileName );

    /// Stops the reading and waits until its thread has ended, at the latest after one more piece of the file.
    ~Phonebook() override;

    /// Starts reading. Call it once.
    void Open();

    /// Requests the end of the reading. Finished() is emitted soon after. The contacts read so far are kept. Does
    /// nothing if nothing is being read.
    void Cancel();

    const Contacts& AllContacts() const { return m_contacts; }

signals:
    void ContactsAdded( int a_first, int a_count );
    void Progress( int a_percent );
    void Finished( qint64 a_refused, bool a_cancelled );
    void Failed( const QString& a_reason );

private:
    void Add( const Contacts& a_contacts );

    QString m_fileName;
    QSemaphore m_places;
    QThread m_thread;
    Contacts m_contacts;
};
