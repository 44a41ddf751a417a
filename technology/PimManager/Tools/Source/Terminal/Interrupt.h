/// \file
/// Ctrl-C, as a wish to end in order.

#pragma once

#include <QtGlobal>

#include <csignal>

namespace PimManager::Tools
{

/// Catches the first Ctrl-C (SIGINT) from its construction to its destruction. A second one does what it did before:
/// it ends the program. There can be one object at a time. If the caller of the program ignores the signal, it stays
/// ignored.
class Interrupt
{
public:
    Interrupt();
    ~Interrupt();
    Q_DISABLE_COPY( Interrupt )

    /// \return true once Ctrl-C was caught. Stays true until the next Interrupt is made.
    static bool IsRequested() { return sm_isRequested != 0; }

    /// \return a descriptor that can be read from once Ctrl-C was caught, for poll(); -1 while nobody catches it.
    static int Descriptor() { return sm_descriptor; }

private:
    static void Handle( int a_signal );

    static volatile std::sig_atomic_t sm_isRequested;
    static volatile std::sig_atomic_t sm_descriptor;

    static struct sigaction sm_former;
};

} // namespace PimManager::Tools
