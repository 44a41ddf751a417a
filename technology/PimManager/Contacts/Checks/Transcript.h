/// \file
/// Readings as text, for reference results and comparisons.

#pragma once

#include "Checks/Reading.h"

#include <QByteArray>

#include <vector>

namespace PimManager::Contacts::Checks
{

/// \return bytes as text in UTF-8. Unprintable characters and malformed bytes are escaped as `\xHH`, and backslashes
///         are doubled. Long values are cut and followed by their length and a hash.
QByteArray Shown( const QByteArray& a_bytes );

/// \return the record of a card and its lines, each on its own line, with nested cards indented.
QByteArray TranscriptOf( const PimContactCard& a_card );

/// \return a line without its nested card.
QByteArray TranscriptOf( const PimContactLine& a_line );

/// \return version, fold style and lines of a card and of its nested cards. These do not depend on the rest of the
/// file.
QByteArray ContentOf( const PimContactCard& a_card );

/// \return the transcripts of all cards.
QByteArray TranscriptOf( const std::vector<PimContactCard>& a_cards );

/// \return position, card, severity, code and count.
QByteArray TranscriptOf( const PimContactDiagnostic& a_diagnostic );

/// \return all counters, without the kept diagnostics. Counters of zero are left out.
QByteArray TranscriptOf( const PimContactReport& a_report );

/// \return offset, length, kind, card and bytes.
QByteArray TranscriptOf( const PimContactExtent& a_extent );

/// \return cards, diagnostics, extents and report.
QByteArray TranscriptOf( const Reading& a_reading );

} // namespace PimManager::Contacts::Checks
