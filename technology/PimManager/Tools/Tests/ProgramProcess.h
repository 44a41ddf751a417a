/// \file
/// The real program while it runs, for tests that talk to it.

#pragma once

#include <QByteArray>
#include <QList>

#include <array>
#include <sys/types.h>

namespace PimManager::Tools
{

/// \return the ends of a new pipe, the one to read from first.
std::array<int, 2> NewPipe();

/// Starts the program with these standard descriptors. No signal is ignored or blocked.
/// \param a_variables of the environment, as `NAME=value`, besides those of the test.
pid_t StartProgram( const QList<QByteArray>& a_arguments, int a_in, int a_out, int a_err,
                    const QList<QByteArray>& a_variables = {} );

/// Waits for the end of a process. \return its status; minus the number of a signal.
int WaitFor( pid_t a_child );

/// Writes to a pipe and waits until its reader has taken everything.
void FeedPipe( int a_pipe, const QByteArray& a_bytes );

} // namespace PimManager::Tools
