/// \file
/// Collects everything that a reader returns for a file.

#pragma once

#include <PimManager/Contacts/PimContactReader.h>

#include <QByteArray>
#include <QtGlobal>

#include <functional>
#include <vector>

class QIODevice;

namespace PimManager::Contacts::Checks
{

/// The cards, diagnostics and extents of a file in their order, and its report.
struct Reading
{
    std::vector<PimContactCard> m_cards;
    /// For each card, the number of extents before it. Empty if extents were not requested.
    std::vector<size_t> m_extentsBefore;
    std::vector<PimContactDiagnostic> m_diagnostics;
    std::vector<PimContactExtent> m_extents;
    PimContactReport m_report;
};

/// Reads with one call of Feed().
Reading ReadWhole( const QByteArray& a_bytes, const PimContactOptions& a_options = PimContactOptions() );

/// Reads with a call of Feed() for each piece.
/// \param a_places the ends of the pieces, ascending. The last piece ends with the bytes.
Reading ReadInPieces( const QByteArray& a_bytes, const std::vector<qint64>& a_places,
                      const PimContactOptions& a_options = PimContactOptions() );

/// The same with a reader that may have read other files. Its handlers are replaced and afterwards removed.
Reading ReadInPieces( PimContactReader& a_reader, const QByteArray& a_bytes, const std::vector<qint64>& a_places );

/// Reads with Next() up to End or Failed.
/// \param a_isMore called when Next() returns Waiting. It lets more data arrive, or returns false to give up.
Reading ReadByNext( QIODevice& a_device, const PimContactOptions& a_options, const std::function<bool()>& a_isMore );

} // namespace PimManager::Contacts::Checks
