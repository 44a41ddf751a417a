/// \file
/// One loading of an address book, shared by the thread that reads and the loader.

#pragma once

#include "Model/BookStep.h"

#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReport.h>
#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookLoader.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QString>
#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>

class QObject;

namespace PimManager::PhoneBook
{

/// What is to be done.
struct LoaderTask
{
    PimPhoneBookLoader::DeviceMaker m_maker;
    Contacts::PimContactOptions m_reading;
    PimPhoneBookOptions m_options;
    PimPhoneBook m_former;
};

/// A phone book, and the step to it from the one that the receiver has.
struct LoaderBook
{
    PimPhoneBook m_phoneBook;
    /// Nothing if the phone book begins with the contacts of the former one. The job then adds the step.
    std::optional<BookStep> m_step;
};

struct LoaderEnd
{
    Contacts::PimContactReport m_report;
    /// Empty if the address book was read to its end.
    QString m_errorText;
};

/// What the receiver does not know yet. Later news replace former ones, so that their memory does not grow.
struct LoaderNews
{
    qint64 m_bytesRead = 0;
    qint64 m_bytesInAll = -1;
    std::optional<LoaderBook> m_book;
    std::optional<LoaderEnd> m_end;
};

/// Carries news from one thread to the other, and the wish to stop back.
class LoaderJob
{
public:
    /// \param a_receiver gets an event when there are news. It is in the thread that creates and cancels the job.
    LoaderJob( const LoaderTask& a_task, QObject& a_receiver );

    const LoaderTask& Task() const { return m_task; }

    bool IsCancelled() const { return m_isCancelled; }
    /// No event is sent after this.
    void Cancel();

    void TellSize( qint64 a_bytes );
    void TellRead( qint64 a_bytes );
    void TellBook( const LoaderBook& a_book );
    /// \param a_book nothing if the receiver keeps its phone book.
    void TellEnd( const LoaderEnd& a_end, const std::optional<LoaderBook>& a_book );

    LoaderNews TakeNews();

    /// The last that the thread does with the job.
    void SetDone();
    bool IsDone() const { return m_isDone; }
    /// Waits until the thread is done. If a call of the device takes longer than a time, the thread is abandoned: it
    /// never returns from that call, so that it uses nothing that is being destroyed.
    /// \return false if the thread was abandoned.
    bool WaitForEnd( std::chrono::milliseconds a_mostOfDevice );

    /// Calls a function of a device.
    template <class Function>
    auto InDevice( const Function& a_function )
    {
        const DeviceCall call( *this );
        return a_function();
    }

private:
    class DeviceCall
    {
    public:
        explicit DeviceCall( LoaderJob& a_job );
        ~DeviceCall();
        Q_DISABLE_COPY( DeviceCall )

    private:
        LoaderJob& m_job;
    };

    template <class Change>
    void Tell( const Change& a_change );
    void SetBook( const LoaderBook& a_book );

    const LoaderTask m_task;
    std::atomic<bool> m_isCancelled = false;
    std::atomic<bool> m_isDone = false;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isInDevice = false;
    bool m_isAbandoned = false;
    QObject* m_receiver;
    LoaderNews m_news;
    PimPhoneBook m_receivers;
    bool m_isEventSent = false;
};

} // namespace PimManager::PhoneBook
