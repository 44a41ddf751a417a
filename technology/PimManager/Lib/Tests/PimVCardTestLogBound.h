/// \file
/// What the unit tests share to survive a parser that writes to the log without end.

#pragma once

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace PimManager::vCard
{

/// Ends the program when a log holds more messages than any test writes. A parser that recovers to the same place again
/// and again would otherwise fill the memory of the machine.
inline void EndIfEndless( qint64 a_messages )
{
    constexpr qint64 s_kMost = 200000;
    if ( a_messages <= s_kMost )
        return;
    std::fprintf( stderr, "more than %d messages in the log: does the parser recover for ever?\n", int( s_kMost ) );
    std::abort();
}

} // namespace PimManager::vCard
