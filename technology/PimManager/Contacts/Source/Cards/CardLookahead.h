/// \file
/// Lines that may have ended a card.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Lines/LineScanner.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Remembers the boundaries in a card whose meaning depends on what follows:
///
/// - An indented END may be a fold of the line before, or the END of the card.
/// - The END of a card that began on its AGENT line may be meant for the outer card.
/// - An indented BEGIN, with indented lines only since then, may be a fold or another card.
///
/// Text that follows decides that they are what they look like. If the card has no other END, they mean what Result
/// says.
class CardLookahead
{
public:
    using Kind = CardBoundary::Kind;

    enum class Result
    {
        None,        ///< no boundary is open
        PendingEnd,  ///< the card ends with the line of PendingEnd()
        FoldedBegin, ///< the card ends before the line of FoldedBegin(), where another one begins
    };

    /// What the boundaries mean if no line of the card follows.
    Result Found() const;
    bool IsPending() const { return Found() != Result::None; }

    const PhysicalLine& PendingEnd() const { return m_end; }
    /// PendingEnd() was taken as the END of a card that began on its AGENT line.
    bool IsPendingEndOfAgent() const { return m_isEndOfAgent; }
    const PhysicalLine& FoldedBegin() const { return m_begin; }

    /// A line of text follows.
    void TakeText( std::string_view a_text );
    /// A boundary follows that was taken as a fold. TakeText() must be called first.
    void TakeFold( const PhysicalLine& a_line, Kind a_kind );
    /// A card inside the card begins.
    /// \param a_isInline on its AGENT line.
    void BeginNested( bool a_isInline );
    /// A card inside the card has ended, and none is open.
    void EndNested( const PhysicalLine& a_line );

private:
    int m_nestedCards = 0;
    // The only card inside began on its AGENT line.
    bool m_isInlineAgent = false;
    // Nothing but blank lines came since.
    bool m_hasEnd = false;
    bool m_isEndOfAgent = false;
    PhysicalLine m_end;
    bool m_hasBegin = false;
    bool m_hasEndBehindBegin = false;
    PhysicalLine m_begin;
};

} // namespace PimManager::Contacts
