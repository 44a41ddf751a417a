/// \file
/// Adds whole lines to the ledger.

#pragma once

#include "Cards/Ledger.h"
#include "Lines/LineScanner.h"

namespace PimManager::Contacts
{

/// Long lines that are not part of a delivered card are added in pieces of this length.
constexpr qint64 s_kExtentPiece = qint64( 64 ) * 1024;

/// The position of a line or of a part of a line.
inline TextPlace PlaceOf( const PhysicalLine& a_line )
{
    return { a_line.m_offset, a_line.m_number, a_line.m_lineOffset };
}

/// Adds a line that is not part of a delivered card to the ledger, and releases its bytes.
///
/// A line longer than \a a_longest is added in pieces, and so is the rest of a line whose start was taken by
/// LineScanner::TakeOpen(). So the extents of a line do not depend on whether it arrived in one piece.
///
/// \param a_card the number of the card that the line belongs to; 0 for text outside cards.
void AddLine( Ledger& a_ledger, LineScanner& a_scanner, PimContactExtentKind a_kind, const PhysicalLine& a_line,
              qint64 a_longest, qint64 a_card );

} // namespace PimManager::Contacts
