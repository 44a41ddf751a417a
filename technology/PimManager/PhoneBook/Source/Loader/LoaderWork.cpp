#include "Loader/LoaderWork.h"

#include "Loader/DevicePieces.h"

#include <QIODevice>

#include <exception>
#include <memory>
#include <new>

namespace PimManager::PhoneBook
{

namespace
{

// Enough contacts to fill a screen.
constexpr int s_kFirstSize = 32;

/// \return the text of the error that a function returns or throws.
template <class Function>
QString ErrorOf( const Function& a_function )
{
    try
    {
        return a_function();
    }
    catch ( const std::bad_alloc& )
    {
        return QStringLiteral( "there is not enough memory" );
    }
    catch ( const std::exception& exception )
    {
        return QString::fromLocal8Bit( exception.what() );
    }
    catch ( ... )
    {
        return QStringLiteral( "the device threw an exception" );
    }
}

} // namespace

LoaderWork::LoaderWork( LoaderJob& a_job ) :
    m_job( a_job ),
    m_reader( a_job.Task().m_reading ),
    m_nextSize( s_kFirstSize )
{
    m_reader.SetCardHandler( [this]( const Contacts::PimContactCard& a_card ) { return TakeCard( a_card ); } );
}

void LoaderWork::Run()
{
    LoaderEnd end;
    std::optional<LoaderBook> book;
    end.m_errorText = ErrorOf( [&] { return ReadDevice(); } );
    if ( m_job.IsCancelled() )
        return;
    const QString errorText = ErrorOf(
        [&]
        {
            book = Result( end.m_errorText.isEmpty() );
            return QString();
        } );
    if ( !errorText.isEmpty() )
        end.m_errorText = errorText;
    end.m_report = m_reader.Report();
    m_job.TellEnd( end, book );
}

QString LoaderWork::ReadDevice()
{
    const LoaderTask& task = m_job.Task();
    std::unique_ptr<QIODevice> device = m_job.InDevice( [&] { return task.m_maker ? task.m_maker() : nullptr; } );
    if ( !device )
        return QStringLiteral( "there is no device" );
    if ( !device->isReadable() )
        return device->errorString();
    QString errorText = ReadPieces( *device );
    m_job.InDevice( [&] { device.reset(); } );
    m_reader.Finish();
    return errorText;
}

QString LoaderWork::ReadPieces( QIODevice& a_device )
{
    DevicePieces pieces( a_device );
    m_job.TellSize( pieces.Size() );
    while ( !m_job.IsCancelled() )
    {
        const PieceState state = m_job.InDevice( [&] { return pieces.Next(); } );
        if ( state == PieceState::End || state == PieceState::Failed )
            return pieces.ErrorText();
        m_job.TellRead( pieces.Piece().size() );
        if ( !m_reader.Feed( pieces.Piece() ) )
            break;
    }
    return QString();
}

bool LoaderWork::TakeCard( const Contacts::PimContactCard& a_card )
{
    if ( m_job.IsCancelled() )
        return false;
    m_book.Append( a_card );
    if ( IsGrowing() && m_book.Size() == m_nextSize )
    {
        m_nextSize *= 2;
        m_job.TellBook( { MakePhoneBook(), std::nullopt } );
    }
    return true;
}

bool LoaderWork::IsGrowing() const
{
    return m_job.Task().m_former.Size() == 0;
}

PimPhoneBook LoaderWork::MakePhoneBook() const
{
    return PimPhoneBook( m_book, m_job.Task().m_options );
}

// A part of an address book does not replace a whole one.
std::optional<LoaderBook> LoaderWork::Result( bool a_isWhole ) const
{
    if ( IsGrowing() )
        return LoaderBook{ MakePhoneBook(), std::nullopt };
    if ( !a_isWhole )
        return std::nullopt;
    const PimPhoneBook phoneBook = MakePhoneBook();
    return LoaderBook{ phoneBook, StepBetween( m_job.Task().m_former, phoneBook ) };
}

} // namespace PimManager::PhoneBook
