#include "Outputs/UnfinishedFile.h"

#include <QRandomGenerator>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

// The list that the signal handler walks. It changes only while signals are blocked.
std::atomic<UnfinishedFile*> s_first = nullptr;
static_assert( std::atomic<UnfinishedFile*>::is_always_lock_free, "a signal handler may not wait for a lock" );

class SignalBlock
{
public:
    SignalBlock()
    {
        sigset_t all;
        sigfillset( &all );
        ::pthread_sigmask( SIG_SETMASK, &all, &m_former );
    }
    ~SignalBlock() { ::pthread_sigmask( SIG_SETMASK, &m_former, nullptr ); }
    Q_DISABLE_COPY( SignalBlock )

private:
    sigset_t m_former = {};
};

} // namespace

void UnfinishedFile::RemoveAllAtSignals()
{
    struct sigaction removal = {};
    removal.sa_handler = HandleSignal;
    removal.sa_flags = static_cast<int>( SA_RESETHAND );
    sigfillset( &removal.sa_mask );
    for ( const int signal : { SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU, SIGABRT } )
    {
        struct sigaction former = {};
        ::sigaction( signal, nullptr, &former );
        if ( former.sa_handler == SIG_DFL )
            ::sigaction( signal, &removal, nullptr );
    }
}

UnfinishedFile::UnfinishedFile( int a_folder ) :
    m_folder( a_folder )
{
    Create();
}

UnfinishedFile::~UnfinishedFile()
{
    if ( m_descriptor < 0 )
        return;
    ::close( m_descriptor );
    if ( m_name.front() == '\0' )
        return;
    const SignalBlock block;
    ::unlinkat( m_folder, m_name.data(), 0 );
    RemoveFromList();
}

int UnfinishedFile::NameNew( const QByteArray& a_name )
{
    const int result =
        ::renameat2( m_folder, m_name.data(), m_folder, a_name.constData(), static_cast<unsigned>( RENAME_NOREPLACE ) );
    if ( result == 0 || ( errno != EINVAL && errno != ENOSYS ) )
        return Named( result );
    // Some file systems, NFS among them, cannot rename without replacing.
    if ( ::linkat( m_folder, m_name.data(), m_folder, a_name.constData(), 0 ) != 0 )
        return errno;
    return Named( ::unlinkat( m_folder, m_name.data(), 0 ) );
}

int UnfinishedFile::NameReplacing( const QByteArray& a_name )
{
    return Named( ::renameat( m_folder, m_name.data(), m_folder, a_name.constData() ) );
}

// Everything here may be done in a signal handler.
void UnfinishedFile::HandleSignal( int a_signal )
{
    for ( const UnfinishedFile* file = s_first; file != nullptr; file = file->m_next )
        ::unlinkat( file->m_folder, file->m_name.data(), 0 );
    ::raise( a_signal );
}

void UnfinishedFile::Create()
{
    constexpr mode_t s_kMode = 0600;
    do
    {
        const quint64 number = QRandomGenerator::system()->generate64();
        std::snprintf( m_name.data(), m_name.size(), ".pimvcard-%016llx", static_cast<unsigned long long>( number ) );
        const SignalBlock block;
        m_descriptor = ::openat( m_folder, m_name.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, s_kMode );
        m_error = m_descriptor < 0 ? errno : 0;
        if ( m_error == 0 )
            AddToList();
    } while ( m_error == EEXIST );
}

void UnfinishedFile::AddToList()
{
    m_next = s_first;
    if ( m_next != nullptr )
        m_next->m_previous = this;
    s_first = this;
}

void UnfinishedFile::RemoveFromList()
{
    if ( m_next != nullptr )
        m_next->m_previous = m_previous;
    if ( m_previous != nullptr )
        m_previous->m_next = m_next;
    else
        s_first = m_next;
    m_name.front() = '\0';
}

// A signal before the file has left the list does no harm: its temporary name is gone.
int UnfinishedFile::Named( int a_result )
{
    if ( a_result != 0 )
        return errno;
    const SignalBlock block;
    RemoveFromList();
    return 0;
}

} // namespace PimManager::Tools
