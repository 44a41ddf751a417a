/// \file
/// Cards, cut out of the lines of a text.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Cards/CardDelivery.h"
#include "Cards/CardLimits.h"
#include "Cards/CardLookahead.h"
#include "Cards/CardRecord.h"
#include "Cards/CardStack.h"
#include "Cards/Ledger.h"
#include "Cards/OutsideText.h"
#include "Cards/PlainCard.h"
#include "Cards/SkippedCard.h"
#include "Lines/LineScanner.h"

#include <PimManager/Contacts/PimContactOptions.h>

namespace PimManager::Contacts
{

/// Finds the cards in a text. The rules:
///
/// - BEGIN outside cards begins one; END at the same depth ends it.
/// - BEGIN behind an AGENT line without a value, or on it, begins a card inside the card.
/// - Any other BEGIN inside a card says that an END is missing: all open cards end there, and a new one begins.
/// - Lines of properties with an END but no BEGIN are a card if one of them is FN, N, TEL, EMAIL or ORG. Text outside
///   cards is therefore held from the first known property on.
/// - At the end of the text all open cards end.
///
/// Two things are known only later, when BEGIN, the end of the text or the limit of a card comes and no other END did:
///
///     BEGIN:VCARD                      BEGIN:VCARD
///     AGENT:BEGIN:VCARD                FN:a
///     FN:a                              END:VCARD      a fold of FN, or an indented END?
///     END:VCARD     of which card?     BEGIN:VCARD     now it is known that the END was meant
///     BEGIN:VCARD   now it is known: of the outer one
///
/// The bytes of the card are still there, so it is read again with what is then known. The same happens when a line of
/// an indented card is not indented. Each byte is read at most three times.
///
/// The cutter decides; other classes carry out what it has decided. CardStack writes the index of the card that is
/// open, CardDelivery delivers it, SkippedCard takes the rest of a refused one, and OutsideText takes the lines between
/// cards.
class CardCutter
{
public:
    using CardTaker = CardDelivery::CardTaker;

    /// All must outlive the cutter.
    CardCutter( LineScanner& a_scanner, Ledger& a_ledger, const PimContactOptions& a_options, CardTaker a_taker );

    /// Forgets the text.
    void Reset( bool a_isConverted );

    /// What TakePlainCard() did.
    enum class PlainStep
    {
        None,    ///< nothing
        Taken,   ///< it took lines
        Waiting, ///< it waits for more of a card whose first lines it has read
    };

    /// Takes the next card of the scanner, or its first lines, if it is plain so far.
    PlainStep TakePlainCard();

    /// Takes the next line of the scanner.
    void Take( const PhysicalLine& a_line );

    /// Takes what has come of the next line, if the line is already longer than anything that is kept.
    void TakeOpenLine()
    {
        // No shorter line exceeds a limit.
        while ( !m_isPlainCardOpen && m_scanner.OpenLength() > CardBoundary::s_kLongest && TakeOpenPart() )
        {
        }
    }

    /// No line follows.
    void Finish();

    /// What the text outside cards is.
    PimContactFileKind KindOfText() const { return m_outside.Kind(); }

private:
    using Line = PhysicalLine;
    using Kind = CardBoundary::Kind;

    enum class State
    {
        Outside,
        Inside,
        Skipping, ///< the card is refused
    };

    // What is only known when the card is read again.
    struct Knowledge
    {
        bool m_isPlain = false;     // the indentation of BEGIN is not that of all lines
        bool m_isFlatAgent = false; // `AGENT:BEGIN:VCARD` begins no card
    };

    // The card that is being read. A new card begins with a new object.
    struct OpenCard
    {
        // All lines are expected to be indented.
        bool IsIndented() const { return m_indentation > 0 && !m_knowledge.m_isPlain; }

        Line m_first;
        bool m_hasBegin = false;
        // That of BEGIN.
        quint32 m_indentation = 0;
        bool m_isFirstLineBehind = true; // no line but BEGIN has come
        qint64 m_lines = 0;
        CardLookahead m_lookahead;
        Knowledge m_knowledge;
    };

    std::string_view TextOf( const Line& a_line ) const { return m_scanner.TextOf( a_line ); }

    bool BeginPlainCard();
    PlainStep EndPlainCard( PlainCard::Result a_result, bool a_isTooLong );
    void DeliverPlainCard( std::string_view a_bytes );
    void BeginFromPlainCard();

    void TakeOutside( const Line& a_line );
    void TakeTextOutside( const Line& a_line );
    void TakeBeginOutside( const Line& a_line );
    bool MayBeHeld( const Line& a_line ) const;
    void ReleaseHeld( qint64 a_end );

    void BeginCard( const Line& a_line, bool a_hasBegin, Knowledge a_knowledge );
    void TakeInside( const Line& a_line );
    void TakeBoundary( const Line& a_line, const CardBoundary& a_boundary );
    bool TakeContent( const Line& a_line );
    bool CheckIndentation( const Line& a_line );
    bool MayHoldCard( const Line& a_line ) const;
    bool IsFold( const Line& a_line, Kind a_kind ) const;
    void TakeFold( const Line& a_line, Kind a_kind );
    bool IsOverLimit( const Line& a_line ) const;
    void TakeOverLimit( const Line& a_line );
    void LeaveOverLimit( const Line& a_line );
    void TakeBegin( const Line& a_line );
    void TakeEnd( const Line& a_line, const CardBoundary& a_boundary );
    void TakeEndAndBegin( const Line& a_line, qint64 a_beginPlace );
    void TakeInlineAgent( const Line& a_line, qint64 a_beginPlace );
    void BeginNested( const Line& a_line, bool a_isInline );

    void EndOpenCard( qint64 a_end );
    void EndAndTake( const Line& a_line );
    void ReadAgain( qint64 a_end, Knowledge a_knowledge );
    Line LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const;
    void TakeAll( qint64 a_begin, qint64 a_end, qint64 a_number );
    void EndAtPendingEnd( qint64 a_end );
    void EndBeforeFoldedBegin( qint64 a_end );
    void CloseCard( qint64 a_end, const Line* a_endLine );

    void SkipFromBegin( PimContactDiagnosticCode a_code, const Line& a_line );
    void SkipFromInside( const Line& a_line );
    void TakeSkipped( const Line& a_line );
    void LeaveSkipped( qint64 a_end );

    bool TakeOpenPart();
    bool TakeOpenPartInside( const Line& a_line );
    Line OpenLine() const;

    LineScanner& m_scanner;
    Ledger& m_ledger;
    CardLimits m_limits;
    CardDelivery m_delivery;
    OutsideText m_outside;
    CardStack m_stack;
    SkippedCard m_skipped;

    State m_state = State::Outside;
    OpenCard m_card;
    PlainCard m_plainCard;
    // Of the card that is delivered; kept for its memory.
    CardIndex m_sealed;
    bool m_mayTakePlainCards;
    bool m_isPlainCardOpen = false;
};

} // namespace PimManager::Contacts
