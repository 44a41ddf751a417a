/// \file
/// Checks that the result does not depend on how a file is read.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that the transcript is that of one call of Feed() for pieces of random sizes, for single bytes, for Next()
/// with a buffer and with a device that delivers little at a time, for a reader that has read another file, and for
/// PimContactBook.
Broken BrokenPieces( const Subject& a_subject );

/// \return random positions to cut, ascending.
std::vector<qint64> RandomPlaces( qint64 a_size, unsigned a_seed );

/// \return the positions after each byte except the last.
std::vector<qint64> AllPlaces( qint64 a_size );

} // namespace PimManager::Contacts::Checks
