/// \file
/// The side that works in its own thread.

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

/// Reads one file in the thread in which it lives and emits the contacts. It stops early when that thread is asked to,
/// by QThread::requestInterruption().
class PhonebookWorker : public QObject
{
    Q_OBJECT

public:
    /// \param a_places how many times ContactsRead() may be emitted before the receiver has handled the first. The
    ///                 worker acquires a place for each, and the receiver releases it. A slow receiver thus slows the
    ///                 worker down, and memory does not grow. Must outlive the worker.
    PhonebookWorker( const QString& a_fileName, QSemaphore& a_places );

public slots:
    /// Reads the file. Emits Finished() or Failed() at the end, and neither of them twice.
    void Run();

signals:
    /// Some contacts, 50 at most, in the order of the file.
    void ContactsRead( const Contacts& a_contacts );
    /// \param a_percent of the file, from 0 to 100, never less than before.
    void Progress( int a_percent );
    /// \param a_refused   cards that were left out.
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
