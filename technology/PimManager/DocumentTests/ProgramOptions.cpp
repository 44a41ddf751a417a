#include "ProgramOptions.h"

#include "ShellRun.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace PimManager::vCard::Documents
{

QStringList ProgramCommands()
{
    static const QRegularExpression s_kUsage( QStringLiteral( "\\AUsage: pimvcard \\[options\\] (.*) FILE" ) );
    const QString usage = s_kUsage.match( RunInShell( QStringLiteral( "pimvcard --help" ) ).m_out ).captured( 1 );
    EXPECT_FALSE( usage.isEmpty() );
    return usage.split( QStringLiteral( " | " ) );
}

QStringList ProgramOptions( const QString& a_command )
{
    static const QRegularExpression s_kOptions( QStringLiteral( "^  (?:(-[a-zA-Z]), )?(--[a-z-]+)" ),
                                                QRegularExpression::MultilineOption );
    const ShellRun help = RunInShell( QStringLiteral( "pimvcard " ) + a_command + QStringLiteral( " --help" ) );
    EXPECT_EQ( help.m_status, 0 );
    QStringList options;
    QRegularExpressionMatchIterator matches = s_kOptions.globalMatch( help.m_out );
    while ( matches.hasNext() )
        options += matches.next().capturedTexts().mid( 1 );
    options.removeAll( QString() );
    options.sort();
    return options;
}

} // namespace PimManager::vCard::Documents
