/// \file
/// Protects the unit tests from a parser that writes to the log without end.

#pragma once

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace PimManager::vCard
{

/// Ends the program if a log has more messages than any test writes. Otherwise a parser that recovers to the same
/// position again and again would use up the memory of the machine.
inline void EndIfEndless( qint64 a_messages )
{
    constexpr qint64 s_kMost = 200000;
    if ( a_messages <= s_kMost )
        return;
    std::fprintf( stderr, "more than %d messages in the log: does the parser recover for ever?\n", int( s_kMost ) );
    std::abort();
}

} // namespace PimManager::vCard
