/// \file
/// Reads an address book in a thread of its own and gives phone books.
///
/// \code
/// PimPhoneBookModel model;
/// PimPhoneBookLoader loader;
/// loader.SetModel( &model );
/// QObject::connect( &loader, &PimPhoneBookLoader::Failed, []( const QString& a_text ) { qWarning() << a_text; } );
/// loader.Load( QStringLiteral( "contacts.vcf" ) );
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReport.h>
#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookExport.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>

class QIODevice;

namespace PimManager::PhoneBook
{

class PimPhoneBookLoaderPrivate;
class PimPhoneBookModel;
struct LoaderBook;
struct LoaderEnd;

/// Reads one address book at a time. The thread of the loader reads, makes the index and compares with the former phone
/// book, so the thread of the program never waits.
///
/// **The first time**, Grown() is emitted with the first 32 contacts, and again each time their number has doubled. So
/// a screen is filled at once, and the work remains in the order of n log n. Loaded() is emitted with all contacts.
///
/// **The next time**, the former phone book remains until the new one is complete. Then only Loaded() is emitted.
///
/// **Errors.** If the address book cannot be read to its end, Failed() is emitted. A former phone book remains. The
/// first time, Grown() is emitted with the contacts before the error. Damaged cards are no error; Report() describes
/// them.
///
/// **Threads.** The loader belongs to one thread, which needs an event loop. All signals are emitted there. A slot may
/// call any function, and may delete the loader. A slow receiver misses steps in between, but never the last one.
class PIMPHONEBOOK_EXPORT PimPhoneBookLoader : public QObject
{
    Q_OBJECT
    Q_PROPERTY( bool loading READ IsLoading NOTIFY LoadingChanged )
    Q_PROPERTY( qreal progress READ Progress NOTIFY ProgressChanged )
    Q_PROPERTY( QString errorText READ ErrorText NOTIFY LoadingChanged )

public:
    /// Makes a device that is open for reading. It is called in the thread of the loader, where the device is used and
    /// deleted.
    using DeviceMaker = std::function<std::unique_ptr<QIODevice>()>;

    /// Creates a loader that loads nothing.
    explicit PimPhoneBookLoader( QObject* a_parent = nullptr );
    /// Stops the loading and does not wait for its thread. The destructor of QCoreApplication does, but no more than
    /// three seconds if the device does not answer.
    ~PimPhoneBookLoader() override;

    /// The limits and the filter for reading. Default: those of PimContactOptions.
    void SetReadingOptions( const Contacts::PimContactOptions& a_options );
    /// The options of the phone books. Default: those of PimPhoneBookOptions.
    void SetOptions( const PimPhoneBookOptions& a_options );

    /// Sets a model that shows the phone books. It then has the former phone book.
    /// \param a_model remains the caller's. It may be null, and may be deleted.
    void SetModel( PimPhoneBookModel* a_model );

    /// Starts to read a file. If something is being loaded, that is stopped. Both options and the phone book of the
    /// model are those at this moment. If the file cannot be opened, Failed() is emitted later.
    void Load( const QString& a_fileName );
    /// Starts to read bytes; may be empty, which results in an empty phone book.
    void LoadBytes( const QByteArray& a_bytes );
    /// Starts to read a device to its end. If a sequential device has no data, the thread waits up to 30 seconds for
    /// more, each time.
    /// \param a_maker an exception or a null device is an error. If the device is not open, its errorString() is the
    ///                text of the error.
    void LoadDevice( const DeviceMaker& a_maker );

    /// Stops the loading. Contacts that were shown remain. Grown(), Loaded() and Failed() are not emitted any more. The
    /// thread ends later, when the device and the present step allow it.
    void Stop();

    /// \return true from Load() to Loaded(), Failed() or Stop().
    bool IsLoading() const;

    /// The bytes that were read of the present or last address book.
    qint64 BytesRead() const;
    /// The size of that address book. -1 if it is not known.
    qint64 BytesInAll() const;
    /// The part that was read, from 0 to 1. 0 if the size is not known, and 1 after Loaded().
    qreal Progress() const;

    /// The error of the last loading. Empty if there was none.
    QString ErrorText() const;
    /// The report on the last address book that was read to its end or to an error.
    Contacts::PimContactReport Report() const;

    /// The phone book of the model, or without a model the last one that was given to Grown() or Loaded().
    PimPhoneBook PhoneBook() const;

signals:
    /// IsLoading() or ErrorText() has changed.
    void LoadingChanged();
    /// Progress() has changed.
    void ProgressChanged();
    /// There are more contacts. The model shows them already.
    void Grown( const PimPhoneBook& a_phoneBook );
    /// The address book was read to its end. The model shows it already.
    void Loaded( const PimPhoneBook& a_phoneBook );
    /// The address book could not be read to its end.
    void Failed( const QString& a_text );

protected:
    void customEvent( QEvent* a_event ) override;

private:
    void SetProgress( qint64 a_read, qint64 a_inAll );
    void SetBook( const LoaderBook& a_book );
    void End( const LoaderEnd& a_end );

    std::unique_ptr<PimPhoneBookLoaderPrivate> d;
};

} // namespace PimManager::PhoneBook
