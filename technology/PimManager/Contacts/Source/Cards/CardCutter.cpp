#include "Cards/CardCutter.h"

#include "Cards/CardSeal.h"
#include "Cards/CardWithoutBegin.h"
#include "Cards/LineExtents.h"
#include "Text/Bytes.h"

#include <utility>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactDiagnosticCode;
using Extent = PimContactExtentKind;

quint32 LeadingBlanks( std::string_view a_text )
{
    return static_cast<quint32>( a_text.size() - TrimmedLeft( a_text ).size() );
}

// The fast path has no filter and no limit for lines.
bool AreAllLinesWanted( const PimContactOptions& a_options )
{
    return LineFilter( a_options ).IsEmpty() && a_options.LineBytes() <= 0;
}

} // namespace

CardCutter::CardCutter( LineScanner& a_scanner, Ledger& a_ledger, const PimContactOptions& a_options,
                        CardTaker a_taker ) :
    m_scanner( a_scanner ),
    m_ledger( a_ledger ),
    m_limits( a_options ),
    m_delivery( a_scanner, a_ledger, a_options, std::move( a_taker ) ),
    m_outside( a_scanner, a_ledger, m_limits.m_bytes ),
    m_stack( a_scanner, a_options, m_delivery.IsDefaultKnown() ),
    m_skipped( a_scanner, a_ledger ),
    m_mayTakePlainCards( AreAllLinesWanted( a_options ) )
{
}

void CardCutter::Reset( bool a_isConverted )
{
    m_delivery.Reset( a_isConverted );
    m_outside.Reset();
    m_state = State::Outside;
    m_isPlainCardOpen = false;
}

void CardCutter::Take( const Line& a_line )
{
    switch ( m_state )
    {
    case State::Outside:
        TakeOutside( a_line );
        break;
    case State::Inside:
        TakeInside( a_line );
        break;
    case State::Skipping:
        TakeSkipped( a_line );
        break;
    }
}

// --- Plain cards

bool CardCutter::BeginPlainCard()
{
    // The first line ending of each kind is reported with its position, which the fast path does not do.
    return m_state == State::Outside && m_mayTakePlainCards && !m_scanner.IsLong() &&
           m_plainCard.Begin( m_scanner.Rest() ) &&
           m_ledger.Data().m_lineEnds[static_cast<size_t>( m_plainCard.LineEnd() )] > 0 && !m_delivery.IsFull();
}

CardCutter::PlainStep CardCutter::TakePlainCard()
{
    if ( !m_isPlainCardOpen && !BeginPlainCard() )
        return PlainStep::None;
    const PlainCard::Result result = m_plainCard.Read( m_scanner.Rest() );
    const qint64 length = result == PlainCard::Result::Open ? m_scanner.OpenLength() : m_plainCard.BytesClosed();
    const bool isTooLong = length > m_limits.m_bytes || m_plainCard.Lines() > m_limits.m_lines;
    m_isPlainCardOpen = result == PlainCard::Result::Open && !isTooLong && !m_scanner.IsFinished();
    return m_isPlainCardOpen ? PlainStep::Waiting : EndPlainCard( result, isTooLong );
}

CardCutter::PlainStep CardCutter::EndPlainCard( PlainCard::Result a_result, bool a_isTooLong )
{
    if ( a_result == PlainCard::Result::Whole )
    {
        if ( a_isTooLong )
            return PlainStep::None;
        DeliverPlainCard( m_scanner.Rest().substr( 0, m_plainCard.BytesClosed() ) );
        return PlainStep::Taken;
    }
    if ( m_plainCard.BytesClosed() > m_limits.m_bytes || m_plainCard.LinesClosed() > m_limits.m_lines )
        return PlainStep::None;
    BeginFromPlainCard();
    return PlainStep::Taken;
}

void CardCutter::DeliverPlainCard( std::string_view a_bytes )
{
    m_outside.End();
    const qint64 begin = m_scanner.NextOffset();
    const TextPlace place = { begin, m_scanner.NextNumber(), begin };
    m_scanner.Release( begin );
    m_scanner.PassLines( static_cast<qint64>( a_bytes.size() ), m_plainCard.Lines() );
    m_ledger.Data().m_lineEnds[static_cast<size_t>( m_plainCard.LineEnd() )] += m_plainCard.Lines();
    CardRecord record;
    record.m_length = static_cast<quint32>( a_bytes.size() );
    record.m_flags = CardRecord::HasBegin | CardRecord::HasEnd;
    SealCard( m_plainCard.Facts(), m_plainCard.Index(), record, a_bytes, m_delivery.IsDefaultKnown(), m_sealed );
    m_delivery.Deliver( m_sealed, m_plainCard.Facts(), place );
}

// The lines that were read on the fast path need not be read again.
void CardCutter::BeginFromPlainCard()
{
    Line begin;
    m_scanner.Next( begin );
    TakeBeginOutside( begin );
    m_card.m_lines = m_plainCard.LinesClosed();
    m_card.m_isFirstLineBehind = m_card.m_lines == 1;
    m_scanner.PassLines( m_plainCard.BytesClosed() - ( begin.End() - begin.m_offset ), m_card.m_lines - 1 );
    m_ledger.Data().m_lineEnds[static_cast<size_t>( m_plainCard.LineEnd() )] += m_card.m_lines;
    m_stack.Lines().Continue( m_plainCard.Writer(), m_plainCard.FactsClosed(), m_plainCard.BytesClosed() );
}

// --- Outside cards

void CardCutter::TakeOutside( const Line& a_line )
{
    const CardBoundary boundary =
        CardBoundary::IsTooLong( a_line ) ? CardBoundary() : CardBoundary::OfOutside( TextOf( a_line ) );
    switch ( boundary.m_kind )
    {
    case Kind::Begin:
        TakeBeginOutside( a_line );
        break;
    case Kind::End:
        m_outside.AddEnd( a_line );
        break;
    case Kind::EndAndBegin:
        TakeEndAndBegin( a_line, boundary.m_beginPlace );
        break;
    case Kind::AgentBegin:
        m_outside.Add( m_scanner.PartOf( a_line, 0, boundary.m_beginPlace ) );
        TakeBeginOutside( m_scanner.PartOf( a_line, boundary.m_beginPlace, a_line.m_length ) );
        break;
    case Kind::None:
        TakeTextOutside( a_line );
        break;
    }
}

// Byte order marks before BEGIN are not part of the card.
void CardCutter::TakeBeginOutside( const Line& a_line )
{
    m_outside.End();
    const size_t marks = LengthOfMarks( TextOf( a_line ) );
    if ( marks == 0 )
    {
        BeginCard( a_line, true, {} );
        return;
    }
    m_outside.AddMarks( a_line, marks );
    BeginCard( m_scanner.PartOf( a_line, static_cast<qint64>( marks ), a_line.m_length ), true, {} );
}

void CardCutter::TakeTextOutside( const Line& a_line )
{
    if ( !MayBeHeld( a_line ) || !IsKnownProperty( TextOf( a_line ) ) )
    {
        m_outside.Add( a_line );
        return;
    }
    BeginCard( a_line, false, {} );
    TakeInside( a_line );
}

bool CardCutter::MayBeHeld( const Line& a_line ) const
{
    return !a_line.m_isLong && a_line.m_length + a_line.m_endLength <= m_limits.m_bytes;
}

// The text that was held back is not a card.
void CardCutter::ReleaseHeld( qint64 a_end )
{
    m_state = State::Outside;
    qint64 number = m_card.m_first.m_number;
    for ( qint64 place = m_card.m_first.m_offset; place < a_end; ++number )
    {
        const Line line = LineAt( place, a_end, number );
        m_outside.Add( line );
        place = line.End();
    }
}

// --- Inside cards

void CardCutter::BeginCard( const Line& a_line, bool a_hasBegin, Knowledge a_knowledge )
{
    m_card = OpenCard();
    m_card.m_first = a_line;
    m_card.m_hasBegin = a_hasBegin;
    m_card.m_knowledge = a_knowledge;
    if ( a_hasBegin && m_delivery.IsFull() )
        SkipFromBegin( Code::TooManyCards, a_line );
    else if ( a_hasBegin && a_line.m_length + a_line.m_endLength > m_limits.m_bytes )
        SkipFromBegin( Code::CardTooLong, a_line );
    else
    {
        m_state = State::Inside;
        m_scanner.Release( a_line.m_offset );
        m_card.m_indentation = a_hasBegin ? LeadingBlanks( TextOf( a_line ) ) : 0;
        m_card.m_lines = a_hasBegin ? 1 : 0;
        m_stack.Begin( a_line, m_card.IsIndented() ? m_card.m_indentation : 0 );
        if ( a_hasBegin )
            m_stack.AddBegin( a_line );
    }
}

void CardCutter::TakeInside( const Line& a_line )
{
    m_stack.RefreshBytes();
    if ( a_line.m_isLong || !CardBoundary::MayBe( TextOf( a_line ) ) )
    {
        TakeContent( a_line );
        return;
    }
    const CardBoundary boundary = CardBoundary::Of( TextOf( a_line ) );
    const bool isBoundary = boundary.m_kind != Kind::None;
    if ( isBoundary && IsFold( a_line, boundary.m_kind ) )
        TakeFold( a_line, boundary.m_kind );
    else if ( isBoundary && !( boundary.m_kind == Kind::AgentBegin && !MayHoldCard( a_line ) ) )
        TakeBoundary( a_line, boundary );
    else
        TakeContent( a_line );
}

// True for an AGENT line, unless it continues the line before it.
bool CardCutter::MayHoldCard( const Line& a_line ) const
{
    const size_t indentation = m_card.IsIndented() ? m_card.m_indentation : 0;
    const std::string_view text = TextOf( a_line );
    const bool isIndented = text.size() > indentation && IsBlank( text[indentation] );
    return !m_card.m_knowledge.m_isFlatAgent && !( isIndented && m_stack.MayFold() );
}

// The words of a boundary are a fold if they are indented and the line before them is not. Text that is held back
// outside cards does not continue with BEGIN.
bool CardCutter::IsFold( const Line& a_line, Kind a_kind ) const
{
    if ( !m_card.m_hasBegin && ( a_kind == Kind::Begin || a_kind == Kind::EndAndBegin ) )
        return false;
    return m_stack.IsOutermost() && IsBlank( TextOf( a_line ).front() ) && m_card.m_indentation == 0 &&
           m_stack.MayFold();
}

void CardCutter::TakeFold( const Line& a_line, Kind a_kind )
{
    if ( TakeContent( a_line ) )
        m_card.m_lookahead.TakeFold( a_line, a_kind );
}

void CardCutter::TakeBoundary( const Line& a_line, const CardBoundary& a_boundary )
{
    if ( a_boundary.m_kind == Kind::Begin )
        TakeBegin( a_line );
    else if ( a_boundary.m_kind == Kind::End )
        TakeEnd( a_line, a_boundary );
    else if ( a_boundary.m_kind == Kind::EndAndBegin )
        TakeEndAndBegin( a_line, a_boundary.m_beginPlace );
    else
        TakeInlineAgent( a_line, a_boundary.m_beginPlace );
}

void CardCutter::TakeBegin( const Line& a_line )
{
    if ( !m_card.m_hasBegin )
        // A BEGIN has priority over text that may be a card.
        EndAndTake( a_line );
    else if ( !m_stack.IsBehindAgent() )
    {
        while ( m_state == State::Inside )
            EndOpenCard( a_line.m_offset );
        Take( a_line );
    }
    else if ( IsOverLimit( a_line ) )
        TakeOverLimit( a_line );
    else
        BeginNested( a_line, false );
}

void CardCutter::TakeEndAndBegin( const Line& a_line, qint64 a_beginPlace )
{
    Take( m_scanner.PartOf( a_line, 0, a_beginPlace ) );
    Take( m_scanner.PartOf( a_line, a_beginPlace, a_line.m_length ) );
}

void CardCutter::TakeInlineAgent( const Line& a_line, qint64 a_beginPlace )
{
    if ( !m_card.m_hasBegin )
        EndAndTake( a_line );
    else if ( IsOverLimit( a_line ) )
        TakeOverLimit( a_line );
    else
    {
        m_card.m_lookahead.TakeText( TextOf( a_line ) );
        if ( !CheckIndentation( a_line ) )
            return;
        m_stack.Take( m_scanner.PartOf( a_line, 0, a_beginPlace ) );
        m_stack.IsBehindAgent();
        BeginNested( m_scanner.PartOf( a_line, a_beginPlace, a_line.m_length ), true );
    }
}

void CardCutter::BeginNested( const Line& a_line, bool a_isInline )
{
    ++m_card.m_lines;
    m_card.m_lookahead.BeginNested( a_isInline );
    m_stack.BeginNested( a_line );
}

void CardCutter::TakeEnd( const Line& a_line, const CardBoundary& a_boundary )
{
    if ( IsOverLimit( a_line ) )
    {
        TakeOverLimit( a_line );
        return;
    }
    ++m_card.m_lines;
    if ( m_stack.IsOutermost() )
    {
        CloseCard( a_line.End(), &a_line );
        return;
    }
    m_stack.EndNested( a_line, a_boundary );
    if ( m_stack.IsOutermost() )
        m_card.m_lookahead.EndNested( a_line );
}

// \return false if the line did not become a line of the card.
bool CardCutter::TakeContent( const Line& a_line )
{
    const bool isText = CardBoundary::IsTooLong( a_line ) || !IsWhiteSpace( TextOf( a_line ) );
    if ( isText )
        m_card.m_lookahead.TakeText( TextOf( a_line ) );
    if ( IsOverLimit( a_line ) )
    {
        TakeOverLimit( a_line );
        return false;
    }
    if ( isText && !CheckIndentation( a_line ) )
        return false;
    ++m_card.m_lines;
    m_stack.Take( a_line );
    return true;
}

// All lines of an indented card have the indentation of its BEGIN line. If a line has not, the card is read again
// without indentation. \return false if the line has been taken.
bool CardCutter::CheckIndentation( const Line& a_line )
{
    if ( !m_card.IsIndented() || m_stack.IsTooDeep() )
        return true;
    const quint32 blanks = LeadingBlanks( TextOf( a_line ) );
    const bool isFirst = std::exchange( m_card.m_isFirstLineBehind, false );
    const bool isIndented = isFirst ? blanks == m_card.m_indentation : blanks >= m_card.m_indentation;
    if ( isIndented )
        return true;
    ReadAgain( a_line.m_offset, { true, m_card.m_knowledge.m_isFlatAgent } );
    Take( a_line );
    return false;
}

bool CardCutter::IsOverLimit( const Line& a_line ) const
{
    return a_line.End() - m_card.m_first.m_offset > m_limits.m_bytes || m_card.m_lines >= m_limits.m_lines;
}

void CardCutter::TakeOverLimit( const Line& a_line )
{
    const Line line = a_line;
    LeaveOverLimit( line );
    Take( line );
}

// The look-ahead ends at the limit of a card.
void CardCutter::LeaveOverLimit( const Line& a_line )
{
    if ( m_card.m_lookahead.IsPending() && m_stack.IsOutermost() )
        EndOpenCard( a_line.m_offset );
    else if ( !m_card.m_hasBegin )
        ReleaseHeld( a_line.m_offset );
    else
        SkipFromInside( a_line );
}

// --- The end of cards

// Ends a card whose END is missing, with its nested cards.
void CardCutter::EndOpenCard( qint64 a_end )
{
    m_stack.RefreshBytes();
    const CardLookahead::Result found =
        m_stack.IsOutermost() ? m_card.m_lookahead.Found() : CardLookahead::Result::None;
    if ( found == CardLookahead::Result::PendingEnd )
        EndAtPendingEnd( a_end );
    else if ( found == CardLookahead::Result::FoldedBegin )
        EndBeforeFoldedBegin( a_end );
    else if ( !m_card.m_hasBegin )
        ReleaseHeld( a_end );
    else
        CloseCard( a_end, nullptr );
}

void CardCutter::EndAndTake( const Line& a_line )
{
    EndOpenCard( a_line.m_offset );
    Take( a_line );
}

// Returns a line that the scanner has already returned. The first one may be only a part of its line.
CardCutter::Line CardCutter::LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const
{
    Line line = m_scanner.LineAt( a_offset, a_end, a_number );
    if ( a_offset == m_card.m_first.m_offset )
        line.m_lineOffset = m_card.m_first.m_lineOffset;
    return line;
}

// Takes the lines of a part of the text again.
void CardCutter::TakeAll( qint64 a_begin, qint64 a_end, qint64 a_number )
{
    qint64 number = a_number;
    for ( qint64 place = a_begin; place < a_end; ++number )
    {
        const Line line = LineAt( place, a_end, number );
        place = line.End();
        Take( line );
    }
}

void CardCutter::ReadAgain( qint64 a_end, Knowledge a_knowledge )
{
    const Line first = m_card.m_first;
    const bool hasBegin = m_card.m_hasBegin;
    BeginCard( first, hasBegin, a_knowledge );
    TakeAll( hasBegin ? first.End() : first.m_offset, a_end, first.m_number + ( hasBegin ? 1 : 0 ) );
}

void CardCutter::EndAtPendingEnd( qint64 a_end )
{
    const Line end = m_card.m_lookahead.PendingEnd();
    ReadAgain( end.m_offset, { m_card.m_knowledge.m_isPlain, m_card.m_lookahead.IsPendingEndOfAgent() } );
    ++m_card.m_lines;
    CloseCard( end.End(), &end );
    TakeAll( end.End(), a_end, end.m_number + 1 );
}

// The lines that looked like folds are a card: BEGIN, END and all lines between them are indented, and no other END
// followed.
void CardCutter::EndBeforeFoldedBegin( qint64 a_end )
{
    const Line begin = m_card.m_lookahead.FoldedBegin();
    ReadAgain( begin.m_offset, m_card.m_knowledge );
    if ( m_card.m_hasBegin )
        CloseCard( begin.m_offset, nullptr );
    else
        ReleaseHeld( begin.m_offset );
    TakeAll( begin.m_offset, a_end, begin.m_number );
}

void CardCutter::CloseCard( qint64 a_end, const Line* a_endLine )
{
    m_stack.Close( a_end, a_endLine, m_card.m_hasBegin, m_sealed );
    const qint64 begin = m_card.m_first.m_offset;
    if ( !m_card.m_hasBegin && a_endLine != nullptr && !IsContact( m_sealed, m_scanner.View( begin, a_end - begin ) ) )
    {
        ReleaseHeld( a_endLine->m_offset );
        m_outside.AddEnd( *a_endLine );
        return;
    }
    m_outside.End();
    m_state = State::Outside;
    m_delivery.Deliver( m_sealed, m_stack.Lines().Facts(), PlaceOf( m_card.m_first ) );
}

// --- Refused cards

void CardCutter::SkipFromBegin( Code a_code, const Line& a_line )
{
    m_delivery.ReportRefused( a_code, PlaceOf( a_line ) );
    m_state = State::Skipping;
    m_skipped.Begin();
    TakeSkipped( a_line );
}

// The lines before this one are refused as well.
void CardCutter::SkipFromInside( const Line& a_line )
{
    const qint64 begin = m_card.m_first.m_offset;
    const bool isTooLong = a_line.End() - begin > m_limits.m_bytes;
    m_delivery.ReportRefused( isTooLong ? Code::CardTooLong : Code::CardOfManyLines, PlaceOf( m_card.m_first ) );
    m_state = State::Skipping;
    m_skipped.BeginInside( m_stack.Depth(), m_stack.IsBehindAgent() );
    m_ledger.Add( Extent::Refused, m_scanner.View( begin, a_line.m_offset - begin ), m_ledger.Data().m_cards );
    m_scanner.Release( a_line.m_offset );
}

void CardCutter::TakeSkipped( const Line& a_line )
{
    const CardBoundary boundary =
        CardBoundary::IsTooLong( a_line ) ? CardBoundary() : CardBoundary::Of( TextOf( a_line ) );
    if ( boundary.m_kind == Kind::EndAndBegin )
        TakeEndAndBegin( a_line, boundary.m_beginPlace );
    else if ( m_skipped.EndsBefore( boundary ) )
    {
        LeaveSkipped( a_line.m_offset );
        Take( a_line );
    }
    else
    {
        m_skipped.Take( a_line, boundary );
        if ( m_skipped.HasEnded() )
            LeaveSkipped( a_line.End() );
    }
}

void CardCutter::LeaveSkipped( qint64 a_end )
{
    m_state = State::Outside;
    m_ledger.FlushUpTo( a_end );
}

// --- Lines whose end is not yet available

CardCutter::Line CardCutter::OpenLine() const
{
    Line line;
    line.m_offset = m_scanner.NextOffset();
    line.m_number = m_scanner.NextNumber();
    line.m_lineOffset = m_scanner.NextLineOffset();
    line.m_length = m_scanner.OpenLength();
    line.m_isLong = m_scanner.IsLong();
    return line;
}

bool CardCutter::TakeOpenPart()
{
    Line line = OpenLine();
    if ( m_state == State::Inside )
        return TakeOpenPartInside( line );
    const qint64 longest = m_state == State::Skipping ? s_kExtentPiece : m_limits.m_bytes;
    const bool isLong = line.m_isLong || line.m_length > longest;
    if ( !isLong || line.m_length <= s_kExtentPiece )
        return false;
    line.m_length = s_kExtentPiece;
    if ( m_state == State::Outside )
        m_outside.Add( line );
    else
        m_skipped.TakeOpen( line );
    m_scanner.TakeOpen( s_kExtentPiece );
    return true;
}

// \return false if the card may be longer.
bool CardCutter::TakeOpenPartInside( const Line& a_line )
{
    if ( a_line.m_length <= CardBoundary::s_kLongest || a_line.End() - m_card.m_first.m_offset <= m_limits.m_bytes )
        return false;
    m_stack.RefreshBytes();
    m_card.m_lookahead.TakeText( TextOf( a_line ) );
    LeaveOverLimit( a_line );
    return true;
}

// --- The end of the text

void CardCutter::Finish()
{
    m_delivery.EndText();
    while ( m_state == State::Inside )
        EndOpenCard( m_scanner.NextOffset() );
    m_outside.End();
    m_ledger.FlushUpTo( m_scanner.NextOffset() );
}

} // namespace PimManager::Contacts
