#include "Browser.h"

#include <QFile>
#include <QJsonDocument>
#include <QStringList>
#include <QUrl>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace PimManager::Tools
{

namespace
{

// Where the browser takes commands, and where it answers.
constexpr int s_kCommands = 3;
constexpr int s_kAnswers = 4;
constexpr int s_kPatience = 60000;

std::array<int, 2> NewPipe()
{
    // High numbers, so that neither end is in the way of the browser's own.
    std::array<int, 2> low = { -1, -1 };
    EXPECT_EQ( pipe( low.data() ), 0 );
    std::array<int, 2> ends = { -1, -1 };
    for ( size_t i = 0; i < ends.size(); ++i )
    {
        constexpr int s_kHigh = 100;
        ends.at( i ) = fcntl( low.at( i ), F_DUPFD_CLOEXEC, s_kHigh );
        close( low.at( i ) );
    }
    return ends;
}

int Start( const QByteArray& a_profile, int a_commands, int a_answers )
{
    QList<QByteArray> arguments = { PIMVCARD_BROWSER,
                                    "--headless=new",
                                    "--no-sandbox",
                                    "--disable-gpu",
                                    "--disable-dev-shm-usage",
                                    "--no-first-run",
                                    "--disable-extensions",
                                    "--disable-background-networking",
                                    "--hide-scrollbars",
                                    "--remote-debugging-pipe",
                                    "--user-data-dir=" + a_profile,
                                    "about:blank" };
    std::vector<char*> pointers;
    for ( QByteArray& argument : arguments )
        pointers.push_back( argument.data() );
    pointers.push_back( nullptr );
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init( &actions );
    posix_spawn_file_actions_adddup2( &actions, a_commands, s_kCommands );
    posix_spawn_file_actions_adddup2( &actions, a_answers, s_kAnswers );
    posix_spawn_file_actions_addopen( &actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0 );
    pid_t child = -1;
    EXPECT_EQ( posix_spawnp( &child, PIMVCARD_BROWSER, &actions, nullptr, pointers.data(), environ ), 0 )
        << PIMVCARD_BROWSER;
    posix_spawn_file_actions_destroy( &actions );
    return child;
}

} // namespace

Browser::Browser()
{
    std::signal( SIGPIPE, SIG_IGN );
    const std::array<int, 2> commands = NewPipe();
    const std::array<int, 2> answers = NewPipe();
    m_commands = commands[1];
    m_answers = answers[0];
    m_child = Start( QFile::encodeName( m_profile.path() ), commands[0], answers[1] );
    close( commands[0] );
    close( answers[1] );
    const QJsonObject target = Call( QStringLiteral( "Target.createTarget" ),
                                     { { QStringLiteral( "url" ), QStringLiteral( "about:blank" ) } } );
    const QJsonObject attached = Call( QStringLiteral( "Target.attachToTarget" ),
                                       { { QStringLiteral( "targetId" ), target.value( QStringLiteral( "targetId" ) ) },
                                         { QStringLiteral( "flatten" ), true } } );
    m_session = attached.value( QStringLiteral( "sessionId" ) ).toString();
    for ( const char* domain : { "Page.enable", "Runtime.enable", "Log.enable" } )
        Call( QString::fromLatin1( domain ) );
}

Browser::~Browser()
{
    m_session.clear();
    Send( { { QStringLiteral( "id" ), ++m_id }, { QStringLiteral( "method" ), QStringLiteral( "Browser.close" ) } } );
    int status = 0;
    if ( m_child > 0 )
        waitpid( m_child, &status, 0 );
    close( m_commands );
    close( m_answers );
}

void Browser::SetSize( int a_width, int a_height, bool a_isPhone )
{
    Call( QStringLiteral( "Emulation.setDeviceMetricsOverride" ),
          { { QStringLiteral( "width" ), a_width },
            { QStringLiteral( "height" ), a_height },
            { QStringLiteral( "deviceScaleFactor" ), a_isPhone ? 2 : 1 },
            { QStringLiteral( "mobile" ), a_isPhone } } );
}

void Browser::SetDark()
{
    const QJsonObject wish = { { QStringLiteral( "name" ), QStringLiteral( "prefers-color-scheme" ) },
                               { QStringLiteral( "value" ), QStringLiteral( "dark" ) } };
    Call( QStringLiteral( "Emulation.setEmulatedMedia" ), { { QStringLiteral( "features" ), QJsonArray{ wish } } } );
}

void Browser::SetScriptsAllowed( bool a_areAllowed )
{
    Call( QStringLiteral( "Emulation.setScriptExecutionDisabled" ), { { QStringLiteral( "value" ), !a_areAllowed } } );
}

void Browser::Open( const QByteArray& a_fileName )
{
    m_isLoaded = false;
    const QUrl url = QUrl::fromLocalFile( QFile::decodeName( a_fileName ) );
    Call( QStringLiteral( "Page.navigate" ), { { QStringLiteral( "url" ), url.toString( QUrl::FullyEncoded ) } } );
    while ( !m_isLoaded && !::testing::Test::HasFatalFailure() )
        Notice( Receive() );
}

QJsonValue Browser::Evaluate( const QString& a_expression )
{
    const QJsonObject answer =
        Call( QStringLiteral( "Runtime.evaluate" ), { { QStringLiteral( "expression" ), a_expression },
                                                      { QStringLiteral( "returnByValue" ), true },
                                                      { QStringLiteral( "awaitPromise" ), true } } );
    EXPECT_FALSE( answer.contains( QStringLiteral( "exceptionDetails" ) ) ) << a_expression.toStdString();
    return answer.value( QStringLiteral( "result" ) ).toObject().value( QStringLiteral( "value" ) );
}

void Browser::Type( const QString& a_text )
{
    Call( QStringLiteral( "Input.insertText" ), { { QStringLiteral( "text" ), a_text } } );
}

QByteArray Browser::Screenshot()
{
    const QJsonObject answer =
        Call( QStringLiteral( "Page.captureScreenshot" ), { { QStringLiteral( "format" ), QStringLiteral( "png" ) } } );
    return QByteArray::fromBase64( answer.value( QStringLiteral( "data" ) ).toString().toLatin1() );
}

QJsonObject Browser::Call( const QString& a_method, const QJsonObject& a_parameters )
{
    const int id = ++m_id;
    QJsonObject message = { { QStringLiteral( "id" ), id },
                            { QStringLiteral( "method" ), a_method },
                            { QStringLiteral( "params" ), a_parameters } };
    if ( !m_session.isEmpty() )
        message.insert( QStringLiteral( "sessionId" ), m_session );
    Send( message );
    while ( !::testing::Test::HasFatalFailure() )
    {
        const QJsonObject answer = Receive();
        Notice( answer );
        if ( answer.value( QStringLiteral( "id" ) ).toInt() != id )
            continue;
        EXPECT_FALSE( answer.contains( QStringLiteral( "error" ) ) )
            << a_method.toStdString() << QJsonDocument( answer ).toJson().constData();
        return answer.value( QStringLiteral( "result" ) ).toObject();
    }
    return {};
}

// Messages end with a zero byte, in both directions.
void Browser::Send( const QJsonObject& a_message )
{
    const QByteArray bytes = QJsonDocument( a_message ).toJson( QJsonDocument::Compact ) + '\0';
    EXPECT_EQ( write( m_commands, bytes.constData(), static_cast<size_t>( bytes.size() ) ), bytes.size() );
}

QJsonObject Browser::Receive()
{
    int end = m_received.indexOf( '\0' );
    while ( end < 0 )
    {
        pollfd waited = { m_answers, POLLIN, 0 };
        std::vector<char> block( 65536 );
        const bool isReady = poll( &waited, 1, s_kPatience ) > 0;
        const ssize_t count = isReady ? read( m_answers, block.data(), block.size() ) : 0;
        if ( count <= 0 )
        {
            [] { FAIL() << "the browser does not answer"; }();
            return {};
        }
        m_received.append( block.data(), static_cast<int>( count ) );
        end = m_received.indexOf( '\0' );
    }
    const QByteArray message = m_received.left( end );
    m_received.remove( 0, end + 1 );
    return QJsonDocument::fromJson( message ).object();
}

void Browser::Notice( const QJsonObject& a_message )
{
    const QString method = a_message.value( QStringLiteral( "method" ) ).toString();
    const QJsonObject parameters = a_message.value( QStringLiteral( "params" ) ).toObject();
    if ( method == QLatin1String( "Page.loadEventFired" ) )
        m_isLoaded = true;
    if ( method == QLatin1String( "Log.entryAdded" ) )
        m_complaints
            << parameters.value( QStringLiteral( "entry" ) ).toObject().value( QStringLiteral( "text" ) ).toString();
    if ( method == QLatin1String( "Runtime.exceptionThrown" ) )
        m_complaints << QString::fromUtf8( QJsonDocument( parameters ).toJson() );
}

} // namespace PimManager::Tools
