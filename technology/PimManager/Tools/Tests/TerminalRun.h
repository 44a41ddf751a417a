/// \file
/// Runs the real program as somebody at a terminal does.

#pragma once

#include <QByteArray>
#include <QList>

#include <string>

namespace PimManager::Tools
{

/// The program on a terminal of its own, fed and interrupted by hand.
class TerminalRun
{
public:
    /// Which of the program's outputs are the terminal. The others are a pipe.
    enum class Watched
    {
        Both,
        ErrorsOnly
    };

    /// Starts the program.
    /// \param a_variables of the environment, instead of TERM=xterm, NO_COLOR=1 and an empty COLUMNS.
    TerminalRun( const QList<QByteArray>& a_arguments, Watched a_watched, int a_columns = 80,
                 const QList<QByteArray>& a_variables = {} );
    ~TerminalRun();
    Q_DISABLE_COPY( TerminalRun )

    /// Sends bytes to standard input and waits until the program has taken them.
    void Feed( const QByteArray& a_bytes );

    /// Presses Ctrl-C.
    void Interrupt() const;

    /// Ends standard input, and waits for the end of the program. \return its status; minus the number of a signal.
    int Finish();

    /// What came to the terminal, with line ends LF, and to the pipe. Complete after Finish().
    const std::string& Screen() const { return m_screen; }
    const std::string& Pipe() const { return m_pipe; }

private:
    void Collect();

    int m_child = -1;
    int m_terminal = -1;
    int m_input = -1;
    int m_output = -1;
    std::string m_screen;
    std::string m_pipe;
};

} // namespace PimManager::Tools
