#include "ShellRun.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace PimManager::vCard::Documents
{

namespace
{

// Runs the program under its own name, independently of the caller's language.
QProcessEnvironment Environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString program = QFileInfo( QStringLiteral( PIMVCARD_PROGRAM ) ).path();
    environment.insert( QStringLiteral( "PATH" ),
                        program + QLatin1Char( ':' ) + environment.value( QStringLiteral( "PATH" ) ) );
    environment.insert( QStringLiteral( "LC_ALL" ), QStringLiteral( "C.UTF-8" ) );
    return environment;
}

} // namespace

ShellRun RunInShell( const QString& a_command, const QString& a_folder, const QStringList& a_arguments )
{
    QProcess bash;
    bash.setProcessEnvironment( Environment() );
    bash.setWorkingDirectory( a_folder );
    bash.setStandardInputFile( QProcess::nullDevice() );
    bash.start( QStringLiteral( "bash" ), QStringList{ QStringLiteral( "-o" ), QStringLiteral( "pipefail" ),
                                                       QStringLiteral( "-c" ), a_command, QStringLiteral( "bash" ) } +
                                              a_arguments );
    ShellRun run;
    if ( !bash.waitForFinished( -1 ) || bash.exitStatus() != QProcess::NormalExit )
        return run;
    run.m_status = bash.exitCode();
    run.m_out = QString::fromUtf8( bash.readAllStandardOutput() );
    run.m_err = QString::fromUtf8( bash.readAllStandardError() );
    return run;
}

} // namespace PimManager::vCard::Documents
