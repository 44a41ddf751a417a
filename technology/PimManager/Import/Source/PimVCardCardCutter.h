/// \file
/// Cards, cut out of the lines of a file.

#pragma once

#include "PimVCardBoundary.h"
#include "PimVCardCleanLines.h"
#include "PimVCardLineCutter.h"
#include "PimVCardRawCard.h"
#include "PimVCardReporter.h"

#include <functional>

namespace PimManager::vCardImport
{

/// Finds the cards in a text. The rules:
///
/// - BEGIN outside cards begins one; END at the same depth ends it.
/// - BEGIN behind an AGENT line without a value, or on it, begins a card inside the card, which stays with its
///   property.
/// - Any other BEGIN inside a card says that an END is missing: all open cards end there, and a new one begins.
/// - END outside cards belongs to the text outside.
/// - At the end of the file all open cards end.
/// - In a card that is not indented, an indented BEGIN or END goes on with the value before it, as any folded line
///   does. Where no other END comes, the indented one was meant.
///
/// Depth is a number, not a stack. A card that grows beyond the limit is let go line by line.
class PimVCardCardCutter
{
public:
    /// Takes a card that is complete. The card may be changed; it is used again for the next one.
    using CardTaker = std::function<void( PimVCardRawCard& a_card )>;

    PimVCardCardCutter( PimVCardReporter& a_reporter, const PimVCardImportLimits& a_limits, const CardTaker& a_taker );

    /// \param a_isUtf16 the text came as UTF-16.
    void Begin( bool a_isUtf16 ) { m_card.m_isUtf16 = a_isUtf16; }

    void Take( const PimVCardPhysicalLine& a_line );

    /// Tells if what has come of a line will not be needed: it cannot bound a card, and belongs to none that is kept.
    bool MayLetGo( std::string_view a_openLine ) const;
    /// What has come of a line is let go.
    void LetGo( std::string_view a_openLine );

    /// No line follows.
    void Finish();

private:
    enum class State
    {
        Outside,
        Inside,
        TooLong,
    };

    using Line = PimVCardPhysicalLine;

    bool IsFold( const Line& a_line ) const;
    void TakeFold( const Line& a_line, PimVCardBoundary::Kind a_kind );
    void Dispatch( const Line& a_line, const PimVCardBoundary& a_boundary );
    void TakeBegin( const Line& a_line, const PimVCardBoundary& a_boundary );
    void TakeNestedBegin( const Line& a_line );
    void TakeEnd( const Line& a_line, const PimVCardBoundary& a_boundary );
    void TakeAgentBegin( const Line& a_line );
    void TakeEndAndBegin( const Line& a_line, size_t a_beginPlace );
    void TakeContent( const Line& a_line );
    void TakeOutside( const Line& a_line, bool a_isEnd );
    void EndOpenCards();
    void EndBeforeIndentedCards();
    void EndCard();
    void AddLine( const Line& a_line, bool a_isNested, bool a_isClean );
    void BecomeTooLong( const PimVCardPosition& a_position );
    void AddTooLong( std::string_view a_bytes );
    void FlushTooLong();
    void EndTooLong();
    void EndTextOutside();
    void LoseCard( const Line& a_endLine );
    void KeepOutside( const Line& a_line );
    bool IsBehindAgent() const;
    bool IsBehindEmptyLine() const;
    bool IsTooLong( size_t a_more ) const;

    PimVCardReporter& m_reporter;
    PimVCardImportLimits m_limits;
    CardTaker m_taker;

    State m_state = State::Outside;
    PimVCardRawCard m_card;
    PimVCardCleanLines m_cleanLines;
    qint64 m_cards = 0;
    int m_depth = 0;
    // The only card inside began on its AGENT line.
    bool m_isInlineAgent = false;
    // The line of the END that closed it, or of an indented END; nothing but blank lines came since, so it may be that
    // of the card.
    int m_flatEnd = -1;
    // The line of an indented BEGIN; all lines that came since are indented.
    int m_foldedBegin = -1;
    // The line is not the second half of one that two cards share.
    bool m_isCounted = true;

    // Of a card that is too long.
    PimVCardReject m_tooLong;
    qint64 m_tooLongLines = 0;
    bool m_isTooLongAgent = false;

    PimVCardPosition m_outsideBegin;
    qint64 m_outsideLines = 0;
    qint64 m_outsideProperties = 0;
    QByteArray m_outside;
};

} // namespace PimManager::vCardImport
