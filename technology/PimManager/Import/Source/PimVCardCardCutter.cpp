#include "PimVCardCardCutter.h"

#include "PimVCardBytes.h"
#include "PimVCardLineHead.h"

#include <algorithm>

namespace PimManager::vCardImport
{

namespace
{

using Kind = PimVCardBoundary::Kind;

// More than this no text in memory may have.
constexpr qint64 s_kMostCardBytes = qint64( 1 ) << 30;
constexpr int s_kUsualCardBytes = 4 * 1024;
constexpr int s_kRejectPiece = 64 * 1024;
// Of text outside cards so much is kept, and up to twice as much for a while.
constexpr int s_kOutsideBytes = 64 * 1024;

bool IsBlankLine( std::string_view a_line )
{
    return TrimmedLeft( a_line ).empty();
}

bool BeginsIndented( std::string_view a_line )
{
    return !a_line.empty() && IsBlank( a_line.front() );
}

// The same whether its start was let go or not.
bool IsLong( const PimVCardPhysicalLine& a_line )
{
    return a_line.m_isLong || a_line.m_text.size() > PimVCardBoundary::s_kLongest;
}

// What only cards hold.
bool IsOfCard( std::string_view a_line )
{
    const PimVCardLineHead head = PimVCardLineHead::Of( a_line );
    const auto isNamed = [name = head.Name()]( std::string_view a_name ) { return IsSameWord( name, a_name ); };
    return head.m_hasColon &&
           ( isNamed( "N" ) || isNamed( "FN" ) || isNamed( "TEL" ) || isNamed( "EMAIL" ) || isNamed( "ADR" ) );
}

} // namespace

PimVCardCardCutter::PimVCardCardCutter( PimVCardReporter& a_reporter, const PimVCardImportLimits& a_limits,
                                        const CardTaker& a_taker ) :
    m_reporter( a_reporter ),
    m_limits( a_limits ),
    m_taker( a_taker )
{
    // What is reserved is kept when a card is done.
    m_card.m_bytes.reserve( s_kUsualCardBytes );
}

void PimVCardCardCutter::Take( const Line& a_line )
{
    m_isCounted = true;
    const PimVCardBoundary boundary = a_line.m_isLong ? PimVCardBoundary() : PimVCardBoundary::Of( a_line.m_text );
    if ( boundary.m_kind != Kind::None && IsFold( a_line ) )
        TakeFold( a_line, boundary.m_kind );
    else
        Dispatch( a_line, boundary );
}

// The words of a boundary, indented behind a line that is not: the value before goes on with them.
bool PimVCardCardCutter::IsFold( const Line& a_line ) const
{
    if ( m_state != State::Inside || m_depth > 0 || m_card.m_lines.size() < 2 || !BeginsIndented( a_line.m_text ) )
        return false;
    return !BeginsIndented( m_card.TextOf( m_card.m_lines.front() ) ) && !IsBehindEmptyLine();
}

void PimVCardCardCutter::TakeFold( const Line& a_line, Kind a_kind )
{
    const int begin = m_foldedBegin;
    TakeContent( a_line );
    if ( m_state != State::Inside )
        return;
    const int index = static_cast<int>( m_card.m_lines.size() ) - 1;
    m_foldedBegin = begin < 0 && a_kind == Kind::Begin ? index : begin;
    m_flatEnd = a_kind == Kind::End ? index : -1;
}

void PimVCardCardCutter::Dispatch( const Line& a_line, const PimVCardBoundary& a_boundary )
{
    switch ( a_boundary.m_kind )
    {
    case Kind::Begin:
        TakeBegin( a_line, a_boundary );
        break;
    case Kind::End:
        TakeEnd( a_line, a_boundary );
        break;
    case Kind::EndAndBegin:
        TakeEndAndBegin( a_line, a_boundary.m_beginPlace );
        break;
    case Kind::AgentBegin:
        TakeAgentBegin( a_line );
        break;
    case Kind::None:
        TakeContent( a_line );
        break;
    }
}

void PimVCardCardCutter::TakeBegin( const Line& a_line, const PimVCardBoundary& a_boundary )
{
    if ( m_state != State::Outside && IsBehindAgent() )
    {
        TakeNestedBegin( a_line );
        return;
    }
    EndOpenCards();
    EndTextOutside();
    m_state = State::Inside;
    m_card.m_index = m_cards++;
    m_cleanLines.Begin();
    AddLine( a_line, false, a_boundary.m_isClean );
}

void PimVCardCardCutter::TakeNestedBegin( const Line& a_line )
{
    ++m_depth;
    ++m_card.m_nestedCards;
    m_isInlineAgent = false;
    m_card.m_isTooDeep = m_card.m_isTooDeep || ( m_limits.m_nesting > 0 && m_depth > m_limits.m_nesting );
    m_isTooLongAgent = false;
    AddLine( a_line, true, false );
}

void PimVCardCardCutter::TakeAgentBegin( const Line& a_line )
{
    if ( m_state == State::Outside )
    {
        TakeOutside( a_line, false );
        return;
    }
    const bool isNested = m_depth > 0;
    ++m_depth;
    ++m_card.m_nestedCards;
    m_isInlineAgent = m_card.m_nestedCards == 1;
    m_flatEnd = -1;
    m_card.m_isTooDeep = m_card.m_isTooDeep || ( m_limits.m_nesting > 0 && m_depth > m_limits.m_nesting );
    AddLine( a_line, isNested, false );
}

void PimVCardCardCutter::TakeEnd( const Line& a_line, const PimVCardBoundary& a_boundary )
{
    if ( m_state == State::Outside )
    {
        TakeOutside( a_line, true );
        return;
    }
    if ( m_depth > 0 )
    {
        --m_depth;
        AddLine( a_line, true, false );
        m_flatEnd = m_isInlineAgent && m_state == State::Inside ? static_cast<int>( m_card.m_lines.size() ) - 1 : -1;
        return;
    }
    AddLine( a_line, false, a_boundary.m_isClean && m_cleanLines.MayEnd() );
    m_card.m_endLine = static_cast<int>( m_card.m_lines.size() ) - 1;
    m_card.m_isWide = m_cleanLines.IsWide();
    EndCard();
}

void PimVCardCardCutter::TakeEndAndBegin( const Line& a_line, size_t a_beginPlace )
{
    Line first = a_line;
    first.m_text = a_line.m_text.substr( 0, a_beginPlace );
    first.m_end = std::string_view();
    Dispatch( first, PimVCardBoundary::Of( first.m_text ) );

    Line second = a_line;
    second.m_text = a_line.m_text.substr( a_beginPlace );
    const qint64 units = m_card.m_isUtf16 ? Utf16Units( first.m_text ) : static_cast<qint64>( a_beginPlace );
    second.m_position.m_column += units;
    second.m_position.m_offset += m_card.m_isUtf16 ? 2 * units : units;
    m_isCounted = false;
    Dispatch( second, PimVCardBoundary::Of( second.m_text ) );
}

void PimVCardCardCutter::TakeContent( const Line& a_line )
{
    if ( m_state == State::Outside )
    {
        TakeOutside( a_line, false );
        return;
    }
    if ( !IsBlankLine( a_line.m_text ) )
    {
        m_flatEnd = -1;
        m_foldedBegin = BeginsIndented( a_line.m_text ) ? m_foldedBegin : -1;
    }
    const bool isClean =
        m_depth == 0 && m_card.m_isClean && a_line.m_end == "\r\n" && m_cleanLines.Take( a_line.m_text );
    AddLine( a_line, m_depth > 0, isClean );
}

void PimVCardCardCutter::TakeOutside( const Line& a_line, bool a_isEnd )
{
    PimVCardImportAccount& account = m_reporter.Account();
    ++account.m_lines;
    if ( !IsLong( a_line ) && IsBlankLine( a_line.m_text ) )
    {
        ++account.m_linesBlank;
        return;
    }
    ++account.m_linesOutside;
    if ( a_isEnd )
    {
        if ( m_outsideProperties > 0 )
            LoseCard( a_line );
        else
            EndTextOutside();
        m_reporter.Report( PimVCardDiagnosticCode::EndWithoutBegin, -1, a_line.m_position );
        return;
    }
    if ( m_outsideLines++ == 0 )
        m_outsideBegin = a_line.m_position;
    KeepOutside( a_line );
    if ( !IsLong( a_line ) && IsOfCard( a_line.m_text ) )
        ++m_outsideProperties;
}

void PimVCardCardCutter::EndTextOutside()
{
    if ( m_outsideLines > 0 )
        m_reporter.Report( PimVCardDiagnosticCode::TextOutside, -1, m_outsideBegin, m_outsideLines );
    m_outsideLines = 0;
    m_outsideProperties = 0;
    m_outside.resize( 0 );
}

// Properties and an END, but no BEGIN.
void PimVCardCardCutter::LoseCard( const Line& a_endLine )
{
    KeepOutside( a_endLine );
    m_reporter.Report( PimVCardDiagnosticCode::LostCard, -1, m_outsideBegin, m_outsideLines + 1 );
    m_reporter.Reject( { PimVCardDiagnosticCode::LostCard, -1, m_outsideBegin, m_outside } );
    m_outsideLines = 0;
    EndTextOutside();
}

// The last lines, for the case that they are those of a card. A long line is none.
void PimVCardCardCutter::KeepOutside( const Line& a_line )
{
    if ( IsLong( a_line ) || !m_reporter.AreRejectsWanted() )
        return;
    Append( m_outside, a_line.m_text );
    Append( m_outside, a_line.m_end );
    if ( m_outside.size() > 2 * s_kOutsideBytes )
        m_outside.remove( 0, m_outside.size() - s_kOutsideBytes );
}

// A card of which END is missing, and those inside it.
void PimVCardCardCutter::EndOpenCards()
{
    if ( m_state == State::Inside && m_depth == 0 && m_flatEnd >= 0 )
    {
        if ( m_foldedBegin >= 0 )
        {
            EndBeforeIndentedCards();
            return;
        }
        m_card.m_endLine = m_flatEnd;
        m_card.m_isClean = false;
        m_card.m_nestedCards = 0;
        for ( PimVCardRawCard::Line& line : m_card.m_lines )
            line.m_isNested = false;
    }
    if ( m_state != State::Outside )
        EndCard();
}

// What looked like folds were cards: BEGIN and END and all between are indented, and no other END came.
void PimVCardCardCutter::EndBeforeIndentedCards()
{
    const auto begin = m_card.m_lines.begin() + m_foldedBegin;
    const std::vector<PimVCardRawCard::Line> lines( begin, m_card.m_lines.end() );
    const QByteArray bytes = m_card.m_bytes.mid( begin->m_begin );
    m_card.m_bytes.truncate( begin->m_begin );
    m_card.m_lines.erase( begin, m_card.m_lines.end() );
    EndCard();
    const auto viewOf = [&bytes, first = lines.front().m_begin]( int a_begin, int a_length )
    { return std::string_view( bytes.constData() + a_begin - first, static_cast<size_t>( a_length ) ); };
    for ( const PimVCardRawCard::Line& line : lines )
    {
        Line again;
        again.m_text = viewOf( line.m_begin, line.m_length );
        again.m_end = viewOf( line.m_begin + line.m_length, line.m_endLength );
        again.m_position = line.m_position;
        m_isCounted = line.m_isCounted;
        Dispatch( again, PimVCardBoundary::Of( again.m_text ) );
    }
}

void PimVCardCardCutter::EndCard()
{
    if ( m_state == State::TooLong )
        EndTooLong();
    else
        m_taker( m_card );
    const bool isUtf16 = m_card.m_isUtf16;
    QByteArray bytes = std::move( m_card.m_bytes );
    std::vector<PimVCardRawCard::Line> lines = std::move( m_card.m_lines );
    bytes.resize( 0 );
    lines.clear();
    m_card = PimVCardRawCard();
    m_card.m_bytes = std::move( bytes );
    m_card.m_lines = std::move( lines );
    m_card.m_isUtf16 = isUtf16;
    m_state = State::Outside;
    m_depth = 0;
    m_isInlineAgent = false;
    m_flatEnd = -1;
    m_foldedBegin = -1;
}

bool PimVCardCardCutter::IsTooLong( size_t a_more ) const
{
    const qint64 limit =
        m_limits.m_cardBytes > 0 ? std::min( m_limits.m_cardBytes, s_kMostCardBytes ) : s_kMostCardBytes;
    return m_card.m_bytes.size() + static_cast<qint64>( a_more ) > limit;
}

void PimVCardCardCutter::AddLine( const Line& a_line, bool a_isNested, bool a_isClean )
{
    if ( m_state == State::Inside && IsTooLong( a_line.m_text.size() + a_line.m_end.size() ) )
        BecomeTooLong( m_card.m_lines.empty() ? a_line.m_position : m_card.Position() );
    if ( m_state == State::TooLong )
    {
        m_tooLongLines += m_isCounted ? 1 : 0;
        if ( IsLong( a_line ) || !IsBlankLine( a_line.m_text ) )
            m_isTooLongAgent = !IsLong( a_line ) && PimVCardBoundary::IsOpenAgent( a_line.m_text );
        AddTooLong( a_line.m_text );
        AddTooLong( a_line.m_end );
        return;
    }
    PimVCardRawCard::Line line;
    line.m_begin = static_cast<int>( m_card.m_bytes.size() );
    line.m_length = static_cast<int>( a_line.m_text.size() );
    line.m_endLength = static_cast<int>( a_line.m_end.size() );
    line.m_position = a_line.m_position;
    line.m_isNested = a_isNested;
    line.m_isCounted = m_isCounted;
    m_card.m_lines.push_back( line );
    Append( m_card.m_bytes, a_line.m_text );
    Append( m_card.m_bytes, a_line.m_end );
    m_card.m_isClean = m_card.m_isClean && a_isClean && a_line.m_end == "\r\n";
}

// A line of blanks is a fold of its own.
bool PimVCardCardCutter::IsBehindEmptyLine() const
{
    const auto line = std::find_if( m_card.m_lines.rbegin(), m_card.m_lines.rend(),
                                    [this]( const PimVCardRawCard::Line& a_line )
                                    { return a_line.m_length == 0 || !IsBlankLine( m_card.TextOf( a_line ) ); } );
    return line != m_card.m_lines.rend() && line->m_length == 0;
}

bool PimVCardCardCutter::IsBehindAgent() const
{
    if ( m_state == State::TooLong )
        return m_isTooLongAgent;
    const auto line = std::find_if( m_card.m_lines.rbegin(), m_card.m_lines.rend(),
                                    [this]( const PimVCardRawCard::Line& a_line )
                                    { return !IsBlankLine( m_card.TextOf( a_line ) ); } );
    return line != m_card.m_lines.rend() && PimVCardBoundary::IsOpenAgent( m_card.TextOf( *line ) );
}

void PimVCardCardCutter::BecomeTooLong( const PimVCardPosition& a_position )
{
    m_isTooLongAgent = IsBehindAgent();
    m_state = State::TooLong;
    m_tooLong.m_reason = PimVCardDiagnosticCode::CardTooLong;
    m_tooLong.m_card = m_card.m_index;
    m_tooLong.m_position = a_position;
    m_tooLongLines = std::count_if( m_card.m_lines.begin(), m_card.m_lines.end(),
                                    []( const PimVCardRawCard::Line& a_line ) { return a_line.m_isCounted; } );
    AddTooLong( ViewOf( m_card.m_bytes ) );
    m_card.m_bytes.clear();
    m_card.m_lines.clear();
}

// Pieces of one size, however the text came.
void PimVCardCardCutter::AddTooLong( std::string_view a_bytes )
{
    while ( m_reporter.AreRejectsWanted() && !a_bytes.empty() )
    {
        const auto room = static_cast<size_t>( s_kRejectPiece - m_tooLong.m_bytes.size() );
        const std::string_view piece = a_bytes.substr( 0, room );
        Append( m_tooLong.m_bytes, piece );
        a_bytes.remove_prefix( piece.size() );
        if ( m_tooLong.m_bytes.size() == s_kRejectPiece )
            FlushTooLong();
    }
}

void PimVCardCardCutter::FlushTooLong()
{
    m_reporter.Reject( m_tooLong );
    m_tooLong.m_bytes.resize( 0 );
}

void PimVCardCardCutter::EndTooLong()
{
    if ( !m_tooLong.m_bytes.isEmpty() )
        FlushTooLong();
    m_reporter.Report( PimVCardDiagnosticCode::CardTooLong, m_tooLong.m_card, m_tooLong.m_position );
    PimVCardImportAccount& account = m_reporter.Account();
    account.m_beginLines += 1 + m_card.m_nestedCards;
    account.m_cardsNested += m_card.m_nestedCards;
    ++account.m_cardsRefused;
    account.m_lines += m_tooLongLines;
    account.m_linesRefused += m_tooLongLines;
    m_tooLongLines = 0;
}

bool PimVCardCardCutter::MayLetGo( std::string_view a_openLine ) const
{
    if ( a_openLine.size() <= PimVCardBoundary::s_kLongest )
        return false;
    return m_state != State::Inside || IsTooLong( a_openLine.size() );
}

void PimVCardCardCutter::LetGo( std::string_view a_openLine )
{
    if ( m_state == State::Inside )
        BecomeTooLong( m_card.Position() );
    if ( m_state == State::TooLong )
        AddTooLong( a_openLine );
}

void PimVCardCardCutter::Finish()
{
    EndOpenCards();
    EndTextOutside();
}

} // namespace PimManager::vCardImport
