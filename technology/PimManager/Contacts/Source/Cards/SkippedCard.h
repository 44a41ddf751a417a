/// \file
/// A card that was refused before its END.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Cards/Ledger.h"
#include "Lines/LineScanner.h"

namespace PimManager::Contacts
{

/// Finds the end of a refused card and adds its lines to the ledger. No line is kept, so a refused card of any length
/// needs no memory. BEGIN after an AGENT line without a value begins a nested card. Any other BEGIN ends the card.
class SkippedCard
{
public:
    /// Both must outlive this object.
    SkippedCard( LineScanner& a_scanner, Ledger& a_ledger );

    /// Starts before the BEGIN line of the card.
    void Begin();
    /// Starts inside the card.
    /// \param a_depth         the number of open cards inside it.
    /// \param a_isBehindAgent true if the last line is an AGENT line without a value.
    void BeginInside( int a_depth, bool a_isBehindAgent );

    /// \return true if the boundary is the BEGIN of another card: the END of this one is missing.
    bool EndsBefore( const CardBoundary& a_boundary ) const;
    /// Takes the next line of the card.
    /// \param a_boundary the kind of the line. An EndAndBegin must be passed as two lines.
    void Take( const PhysicalLine& a_line, const CardBoundary& a_boundary );
    /// Takes the first bytes of a line whose end is not yet available.
    void TakeOpen( const PhysicalLine& a_line );

    /// True after the END of the card was taken.
    bool HasEnded() const { return m_depth < 0; }

private:
    void Add( const PhysicalLine& a_line );

    LineScanner& m_scanner;
    Ledger& m_ledger;
    // The depth of the innermost open card; -1 before BEGIN and after END. Example:
    //
    //     BEGIN:VCARD     m_depth 0
    //     AGENT:          m_isBehindAgent
    //     BEGIN:VCARD     m_depth 1
    //     END:VCARD       m_depth 0; without a further END, the next BEGIN ends the card
    int m_depth = -1;
    bool m_isBehindAgent = false;
};

} // namespace PimManager::Contacts
