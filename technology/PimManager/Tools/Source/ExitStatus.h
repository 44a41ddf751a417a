/// \file
/// How the program ends.

#pragma once

#include <algorithm>

namespace PimManager::Tools
{

/// What the shell gets, from good to bad.
enum class ExitStatus
{
    /// Every card of every file was given. A search has found a contact; compared books are the same.
    AllGiven = 0,
    /// A card was refused, something of one was dropped, a file holds no vCard, or `check --standard` found something.
    /// A search has found no contact; compared books differ.
    SomeRefused = 1,
    /// Wrong usage, or something that cannot be read or written.
    Trouble = 2,
    /// Ctrl-C, as shells number it.
    Interrupted = 130
};

inline ExitStatus Worse( ExitStatus a_first, ExitStatus a_second )
{
    return std::max( a_first, a_second );
}

} // namespace PimManager::Tools
