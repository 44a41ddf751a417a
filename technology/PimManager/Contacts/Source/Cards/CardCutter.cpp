#include "Cards/CardCutter.h"

#include "Cards/CardFindings.h"
#include "Cards/CardSeal.h"
#include "Lines/KnownNames.h"
#include "Lines/LinePieces.h"
#include "Text/Bytes.h"
#include "Text/CharsetChoice.h"

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactDiagnosticCode;
using Extent = PimContactExtentKind;

constexpr qint64 s_kMostCardBytes = qint64( 1 ) << 30;
constexpr int s_kMostNesting = 64;
// What is left out is passed on in pieces of this length.
constexpr qint64 s_kPiece = qint64( 64 ) * 1024;

template <typename Number>
Number Bounded( Number a_limit, Number a_most )
{
    return a_limit > 0 ? std::min( a_limit, a_most ) : a_most;
}

// The index of a card of shorter lines takes more memory than the limit of a card allows for.
qint64 MostLinesIn( qint64 a_cardBytes )
{
    constexpr qint64 s_kLeastBytesOfLine = 5;
    constexpr qint64 s_kAlwaysAllowed = 1024;
    return std::max( a_cardBytes / s_kLeastBytesOfLine, s_kAlwaysAllowed );
}

bool IsLong( const PhysicalLine& a_line )
{
    return a_line.m_isLong || a_line.m_length > CardBoundary::s_kLongest;
}

// An AGENT line whose value is on the next lines.
bool IsOpenAgent( std::string_view a_text )
{
    const std::string_view text = Trimmed( a_text );
    const LineHead head = LineHead::Of( text );
    return head.m_hasColon && IsSameWord( head.m_name.In( text ), "AGENT" ) &&
           IsWhiteSpace( text.substr( head.m_valueBegin ) );
}

quint32 LeadingBlanks( std::string_view a_text )
{
    return static_cast<quint32>( a_text.size() - TrimmedLeft( a_text ).size() );
}

} // namespace

CardCutter::CardCutter( LineScanner& a_scanner, Ledger& a_ledger, const PimContactOptions& a_options,
                        CardTaker a_taker ) :
    m_scanner( a_scanner ),
    m_ledger( a_ledger ),
    m_taker( std::move( a_taker ) ),
    m_filter( a_options ),
    m_mostCardBytes( Bounded( a_options.CardBytes(), s_kMostCardBytes ) ),
    m_mostCardLines( Bounded( a_options.CardLines(), MostLinesIn( m_mostCardBytes ) ) ),
    m_mostNesting( Bounded( a_options.Nesting(), s_kMostNesting ) ),
    m_mostCards( a_options.Cards() ),
    m_mostBookBytes( a_options.BookBytes() ),
    m_mostLineBytes( a_options.LineBytes() ),
    m_defaultCharset( a_options.DefaultCharset() ),
    m_isDefaultKnown( IsKnownCharset( ViewOf( m_defaultCharset ) ) ),
    m_mayTakePlainCards( m_filter.IsEmpty() && m_mostLineBytes <= 0 )
{
    m_frames.push_back( std::make_unique<Frame>( m_filter, m_mostLineBytes ) );
}

void CardCutter::Reset( bool a_isConverted )
{
    m_isConverted = a_isConverted;
    m_state = State::Outside;
    m_card = OpenCard();
    m_depth = 0;
    m_absorbedDepth = 0;
    m_isEndOfText = false;
    m_isPlainCardOpen = false;
    m_bookBytes = 0;
    m_skippedDepth = 0;
    m_outsideLines = 0;
    m_textKind = TextKind();
}

CardLine CardCutter::CardLineOf( const Line& a_line ) const
{
    return { InCard( a_line.m_offset ), InCard( a_line.TextEnd() ), InCard( a_line.End() ), a_line.m_isWide,
             a_line.m_hasControls };
}

// Without the line ending unless it reaches to the end.
CardCutter::Line CardCutter::Part( const Line& a_line, qint64 a_begin, qint64 a_end ) const
{
    Line part = a_line;
    part.m_offset += a_begin;
    part.m_length = a_end - a_begin;
    part.m_endLength = a_end == a_line.m_length ? a_line.m_endLength : 0;
    const std::string_view text = TextOf( part );
    part.m_isWide =
        std::any_of( text.begin(), text.end(), []( char a_byte ) { return static_cast<uchar>( a_byte ) >= 0x80; } );
    part.m_hasControls = std::any_of( text.begin(), text.end(), IsControlByte );
    return part;
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

bool CardCutter::BeginPlainCard()
{
    const ReportData& data = m_ledger.Data();
    // The first line ending of a kind is told, where it is.
    return m_state == State::Outside && m_mayTakePlainCards && !m_scanner.IsLong() &&
           m_plainCard.Begin( m_scanner.Rest() ) && data.m_lineEnds[static_cast<size_t>( m_plainCard.LineEnd() )] > 0 &&
           ( m_mostCards <= 0 || data.m_cardsWhole + data.m_cardsInPart < m_mostCards );
}

CardCutter::PlainStep CardCutter::TakePlainCard()
{
    if ( !m_isPlainCardOpen && !BeginPlainCard() )
        return PlainStep::None;
    const std::string_view text = m_scanner.Rest();
    const PlainCard::Result result = m_plainCard.Read( text );
    const qint64 length = result == PlainCard::Result::Open ? m_scanner.OpenLength() : m_plainCard.BytesClosed();
    const bool isTooLong = length > m_mostCardBytes || m_plainCard.Lines() > m_mostCardLines;
    m_isPlainCardOpen = result == PlainCard::Result::Open && !isTooLong && !m_scanner.IsFinished();
    if ( m_isPlainCardOpen )
        return PlainStep::Waiting;
    if ( result == PlainCard::Result::Whole && !isTooLong )
        DeliverPlainCard( text.substr( 0, m_plainCard.BytesClosed() ) );
    else if ( m_plainCard.BytesClosed() <= m_mostCardBytes && m_plainCard.LinesClosed() <= m_mostCardLines &&
              result != PlainCard::Result::Whole )
        BeginFromPlainCard();
    else
        return PlainStep::None;
    return PlainStep::Taken;
}

void CardCutter::DeliverPlainCard( std::string_view a_bytes )
{
    EndTextOutside();
    m_card.m_first.m_offset = m_scanner.NextOffset();
    m_card.m_first.m_number = m_scanner.NextNumber();
    m_card.m_first.m_lineOffset = m_card.m_first.m_offset;
    m_card.m_hasBegin = true;
    m_scanner.Release( m_card.m_first.m_offset );
    m_scanner.PassLines( static_cast<qint64>( a_bytes.size() ), m_plainCard.Lines() );
    m_ledger.Data().m_lineEnds[static_cast<size_t>( m_plainCard.LineEnd() )] += m_plainCard.Lines();
    CardRecord record;
    record.m_length = static_cast<quint32>( a_bytes.size() );
    record.m_flags = CardRecord::HasBegin | CardRecord::HasEnd;
    SealCard( m_plainCard.Facts(), m_plainCard.Index(), record, a_bytes, m_isDefaultKnown, m_sealed );
    Deliver( m_sealed, m_plainCard.Facts(), m_scanner.NextOffset() );
}

// The lines that were read on the short road need not be read again.
void CardCutter::BeginFromPlainCard()
{
    Line begin;
    m_scanner.Next( begin );
    TakeBeginOutside( begin );
    m_card.m_lines = m_plainCard.LinesClosed();
    m_card.m_isFirstLineBehind = m_card.m_lines == 1;
    m_scanner.PassLines( m_plainCard.BytesClosed() - ( begin.End() - begin.m_offset ), m_card.m_lines - 1 );
    m_ledger.Data().m_lineEnds[static_cast<size_t>( m_plainCard.LineEnd() )] += m_card.m_lines;
    Lines().Continue( m_plainCard.Writer(), m_plainCard.FactsClosed(), m_plainCard.BytesClosed() );
}

// --- Outside cards

void CardCutter::TakeOutside( const Line& a_line )
{
    const CardBoundary boundary = IsLong( a_line ) ? CardBoundary() : CardBoundary::OfOutside( TextOf( a_line ) );
    if ( boundary.m_kind == Kind::Begin )
        TakeBeginOutside( a_line );
    else if ( boundary.m_kind == Kind::End )
        TakeEndOutside( a_line );
    else if ( boundary.m_kind == Kind::EndAndBegin )
        TakeEndAndBegin( a_line, boundary.m_beginPlace );
    else if ( boundary.m_kind == Kind::AgentBegin )
    {
        AddOutside( Part( a_line, 0, boundary.m_beginPlace ) );
        TakeBeginOutside( Part( a_line, boundary.m_beginPlace, a_line.m_length ) );
    }
    else if ( MayBeHeld( a_line ) && IsKnownProperty( a_line ) )
    {
        BeginCard( a_line, false );
        TakeInside( a_line );
    }
    else
        AddOutside( a_line );
}

// Byte order marks before BEGIN are not part of the card.
void CardCutter::TakeBeginOutside( const Line& a_line )
{
    EndTextOutside();
    const size_t marks = LengthOfMarks( TextOf( a_line ) );
    if ( marks > 0 )
        TellMarks( a_line, marks );
    BeginCard( marks == 0 ? a_line : Part( a_line, static_cast<qint64>( marks ), a_line.m_length ), true );
}

bool CardCutter::MayBeHeld( const Line& a_line ) const
{
    return !a_line.m_isLong && a_line.m_length + a_line.m_endLength <= m_mostCardBytes;
}

bool CardCutter::IsKnownProperty( const Line& a_line ) const
{
    const std::string_view text = TextOf( a_line );
    const LineHead head = LineHead::Of( text );
    const std::string_view name = head.m_name.In( text );
    return head.m_hasColon && IsKnownName( name ) && !( head.m_oddities & PimContactOddity::OddName ) &&
           LooksOf( head, text ) == LineLooks::ClearlyProperty;
}

void CardCutter::TakeEndOutside( const Line& a_line )
{
    EndTextOutside();
    m_ledger.Report( Code::EndWithoutBegin, 0, PlaceOf( a_line ) );
    m_ledger.Add( Extent::Outside, m_scanner.View( a_line.m_offset, a_line.m_length + a_line.m_endLength ), 0 );
    m_scanner.Release( a_line.End() );
}

void CardCutter::TellMarks( const Line& a_line, size_t a_marks )
{
    m_ledger.Report( Code::StrayByteOrderMark, 0, PlaceOf( a_line ),
                     static_cast<qint64>( a_marks / s_kByteOrderMark.size() ) );
    m_ledger.Add( Extent::Mark, TextOf( a_line ).substr( 0, a_marks ), 0 );
}

void CardCutter::AddOutside( const Line& a_line )
{
    // A line of byte order marks alone is not text.
    const size_t marks = IsLong( a_line ) ? 0 : LengthOfMarks( TextOf( a_line ) );
    if ( marks > 0 && IsWhiteSpace( TextOf( a_line ).substr( marks ) ) )
    {
        EndTextOutside();
        TellMarks( a_line, marks );
        AddPieces( Extent::Blank, Part( a_line, static_cast<qint64>( marks ), a_line.m_length ), m_mostCardBytes, 0 );
        return;
    }
    const bool isBlank = !IsLong( a_line ) && IsWhiteSpace( TextOf( a_line ) );
    if ( !isBlank && !a_line.m_isLong && m_outsideLines++ == 0 )
        m_outsideBegin = PlaceOf( a_line );
    AddPieces( isBlank ? Extent::Blank : Extent::Outside, a_line, m_mostCardBytes, 0 );
}

// Pieces of one length, whether the line came whole or not.
void CardCutter::AddPieces( Extent a_kind, const Line& a_line, qint64 a_longest, qint64 a_card )
{
    qint64 place = a_line.m_offset;
    if ( a_line.m_isLong || a_line.m_length > a_longest )
    {
        for ( ; a_line.TextEnd() - place > s_kPiece; place += s_kPiece )
            m_ledger.Add( a_kind, m_scanner.View( place, s_kPiece ), a_card );
    }
    const std::string_view rest = m_scanner.View( place, a_line.End() - place );
    if ( a_kind == Extent::Outside )
        m_textKind.Take( m_scanner.View( a_line.m_offset, a_line.End() - a_line.m_offset ) );
    m_ledger.Add( a_kind, rest, a_card );
    m_scanner.Release( a_line.End() );
}

void CardCutter::EndTextOutside()
{
    if ( m_outsideLines > 0 )
        m_ledger.Report( Code::TextOutside, 0, m_outsideBegin, m_outsideLines );
    m_outsideLines = 0;
}

// What was held in case that it is a card is text outside.
void CardCutter::ReleaseHeld( qint64 a_end )
{
    m_state = State::Outside;
    m_depth = 0;
    m_absorbedDepth = 0;
    qint64 number = m_card.m_first.m_number;
    for ( qint64 place = m_card.m_first.m_offset; place < a_end; ++number )
    {
        const Line line = LineAt( place, a_end, number );
        AddOutside( line );
        place = line.End();
    }
}

// --- Inside cards

void CardCutter::BeginCard( const Line& a_line, bool a_hasBegin )
{
    m_card = OpenCard();
    m_card.m_first = a_line;
    m_card.m_hasBegin = a_hasBegin;
    if ( a_hasBegin && m_mostCards > 0 && m_ledger.Data().m_cardsWhole + m_ledger.Data().m_cardsInPart >= m_mostCards )
    {
        Skip( Code::TooManyCards, a_line, false );
        TakeSkipped( a_line );
        return;
    }
    if ( a_hasBegin && a_line.m_length + a_line.m_endLength > m_mostCardBytes )
    {
        Skip( Code::CardTooLong, a_line, false );
        TakeSkipped( a_line );
        return;
    }
    m_state = State::Inside;
    m_depth = 0;
    m_absorbedDepth = 0;
    m_scanner.Release( a_line.m_offset );
    m_card.m_indentation = a_hasBegin ? LeadingBlanks( TextOf( a_line ) ) : 0;
    m_card.m_isIndented = m_card.m_indentation > 0;
    m_card.m_isFirstLineBehind = true;
    BeginFrame( 0 );
    if ( a_hasBegin )
    {
        m_card.m_lines = 1;
        WriteBoundary( a_line, CardBoundary::OfOutside( TextOf( a_line ) ) );
    }
}

void CardCutter::BeginFrame( quint32 a_begin )
{
    if ( m_frames.size() == m_depth )
        m_frames.push_back( std::make_unique<Frame>( m_filter, m_mostLineBytes ) );
    m_frames[m_depth]->m_begin = a_begin;
    Lines().SetBytes( m_scanner.At( m_card.m_first.m_offset ) );
    Lines().Begin( a_begin, m_card.m_isIndented ? m_card.m_indentation : 0 );
}

// The parts of the line, one behind the other.
void CardCutter::WriteBoundary( const Line& a_line, const CardBoundary& a_boundary )
{
    LogicalLines& lines = Lines();
    const quint32 begin = InCard( a_line.m_offset );
    lines.WriteBlankUpTo( begin );
    if ( a_boundary.m_mark.m_length > 0 )
        lines.WritePart( EntryKind::Mark, a_boundary.m_mark.m_length );
    bool isMended = a_boundary.m_isMended;
    for ( const ByteRange& text : { a_boundary.m_group, a_boundary.m_parameters, a_boundary.m_rest } )
    {
        if ( text.m_length == 0 )
            continue;
        lines.WriteBoundary( begin + text.m_begin - lines.Written(), std::exchange( isMended, false ) );
        lines.WriteDropped( DropReason::BoundaryText, text.m_length );
    }
    lines.WriteBoundary( InCard( a_line.End() ) - lines.Written(), isMended );
}

// The scanner moves its bytes when more of them come.
void CardCutter::RefreshBytes()
{
    for ( size_t depth = 0; depth <= m_depth; ++depth )
        m_frames[depth]->m_lines.SetBytes( m_scanner.At( m_card.m_first.m_offset ) );
}

void CardCutter::TakeInside( const Line& a_line )
{
    RefreshBytes();
    if ( a_line.m_isLong || !CardBoundary::MayBe( TextOf( a_line ) ) )
    {
        TakeContent( a_line );
        return;
    }
    const CardBoundary boundary = CardBoundary::Of( TextOf( a_line ) );
    const bool isBoundary = boundary.m_kind != Kind::None;
    if ( isBoundary && IsFold( a_line, boundary.m_kind ) )
        NoteFold( a_line, boundary.m_kind );
    else if ( isBoundary && !( boundary.m_kind == Kind::AgentBegin && !MayHoldCard( a_line ) ) )
        TakeBoundary( a_line, boundary );
    else
        TakeContent( a_line );
}

// An AGENT line, unless it continues the line before.
bool CardCutter::MayHoldCard( const Line& a_line )
{
    const size_t indentation = m_card.m_isIndented ? m_card.m_indentation : 0;
    const std::string_view text = TextOf( a_line );
    const bool isIndented = text.size() > indentation && IsBlank( text[indentation] );
    return !m_card.m_knowledge.m_isFlatAgent && !( isIndented && m_absorbedDepth == 0 && Lines().MayFold() );
}

// The words of a boundary, indented behind a line that is not: the line before continues with them. Text that is held
// outside cards does not continue with BEGIN.
bool CardCutter::IsFold( const Line& a_line, Kind a_kind ) const
{
    if ( !m_card.m_hasBegin && ( a_kind == Kind::Begin || a_kind == Kind::EndAndBegin ) )
        return false;
    return m_depth == 0 && m_absorbedDepth == 0 && IsBlank( TextOf( a_line ).front() ) && m_card.m_indentation == 0 &&
           m_frames.front()->m_lines.MayFold();
}

void CardCutter::NoteFold( const Line& a_line, Kind a_kind )
{
    if ( !TakeContent( a_line ) )
        return;
    if ( a_kind == Kind::Begin && !m_card.m_hasFoldedBegin )
    {
        m_card.m_hasFoldedBegin = true;
        m_card.m_hasFoldedEnd = false;
        m_card.m_foldedBegin = a_line;
    }
    m_card.m_hasPendingEnd = a_kind == Kind::End;
    m_card.m_hasFoldedEnd = m_card.m_hasFoldedEnd || a_kind == Kind::End;
    m_card.m_isPendingEndOfAgent = false;
    m_card.m_pendingEnd = a_line;
}

void CardCutter::TakeBoundary( const Line& a_line, const CardBoundary& a_boundary )
{
    switch ( a_boundary.m_kind )
    {
    case Kind::Begin:
        if ( !m_card.m_hasBegin )
        {
            // A card that begins is worth more than text that may be one.
            EndOpenCard( a_line.m_offset );
            Take( a_line );
            return;
        }
        if ( m_absorbedDepth > 0 ? m_isBehindAbsorbedAgent : Lines().IsBehindOpenAgent() )
        {
            if ( IsOverLimit( a_line ) )
                TakeOverLimit( a_line );
            else
                BeginNested( a_line );
            return;
        }
        while ( m_state == State::Inside )
            EndOpenCard( a_line.m_offset );
        Take( a_line );
        break;
    case Kind::End:
        TakeEnd( a_line, a_boundary );
        break;
    case Kind::EndAndBegin:
        TakeEndAndBegin( a_line, a_boundary.m_beginPlace );
        break;
    default:
        TakeInlineAgent( a_line, a_boundary.m_beginPlace );
        break;
    }
}

void CardCutter::TakeEndAndBegin( const Line& a_line, qint64 a_beginPlace )
{
    Take( Part( a_line, 0, a_beginPlace ) );
    Take( Part( a_line, a_beginPlace, a_line.m_length ) );
}

// The lookahead for a pending END, and for an indented BEGIN, ends with text.
void CardCutter::EndLookahead( std::string_view a_text )
{
    m_card.m_hasPendingEnd = false;
    m_card.m_hasFoldedBegin = m_card.m_hasFoldedBegin && !a_text.empty() && IsBlank( a_text.front() );
}

bool CardCutter::IsOverLimit( const Line& a_line ) const
{
    return a_line.End() - m_card.m_first.m_offset > m_mostCardBytes || m_card.m_lines >= m_mostCardLines;
}

// \return false if the line did not become a line of the card.
bool CardCutter::TakeContent( const Line& a_line )
{
    const bool isText = IsLong( a_line ) || !IsWhiteSpace( TextOf( a_line ) );
    if ( isText )
        EndLookahead( TextOf( a_line ) );
    if ( IsOverLimit( a_line ) )
    {
        TakeOverLimit( a_line );
        return false;
    }
    if ( isText && m_card.m_isIndented && m_absorbedDepth == 0 && !CheckIndentation( a_line ) )
        return false;
    ++m_card.m_lines;
    if ( m_absorbedDepth == 0 )
        Lines().Take( CardLineOf( a_line ) );
    else if ( isText )
        m_isBehindAbsorbedAgent = !IsLong( a_line ) && IsOpenAgent( TextOf( a_line ) );
    return true;
}

// All lines of an indented card have the indentation of its BEGIN line. If one has not, the card is read again without
// it. \return false if the line has been taken.
bool CardCutter::CheckIndentation( const Line& a_line )
{
    const quint32 blanks = LeadingBlanks( TextOf( a_line ) );
    const bool isFirst = std::exchange( m_card.m_isFirstLineBehind, false );
    const bool isIndented = isFirst ? blanks == m_card.m_indentation : blanks >= m_card.m_indentation;
    if ( isIndented )
        return true;
    ReadAgain( a_line.m_offset, { true, m_card.m_knowledge.m_isFlatAgent } );
    Take( a_line );
    return false;
}

void CardCutter::TakeOverLimit( const Line& a_line )
{
    const Line line = a_line;
    LeaveOverLimit( line );
    Take( line );
}

// What looks ahead looks no further than the limit of a card.
void CardCutter::LeaveOverLimit( const Line& a_line )
{
    const bool isPending = m_card.m_hasPendingEnd || ( m_card.m_hasFoldedBegin && m_card.m_hasFoldedEnd );
    if ( isPending && m_depth == 0 && m_absorbedDepth == 0 )
    {
        EndOpenCard( a_line.m_offset );
        return;
    }
    if ( !m_card.m_hasBegin )
    {
        ReleaseHeld( a_line.m_offset );
        return;
    }
    const qint64 begin = m_card.m_first.m_offset;
    const bool isBehindAgent = m_absorbedDepth > 0 ? m_isBehindAbsorbedAgent : Lines().IsBehindOpenAgent();
    const bool isTooLong = a_line.End() - begin > m_mostCardBytes;
    Skip( isTooLong ? Code::CardTooLong : Code::CardOfManyLines, m_card.m_first, isBehindAgent );
    m_skippedDepth = static_cast<int>( m_depth ) + m_absorbedDepth;
    m_ledger.Add( Extent::Refused, m_scanner.View( begin, a_line.m_offset - begin ), m_ledger.Data().m_cards );
    m_scanner.Release( a_line.m_offset );
}

void CardCutter::TakeInlineAgent( const Line& a_line, qint64 a_beginPlace )
{
    if ( !m_card.m_hasBegin )
    {
        EndOpenCard( a_line.m_offset );
        Take( a_line );
        return;
    }
    if ( IsOverLimit( a_line ) )
    {
        TakeOverLimit( a_line );
        return;
    }
    EndLookahead( TextOf( a_line ) );
    ++m_card.m_lines;
    if ( m_absorbedDepth > 0 )
    {
        ++m_absorbedDepth;
        ++m_card.m_nestedCards;
        m_isBehindAbsorbedAgent = false;
        return;
    }
    if ( m_card.m_isIndented && !CheckIndentation( a_line ) )
        return;
    Lines().Take( CardLineOf( Part( a_line, 0, a_beginPlace ) ) );
    Lines().IsBehindOpenAgent();
    --m_card.m_lines;
    const bool isOnly = m_card.m_nestedCards == 0;
    BeginNested( Part( a_line, a_beginPlace, a_line.m_length ) );
    m_card.m_isInlineAgent = isOnly;
}

void CardCutter::BeginNested( const Line& a_line )
{
    ++m_card.m_nestedCards;
    ++m_card.m_lines;
    m_card.m_isInlineAgent = false;
    m_card.m_hasPendingEnd = false;
    m_card.m_hasFoldedBegin = false;
    if ( m_absorbedDepth > 0 )
    {
        ++m_absorbedDepth;
        m_isBehindAbsorbedAgent = false;
        return;
    }
    if ( static_cast<int>( m_depth ) >= m_mostNesting )
    {
        Absorb();
        return;
    }
    const EntryKind fate = Lines().FateOfCurrent();
    if ( fate == EntryKind::Line )
    {
        Lines().Close();
        Lines().WriteBlankUpTo( InCard( a_line.m_offset ) );
    }
    else
        Lines().LeaveCurrent();
    ++m_depth;
    BeginFrame( InCard( a_line.m_offset ) );
    m_frames[m_depth]->m_fate = fate;
    m_frames[m_depth]->m_line = static_cast<quint32>( a_line.m_number - m_card.m_first.m_number );
    WriteBoundary( a_line, CardBoundary::Of( TextOf( a_line ) ) );
}

// The property and the card in it are left out together.
void CardCutter::Absorb()
{
    Lines().LeaveCurrent();
    m_absorbedDepth = 1;
    m_isBehindAbsorbedAgent = false;
}

void CardCutter::TakeEnd( const Line& a_line, const CardBoundary& a_boundary )
{
    if ( IsOverLimit( a_line ) )
    {
        TakeOverLimit( a_line );
        return;
    }
    ++m_card.m_lines;
    if ( m_depth == 0 && m_absorbedDepth == 0 )
    {
        CloseCard( a_line.End(), &a_line );
        return;
    }
    if ( m_absorbedDepth > 0 )
    {
        m_isBehindAbsorbedAgent = false;
        if ( --m_absorbedDepth == 0 )
            EndAbsorbed( a_line.End() );
    }
    else
    {
        Lines().Close();
        WriteBoundary( a_line, a_boundary );
        EndNested( a_line.End(), true );
    }
    m_card.m_hasPendingEnd = m_card.m_isInlineAgent && m_depth == 0 && m_absorbedDepth == 0;
    m_card.m_isPendingEndOfAgent = true;
    m_card.m_pendingEnd = a_line;
}

void CardCutter::EndAbsorbed( qint64 a_end )
{
    m_absorbedDepth = 0;
    Lines().WriteDropped( DropReason::NestingTooDeep, InCard( a_end ) - Lines().Written() );
}

void CardCutter::EndNested( qint64 a_end, bool a_hasEnd )
{
    Frame& frame = *m_frames[m_depth];
    if ( frame.m_fate != EntryKind::Line )
    {
        --m_depth;
        const quint32 length = InCard( a_end ) - Lines().Written();
        if ( frame.m_fate == EntryKind::Filtered )
            Lines().WritePart( EntryKind::Filtered, length );
        else
            Lines().WriteDropped( DropReason::LineTooLong, length );
        return;
    }
    CardRecord record;
    record.m_begin = frame.m_begin;
    record.m_offset = frame.m_begin;
    record.m_line = frame.m_line;
    record.m_length = InCard( a_end ) - frame.m_begin;
    record.Set( CardRecord::HasBegin, true );
    record.Set( CardRecord::HasEnd, a_hasEnd );
    record.Set( CardRecord::IsIndented, m_card.m_isIndented );
    const std::string_view bytes = m_scanner.View( m_card.m_first.m_offset, a_end - m_card.m_first.m_offset );
    CardIndex index;
    SealCard( frame.m_lines.Facts(), frame.m_lines.Index().Bytes(), record, bytes, m_isDefaultKnown, index );
    --m_depth;
    CardFacts& facts = Lines().Facts();
    facts.m_isDropped = facts.m_isDropped || !index.Record().Has( CardRecord::IsWhole );
    facts.m_isWide = facts.m_isWide || frame.m_lines.Facts().m_isWide;
    facts.m_isFiltered = facts.m_isFiltered || index.Record().Has( CardRecord::IsFiltered );
    Lines().WriteNested( record.m_length, index.Bytes() );
}

// --- The end of cards

// A card whose END is missing, and the cards in it.
void CardCutter::EndOpenCard( qint64 a_end )
{
    RefreshBytes();
    if ( m_card.m_hasPendingEnd && m_depth == 0 && m_absorbedDepth == 0 && !m_card.m_hasFoldedBegin )
        EndAtPendingEnd( a_end );
    else if ( m_card.m_hasFoldedBegin && m_card.m_hasFoldedEnd && m_depth == 0 && m_absorbedDepth == 0 )
        EndBeforeFoldedBegin( a_end );
    else if ( !m_card.m_hasBegin )
        ReleaseHeld( a_end );
    else
        CloseCard( a_end, nullptr );
}

// A line that the scanner has already returned.
CardCutter::Line CardCutter::LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const
{
    const char* const begin = m_scanner.At( a_offset );
    const char* const end = begin + ( a_end - a_offset );
    LineEndSearch search;
    const char* const place = search.Find( begin, end );
    Line line;
    line.m_offset = a_offset;
    line.m_lineOffset = a_offset == m_card.m_first.m_offset ? m_card.m_first.m_lineOffset : a_offset;
    line.m_number = a_number;
    line.m_length = place - begin;
    line.m_endLength = place == end ? 0 : LineEndSearch::LengthOfEnd( place, end, true );
    line.m_isWide = search.IsWide();
    line.m_hasControls = search.HasControls();
    return line;
}

// Takes the lines of a part of the text once more.
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
    BeginCard( first, hasBegin );
    m_card.m_knowledge = a_knowledge;
    if ( a_knowledge.m_isPlain )
    {
        m_card.m_isIndented = false;
        BeginFrame( 0 );
        WriteBoundary( first, CardBoundary::OfOutside( TextOf( first ) ) );
    }
    TakeAll( hasBegin ? first.End() : first.m_offset, a_end, first.m_number + ( hasBegin ? 1 : 0 ) );
}

void CardCutter::EndAtPendingEnd( qint64 a_end )
{
    const Line end = m_card.m_pendingEnd;
    ReadAgain( end.m_offset, { m_card.m_knowledge.m_isPlain, m_card.m_isPendingEndOfAgent } );
    ++m_card.m_lines;
    CloseCard( end.End(), &end );
    TakeAll( end.End(), a_end, end.m_number + 1 );
}

// What looked like folds were cards: BEGIN and END and all between are indented, and no other END came.
void CardCutter::EndBeforeFoldedBegin( qint64 a_end )
{
    const Line begin = m_card.m_foldedBegin;
    ReadAgain( begin.m_offset, m_card.m_knowledge );
    if ( m_card.m_hasBegin )
        CloseCard( begin.m_offset, nullptr );
    else
        ReleaseHeld( begin.m_offset );
    TakeAll( begin.m_offset, a_end, begin.m_number );
}

void CardCutter::CloseCard( qint64 a_end, const Line* a_endLine )
{
    if ( m_absorbedDepth > 0 )
        EndAbsorbed( a_end );
    while ( m_depth > 0 )
    {
        Lines().Close();
        Lines().WriteBlankUpTo( InCard( a_end ) );
        EndNested( a_end, false );
    }
    Lines().Close();
    if ( a_endLine != nullptr )
        WriteBoundary( *a_endLine, CardBoundary::Of( TextOf( *a_endLine ) ) );
    Lines().WriteBlankUpTo( InCard( a_end ) );
    CardRecord record;
    record.m_length = InCard( a_end );
    record.Set( CardRecord::HasBegin, m_card.m_hasBegin );
    record.Set( CardRecord::HasEnd, a_endLine != nullptr );
    record.Set( CardRecord::IsIndented, m_card.m_isIndented );
    const std::string_view bytes = m_scanner.View( m_card.m_first.m_offset, record.m_length );
    LogicalLines& lines = m_frames.front()->m_lines;
    SealCard( lines.Facts(), lines.Index().Bytes(), record, bytes, m_isDefaultKnown, m_sealed );
    lines.ReleaseIndex();
    if ( !m_card.m_hasBegin && a_endLine != nullptr && !IsContact( m_sealed, a_end ) )
    {
        ReleaseHeld( a_endLine->m_offset );
        TakeEndOutside( *a_endLine );
        return;
    }
    EndTextOutside();
    m_state = State::Outside;
    Deliver( m_sealed, lines.Facts(), a_end );
}

bool CardCutter::IsContact( const CardIndex& a_index, qint64 a_end ) const
{
    static constexpr std::array<std::string_view, 5> s_kNames = { "FN", "N", "TEL", "EMAIL", "ORG" };
    const std::string_view bytes = m_scanner.View( m_card.m_first.m_offset, a_end - m_card.m_first.m_offset );
    IndexReader reader = EntriesOf( a_index.Base(), 0 );
    IndexEntry entry;
    for ( quint32 place = 0; !reader.AtEnd(); place += entry.m_length )
    {
        reader.Next( entry );
        if ( entry.m_kind != EntryKind::Line && entry.m_kind != EntryKind::Filtered )
            continue;
        const std::string_view line = WithoutLineEnd( bytes.substr( place, entry.m_length ) );
        const std::string_view name = LineHead::Of( line ).m_name.In( line );
        if ( std::any_of( s_kNames.begin(), s_kNames.end(),
                          [name]( std::string_view a_name ) { return IsSameWord( name, a_name ); } ) )
            return true;
    }
    return false;
}

void CardCutter::Deliver( const CardIndex& a_index, const CardFacts& a_facts, qint64 a_end )
{
    const qint64 length = a_end - m_card.m_first.m_offset;
    const std::string_view bytes = m_scanner.View( m_card.m_first.m_offset, length );
    const ReportData& data = m_ledger.Data();
    if ( m_mostCards > 0 && data.m_cardsWhole + data.m_cardsInPart >= m_mostCards )
    {
        Refuse( Code::TooManyCards, a_end );
        return;
    }
    if ( m_mostBookBytes > 0 && m_bookBytes + length > m_mostBookBytes )
    {
        Refuse( Code::BookTooLong, a_end );
        return;
    }
    const qint64 number = data.m_cards + 1;
    const PimContactCardPrivate::Origin origin = { number, m_card.m_first.m_offset, m_card.m_first.m_number,
                                                   m_isConverted, m_defaultCharset };
    const CardRecord record = a_index.Record();
    PimContactCard card;
    if ( record.Has( CardRecord::IsFiltered ) )
    {
        const FilteredCard filtered = WithoutFilteredLines( a_index, bytes );
        card = PimContactCardPrivate::Create( origin, filtered.m_index.Bytes(), ViewOf( filtered.m_bytes ) );
    }
    else
        card = PimContactCardPrivate::Create( origin, a_index.Bytes(), bytes );
    ++m_ledger.Data().m_cards;
    Tell( a_index, a_facts, bytes );
    m_ledger.FlushUpTo( a_end );
    m_scanner.Release( a_end );
    m_bookBytes += length;
    Count( a_index, a_facts );
    m_taker( std::move( card ) );
}

// For most cards nothing but numbers is added.
void CardCutter::Tell( const CardIndex& a_index, const CardFacts& a_facts, std::string_view a_bytes )
{
    constexpr quint8 s_kUsualFlags = CardRecord::HasBegin | CardRecord::HasEnd | CardRecord::IsWhole;
    const bool isUsual =
        a_index.Record().m_flags == s_kUsualFlags && !a_facts.HasOddParts() && !m_ledger.HasExtentHandler();
    const bool isOdd = a_facts.m_hasOddLines || a_facts.m_mendedBoundaries > 0;
    if ( !isUsual || ( isOdd && !m_ledger.IsOnlyCounting() ) )
    {
        const bool isEndOfText =
            m_isEndOfText && m_card.m_first.m_offset + static_cast<qint64>( a_bytes.size() ) == m_scanner.NextOffset();
        CardFindings( m_ledger, a_index, a_bytes, PlaceOf( m_card.m_first ), m_ledger.Data().m_cards )
            .Tell( isEndOfText );
        return;
    }
    const auto add = [this, &a_facts]( Extent a_extent, EntryKind a_kind )
    {
        const auto kind = static_cast<size_t>( a_kind );
        m_ledger.AddMany( a_extent, a_facts.m_parts[kind], a_facts.m_bytes[kind] );
    };
    add( Extent::Line, EntryKind::Line );
    add( Extent::Boundary, EntryKind::Boundary );
    add( Extent::Blank, EntryKind::Blank );
    if ( isOdd )
        CardFindings::Count( m_ledger, a_facts );
}

void CardCutter::Count( const CardIndex& a_index, const CardFacts& a_facts )
{
    const CardRecord record = a_index.Record();
    ReportData& data = m_ledger.Data();
    ++( record.Has( CardRecord::IsWhole ) ? data.m_cardsWhole : data.m_cardsInPart );
    ++data.m_versions[record.m_version];
    const bool isUndecided =
        data.m_evidence == PimContactEvidence::None || data.m_evidence == PimContactEvidence::ValidUtf8;
    if ( !isUndecided )
        return;
    if ( !record.Has( CardRecord::IsOtherCharset ) )
    {
        if ( a_facts.m_isWide )
            data.m_evidence = PimContactEvidence::ValidUtf8;
        return;
    }
    const std::string_view named = CharsetOf( a_index.Base(), 0 );
    data.m_evidence = named.empty() ? PimContactEvidence::Default : PimContactEvidence::CharsetNamed;
    if ( !named.empty() || m_isDefaultKnown )
        data.m_charset = named.empty() ? m_defaultCharset : BytesOf( named );
}

void CardCutter::Refuse( Code a_code, qint64 a_end )
{
    ReportData& data = m_ledger.Data();
    ++data.m_cards;
    ++data.m_cardsRefused;
    m_ledger.Report( a_code, data.m_cards, PlaceOf( m_card.m_first ) );
    m_ledger.Add( Extent::Refused, m_scanner.View( m_card.m_first.m_offset, a_end - m_card.m_first.m_offset ),
                  data.m_cards );
    m_ledger.FlushUpTo( a_end );
    m_scanner.Release( a_end );
}

// --- Refused cards

void CardCutter::Skip( Code a_code, const Line& a_line, bool a_isBehindAgent )
{
    ReportData& data = m_ledger.Data();
    ++data.m_cards;
    ++data.m_cardsRefused;
    m_ledger.Report( a_code, data.m_cards, PlaceOf( a_line ) );
    m_state = State::Skipping;
    m_skippedDepth = -1;
    m_isBehindSkippedAgent = a_isBehindAgent;
}

// The depth is -1 before the BEGIN line of the card.
void CardCutter::TakeSkipped( const Line& a_line )
{
    const CardBoundary boundary = IsLong( a_line ) ? CardBoundary() : CardBoundary::Of( TextOf( a_line ) );
    const bool isFirst = m_skippedDepth < 0;
    if ( boundary.m_kind == Kind::EndAndBegin )
    {
        TakeEndAndBegin( a_line, boundary.m_beginPlace );
        return;
    }
    if ( boundary.m_kind == Kind::Begin && !isFirst && !m_isBehindSkippedAgent )
    {
        m_state = State::Outside;
        m_ledger.FlushUpTo( a_line.m_offset );
        Take( a_line );
        return;
    }
    const bool isBegin = isFirst || boundary.m_kind == Kind::Begin || boundary.m_kind == Kind::AgentBegin;
    m_skippedDepth += isBegin ? 1 : 0;
    m_skippedDepth -= boundary.m_kind == Kind::End ? 1 : 0;
    if ( IsLong( a_line ) || !IsWhiteSpace( TextOf( a_line ) ) )
        m_isBehindSkippedAgent = !IsLong( a_line ) && IsOpenAgent( TextOf( a_line ) );
    AddPieces( Extent::Refused, a_line, s_kPiece, m_ledger.Data().m_cards );
    if ( m_skippedDepth < 0 )
    {
        m_state = State::Outside;
        m_ledger.FlushUpTo( a_line.End() );
    }
}

// --- The end of the text

bool CardCutter::TakeOpenPart()
{
    Line line;
    line.m_offset = m_scanner.NextOffset();
    line.m_number = m_scanner.NextNumber();
    line.m_lineOffset = m_scanner.NextLineOffset();
    line.m_length = m_scanner.OpenLength();
    if ( m_state == State::Inside )
    {
        if ( line.m_length <= CardBoundary::s_kLongest || line.End() - m_card.m_first.m_offset <= m_mostCardBytes )
            return false;
        RefreshBytes();
        EndLookahead( TextOf( line ) );
        LeaveOverLimit( line );
        return true;
    }
    const bool isLong =
        m_scanner.IsLong() || line.m_length > ( m_state == State::Skipping ? s_kPiece : m_mostCardBytes );
    if ( !isLong || line.m_length <= s_kPiece )
        return false;
    line.m_isLong = m_scanner.IsLong();
    line.m_length = s_kPiece;
    if ( m_state == State::Outside )
        AddOutside( line );
    else
        AddPieces( Extent::Refused, line, s_kPiece, m_ledger.Data().m_cards );
    m_isBehindSkippedAgent = false;
    m_scanner.TakeOpen( s_kPiece );
    return true;
}

void CardCutter::Finish()
{
    m_isEndOfText = true;
    while ( m_state == State::Inside )
        EndOpenCard( m_scanner.NextOffset() );
    EndTextOutside();
    m_ledger.FlushUpTo( m_scanner.NextOffset() );
}

} // namespace PimManager::Contacts
