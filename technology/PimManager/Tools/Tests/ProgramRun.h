/// \file
/// Runs the real program and keeps what it says.

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTemporaryDir>

#include <optional>
#include <string>
#include <sys/types.h>

namespace PimManager::Tools
{

/// What a run of the program left behind.
struct ProgramRun
{
    /// -1 when a signal ended the program.
    int m_status = -1;
    std::string m_out;
    std::string m_err;

    /// The last line of the messages, where the totals stand.
    std::string LastMessage() const;
};

/// \return the words that run the program: its name, behind the emulator that it needs when it is not for this machine.
QList<QByteArray> ProgramCommand();

/// One call of the program. Its environment is the test's own, without Qt settings and, but for LC_ALL, locale
/// settings.
class ProgramCall
{
public:
    /// \param a_arguments byte for byte what the program gets behind its own name.
    explicit ProgramCall( const QList<QByteArray>& a_arguments ) :
        m_arguments( a_arguments )
    {
    }

    /// What the program finds on its standard input; nothing unless told.
    ProgramCall& WithInput( const QByteArray& a_input );

    /// A variable of the environment, as `NAME=value`.
    ProgramCall& WithVariable( const QByteArray& a_variable );

    /// Standard output goes to a file of this name and is not kept.
    ProgramCall& WithOutputTo( const QByteArray& a_fileName );

    /// Standard output is a pipe that nobody reads.
    ProgramCall& WithBrokenPipe();

    /// A standard descriptor is closed from the start.
    ProgramCall& WithClosed( int a_descriptor );

    /// The umask of the program.
    ProgramCall& WithUmask( mode_t a_umask );

    /// No file can grow beyond this size, as on a disk that is full.
    ProgramCall& WithFileSizeLimit( qint64 a_bytes );

    ProgramRun Run() const;

private:
    QList<QByteArray> m_arguments;
    QList<QByteArray> m_variables;
    QByteArray m_input;
    QByteArray m_outputName;
    bool m_isPipeBroken = false;
    int m_closed = -1;
    std::optional<mode_t> m_umask;
    std::optional<qint64> m_fileSizeLimit;
};

inline ProgramRun RunPimvcard( const QList<QByteArray>& a_arguments )
{
    return ProgramCall( a_arguments ).Run();
}

/// A folder for one test's files, gone with it.
class Folder
{
public:
    Folder() { m_folder.setAutoRemove( false ); }
    ~Folder();
    Q_DISABLE_COPY( Folder )

    /// \return the full name of a new file with this content.
    QByteArray Write( const QByteArray& a_name, const QByteArray& a_content ) const;

    /// \return the full name of a file in the folder, which need not exist.
    QByteArray Path( const QByteArray& a_name ) const;

private:
    QTemporaryDir m_folder;
};

/// The bytes of a file; the test fails when it cannot be read.
QByteArray FileContent( const QByteArray& a_name );

/// The permissions of a file, or of a link itself; the test fails when there is none.
unsigned ModeOf( const QByteArray& a_name );

/// The names in a folder in order, each with a line feed. Names of hidden files are among them.
std::string NamesIn( const QByteArray& a_folder );

} // namespace PimManager::Tools
