/// \file
/// The side that the rest of the program sees.

#pragma once

#include "Contact.h"

#include <QObject>
#include <QSemaphore>
#include <QThread>

/// The contacts of one file, which grow while the file is read in a thread of its own. Belongs to the thread that
/// creates it, needs its event loop, and emits all signals there.
class Phonebook : public QObject
{
    Q_OBJECT

public:
    explicit Phonebook( const QString& a_fileName );

    /// Stops the reading and waits until its thread has ended, which takes one piece of the file at most.
    ~Phonebook() override;

    /// Begins to read. Call it once.
    void Open();

    /// Asks the reading to stop; Finished() is emitted soon after. The contacts so far remain. Does nothing if nothing
    /// is read.
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
