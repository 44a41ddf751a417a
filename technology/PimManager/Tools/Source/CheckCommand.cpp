#include "CheckCommand.h"

#include "BookCommandLine.h"
#include "CheckReport.h"
#include "CheckRun.h"
#include "ExtentList.h"
#include "LimitOptions.h"
#include "Outputs/OutputClaims.h"

#include <QCommandLineOption>

#include <memory>

namespace PimManager::vCard::Tools
{

using namespace Contacts;

namespace
{

const QString s_kExtents = QStringLiteral( "extents" );

void AddOptions( CommandLine& a_line )
{
    a_line.AddOption(
        { { QStringLiteral( "e" ), s_kExtents },
          QStringLiteral( "Prints what became of each byte instead of the findings: lines of OFFSET LENGTH "
                          "KIND CARD, from byte 0 to the end of the file." ) } );
    AddLimitOptions( a_line );
}

QString HelpTail()
{
    return QStringLiteral(
        "\nPrints one line for each finding, FILE:LINE:COLUMN: SEVERITY: TEXT [WORD], and one for each file.\n"
        "Severities: note, delivered as written; repaired, what was meant is delivered; dropped, left out of a card;\n"
        "refused, a whole card or file left out.\n"
        "\nA NUMBER may end in K, M or G for 1024, 1024 K or 1024 M. 0 means no limit. A line beyond its limit is\n"
        "dropped, a card beyond one is refused, and the rest of the file is read.\n"
        "\nExit status: 0 everything is delivered whole or repaired, 1 something is dropped or refused or a file\n"
        "holds no vCard, 2 wrong usage, or a file that cannot be read, 130 interrupted.\n" );
}

std::unique_ptr<CheckOutput> MakeOutput( const CommandLine& a_line, OutputDevice& a_out )
{
    if ( a_line.IsSet( s_kExtents ) )
        return std::make_unique<ExtentList>( a_out, a_line.Arguments().size() > 1 );
    return std::make_unique<CheckReport>( a_out );
}

} // namespace

QString CheckCommand::Summary()
{
    return QStringLiteral( "Reports what is wrong with address books, and where." );
}

CheckCommand::CheckCommand( Console& a_console ) :
    m_console( a_console )
{
}

ExitStatus CheckCommand::Run( const QList<QByteArray>& a_arguments )
{
    BookCommandLine line( QStringLiteral( "check" ), Summary() );
    AddOptions( line );
    if ( const std::optional<ExitStatus> status = line.ParseFor( m_console, a_arguments, HelpTail() ) )
        return *status;
    PimContactOptions options;
    options.SetDefaultCharset( line.CharsetOr( options.DefaultCharset() ) );
    // The output receives each finding. None has to be kept.
    options.SetDiagnostics( 0 );
    const QString wrongLimit = ApplyLimits( line, options );
    if ( !wrongLimit.isEmpty() )
        return line.Refuse( m_console, wrongLimit );
    if ( !OutputClaims( m_console, line.Arguments() ).ClaimResults() )
        return ExitStatus::Trouble;
    const std::unique_ptr<CheckOutput> output = MakeOutput( line, m_console.Out() );
    return CheckRun( m_console, options, *output ).Run( line.Arguments() );
}

} // namespace PimManager::vCard::Tools
