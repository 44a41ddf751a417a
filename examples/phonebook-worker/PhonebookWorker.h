/// \file
/// The part that runs in its own thread.

#pragma once

#include "Contact.h"

#include <QObject>

class QIODevice;
class QSemaphore;

namespace PimManager::Contacts
{
class PimContactCard;
class PimContactReader;
} // namespace PimManager::Contacts

/// Reads one file in the thread in which it lives, and emits the contacts. QThread::requestInterruption() stops it
/// early.
class PhonebookWorker : public QObject
{
    Q_OBJECT

public:
    /// \param a_places the number of times that ContactsRead() may be emitted before the receiver has handled the
    ///                 first. The worker acquires one for each signal, and the receiver releases it. So a slow receiver
    ///                 slows the worker down, and memory does not grow. Must outlive the worker.
    PhonebookWorker( const QString& a_fileName, QSemaphore& a_places );

public slots:
    /// Reads the file. Emits either Finished() or Failed() once at the end.
    void Run();

signals:
    /// Some contacts, at most 50, in the order of the file.
    void ContactsRead( const Contacts& a_contacts );
    /// \param a_percent the part of the file that was read, from 0 to 100; never decreases.
    void Progress( int a_percent );
    /// \param a_refused   the number of cards that were left out.
    /// \param a_cancelled true if the thread was asked to stop before the end of the file.
    void Finished( qint64 a_refused, bool a_cancelled );
    /// The file could not be read to its end.
    void Failed( const QString& a_reason );

private:
    bool TakeCard( const PimManager::Contacts::PimContactCard& a_card );
    void ReadPieces( QIODevice& a_file, PimManager::Contacts::PimContactReader& a_reader );
    void HandOver();
    bool WaitForPlace();

    QString m_fileName;
    QSemaphore& m_places;
    Contacts m_contacts;
};
