/// \file
/// What became of the files, for the page.

#pragma once

#include "Outputs/BookOutput.h"

#include <QList>

class QIODevice;

namespace PimManager::Tools
{

/// Writes a sentence about each file of which something is missing.
void WriteVerdict( QIODevice& a_device, const QList<BookInRun>& a_books );

/// Writes what is known about the files, with the findings. A finding about a contact links to it.
void WriteAccounts( QIODevice& a_device, const QList<BookInRun>& a_books );

} // namespace PimManager::Tools
