/// \file
/// Cards, cut out of the lines of a text.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Cards/CardRecord.h"
#include "Cards/Ledger.h"
#include "Cards/PlainCard.h"
#include "Lines/LineFilter.h"
#include "Lines/LineScanner.h"
#include "Lines/LogicalLines.h"
#include "Text/FileSignature.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <functional>
#include <memory>
#include <vector>

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
class CardCutter
{
public:
    /// Receives a card that is complete; its extents have been added.
    using CardTaker = std::function<void( PimContactCard a_card )>;

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
    PimContactFileKind KindOfText() const { return m_textKind.Kind(); }

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
        Line m_first;
        bool m_hasBegin = false;
        quint32 m_indentation = 0;
        bool m_isFirstLineBehind = false; // no line but BEGIN has come
        bool m_isIndented = false;
        qint64 m_lines = 0;
        int m_nestedCards = 0;
        // The only card inside began on its AGENT line.
        bool m_isInlineAgent = false;
        // An END that may be that of the card: that of an inline AGENT, or an indented one. Nothing but blank lines
        // came since.
        bool m_hasPendingEnd = false;
        bool m_isPendingEndOfAgent = false;
        Line m_pendingEnd;
        // An indented BEGIN; all lines since are indented.
        bool m_hasFoldedBegin = false;
        bool m_hasFoldedEnd = false;
        Line m_foldedBegin;
        Knowledge m_knowledge;
    };

    // A card that is open, outermost or nested.
    struct Frame
    {
        Frame( const LineFilter& a_filter, qint64 a_mostLineBytes ) :
            m_lines( a_filter, a_mostLineBytes )
        {
        }
        LogicalLines m_lines;
        quint32 m_begin = 0;
        // Lines before it in the outermost card.
        quint32 m_line = 0;
        // What becomes of it and of the property that holds it: Line, Filtered or Dropped.
        EntryKind m_fate = EntryKind::Line;
    };

    std::string_view TextOf( const Line& a_line ) const { return m_scanner.TextOf( a_line ); }
    quint32 InCard( qint64 a_offset ) const { return static_cast<quint32>( a_offset - m_card.m_first.m_offset ); }
    LogicalLines& Lines() { return m_frames[m_depth]->m_lines; }
    CardLine CardLineOf( const Line& a_line ) const;
    static TextPlace PlaceOf( const Line& a_line ) { return { a_line.m_offset, a_line.m_number, a_line.m_lineOffset }; }
    Line Part( const Line& a_line, qint64 a_begin, qint64 a_end ) const;

    bool BeginPlainCard();
    void DeliverPlainCard( std::string_view a_bytes );
    void BeginFromPlainCard();
    void TakeOutside( const Line& a_line );
    void TakeEndOutside( const Line& a_line );
    void TellMarks( const Line& a_line, size_t a_marks );
    void AddOutside( const Line& a_line );
    void AddPieces( PimContactExtentKind a_kind, const Line& a_line, qint64 a_longest, qint64 a_card );
    void EndTextOutside();
    void TakeBeginOutside( const Line& a_line );
    bool IsKnownProperty( const Line& a_line ) const;
    bool MayBeHeld( const Line& a_line ) const;
    void ReleaseHeld( qint64 a_end );

    void BeginCard( const Line& a_line, bool a_hasBegin );
    void BeginFrame( quint32 a_begin );
    void TakeInside( const Line& a_line );
    void TakeBoundary( const Line& a_line, const CardBoundary& a_boundary );
    bool TakeContent( const Line& a_line );
    bool CheckIndentation( const Line& a_line );
    bool MayHoldCard( const Line& a_line );
    bool IsFold( const Line& a_line, Kind a_kind ) const;
    void NoteFold( const Line& a_line, Kind a_kind );
    bool IsOverLimit( const Line& a_line ) const;
    void TakeOverLimit( const Line& a_line );
    void LeaveOverLimit( const Line& a_line );
    void EndLookahead( std::string_view a_text );
    void TakeEnd( const Line& a_line, const CardBoundary& a_boundary );
    void TakeEndAndBegin( const Line& a_line, qint64 a_beginPlace );
    void TakeInlineAgent( const Line& a_line, qint64 a_beginPlace );
    void BeginNested( const Line& a_line );
    void Absorb();
    void EndAbsorbed( qint64 a_end );
    void EndNested( qint64 a_end, bool a_hasEnd );
    void WriteBoundary( const Line& a_line, const CardBoundary& a_boundary );

    void EndOpenCard( qint64 a_end );
    void ReadAgain( qint64 a_end, Knowledge a_knowledge );
    Line LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const;
    void TakeAll( qint64 a_begin, qint64 a_end, qint64 a_number );
    void EndAtPendingEnd( qint64 a_end );
    void EndBeforeFoldedBegin( qint64 a_end );
    void CloseCard( qint64 a_end, const Line* a_endLine );
    void Deliver( const CardIndex& a_index, const CardFacts& a_facts, qint64 a_end );
    void Tell( const CardIndex& a_index, const CardFacts& a_facts, std::string_view a_bytes );
    void Count( const CardIndex& a_index, const CardFacts& a_facts );
    void Refuse( PimContactDiagnosticCode a_code, qint64 a_end );
    bool IsContact( const CardIndex& a_index, qint64 a_end ) const;

    void Skip( PimContactDiagnosticCode a_code, const Line& a_line, bool a_isBehindAgent );
    void TakeSkipped( const Line& a_line );
    bool TakeOpenPart();
    void RefreshBytes();

    LineScanner& m_scanner;
    Ledger& m_ledger;
    CardTaker m_taker;
    LineFilter m_filter;
    qint64 m_mostCardBytes;
    qint64 m_mostCardLines;
    int m_mostNesting;
    qint64 m_mostCards;
    qint64 m_mostBookBytes;
    qint64 m_mostLineBytes;
    QByteArray m_defaultCharset;
    bool m_isDefaultKnown;
    bool m_isConverted = false;

    State m_state = State::Outside;
    OpenCard m_card;
    PlainCard m_plainCard;
    // Of the card that is delivered; kept for its memory.
    CardIndex m_sealed;
    bool m_mayTakePlainCards;
    bool m_isPlainCardOpen = false;
    std::vector<std::unique_ptr<Frame>> m_frames;
    size_t m_depth = 0;
    // Cards nested deeper than the limit.
    int m_absorbedDepth = 0;
    bool m_isBehindAbsorbedAgent = false;
    bool m_isEndOfText = false;
    qint64 m_bookBytes = 0;

    // Of a card that is refused.
    int m_skippedDepth = 0;
    bool m_isBehindSkippedAgent = false;

    TextPlace m_outsideBegin;
    qint64 m_outsideLines = 0;
    TextKind m_textKind;
};

} // namespace PimManager::Contacts
