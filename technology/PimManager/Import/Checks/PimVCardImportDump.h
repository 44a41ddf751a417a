/// \file
/// What an import gave, as text: for reference results, and to compare imports.

#pragma once

#include "PimVCardImporter.h"

#include <QByteArray>

namespace PimManager::vCardImport
{

/// Every card with its properties as delivered and as decoded, every finding, every reject, and the account. UTF-8;
/// what is not printable is escaped, and a long value is cut and followed by its length and a hash.
QByteArray DumpOf( const PimVCardImportResult& a_result );

/// The properties alone: group, name, parameters and values, one a line.
QByteArray DumpOf( const vCard::PimVCard& a_card );

/// Imports in pieces: cut at each of the places, which ascend.
PimVCardImportResult ImportInPieces( const QByteArray& a_bytes, const QList<int>& a_places,
                                     const PimVCardImportOptions& a_options = PimVCardImportOptions() );

} // namespace PimManager::vCardImport
