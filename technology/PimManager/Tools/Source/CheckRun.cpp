#include "CheckRun.h"

#include "InputDevice.h"
#include "ReportText.h"

namespace PimManager::vCard::Tools
{

using namespace Contacts;

namespace
{

constexpr size_t s_kPieceBytes = 1 << 18;

} // namespace

CheckRun::CheckRun( Console& a_console, const PimContactOptions& a_options, CheckOutput& a_output ) :
    m_console( a_console ),
    m_output( a_output ),
    m_run( a_console, BookRun::WithoutReader::Stop ),
    m_reader( a_options ),
    m_piece( s_kPieceBytes )
{
    m_reader.SetCardHandler(
        [this]( const PimContactCard& /*a_card*/ )
        {
            m_run.CountCard();
            return true;
        } );
}

ExitStatus CheckRun::Run( const QList<QByteArray>& a_fileNames )
{
    return m_run.Finish( m_console.Close( m_run.Read( a_fileNames, *this ) ) );
}

void CheckRun::BeginBook( const QString& a_source )
{
    m_isReadToEnd = false;
    m_reader.Reset();
    m_output.BeginBook( a_source, m_reader );
}

// A file that is refused is read to its end, so that its extents add up to its size.
void CheckRun::ReadBook( InputDevice& a_input )
{
    qint64 count = 0;
    while ( !m_run.IsOver() && ( count = a_input.read( m_piece.data(), qint64( m_piece.size() ) ) ) > 0 )
        m_reader.Feed( m_piece.data(), count );
    m_isReadToEnd = !m_run.IsOver() && a_input.Error() == 0;
    // Where the reading was interrupted, no END line and no line ending is missing.
    if ( m_isReadToEnd )
        m_reader.Finish();
}

ExitStatus CheckRun::EndBook()
{
    const PimContactReport report = m_reader.Report();
    m_output.EndBook( report, m_isReadToEnd );
    return StatusOf( report, m_isReadToEnd );
}

} // namespace PimManager::vCard::Tools
