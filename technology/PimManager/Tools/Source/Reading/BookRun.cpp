#include "Reading/BookRun.h"

#include "Reading/BookTask.h"
#include "Reading/InputDevice.h"
#include "Terminal/Wording.h"

#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

OutputDevice* ProgressTerminal( Console& a_console )
{
    const bool isWatched = a_console.AreRemarksWanted() && a_console.OutScreen().IsTerminal() &&
                           a_console.ErrScreen().IsTerminal() && CanRewriteLines();
    return isWatched ? &a_console.Err() : nullptr;
}

// 0 if the size of one of the files is not known.
qint64 SizeOf( const QList<QByteArray>& a_fileNames )
{
    qint64 sum = 0;
    for ( const QByteArray& fileName : a_fileNames )
    {
        struct stat status = {};
        if ( ::stat( fileName.constData(), &status ) != 0 || !S_ISREG( status.st_mode ) )
            return 0;
        sum += status.st_size;
    }
    return sum;
}

} // namespace

BookRun::BookRun( Console& a_console, WithoutReader a_withoutReader ) :
    m_console( a_console ),
    m_stopsWithoutReader( a_withoutReader == WithoutReader::Stop ),
    m_progress( ProgressTerminal( a_console ) )
{
    m_timer.start();
    m_console.Out().SetSendHandler( [this] { m_progress.Hide(); } );
}

BookRun::~BookRun()
{
    m_console.Out().SetSendHandler( nullptr );
}

ExitStatus BookRun::Read( const QList<QByteArray>& a_fileNames, BookTask& a_task )
{
    m_allBytes = SizeOf( a_fileNames );
    ExitStatus status = ExitStatus::AllGiven;
    for ( const QByteArray& fileName : a_fileNames )
    {
        if ( !IsOver() )
            status = Worse( status, ReadFile( fileName, a_task ) );
    }
    return status;
}

ExitStatus BookRun::Finish( ExitStatus a_status )
{
    if ( !Interrupt::IsRequested() )
        return a_status;
    m_console.Tell( QStringLiteral( "interrupted; the output has what was read before" ) );
    return ExitStatus::Interrupted;
}

bool BookRun::IsReaderGone() const
{
    return m_stopsWithoutReader && !m_console.IsOpen();
}

bool BookRun::IsOver() const
{
    return Interrupt::IsRequested() || IsReaderGone();
}

ExitStatus BookRun::ReadFile( const QByteArray& a_fileName, BookTask& a_task )
{
    const QString source = SourceName( a_fileName );
    InputDevice input( a_fileName );
    if ( input.Error() != 0 )
        return RefuseFile( source, input.Reason() );
    a_task.BeginBook( source );
    const QString failure = ReadInput( input, a_task );
    m_bytesBefore += input.BytesRead();
    const ExitStatus status = failure.isEmpty() ? ExitStatus::AllGiven : RefuseFile( source, failure );
    m_progress.Hide();
    return Worse( status, a_task.EndBook() );
}

QString BookRun::ReadInput( InputDevice& a_input, BookTask& a_task )
{
    a_input.SetReadHandler( [this, &a_input] { ShowProgress( a_input ); } );
    try
    {
        a_task.ReadBook( a_input );
    }
    catch ( const std::bad_alloc& )
    {
        return QStringLiteral( "there is not enough memory" );
    }
    return a_input.Error() != 0 ? a_input.Reason() : QString();
}

ExitStatus BookRun::RefuseFile( const QString& a_source, const QString& a_reason )
{
    m_progress.Hide();
    m_console.Tell( m_console.ErrScreen().Isolated( a_source ) + QStringLiteral( ": " ) + a_reason );
    return ExitStatus::Trouble;
}

void BookRun::ShowProgress( const InputDevice& a_input )
{
    // Results that wait are above the line.
    const ProgressState state = { m_timer.elapsed(), m_cards, m_bytesBefore + a_input.BytesRead(), m_allBytes };
    const bool isShown = m_progress.Show( state, ScreenOf( STDERR_FILENO ).m_columns );
    if ( isShown )
        m_console.Out().Flush();
}

} // namespace PimManager::Tools
