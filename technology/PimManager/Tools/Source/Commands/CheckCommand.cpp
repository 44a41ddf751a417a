#include "Commands/CheckCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/CheckReport.h"
#include "Outputs/ExtentList.h"
#include "Outputs/OutputClaims.h"
#include "Reading/ContactRun.h"
#include "Strict/StrictCheck.h"

namespace PimManager::Tools
{

namespace
{

std::unique_ptr<BookOutput> MakeOutput( const CommandLine& a_line, Console& a_console )
{
    if ( a_line.IsSet( s_kExtentsOption ) )
        return std::make_unique<ExtentList>( a_console.Out(), a_line.Arguments().size() > 1 );
    using Conformance = CheckReport::Conformance;
    const bool isStandard = a_line.IsSet( s_kStandardOption );
    return std::make_unique<CheckReport>( a_console.Out(), isStandard ? Conformance::Checked : Conformance::Ignored,
                                          a_console.OutScreen() );
}

/// \return why the options do not go together; empty if they do.
QString ContradictionIn( const CommandLine& a_line )
{
    QStringList ways;
    for ( const QString& option : { s_kExtentsOption, s_kStandardOption, s_kStrictOption } )
    {
        if ( a_line.IsSet( option ) )
            ways << QStringLiteral( "--" ) + option;
    }
    return ways.size() < 2 ? QString()
                           : ways[0] + QStringLiteral( " and " ) + ways[1] +
                                 QStringLiteral( " cannot be combined; run check once for each" );
}

} // namespace

ExitStatus RunCheck( const CommandLine& a_line, Console& a_console )
{
    BookOptions options;
    const QString mistake = ReadBookOptions( a_line, options );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    const QString contradiction = ContradictionIn( a_line );
    if ( !contradiction.isEmpty() )
        return RefuseUsage( a_console, a_line, contradiction );
    if ( !OutputClaims( a_console, a_line.Arguments() ).ClaimResults() )
        return ExitStatus::Trouble;
    if ( a_line.IsSet( s_kStrictOption ) )
        return StrictCheck( a_console ).Run( a_line.Arguments() );
    // The output receives each finding. None has to be kept.
    options.m_reader.SetDiagnostics( 0 );
    ContactRun::Outputs outputs;
    outputs.push_back( MakeOutput( a_line, a_console ) );
    return ContactRun( a_console, options, std::move( outputs ), BookRun::WithoutReader::Stop )
        .Run( a_line.Arguments() );
}

} // namespace PimManager::Tools
