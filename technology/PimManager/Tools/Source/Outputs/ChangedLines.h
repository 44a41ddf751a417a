/// \file
/// The lines in which two cards differ.

#pragma once

#include "Outputs/DifferenceWriter.h"

namespace PimManager::Tools
{

ChangedContact ChangedContactOf( const Contacts::PimContactCard& a_old, const Contacts::PimContactCard& a_new );

} // namespace PimManager::Tools
