/// \file
/// Lines that may have ended a card.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Lines/LineScanner.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Remembers the boundaries in a card whose meaning depends on the text after them:
///
/// - An indented END may be a fold of the line before, or the END of the card.
/// - The END of a card that began on its AGENT line may be the END of the outer card.
/// - An indented BEGIN with only indented lines after it may be a fold or another card.
///
/// If text follows, they are folds, or the END of the nested card. If the card has no other END, Result says what they
/// mean.
class CardLookahead
{
public:
    using Kind = CardBoundary::Kind;

    enum class Result
    {
        None,        ///< no boundary is undecided
        PendingEnd,  ///< the card ends with the line of PendingEnd()
        FoldedBegin, ///< the card ends before the line of FoldedBegin(), where another one begins
    };

    /// The meaning of the boundaries if no line of the card follows.
    Result Found() const;
    bool IsPending() const { return Found() != Result::None; }

    const PhysicalLine& PendingEnd() const { return m_end; }
    /// PendingEnd() was taken as the END of a card that began on its AGENT line.
    bool IsPendingEndOfAgent() const { return m_isEndOfAgent; }
    const PhysicalLine& FoldedBegin() const { return m_begin; }

    /// A line of text follows.
    void TakeText( std::string_view a_text );
    /// A boundary follows and was taken as a fold. TakeText() must be called first.
    void TakeFold( const PhysicalLine& a_line, Kind a_kind );
    /// A nested card begins.
    /// \param a_isInline true if it begins on its AGENT line.
    void BeginNested( bool a_isInline );
    /// A nested card has ended, and no other one is open.
    void EndNested( const PhysicalLine& a_line );

private:
    // Example of the flags:
    //
    //     NOTE:a
    //      BEGIN:VCARD     m_hasBegin, m_begin
    //      END:VCARD       m_hasEnd, m_hasEndBehindBegin, m_end; both lines may be another card
    //     TEL:1            not indented: m_hasBegin and m_hasEnd are cleared; both lines were folds of NOTE
    int m_nestedCards = 0;
    // There is only one nested card, and it began on its AGENT line.
    bool m_isInlineAgent = false;
    // Only blank lines followed m_end.
    bool m_hasEnd = false;
    bool m_isEndOfAgent = false;
    PhysicalLine m_end;
    bool m_hasBegin = false;
    bool m_hasEndBehindBegin = false;
    PhysicalLine m_begin;
};

} // namespace PimManager::Contacts
