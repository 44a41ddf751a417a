#include "Commands/ReadingCommand.h"

#include "Commands/LimitOptions.h"

namespace PimManager::vCard::Tools
{

QString ReadBookOptions( const CommandLine& a_line, BookOptions& a_options )
{
    if ( a_line.IsSet( s_kCharsetOption ) )
    {
        a_options.m_reader.SetDefaultCharset( a_line.Value( s_kCharsetOption ) );
        a_options.m_isCharsetGuessed = false;
    }
    return ApplyLimits( a_line, a_options.m_reader );
}

ExitStatus RefuseUsage( Console& a_console, const CommandLine& a_line, const QString& a_reason )
{
    return a_console.Refuse( a_reason, QStringLiteral( "pimvcard " ) + a_line.Command().m_name );
}

} // namespace PimManager::vCard::Tools
