/// \file
/// Files that disappear if the program ends before they are complete.

#pragma once

#include <QByteArray>

#include <array>

namespace PimManager::Tools
{

/// Creates a file under a temporary name and removes it when it is no longer needed: in the destructor, and if a signal
/// ends the program. Only SIGKILL and a crash of the system leave the file behind; its name starts with `.pimvcard-`.
///
/// Create and destroy these objects in the main thread only.
class UnfinishedFile
{
public:
    /// Prepares the program for SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU and SIGABRT: they remove all unfinished
    /// files, and then end the program as usual. Signals that are ignored or handled already stay as they are. Call it
    /// once.
    static void RemoveAllAtSignals();

    /// Creates the file with mode 0600, less the umask.
    /// \param a_folder an open folder; stays the caller's and must stay open.
    explicit UnfinishedFile( int a_folder );

    /// Closes the file, and removes its temporary name if it still has one.
    ~UnfinishedFile();
    Q_DISABLE_COPY( UnfinishedFile )

    /// \return the system's number for why the file could not be created; 0 if it was.
    int Error() const { return m_error; }

    /// \return a descriptor to write to; -1 if the file could not be created.
    int Descriptor() const { return m_descriptor; }

    /// Gives the file its final name in the same folder. Fails if there is a file of that name.
    /// \return 0 or the system's number for the failure, such as EEXIST. After a failure another name may be tried.
    int NameNew( const QByteArray& a_name );

    /// Gives the file its final name in the same folder, and so replaces any file of that name. A link of that name is
    /// replaced as well, not its target.
    /// \return 0 or the system's number for the failure.
    int NameReplacing( const QByteArray& a_name );

private:
    static void HandleSignal( int a_signal );

    void Create();
    void AddToList();
    void RemoveFromList();
    int Named( int a_result );

    const int m_folder;
    int m_descriptor = -1;
    int m_error = 0;
    // Not a QByteArray: the signal handler reads it.
    std::array<char, 32> m_name = {};
    UnfinishedFile* m_next = nullptr;
    UnfinishedFile* m_previous = nullptr;
};

} // namespace PimManager::Tools
