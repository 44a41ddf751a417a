#include "ImportRun.h"

#include "AccountText.h"
#include "InputDevice.h"
#include "Interrupt.h"
#include "Wording.h"

#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

OutputDevice* ProgressTerminal( Console& a_console )
{
    const bool isWatched = ::isatty( STDOUT_FILENO ) != 0 && ::isatty( STDERR_FILENO ) != 0;
    return isWatched ? &a_console.Err() : nullptr;
}

// 0 when one of the files does not tell.
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

ImportRun::ImportRun( Console& a_console, const PimVCardImportOptions& a_options, Outputs a_outputs,
                      WithoutReader a_withoutReader ) :
    m_console( a_console ),
    m_options( a_options ),
    m_outputs( std::move( a_outputs ) ),
    m_stopsWithoutReader( a_withoutReader == WithoutReader::Stop ),
    m_progress( ProgressTerminal( a_console ) )
{
    m_console.Out().SetSendHandler( [this] { m_progress.Hide(); } );
}

ImportRun::~ImportRun()
{
    m_console.Out().SetSendHandler( nullptr );
}

ExitStatus ImportRun::Run( const QList<QByteArray>& a_fileNames )
{
    const Interrupt interrupt;
    m_timer.start();
    m_allBytes = SizeOf( a_fileNames );
    ForEachOutput( []( ImportOutput& a_output ) { a_output.Begin(); } );
    bool isReady = true;
    ForEachOutput( [&isReady]( const ImportOutput& a_output ) { isReady = isReady && a_output.Failures().isEmpty(); } );
    ExitStatus status = ExitStatus::AllGiven;
    for ( const QByteArray& fileName : a_fileNames )
    {
        if ( isReady && !IsOver() )
            status = Worse( status, ImportFile( fileName ) );
    }
    ForEachOutput( []( ImportOutput& a_output ) { a_output.End(); } );
    return Finish( status );
}

template <typename Call>
void ImportRun::ForEachOutput( Call a_call )
{
    for ( const std::unique_ptr<ImportOutput>& output : m_outputs )
        a_call( *output );
}

ExitStatus ImportRun::ImportFile( const QByteArray& a_fileName )
{
    m_book.m_source = SourceName( a_fileName );
    m_book.m_account = PimVCardImportAccount();
    m_openCard = -1;
    InputDevice input( a_fileName );
    if ( input.Error() != 0 )
        return RefuseFile( input.Reason() );
    ++m_book.m_number;
    ForEachOutput( [this]( ImportOutput& a_output ) { a_output.BeginBook( m_book ); } );
    const ExitStatus status = ImportInput( input );
    m_bytesBefore += input.BytesRead();
    m_progress.Hide();
    ForEachOutput( [this]( ImportOutput& a_output ) { a_output.EndBook( m_book ); } );
    return status;
}

ExitStatus ImportRun::ImportInput( InputDevice& a_input )
{
    try
    {
        Import( a_input );
    }
    catch ( const std::bad_alloc& )
    {
        return RefuseFile( QStringLiteral( "needs more memory than there is" ) );
    }
    return a_input.Error() != 0 ? RefuseFile( a_input.Reason() ) : StatusOf( m_book.m_account );
}

void ImportRun::Import( InputDevice& a_input )
{
    PimVCardImporter importer( m_options );
    importer.SetDiagnosticHandler( [this]( const PimVCardDiagnostic& a_diagnostic )
                                   { TakeDiagnostic( a_diagnostic ); } );
    importer.SetRejectHandler(
        [this]( const PimVCardReject& a_reject )
        { ForEachOutput( [&]( ImportOutput& a_output ) { a_output.TakeReject( a_reject ); } ); } );
    a_input.SetReadHandler( [this, &a_input] { ShowProgress( a_input ); } );
    m_book.m_account =
        importer.Import( a_input, [this]( const PimVCardImportedCard& a_card ) { return TakeCard( a_card ); } );
    m_book.m_account.m_isStopped = m_book.m_account.m_isStopped || IsOver();
}

void ImportRun::TakeDiagnostic( const PimVCardDiagnostic& a_diagnostic )
{
    if ( a_diagnostic.m_code == PimVCardDiagnosticCode::MissingEnd )
        m_openCard = a_diagnostic.m_card;
    ForEachOutput( [&]( ImportOutput& a_output ) { a_output.TakeDiagnostic( m_book, a_diagnostic ); } );
}

bool ImportRun::TakeCard( const PimVCardImportedCard& a_card )
{
    if ( m_stopsWithoutReader && !m_console.IsOpen() )
        return false;
    // The card that Ctrl-C cut off may end in the middle of a number.
    if ( Interrupt::IsRequested() && a_card.m_index == m_openCard )
        return true;
    ++m_cards;
    ForEachOutput( [&]( ImportOutput& a_output ) { a_output.TakeCard( m_book, a_card ); } );
    return true;
}

ExitStatus ImportRun::RefuseFile( const QString& a_reason )
{
    m_progress.Hide();
    m_console.Tell( m_book.m_source + QStringLiteral( ": " ) + a_reason );
    return ExitStatus::Trouble;
}

ExitStatus ImportRun::Finish( ExitStatus a_status )
{
    m_progress.Hide();
    const ExitStatus status = TellFailures( m_console.Close( a_status ) );
    const bool isInterrupted = Interrupt::IsRequested();
    if ( isInterrupted )
        m_console.Tell( QStringLiteral( "interrupted; this is what was read until then" ) );
    if ( m_console.IsOpen() || !m_stopsWithoutReader )
        TellResults();
    return isInterrupted ? ExitStatus::Interrupted : status;
}

ExitStatus ImportRun::TellFailures( ExitStatus a_status )
{
    ExitStatus status = a_status;
    ForEachOutput(
        [this, &status]( const ImportOutput& a_output )
        {
            const QStringList failures = a_output.Failures();
            for ( const QString& failure : failures )
                m_console.Tell( failure );
            if ( !failures.isEmpty() )
                status = Worse( status, ExitStatus::Trouble );
        } );
    return status;
}

void ImportRun::TellResults()
{
    QStringList results;
    ForEachOutput( [&results]( const ImportOutput& a_output ) { results << a_output.Result(); } );
    results.removeAll( QString() );
    if ( !results.isEmpty() )
        m_console.Tell( results.join( QStringLiteral( ", " ) ) + QStringLiteral( ", %1 ms" ).arg( m_timer.elapsed() ) );
}

bool ImportRun::IsOver() const
{
    return Interrupt::IsRequested() || ( m_stopsWithoutReader && !m_console.IsOpen() );
}

void ImportRun::ShowProgress( const InputDevice& a_input )
{
    // Results that wait stand above the line.
    const bool isShown =
        m_progress.Show( { m_timer.elapsed(), m_cards, m_bytesBefore + a_input.BytesRead(), m_allBytes } );
    if ( isShown )
        m_console.Out().Flush();
}

} // namespace PimManager::vCard::Tools
