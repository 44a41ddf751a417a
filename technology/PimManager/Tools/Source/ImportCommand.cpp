#include "ImportCommand.h"

#include "BookCommandLine.h"
#include "ContactJson.h"
#include "ContactPage.h"
#include "ContactTable.h"
#include "ImportNotes.h"
#include "ImportRun.h"
#include "PhotoFolder.h"
#include "RejectsFile.h"
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

void AddOptions( CommandLine& a_line )
{
    const QString file = QStringLiteral( "FILE" );
    a_line.AddOption(
        { { QStringLiteral( "j" ), s_kJson },
          QStringLiteral( "Prints one JSON array of all contacts, values decoded, instead of the table." ) } );
    a_line.AddOption( { { QStringLiteral( "J" ), s_kJsonLines },
                        QStringLiteral( "Prints one JSON object for each contact, on a line of its own." ) } );
    a_line.AddOption( { { QStringLiteral( "q" ), s_kQuiet }, QStringLiteral( "Prints no contacts." ) } );
    a_line.AddOption( { { QStringLiteral( "p" ), s_kPhotos },
                        QStringLiteral( "Writes the pictures into a folder. No file there is overwritten." ),
                        QStringLiteral( "DIR" ) } );
    a_line.AddOption( { { QStringLiteral( "r" ), s_kRejects },
                        QStringLiteral( "Writes what was refused or dropped, as it came, into a file of this name." ),
                        file } );
    a_line.AddOption(
        { { QStringLiteral( "o" ), s_kHtml },
          QStringLiteral( "Writes a page for a browser: contacts, pictures, a search, and what was read." ),
          file } );
}

QString HelpTail()
{
    return QStringLiteral(
        "\nWhat can be mended is mended; \"pimvcard check\" tells what and where. Existing files named by --rejects\n"
        "and --html are written anew. Ctrl-C ends the reading and keeps what was read; a second one ends at once.\n"
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
    const bool haveBoth = a_line.IsSet( s_kRejects ) && a_line.IsSet( s_kHtml );
    if ( haveBoth && a_line.Value( s_kRejects ) == a_line.Value( s_kHtml ) )
        return QStringLiteral( "--rejects and --html name the same file" );
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

void AddFiles( ImportRun::Outputs& a_outputs, const CommandLine& a_line )
{
    if ( a_line.IsSet( s_kPhotos ) )
        a_outputs.push_back( std::make_unique<PhotoFolder>( a_line.Value( s_kPhotos ) ) );
    if ( a_line.IsSet( s_kRejects ) )
        a_outputs.push_back( std::make_unique<RejectsFile>( a_line.Value( s_kRejects ), a_line.Arguments() ) );
    if ( a_line.IsSet( s_kHtml ) )
        a_outputs.push_back( std::make_unique<ContactPage>( a_line.Value( s_kHtml ), a_line.Arguments() ) );
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
    ImportRun::Outputs outputs;
    outputs.push_back( MakeForm( line, m_console.Out() ) );
    outputs.push_back( std::make_unique<ImportNotes>( m_console ) );
    AddFiles( outputs, line );
    const bool makesFiles = outputs.size() > 2 || line.IsSet( s_kQuiet );
    vCardImport::PimVCardImportOptions options;
    options.m_defaultCharset = line.CharsetOr( options.m_defaultCharset );
    return ImportRun( m_console, options, std::move( outputs ),
                      makesFiles ? BookRun::WithoutReader::GoOn : BookRun::WithoutReader::Stop )
        .Run( line.Arguments() );
}

} // namespace PimManager::vCard::Tools
