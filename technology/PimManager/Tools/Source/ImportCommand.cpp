#include "ImportCommand.h"

#include "BookCommandLine.h"
#include "ContactJson.h"
#include "ContactPage.h"
#include "ContactTable.h"
#include "ImportNotes.h"
#include "ImportRun.h"
#include "Outputs/OutputClaims.h"
#include "Outputs/PhotoFolder.h"
#include "Outputs/RejectsFile.h"
#include "TerminalSize.h"

#include <QCommandLineOption>

#include <unistd.h>

namespace PimManager::vCard::Tools
{

namespace
{

const QString s_kJson = QStringLiteral( "json" );
const QString s_kJsonLines = QStringLiteral( "json-lines" );
const QString s_kPhotos = QStringLiteral( "photos" );
const QString s_kRejects = QStringLiteral( "rejects" );
const QString s_kHtml = QStringLiteral( "html" );
const QString s_kQuiet = QStringLiteral( "quiet" );
const QString s_kForce = QStringLiteral( "force" );

void AddOptions( CommandLine& a_line )
{
    const QString file = QStringLiteral( "FILE" );
    a_line.AddOption(
        { { QStringLiteral( "j" ), s_kJson },
          QStringLiteral( "Prints one JSON array of all contacts, values decoded, instead of the table." ) } );
    a_line.AddOption( { { QStringLiteral( "J" ), s_kJsonLines },
                        QStringLiteral( "Prints one JSON object for each contact, on a line of its own." ) } );
    a_line.AddOption( { { QStringLiteral( "q" ), s_kQuiet }, QStringLiteral( "Prints no contacts." ) } );
    a_line.AddOption(
        { { QStringLiteral( "p" ), s_kPhotos },
          QStringLiteral( "Writes the pictures into a folder. Without --force no file there is replaced." ),
          QStringLiteral( "DIR" ) } );
    a_line.AddOption( { { QStringLiteral( "r" ), s_kRejects },
                        QStringLiteral( "Writes what was refused or dropped, as it came, into a file of this name." ),
                        file } );
    a_line.AddOption(
        { { QStringLiteral( "o" ), s_kHtml },
          QStringLiteral( "Writes a page for a browser: contacts, pictures, a search, and what was read." ),
          file } );
    a_line.AddOption(
        { { QStringLiteral( "f" ), s_kForce }, QStringLiteral( "Lets the options above replace files that exist." ) } );
}

QString HelpTail()
{
    return QStringLiteral(
        "\nWhat can be mended is mended; \"pimvcard check\" tells what and where. As FILE of an option, - is standard\n"
        "output. A file appears only when it is complete. Ctrl-C ends the reading and keeps what was read; a second "
        "one\n"
        "ends at once.\n"
        "\nExit status: 0 all delivered whole or mended, 1 something was dropped or refused or a file holds no vCard,\n"
        "2 wrong usage, or a file that cannot be read or written, 130 interrupted.\n" );
}

// Empty when the options fit together.
QString ContradictionIn( const CommandLine& a_line )
{
    const int forms =
        int( a_line.IsSet( s_kJson ) ) + int( a_line.IsSet( s_kJsonLines ) ) + int( a_line.IsSet( s_kQuiet ) );
    if ( forms > 1 )
        return QStringLiteral( "--json, --json-lines and --quiet contradict each other" );
    return QString();
}

std::unique_ptr<ImportOutput> MakeForm( const CommandLine& a_line, OutputDevice& a_out )
{
    if ( a_line.IsSet( s_kJson ) )
        return std::make_unique<ContactJson>( a_out, JsonRecords::Form::Document );
    if ( a_line.IsSet( s_kJsonLines ) )
        return std::make_unique<ContactJson>( a_out, JsonRecords::Form::Lines );
    if ( a_line.IsSet( s_kQuiet ) )
        return std::make_unique<ImportOutput>();
    return std::make_unique<ContactTable>( a_out, TerminalColumns( STDOUT_FILENO ) );
}

void AddFiles( ImportRun::Outputs& a_outputs, const CommandLine& a_line, OutputClaims& a_claims )
{
    if ( a_line.IsSet( s_kPhotos ) )
        a_outputs.push_back( std::make_unique<PhotoFolder>( a_line.Value( s_kPhotos ), a_claims ) );
    if ( a_line.IsSet( s_kRejects ) )
        a_outputs.push_back( std::make_unique<RejectsFile>( a_line.Value( s_kRejects ), a_claims ) );
    if ( a_line.IsSet( s_kHtml ) )
        a_outputs.push_back( std::make_unique<ContactPage>( a_line.Value( s_kHtml ), a_claims ) );
}

// If nobody reads standard output any more, there is nothing left to do unless files are written.
BookRun::WithoutReader WithoutReader( const CommandLine& a_line, const OutputClaims& a_claims )
{
    const bool isNeeded = a_line.IsSet( s_kPhotos ) || !a_claims.HasOnlyStandardOutput();
    return isNeeded ? BookRun::WithoutReader::GoOn : BookRun::WithoutReader::Stop;
}

} // namespace

QString ImportCommand::Summary()
{
    return QStringLiteral( "Gets every contact out of address books, mending what can be mended." );
}

ImportCommand::ImportCommand( Console& a_console ) :
    m_console( a_console )
{
}

ExitStatus ImportCommand::Run( const QList<QByteArray>& a_arguments )
{
    BookCommandLine line( QStringLiteral( "import" ), Summary() );
    AddOptions( line );
    if ( const std::optional<ExitStatus> status = line.ParseFor( m_console, a_arguments, HelpTail() ) )
        return *status;
    const QString contradiction = ContradictionIn( line );
    if ( !contradiction.isEmpty() )
        return line.Refuse( m_console, contradiction );
    OutputClaims claims( m_console, line.Arguments(), line.IsSet( s_kForce ) ? Existing::Replace : Existing::Keep );
    if ( !line.IsSet( s_kQuiet ) && !claims.ClaimResults() )
        return ExitStatus::Trouble;
    ImportRun::Outputs outputs;
    outputs.push_back( MakeForm( line, m_console.Out() ) );
    outputs.push_back( std::make_unique<ImportNotes>( m_console ) );
    AddFiles( outputs, line, claims );
    vCardImport::PimVCardImportOptions options;
    options.m_defaultCharset = line.CharsetOr( options.m_defaultCharset );
    return ImportRun( m_console, options, std::move( outputs ), WithoutReader( line, claims ) ).Run( line.Arguments() );
}

} // namespace PimManager::vCard::Tools
