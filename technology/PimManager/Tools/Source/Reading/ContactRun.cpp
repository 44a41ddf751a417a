#include "Reading/ContactRun.h"

#include "Outputs/ReportText.h"
#include "Reading/InputDevice.h"

#include <algorithm>
#include <new>
#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr size_t s_kPieceBytes = 1 << 18;

} // namespace

ContactRun::ContactRun( Console& a_console, const BookOptions& a_options, Outputs a_outputs,
                        BookRun::WithoutReader a_withoutReader ) :
    m_console( a_console ),
    m_options( a_options ),
    m_outputs( std::move( a_outputs ) ),
    m_run( a_console, a_withoutReader ),
    m_piece( s_kPieceBytes )
{
}

ExitStatus ContactRun::Run( const QList<QByteArray>& a_fileNames )
{
    if ( !OpenOutputs() )
        return ReportFailures( ExitStatus::Trouble );
    ForEachOutput( []( BookOutput& a_output ) { a_output.Begin(); } );
    const ExitStatus status = m_run.Read( a_fileNames, *this );
    const bool isNothingRead = status == ExitStatus::Trouble && m_book.m_number == 0;
    if ( isNothingRead )
        ForEachOutput( []( BookOutput& a_output ) { a_output.Abandon(); } );
    ForEachOutput( []( BookOutput& a_output ) { a_output.End(); } );
    const ExitStatus finished = m_run.Finish( ReportFailures( m_console.Close( status ) ) );
    if ( !m_run.IsReaderGone() )
        ReportResults();
    return finished;
}

void ContactRun::BeginBook( const QString& a_source )
{
    m_book = { a_source, m_book.m_number + 1, PimContactReport(), false };
}

void ContactRun::BeginReading( const PimContactOptions& a_options )
{
    m_reader = std::make_unique<PimContactReader>( a_options );
    SetHandlers();
    ForEachOutput( [this]( BookOutput& a_output ) { a_output.BeginBook( m_book, *m_reader ); } );
}

void ContactRun::SetHandlers()
{
    m_reader->SetCardHandler(
        [this]( const PimContactCard& a_card )
        {
            m_run.CountCard();
            if ( m_charset )
                m_charset->Count( a_card );
            ForEachOutput( [&]( BookOutput& a_output ) { a_output.TakeCard( m_book, a_card ); } );
            return !m_run.IsReaderGone();
        } );
    m_reader->SetDiagnosticHandler(
        [this]( const PimContactDiagnostic& a_diagnostic )
        { ForEachOutput( [&]( BookOutput& a_output ) { a_output.TakeDiagnostic( m_book, a_diagnostic ); } ); } );
    const bool areExtentsWanted =
        std::any_of( m_outputs.begin(), m_outputs.end(),
                     []( const std::unique_ptr<BookOutput>& a_output ) { return a_output->WantsExtents(); } );
    if ( areExtentsWanted )
        m_reader->SetExtentHandler(
            [this]( const PimContactExtent& a_extent )
            { ForEachOutput( [&]( BookOutput& a_output ) { a_output.TakeExtent( m_book, a_extent ); } ); } );
}

void ContactRun::ReadBook( InputDevice& a_input )
{
    PimContactOptions options = m_options.m_reader;
    if ( m_options.m_isCharsetGuessed )
    {
        m_charset.emplace( a_input );
        options.SetDefaultCharset( m_charset->Name() );
    }
    BeginReading( options );
    Feed( m_charset ? m_charset->Device() : a_input );
    m_book.m_isReadToEnd = !m_run.IsOver() && a_input.Error() == 0;
    // Where the reading was interrupted, no END line and no line ending is missing, and a number may be cut off.
    if ( m_book.m_isReadToEnd )
        m_reader->Finish();
}

// A file that is refused is read to its end, so that its extents add up to its size. At Ctrl-C the input ends.
void ContactRun::Feed( QIODevice& a_input )
{
    qint64 count = 0;
    while ( !m_run.IsReaderGone() && ( count = a_input.read( m_piece.data(), qint64( m_piece.size() ) ) ) > 0 )
        m_reader->Feed( m_piece.data(), count );
}

ExitStatus ContactRun::EndBook()
{
    // There was no memory to begin.
    if ( !m_reader )
        return ExitStatus::Trouble;
    m_book.m_report = m_reader->Report();
    ForEachOutput( [this]( BookOutput& a_output ) { a_output.EndBook( m_book ); } );
    m_reader.reset();
    ReportCharset();
    return StatusOf( m_book.m_report, m_book.m_isReadToEnd );
}

void ContactRun::ReportCharset()
{
    const QString note = m_charset ? m_charset->Note( m_console.ErrScreen().Isolated( m_book.m_source ) ) : QString();
    m_charset.reset();
    if ( !note.isEmpty() && m_console.IsOpen() )
        m_console.Remark( note );
}

template <typename Call>
void ContactRun::ForEachOutput( Call a_call )
{
    for ( const std::unique_ptr<BookOutput>& output : m_outputs )
    {
        try
        {
            a_call( *output );
        }
        catch ( const std::bad_alloc& )
        {
            output->Fail( QStringLiteral( "there is not enough memory" ) );
            throw;
        }
    }
}

// Nothing is created if an output has been refused already.
bool ContactRun::OpenOutputs()
{
    if ( AreOutputsReady() )
        ForEachOutput( []( BookOutput& a_output ) { a_output.Open(); } );
    return AreOutputsReady();
}

bool ContactRun::AreOutputsReady()
{
    return std::all_of( m_outputs.begin(), m_outputs.end(),
                        []( const std::unique_ptr<BookOutput>& a_output ) { return a_output->Failures().isEmpty(); } );
}

ExitStatus ContactRun::ReportFailures( ExitStatus a_status )
{
    ExitStatus status = a_status;
    for ( const std::unique_ptr<BookOutput>& output : m_outputs )
    {
        status = Worse( status, output->Status() );
        const QStringList failures = output->Failures();
        for ( const QString& failure : failures )
            m_console.Tell( failure );
        if ( !failures.isEmpty() )
            status = Worse( status, ExitStatus::Trouble );
    }
    return status;
}

void ContactRun::ReportResults()
{
    QStringList results;
    for ( const std::unique_ptr<BookOutput>& output : m_outputs )
        results << output->Result();
    results.removeAll( QString() );
    if ( !results.isEmpty() )
        m_console.Remark( results.join( QStringLiteral( ", " ) ) +
                          QStringLiteral( ", %1 ms" ).arg( m_run.Milliseconds() ) );
}

} // namespace PimManager::Tools
