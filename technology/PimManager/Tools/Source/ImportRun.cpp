#include "ImportRun.h"

#include "AccountText.h"
#include "InputDevice.h"

#include <new>
#include <utility>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

ImportRun::ImportRun( Console& a_console, const PimVCardImportOptions& a_options, Outputs a_outputs,
                      BookRun::WithoutReader a_withoutReader ) :
    m_console( a_console ),
    m_options( a_options ),
    m_outputs( std::move( a_outputs ) ),
    m_run( a_console, a_withoutReader )
{
}

ExitStatus ImportRun::Run( const QList<QByteArray>& a_fileNames )
{
    if ( !OpenOutputs() )
        return TellFailures( ExitStatus::Trouble );
    ForEachOutput( []( ImportOutput& a_output ) { a_output.Begin(); } );
    const ExitStatus status = m_run.Read( a_fileNames, *this );
    ForEachOutput( []( ImportOutput& a_output ) { a_output.End(); } );
    const ExitStatus finished = m_run.Finish( TellFailures( m_console.Close( status ) ) );
    if ( !m_run.IsReaderGone() )
        TellResults();
    return finished;
}

void ImportRun::BeginBook( const QString& a_source )
{
    m_book.m_source = a_source;
    m_book.m_account = PimVCardImportAccount();
    m_openCard = -1;
    ++m_book.m_number;
    ForEachOutput( [this]( ImportOutput& a_output ) { a_output.BeginBook( m_book ); } );
}

void ImportRun::ReadBook( InputDevice& a_input )
{
    PimVCardImporter importer( m_options );
    importer.SetDiagnosticHandler(
        [this]( const PimVCardDiagnostic& a_diagnostic )
        {
            if ( a_diagnostic.m_code == PimVCardDiagnosticCode::MissingEnd )
                m_openCard = a_diagnostic.m_card;
        } );
    importer.SetRejectHandler(
        [this]( const PimVCardReject& a_reject )
        { ForEachOutput( [&]( ImportOutput& a_output ) { a_output.TakeReject( a_reject ); } ); } );
    m_book.m_account =
        importer.Import( a_input, [this]( const PimVCardImportedCard& a_card ) { return TakeCard( a_card ); } );
    m_book.m_account.m_isStopped = m_book.m_account.m_isStopped || m_run.IsOver();
}

ExitStatus ImportRun::EndBook()
{
    ForEachOutput( [this]( ImportOutput& a_output ) { a_output.EndBook( m_book ); } );
    return StatusOf( m_book.m_account );
}

template <typename Call>
void ImportRun::ForEachOutput( Call a_call )
{
    for ( const std::unique_ptr<ImportOutput>& output : m_outputs )
    {
        try
        {
            a_call( *output );
        }
        catch ( const std::bad_alloc& )
        {
            output->Fail( QStringLiteral( "it needs more memory than there is" ) );
            throw;
        }
    }
}

// Nothing is created if an output has been refused already.
bool ImportRun::OpenOutputs()
{
    if ( AreOutputsReady() )
        ForEachOutput( []( ImportOutput& a_output ) { a_output.Open(); } );
    return AreOutputsReady();
}

bool ImportRun::AreOutputsReady()
{
    bool isReady = true;
    ForEachOutput( [&isReady]( const ImportOutput& a_output ) { isReady = isReady && a_output.Failures().isEmpty(); } );
    return isReady;
}

bool ImportRun::TakeCard( const PimVCardImportedCard& a_card )
{
    if ( m_run.IsReaderGone() )
        return false;
    // The card that Ctrl-C cut off may end in the middle of a number.
    if ( Interrupt::IsRequested() && a_card.m_index == m_openCard )
        return true;
    m_run.CountCard();
    ForEachOutput( [&]( ImportOutput& a_output ) { a_output.TakeCard( m_book, a_card ); } );
    return true;
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
        m_console.Tell( results.join( QStringLiteral( ", " ) ) +
                        QStringLiteral( ", %1 ms" ).arg( m_run.Milliseconds() ) );
}

} // namespace PimManager::vCard::Tools
