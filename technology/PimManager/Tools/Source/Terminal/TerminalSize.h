/// \file
/// How wide the user's screen is.

#pragma once

namespace PimManager::Tools
{

/// \return the columns of the terminal behind a descriptor; 80 when the terminal does not tell; 0 when there is none.
int TerminalColumns( int a_descriptor );

} // namespace PimManager::Tools
