/// \file
/// However a file is read, the result is the same.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// The same transcript as that of one call of Feed() comes from pieces of random sizes, from single bytes, from Next()
/// with a buffer and with a device on which little arrives, from a reader that has read another file, and from
/// PimContactBook.
Broken BrokenPieces( const Subject& a_subject );

/// \return random positions to cut, ascending.
std::vector<qint64> RandomPlaces( qint64 a_size, unsigned a_seed );

/// \return the positions after each byte but the last.
std::vector<qint64> AllPlaces( qint64 a_size );

} // namespace PimManager::Contacts::Checks
