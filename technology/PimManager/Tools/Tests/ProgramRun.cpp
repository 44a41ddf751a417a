#include "ProgramRun.h"

#include <QFile>

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <set>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace PimManager::Tools
{

namespace
{

bool IsSetting( const QByteArray& a_variable )
{
    return ( a_variable.startsWith( "LC_" ) && !a_variable.startsWith( "LC_ALL=" ) ) ||
           a_variable.startsWith( "LANG=" ) || a_variable.startsWith( "QT_" );
}

QByteArray NameOf( const QByteArray& a_variable )
{
    return a_variable.left( a_variable.indexOf( '=' ) );
}

// This process's variables but for settings, and these instead of those of the same name.
QList<QByteArray> EnvironmentWith( const QList<QByteArray>& a_variables )
{
    QList<QByteArray> names;
    for ( const QByteArray& variable : a_variables )
        names.append( NameOf( variable ) );
    QList<QByteArray> variables = a_variables;
    for ( char** variable = environ; *variable != nullptr; ++variable )
    {
        if ( !IsSetting( *variable ) && !names.contains( NameOf( *variable ) ) )
            variables.append( *variable );
    }
    return variables;
}

std::vector<char*> Pointers( QList<QByteArray>& a_texts )
{
    std::vector<char*> pointers;
    for ( QByteArray& text : a_texts )
        pointers.push_back( text.data() );
    pointers.push_back( nullptr );
    return pointers;
}

// What the child does with its descriptors before it becomes the program.
class Redirections
{
public:
    Redirections() { posix_spawn_file_actions_init( &m_actions ); }
    ~Redirections() { posix_spawn_file_actions_destroy( &m_actions ); }
    Q_DISABLE_COPY( Redirections )

    void Open( int a_descriptor, const QByteArray& a_fileName, int a_flags )
    {
        constexpr mode_t s_kMode = 0600;
        posix_spawn_file_actions_addopen( &m_actions, a_descriptor, a_fileName.constData(), a_flags, s_kMode );
    }
    void Duplicate( int a_from, int a_to ) { posix_spawn_file_actions_adddup2( &m_actions, a_from, a_to ); }
    void Close( int a_descriptor ) { posix_spawn_file_actions_addclose( &m_actions, a_descriptor ); }

    const posix_spawn_file_actions_t* Actions() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

// The umask of this process while it starts the program.
class TemporaryUmask
{
public:
    explicit TemporaryUmask( std::optional<mode_t> a_umask ) :
        m_former( umask( 0 ) )
    {
        umask( a_umask.value_or( m_former ) );
    }
    ~TemporaryUmask() { umask( m_former ); }
    Q_DISABLE_COPY( TemporaryUmask )

private:
    const mode_t m_former;
};

// The limit of this process while it starts the program.
class TemporaryFileSizeLimit
{
public:
    explicit TemporaryFileSizeLimit( std::optional<qint64> a_limit )
    {
        EXPECT_EQ( getrlimit( RLIMIT_FSIZE, &m_former ), 0 );
        rlimit limit = m_former;
        if ( a_limit )
            limit.rlim_cur = static_cast<rlim_t>( *a_limit );
        EXPECT_EQ( setrlimit( RLIMIT_FSIZE, &limit ), 0 );
    }
    ~TemporaryFileSizeLimit() { setrlimit( RLIMIT_FSIZE, &m_former ); }
    Q_DISABLE_COPY( TemporaryFileSizeLimit )

private:
    rlimit m_former = {};
};

int Execute( QList<QByteArray> a_arguments, QList<QByteArray> a_environment, const Redirections& a_redirections )
{
    pid_t child = 0;
    const QByteArray program = a_arguments.first();
    const int error = posix_spawnp( &child, program.constData(), a_redirections.Actions(), nullptr,
                                    Pointers( a_arguments ).data(), Pointers( a_environment ).data() );
    EXPECT_EQ( error, 0 ) << program.constData();
    if ( error != 0 )
        return -1;
    int status = 0;
    EXPECT_EQ( waitpid( child, &status, 0 ), child );
    return WIFEXITED( status ) ? WEXITSTATUS( status ) : -1;
}

int WriteEndOfBrokenPipe()
{
    std::array<int, 2> ends = { -1, -1 };
    EXPECT_EQ( pipe2( ends.data(), O_CLOEXEC ), 0 );
    close( ends[0] );
    return ends[1];
}

} // namespace

QList<QByteArray> ProgramCommand()
{
    return QByteArray( PIMVCARD_COMMAND ).split( '\n' );
}

std::string ProgramRun::LastMessage() const
{
    const size_t end = m_err.empty() ? 0 : m_err.size() - 1;
    const size_t start = end == 0 ? std::string::npos : m_err.rfind( '\n', end - 1 );
    return m_err.substr( start == std::string::npos ? 0 : start + 1 );
}

ProgramCall& ProgramCall::WithInput( const QByteArray& a_input )
{
    m_input = a_input;
    return *this;
}

ProgramCall& ProgramCall::WithVariable( const QByteArray& a_variable )
{
    m_variables.append( a_variable );
    return *this;
}

ProgramCall& ProgramCall::WithOutputTo( const QByteArray& a_fileName )
{
    m_outputName = a_fileName;
    return *this;
}

ProgramCall& ProgramCall::WithBrokenPipe()
{
    m_isPipeBroken = true;
    return *this;
}

ProgramCall& ProgramCall::WithClosed( int a_descriptor )
{
    m_closed = a_descriptor;
    return *this;
}

ProgramCall& ProgramCall::WithUmask( mode_t a_umask )
{
    m_umask = a_umask;
    return *this;
}

ProgramCall& ProgramCall::WithFileSizeLimit( qint64 a_bytes )
{
    m_fileSizeLimit = a_bytes;
    return *this;
}

ProgramRun ProgramCall::Run() const
{
    const Folder folder;
    const QByteArray out = m_outputName.isEmpty() ? folder.Write( "out", QByteArray() ) : m_outputName;
    const QByteArray err = folder.Write( "err", QByteArray() );
    Redirections redirections;
    redirections.Open( STDIN_FILENO, folder.Write( "in", m_input ), O_RDONLY );
    redirections.Open( STDOUT_FILENO, out, O_WRONLY );
    redirections.Open( STDERR_FILENO, err, O_WRONLY );
    const int pipeEnd = m_isPipeBroken ? WriteEndOfBrokenPipe() : -1;
    if ( m_isPipeBroken )
        redirections.Duplicate( pipeEnd, STDOUT_FILENO );
    if ( m_closed >= 0 )
        redirections.Close( m_closed );

    ProgramRun run;
    {
        const TemporaryUmask temporaryUmask( m_umask );
        const TemporaryFileSizeLimit temporaryLimit( m_fileSizeLimit );
        run.m_status = Execute( ProgramCommand() + m_arguments, EnvironmentWith( m_variables ), redirections );
    }
    if ( m_isPipeBroken )
        close( pipeEnd );
    if ( m_outputName.isEmpty() )
        run.m_out = FileContent( out ).toStdString();
    run.m_err = FileContent( err ).toStdString();
    return run;
}

// Qt removes only files whose names are text.
Folder::~Folder()
{
    std::filesystem::remove_all( m_folder.path().toStdString() );
}

QByteArray Folder::Write( const QByteArray& a_name, const QByteArray& a_content ) const
{
    constexpr mode_t s_kMode = 0600;
    QByteArray path = Path( a_name );
    const int descriptor = open( path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, s_kMode );
    EXPECT_GE( descriptor, 0 ) << path.constData();
    EXPECT_EQ( write( descriptor, a_content.constData(), static_cast<size_t>( a_content.size() ) ), a_content.size() );
    close( descriptor );
    return path;
}

QByteArray Folder::Path( const QByteArray& a_name ) const
{
    EXPECT_TRUE( m_folder.isValid() );
    return QFile::encodeName( m_folder.path() ) + '/' + a_name;
}

QByteArray FileContent( const QByteArray& a_name )
{
    QFile file( QFile::decodeName( a_name ) );
    EXPECT_TRUE( file.open( QIODevice::ReadOnly ) ) << a_name.constData();
    return file.readAll();
}

unsigned ModeOf( const QByteArray& a_name )
{
    constexpr unsigned s_kPermissions = 07777;
    struct stat status = {};
    EXPECT_EQ( lstat( a_name.constData(), &status ), 0 ) << a_name.constData();
    return status.st_mode & s_kPermissions;
}

std::string NamesIn( const QByteArray& a_folder )
{
    std::set<std::string> names;
    for ( const auto& entry : std::filesystem::directory_iterator( a_folder.toStdString() ) )
        names.insert( entry.path().filename().string() );
    std::string joined;
    for ( const std::string& name : names )
        joined += name + "\n";
    return joined;
}

} // namespace PimManager::Tools
