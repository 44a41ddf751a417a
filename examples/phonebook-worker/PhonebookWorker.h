/// \file
/// The side that works in its own thread.

#pragma once

#include "Contact.h"

#include <PimVCardImporter.h>

#include <QObject>

class QIODevice;
class QSemaphore;

/// Imports one file in the thread in which it lives and tells what comes of it. It stops early when that thread is
/// asked to, by QThread::requestInterruption().
class PhonebookWorker : public QObject
{
    Q_OBJECT

public:
    /// \param a_places how many times ContactsRead() may be emitted before the other side has taken what came. The
    ///                 worker takes a place for each, and who takes the contacts gives it back; so a slow taker slows
    ///                 the worker down, and memory does not grow. Stays the caller's; must outlive the worker.
    PhonebookWorker( const QString& a_fileName, QSemaphore& a_places );

public slots:
    /// Reads the file. Emits Finished() or Failed() at the end, and neither of them twice.
    void Run();

signals:
    /// Some contacts, 50 at most, in the order of the file.
    void ContactsRead( const Contacts& a_contacts );
    /// \param a_percent of the file, from 0 to 100, never less than before.
    void Progress( int a_percent );
    /// \param a_refused   cards that could not be read.
    /// \param a_cancelled true if the thread was asked to stop before the end of the file.
    void Finished( qint64 a_refused, bool a_cancelled );
    /// The file could not be read to its end.
    void Failed( const QString& a_reason );

private:
    bool TakeCard( const PimManager::vCard::PimVCard& a_card );
    void ReadPieces( QIODevice& a_file, PimManager::vCardImport::PimVCardImporter& a_importer );
    void HandOver();
    bool WaitForPlace();

    QString m_fileName;
    QSemaphore& m_places;
    Contacts m_contacts;
};
