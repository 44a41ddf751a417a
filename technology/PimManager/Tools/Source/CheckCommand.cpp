#include "CheckCommand.h"

#include "CheckReport.h"
#include "ImportLine.h"
#include "ImportRun.h"

namespace PimManager::vCard::Tools
{

namespace
{

QString HelpTail()
{
    return QStringLiteral(
        "\nA line for each finding, FILE:LINE:COLUMN: SEVERITY: TEXT [WORD], and one for each file. Severities:\n"
        "note, delivered as written; repaired, what was meant is delivered; dropped, left out of a card;\n"
        "refused, a whole card left out.\n"
        "\nExit status: 0 all can be delivered whole or mended, 1 something is dropped or refused or a file\n"
        "holds no vCard, 2 wrong usage, or a file that cannot be read, 130 interrupted.\n" );
}

} // namespace

QString CheckCommand::Summary()
{
    return QStringLiteral( "Tells what is wrong with address books, and where." );
}

CheckCommand::CheckCommand( Console& a_console ) :
    m_console( a_console )
{
}

ExitStatus CheckCommand::Run( const QList<QByteArray>& a_arguments )
{
    ImportLine line( QStringLiteral( "check" ), Summary() );
    if ( const std::optional<ExitStatus> status = line.ParseFor( m_console, a_arguments, HelpTail() ) )
        return *status;
    vCardImport::PimVCardImportOptions options = line.ImportOptions();
    // The report takes each finding as it is made. No limit would keep them all.
    options.m_limits.m_diagnostics = 1;
    ImportRun::Outputs outputs;
    outputs.push_back( std::make_unique<CheckReport>( m_console.Out() ) );
    return ImportRun( m_console, options, std::move( outputs ), ImportRun::WithoutReader::Stop )
        .Run( line.Arguments() );
}

} // namespace PimManager::vCard::Tools
