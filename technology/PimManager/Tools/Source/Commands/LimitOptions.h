/// \file
/// The limits of the reader as options of the command line.

#pragma once

#include "Commands/CommandTable.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <QString>

#include <vector>

namespace PimManager::Tools
{

class CommandLine;

/// \return an option for each limit, such as `--max-card-bytes`. Its help shows the default of the reader.
std::vector<OptionInfo> LimitOptions();

/// Sets the limits that the user gave; the others keep their values.
/// \param[in,out] a_options the options of the reader.
/// \return what is wrong with a number, safe for a terminal; empty if all of them are understood.
QString ApplyLimits( const CommandLine& a_line, Contacts::PimContactOptions& a_options );

} // namespace PimManager::Tools
