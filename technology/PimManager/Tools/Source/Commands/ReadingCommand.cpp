#include "Commands/ReadingCommand.h"

#include "Commands/LimitOptions.h"
#include "Commands/Suggestion.h"
#include "Outputs/BookNotes.h"
#include "Outputs/OutputClaims.h"
#include "Reading/ContactRun.h"
#include "Terminal/TerminalText.h"

#include <PimManager/Contacts/PimContactCharset.h>

#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

QString UnknownCharset( const QByteArray& a_name )
{
    const QStringList names = CharsetNames();
    return QStringLiteral( "unknown character set: %1; use one of %2.%3" )
        .arg( ToShownFileName( a_name ), names.join( QStringLiteral( ", " ) ),
              SuggestionFor( QString::fromUtf8( a_name ), names ) );
}

} // namespace

QString ReadBookOptions( const CommandLine& a_line, BookOptions& a_options )
{
    if ( a_line.IsSet( s_kCharsetOption ) )
    {
        const QByteArray label = a_line.Value( s_kCharsetOption );
        const PimContactCharset charset = PimContactCharset::Of( label );
        if ( !charset.IsKnown() )
            return UnknownCharset( label );
        a_options.m_reader.SetDefaultCharset( charset.Name() );
        a_options.m_isCharsetGuessed = false;
    }
    return ApplyLimits( a_line, a_options.m_reader );
}

ExitStatus PrintBooks( const CommandLine& a_line, Console& a_console, const QList<QByteArray>& a_books,
                       std::unique_ptr<BookOutput> a_output )
{
    BookOptions options;
    const QString mistake = ReadBookOptions( a_line, options );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    if ( !OutputClaims( a_console, a_books ).ClaimResults() )
        return ExitStatus::Trouble;
    ContactRun::Outputs outputs;
    outputs.push_back( std::move( a_output ) );
    outputs.push_back( std::make_unique<BookNotes>( a_console ) );
    return ContactRun( a_console, options, std::move( outputs ), BookRun::WithoutReader::Stop ).Run( a_books );
}

ExitStatus RefuseUsage( Console& a_console, const CommandLine& a_line, const QString& a_reason )
{
    return a_console.Refuse( a_reason, QStringLiteral( "pimvcard " ) + a_line.Command().m_name );
}

} // namespace PimManager::Tools
