/// \file
/// What holds of every import, whatever the bytes. Tests and fuzzers call it.

#pragma once

#include <QByteArray>

namespace PimManager::vCardImport
{

/// Imports the bytes as a whole, in pieces, and imports the mended text of the cards again.
/// \param a_seed chooses where the pieces end.
/// \return what does not hold, as an English sentence; empty when all holds:
///         - the account adds up, and its counts agree with the cards that came;
///         - the push form gives the same as the whole form;
///         - importing the mended text again gives the same cards, with nothing left to mend.
QByteArray BrokenInvariantOf( const QByteArray& a_bytes, unsigned a_seed );

} // namespace PimManager::vCardImport
