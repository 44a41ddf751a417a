#include <PimManager/PhoneBook/PimPhoneBookLoader.h>

#include "Loader/LoaderJob.h"
#include "Loader/LoaderThreads.h"
#include "Model/ModelRows.h"

#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <QBuffer>
#include <QFile>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace PimManager::PhoneBook
{

class PimPhoneBookLoaderPrivate
{
public:
    void Cancel();

    Contacts::PimContactOptions m_reading;
    PimPhoneBookOptions m_options;
    QPointer<PimPhoneBookModel> m_model;
    /// The last phone book. Not used with a model.
    PimPhoneBook m_phoneBook;
    /// Null if nothing is being loaded.
    std::shared_ptr<LoaderJob> m_job;
    qint64 m_bytesRead = 0;
    qint64 m_bytesInAll = -1;
    LoaderEnd m_end;
    bool m_isLoaded = false;
};

void PimPhoneBookLoaderPrivate::Cancel()
{
    if ( m_job )
        m_job->Cancel();
    m_job.reset();
}

PimPhoneBookLoader::PimPhoneBookLoader( QObject* a_parent ) :
    QObject( a_parent ),
    d( std::make_unique<PimPhoneBookLoaderPrivate>() )
{
}

PimPhoneBookLoader::~PimPhoneBookLoader()
{
    d->Cancel();
}

void PimPhoneBookLoader::SetReadingOptions( const Contacts::PimContactOptions& a_options )
{
    d->m_reading = a_options;
}

void PimPhoneBookLoader::SetOptions( const PimPhoneBookOptions& a_options )
{
    d->m_options = a_options;
}

void PimPhoneBookLoader::SetModel( PimPhoneBookModel* a_model )
{
    d->m_model = a_model;
    d->m_phoneBook = PimPhoneBook();
}

void PimPhoneBookLoader::Load( const QString& a_fileName )
{
    LoadDevice(
        [a_fileName]
        {
            auto file = std::make_unique<QFile>( a_fileName );
            // The pieces are large enough without the buffer of Qt. An error leaves the file closed.
            file->open( QIODevice::ReadOnly | QIODevice::Unbuffered );
            return file;
        } );
}

void PimPhoneBookLoader::LoadBytes( const QByteArray& a_bytes )
{
    LoadDevice(
        [a_bytes]
        {
            auto buffer = std::make_unique<QBuffer>();
            buffer->setData( a_bytes );
            buffer->open( QIODevice::ReadOnly );
            return buffer;
        } );
}

void PimPhoneBookLoader::LoadDevice( const DeviceMaker& a_maker )
{
    const bool wasLoading = IsLoading();
    d->Cancel();
    d->m_bytesRead = 0;
    d->m_bytesInAll = -1;
    d->m_end.m_errorText.clear();
    d->m_isLoaded = false;
    d->m_job = std::make_shared<LoaderJob>( LoaderTask{ a_maker, d->m_reading, d->m_options, PhoneBook() }, *this );
    StartLoaderThread( d->m_job );
    const QPointer<PimPhoneBookLoader> self( this );
    emit ProgressChanged();
    if ( !self.isNull() && !wasLoading )
        emit LoadingChanged();
}

void PimPhoneBookLoader::Stop()
{
    if ( !IsLoading() )
        return;
    d->Cancel();
    emit LoadingChanged();
}

bool PimPhoneBookLoader::IsLoading() const
{
    return d->m_job != nullptr;
}

qint64 PimPhoneBookLoader::BytesRead() const
{
    return d->m_bytesRead;
}

qint64 PimPhoneBookLoader::BytesInAll() const
{
    return d->m_bytesInAll;
}

qreal PimPhoneBookLoader::Progress() const
{
    if ( d->m_isLoaded )
        return 1;
    if ( d->m_bytesInAll <= 0 )
        return 0;
    return std::min( static_cast<qreal>( d->m_bytesRead ) / static_cast<qreal>( d->m_bytesInAll ), qreal( 1 ) );
}

QString PimPhoneBookLoader::ErrorText() const
{
    return d->m_end.m_errorText;
}

Contacts::PimContactReport PimPhoneBookLoader::Report() const
{
    return d->m_end.m_report;
}

PimPhoneBook PimPhoneBookLoader::PhoneBook() const
{
    return !d->m_model.isNull() ? d->m_model->PhoneBook() : d->m_phoneBook;
}

// A slot may start another loading, stop this one, or delete the loader.
void PimPhoneBookLoader::customEvent( QEvent* /*a_event*/ )
{
    if ( !IsLoading() )
        return;
    const std::shared_ptr<LoaderJob> job = d->m_job;
    const LoaderNews news = job->TakeNews();
    const QPointer<PimPhoneBookLoader> self( this );
    const auto isStill = [&] { return !self.isNull() && d->m_job == job; };
    const bool isLoaded = news.m_end && news.m_end->m_errorText.isEmpty();
    SetProgress( news.m_bytesRead, news.m_bytesInAll );
    if ( isStill() && news.m_book )
        SetBook( *news.m_book );
    if ( isStill() && news.m_book && !isLoaded )
        emit Grown( PhoneBook() );
    if ( isStill() && news.m_end )
        End( *news.m_end );
}

void PimPhoneBookLoader::SetProgress( qint64 a_read, qint64 a_inAll )
{
    const bool isSame = d->m_bytesRead == a_read && d->m_bytesInAll == a_inAll;
    d->m_bytesRead = a_read;
    d->m_bytesInAll = a_inAll;
    if ( !isSame )
        emit ProgressChanged();
}

void PimPhoneBookLoader::SetBook( const LoaderBook& a_book )
{
    if ( !d->m_model.isNull() )
        d->m_model->d->SetPhoneBook( a_book.m_phoneBook, a_book.m_step );
    else
        d->m_phoneBook = a_book.m_phoneBook;
}

void PimPhoneBookLoader::End( const LoaderEnd& a_end )
{
    const QPointer<PimPhoneBookLoader> self( this );
    d->m_job.reset();
    d->m_end = a_end;
    d->m_isLoaded = a_end.m_errorText.isEmpty();
    if ( d->m_isLoaded )
        emit Loaded( PhoneBook() );
    else
        emit Failed( a_end.m_errorText );
    if ( !self.isNull() )
        emit ProgressChanged();
    if ( !self.isNull() )
        emit LoadingChanged();
}

} // namespace PimManager::PhoneBook
