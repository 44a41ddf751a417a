#include "Commands/ConvertCommand.h"

#include "Commands/OutputFormat.h"
#include "Commands/ReadingCommand.h"
#include "Commands/Suggestion.h"
#include "Outputs/BookNotes.h"
#include "Outputs/CardFile.h"
#include "Outputs/CardFolder.h"
#include "Outputs/ContactCsv.h"
#include "Outputs/ContactJson.h"
#include "Outputs/OutputClaims.h"
#include "Outputs/PhotoFolder.h"
#include "Outputs/RejectsFile.h"
#include "Outputs/SortedOutput.h"
#include "Page/ContactPage.h"
#include "Reading/ContactRun.h"
#include "Terminal/TerminalText.h"

#include <algorithm>
#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// What the command line asks for.
struct Request
{
    BookOptions m_options;
    std::optional<OutputFormat> m_format;
    QByteArray m_fileName;
    // Of --split.
    bool m_isSplit = false;
    QByteArray m_folder;
    bool m_isSorted = false;
    std::vector<const CsvColumn*> m_columns = AllCsvColumns();
    bool m_hasMark = false;
};

QString UnknownFormat( const QByteArray& a_name )
{
    return QStringLiteral( "unknown format: %1; use one of %2.%3" )
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
    if ( !isNamed && a_line.IsSet( s_kSplitOption ) )
        a_request.m_format = OutputFormat::V30;
    if ( a_request.m_format || ( !isNamed && !hasFile && HasOtherOutputs( a_line ) ) )
        return QString();
    if ( isNamed )
        return UnknownFormat( name );
    return QStringLiteral( "no output format; choose one with --to: %1" )
        .arg( FormatNames().join( QStringLiteral( ", " ) ) );
}

// The names between the commas.
QList<QByteArray> NamesIn( const QByteArray& a_value )
{
    QList<QByteArray> names = a_value.split( ',' );
    for ( QByteArray& name : names )
        name = name.trimmed();
    return names;
}

bool IsPropertyName( const QByteArray& a_name )
{
    const auto isNameByte = []( char a_byte )
    {
        return ( a_byte >= 'A' && a_byte <= 'Z' ) || ( a_byte >= 'a' && a_byte <= 'z' ) ||
               ( a_byte >= '0' && a_byte <= '9' ) || a_byte == '-';
    };
    return !a_name.isEmpty() && std::all_of( a_name.begin(), a_name.end(), isNameByte );
}

QString ReadFilter( const CommandLine& a_line, Request& a_request )
{
    if ( !a_line.IsSet( s_kFilterOption ) )
        return QString();
    const QList<QByteArray> names = NamesIn( a_line.Value( s_kFilterOption ) );
    const auto wrong = std::find_if_not( names.begin(), names.end(), IsPropertyName );
    if ( wrong != names.end() )
        return QStringLiteral( "not a property name: %1; --filter takes names such as FN,N,TEL" )
            .arg( ToShownFileName( *wrong ) );
    a_request.m_options.m_reader.SetNames( names );
    return QString();
}

QString ReadColumns( const CommandLine& a_line, Request& a_request )
{
    a_request.m_hasMark = a_line.IsSet( s_kMarkOption );
    if ( !a_line.IsSet( s_kColumnsOption ) )
        return QString();
    a_request.m_columns.clear();
    const QList<QByteArray> names = NamesIn( a_line.Value( s_kColumnsOption ) );
    for ( const QByteArray& name : names )
    {
        const CsvColumn* const column = FindCsvColumn( name );
        if ( column == nullptr )
            return QStringLiteral( "unknown column: %1; use one of %2.%3" )
                .arg( ToShownFileName( name ), CsvColumnNames().join( QStringLiteral( ", " ) ),
                      SuggestionFor( QString::fromUtf8( name ), CsvColumnNames() ) );
        a_request.m_columns.push_back( column );
    }
    return QString();
}

bool IsCards( OutputFormat a_format )
{
    return a_format == OutputFormat::V21 || a_format == OutputFormat::V30 || a_format == OutputFormat::V40 ||
           a_format == OutputFormat::JCard;
}

// Which options go together.
QString CheckRequest( const CommandLine& a_line, const Request& a_request )
{
    const std::optional<OutputFormat> format = a_request.m_format;
    if ( a_request.m_isSplit && a_line.IsSet( s_kOutputOption ) )
        return QStringLiteral( "--split and --output cannot be combined; leave one of them out" );
    if ( a_request.m_isSplit && !IsCards( *format ) )
        return QStringLiteral( "--split needs vCards; choose 2.1, 3.0, 4.0 or jcard with --to" );
    if ( a_request.m_isSorted && ( !format || *format == OutputFormat::Html ) )
        return QStringLiteral( "--sort does not apply to a page or to pictures; leave it out" );
    const bool isTable = format == OutputFormat::Csv;
    if ( !isTable && ( a_line.IsSet( s_kColumnsOption ) || a_line.IsSet( s_kMarkOption ) ) )
        return QStringLiteral( "--columns and --mark are for tables; add --to csv" );
    return QString();
}

QString ReadRequest( const CommandLine& a_line, Request& a_request )
{
    a_request.m_isSplit = a_line.IsSet( s_kSplitOption );
    a_request.m_folder = a_line.Value( s_kSplitOption );
    a_request.m_isSorted = a_line.IsSet( s_kSortOption );
    QString mistake = ReadBookOptions( a_line, a_request.m_options );
    if ( mistake.isEmpty() )
        mistake = ReadFormat( a_line, a_request );
    if ( mistake.isEmpty() )
        mistake = CheckRequest( a_line, a_request );
    if ( mistake.isEmpty() )
        mistake = ReadFilter( a_line, a_request );
    return mistake.isEmpty() ? ReadColumns( a_line, a_request ) : mistake;
}

PimContactFormat CardFormatOf( OutputFormat a_format )
{
    switch ( a_format )
    {
    case OutputFormat::V21:
        return PimContactFormat::V21;
    case OutputFormat::V40:
        return PimContactFormat::V40;
    case OutputFormat::JCard:
        return PimContactFormat::JCard;
    default:
        return PimContactFormat::V30;
    }
}

std::unique_ptr<BookOutput> MakeCards( const Request& a_request, OutputClaims& a_claims, Console& a_console )
{
    const PimContactFormat format = CardFormatOf( *a_request.m_format );
    if ( a_request.m_isSplit )
        return std::make_unique<CardFolder>( a_request.m_folder, a_claims, format, a_console );
    return std::make_unique<CardFile>( a_request.m_fileName, a_claims, format, a_console );
}

std::unique_ptr<BookOutput> MakeOutput( const Request& a_request, OutputClaims& a_claims, Console& a_console )
{
    switch ( *a_request.m_format )
    {
    case OutputFormat::Json:
        return std::make_unique<ContactJson>( a_request.m_fileName, a_claims, ContactJson::Form::Document );
    case OutputFormat::JsonLines:
        return std::make_unique<ContactJson>( a_request.m_fileName, a_claims, ContactJson::Form::Lines );
    case OutputFormat::Csv:
        return std::make_unique<ContactCsv>( a_request.m_fileName, a_claims, a_request.m_columns, a_request.m_hasMark,
                                             a_console );
    case OutputFormat::Html:
        return std::make_unique<ContactPage>( a_request.m_fileName, a_claims );
    default:
        return MakeCards( a_request, a_claims, a_console );
    }
}

std::unique_ptr<BookOutput> MakeOrdered( const Request& a_request, OutputClaims& a_claims, Console& a_console )
{
    std::unique_ptr<BookOutput> output = MakeOutput( a_request, a_claims, a_console );
    if ( !a_request.m_isSorted )
        return output;
    return std::make_unique<SortedOutput>( std::move( output ) );
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
    const bool isNeeded =
        a_line.IsSet( s_kPhotosOption ) || a_line.IsSet( s_kSplitOption ) || !a_claims.HasOnlyStandardOutput();
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
        outputs.push_back( MakeOrdered( request, claims, a_console ) );
    return ContactRun( a_console, request.m_options, std::move( outputs ), WithoutReader( a_line, claims ) )
        .Run( a_line.Arguments() );
}

} // namespace PimManager::Tools
