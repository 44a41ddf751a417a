/// \file
/// A card that is refused before its END.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Cards/Ledger.h"
#include "Lines/LineScanner.h"

namespace PimManager::Contacts
{

/// Finds the end of a card that is refused, and adds its lines to the ledger. No line is kept, so a refused card of any
/// length needs no memory. BEGIN behind an AGENT line without a value begins a card inside it; any other BEGIN ends it.
class SkippedCard
{
public:
    /// Both must outlive this object.
    SkippedCard( LineScanner& a_scanner, Ledger& a_ledger );

    /// Begins before the BEGIN line of the card.
    void Begin();
    /// Begins inside the card.
    /// \param a_depth         how many cards are open inside it.
    /// \param a_isBehindAgent the last line is an AGENT line without a value.
    void BeginInside( int a_depth, bool a_isBehindAgent );

    /// \return true if the boundary is the BEGIN of another card: the END of this one is missing.
    bool EndsBefore( const CardBoundary& a_boundary ) const;
    /// Takes the next line of the card.
    /// \param a_boundary what the line is. An EndAndBegin must be taken as two lines.
    void Take( const PhysicalLine& a_line, const CardBoundary& a_boundary );
    /// Takes the first bytes of a line whose end has not come.
    void TakeOpen( const PhysicalLine& a_line );

    /// The END of the card has been taken.
    bool HasEnded() const { return m_depth < 0; }

private:
    void Add( const PhysicalLine& a_line );

    LineScanner& m_scanner;
    Ledger& m_ledger;
    // Of the card inside it that is open; -1 before BEGIN and behind END.
    int m_depth = -1;
    bool m_isBehindAgent = false;
};

} // namespace PimManager::Contacts
