#include "Commands/ConvertCommand.h"

#include "Commands/OutputFormat.h"
#include "Commands/ReadingCommand.h"
#include "Commands/Suggestion.h"
#include "Outputs/BookNotes.h"
#include "Outputs/ContactJson.h"
#include "Outputs/OutputClaims.h"
#include "Outputs/PhotoFolder.h"
#include "Outputs/RejectsFile.h"
#include "Page/ContactPage.h"
#include "Reading/ContactRun.h"
#include "Terminal/TerminalText.h"

namespace PimManager::Tools
{

namespace
{

// What the command line asks for.
struct Request
{
    BookOptions m_options;
    std::optional<OutputFormat> m_format;
    QByteArray m_fileName;
};

QString UnknownFormat( const QByteArray& a_name )
{
    return QStringLiteral( "unknown format: %1; the formats are %2.%3" )
        .arg( ToShownFileName( a_name ), FormatNames().join( QStringLiteral( ", " ) ),
              SuggestionFor( QString::fromUtf8( a_name ), FormatNames() ) );
}

bool HasOtherOutputs( const CommandLine& a_line )
{
    return a_line.IsSet( s_kPhotosOption ) || a_line.IsSet( s_kRejectsOption );
}

// Returns what is wrong; empty if nothing is.
QString ReadFormat( const CommandLine& a_line, Request& a_request )
{
    const bool hasFile = a_line.IsSet( s_kOutputOption );
    a_request.m_fileName = hasFile ? a_line.Value( s_kOutputOption ) : QByteArrayLiteral( "-" );
    const QByteArray name = a_line.Value( s_kToOption );
    const bool isNamed = a_line.IsSet( s_kToOption );
    a_request.m_format = isNamed ? FormatNamed( name ) : FormatByEnding( a_request.m_fileName );
    if ( a_request.m_format || ( !isNamed && !hasFile && HasOtherOutputs( a_line ) ) )
        return QString();
    if ( isNamed )
        return UnknownFormat( name );
    return QStringLiteral( "no format; --to takes %1" ).arg( FormatNames().join( QStringLiteral( ", " ) ) );
}

QString ReadRequest( const CommandLine& a_line, Request& a_request )
{
    const QString mistake = ReadBookOptions( a_line, a_request.m_options );
    return mistake.isEmpty() ? ReadFormat( a_line, a_request ) : mistake;
}

std::unique_ptr<BookOutput> MakeOutput( const Request& a_request, OutputClaims& a_claims )
{
    switch ( *a_request.m_format )
    {
    case OutputFormat::Json:
        return std::make_unique<ContactJson>( a_request.m_fileName, a_claims, ContactJson::Form::Document );
    case OutputFormat::JsonLines:
        return std::make_unique<ContactJson>( a_request.m_fileName, a_claims, ContactJson::Form::Lines );
    case OutputFormat::Html:
        break;
    }
    return std::make_unique<ContactPage>( a_request.m_fileName, a_claims );
}

void AddOtherOutputs( ContactRun::Outputs& a_outputs, const CommandLine& a_line, OutputClaims& a_claims )
{
    if ( a_line.IsSet( s_kPhotosOption ) )
        a_outputs.push_back( std::make_unique<PhotoFolder>( a_line.Value( s_kPhotosOption ), a_claims ) );
    if ( a_line.IsSet( s_kRejectsOption ) )
        a_outputs.push_back( std::make_unique<RejectsFile>( a_line.Value( s_kRejectsOption ), a_claims ) );
}

// If nobody reads standard output any more, there is nothing left to do unless files are written.
BookRun::WithoutReader WithoutReader( const CommandLine& a_line, const OutputClaims& a_claims )
{
    const bool isNeeded = a_line.IsSet( s_kPhotosOption ) || !a_claims.HasOnlyStandardOutput();
    return isNeeded ? BookRun::WithoutReader::GoOn : BookRun::WithoutReader::Stop;
}

} // namespace

ExitStatus RunConvert( const CommandLine& a_line, Console& a_console )
{
    Request request;
    const QString mistake = ReadRequest( a_line, request );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    OutputClaims claims( a_console, a_line.Arguments(),
                         a_line.IsSet( s_kForceOption ) ? Existing::Replace : Existing::Keep );
    ContactRun::Outputs outputs;
    outputs.push_back( std::make_unique<BookNotes>( a_console ) );
    AddOtherOutputs( outputs, a_line, claims );
    if ( request.m_format )
        outputs.push_back( MakeOutput( request, claims ) );
    return ContactRun( a_console, request.m_options, std::move( outputs ), WithoutReader( a_line, claims ) )
        .Run( a_line.Arguments() );
}

} // namespace PimManager::Tools
