/// \file
/// The limits of the reader as options of the command line.

#pragma once

#include "Commands/CommandTable.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <QString>
#include <QtGlobal>

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

/// Reads an option whose value is a number, such as `16M`.
/// \param[out] a_number the number; unchanged if the option is not given.
/// \return what is wrong with it, safe for a terminal; empty if nothing is.
QString ReadNumber( const CommandLine& a_line, const QString& a_option, qint64& a_number );

} // namespace PimManager::Tools
