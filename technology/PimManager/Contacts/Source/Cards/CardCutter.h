/// \file
/// Cuts the lines of a text into cards.

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
/// - BEGIN outside cards begins a card. END at the same depth ends it.
/// - BEGIN after an AGENT line without a value, or on the AGENT line, begins a nested card.
/// - Any other BEGIN inside a card means that an END is missing. All open cards end there, and a new one begins.
/// - Properties with an END but without a BEGIN are a card if one of them is FN, N, TEL, EMAIL or ORG. Text outside
///   cards is therefore held back from the first known property on.
/// - All open cards end at the end of the text.
///
/// Two things are decided only later, when BEGIN, the end of the text or the limit of a card is reached without another
/// END:
///
///     BEGIN:VCARD                      BEGIN:VCARD
///     AGENT:BEGIN:VCARD                FN:a
///     FN:a                              END:VCARD      a fold of FN, or an indented END?
///     END:VCARD     of which card?     BEGIN:VCARD     now it is known that the END was meant
///     BEGIN:VCARD   now it is known: of the outer one
///
/// The bytes of the card are kept until then, so it is read again with this knowledge. The same happens if a line of an
/// indented card is not indented. Each byte is read at most three times.
///
/// The cutter decides, and other classes carry out its decisions. CardStack writes the index of the open card,
/// CardDelivery delivers it, SkippedCard takes the rest of a refused card, and OutsideText takes the lines between
/// cards.
class CardCutter
{
public:
    using CardTaker = CardDelivery::CardTaker;

    /// The arguments must outlive the cutter.
    CardCutter( LineScanner& a_scanner, Ledger& a_ledger, const PimContactOptions& a_options, CardTaker a_taker );

    /// Forgets the text.
    void Reset( bool a_isConverted );

    /// The result of TakePlainCard().
    enum class PlainStep
    {
        None,    ///< nothing
        Taken,   ///< lines were taken
        Waiting, ///< the first lines of a card were read; more bytes are needed
    };

    /// Takes the next card from the scanner if it is plain, or its first lines if only these are plain.
    PlainStep TakePlainCard();

    /// Takes the next line from the scanner.
    void Take( const PhysicalLine& a_line );

    /// Takes the available part of the next line if it is already longer than any line that is kept.
    void TakeOpenLine()
    {
        // No shorter line exceeds a limit.
        while ( !m_isPlainCardOpen && m_scanner.OpenLength() > CardBoundary::s_kLongest && TakeOpenPart() )
        {
        }
    }

    /// Ends the text. No line follows.
    void Finish();

    /// The kind of the text outside cards.
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

    // Facts that are known only when the card is read again.
    struct Knowledge
    {
        bool m_isPlain = false;     // not all lines have the indentation of BEGIN
        bool m_isFlatAgent = false; // `AGENT:BEGIN:VCARD` does not begin a card
    };

    // The card that is being read. Each card begins with a new object. Example:
    //
    //       BEGIN:VCARD     m_indentation 2, so all lines are expected to be indented
    //       FN:a            indented by exactly 2; m_isFirstLineBehind is false from here on
    //     NOTE:b            not indented: the card is read again, with m_knowledge.m_isPlain
    struct OpenCard
    {
        // All lines are expected to be indented.
        bool IsIndented() const { return m_indentation > 0 && !m_knowledge.m_isPlain; }

        Line m_first;
        bool m_hasBegin = false;
        // The number of blanks before BEGIN.
        quint32 m_indentation = 0;
        bool m_isFirstLineBehind = true; // only BEGIN was read so far
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
    // The index of the card that is being delivered. Kept to reuse its memory.
    CardIndex m_sealed;
    bool m_mayTakePlainCards;
    bool m_isPlainCardOpen = false;
};

} // namespace PimManager::Contacts
