/// \file
/// What became of the files, for the page.

#pragma once

#include "ImportOutput.h"

#include <QList>

class QIODevice;

namespace PimManager::vCard::Tools
{

/// Writes in a sentence a file whether anything is missing.
void WriteVerdict( QIODevice& a_device, const QList<ImportedBook>& a_books );

/// Writes the accounts with their diagnostics, each of which links to its contact.
void WriteAccounts( QIODevice& a_device, const QList<ImportedBook>& a_books );

} // namespace PimManager::vCard::Tools
