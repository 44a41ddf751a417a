/// \file
/// What a shell can complete, for the options and arguments of the table.

#pragma once

#include "Commands/CommandTable.h"

namespace PimManager::Tools
{

/// What the value of an option is.
enum class CompletedValue
{
    None,  ///< the option takes no value
    Words, ///< one of OptionInfo::m_words
    File,
    Folder,
    Other, ///< nothing that can be completed, such as a number
};

CompletedValue CompletedValueOf( const OptionInfo& a_option );

/// \return true if the arguments of a command are names of commands, false if they are books.
bool IsArgumentCommand( const CommandInfo& a_command );

} // namespace PimManager::Tools
