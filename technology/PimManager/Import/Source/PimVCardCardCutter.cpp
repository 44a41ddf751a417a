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

bool IsBlankLine( std::string_view a_line )
{
    return TrimmedLeft( a_line ).empty();
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
    Dispatch( a_line, a_line.m_isLong ? PimVCardBoundary() : PimVCardBoundary::Of( a_line.m_text ) );
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
        m_flatEnd = -1;
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
        const bool isCardLost = m_outsideProperties > 0;
        if ( isCardLost )
            m_reporter.Report( PimVCardDiagnosticCode::LostCard, -1, m_outsideBegin, m_outsideLines + 1 );
        else
            EndTextOutside();
        m_outsideLines = 0;
        m_outsideProperties = 0;
        m_reporter.Report( PimVCardDiagnosticCode::EndWithoutBegin, -1, a_line.m_position );
        return;
    }
    if ( m_outsideLines++ == 0 )
        m_outsideBegin = a_line.m_position;
    if ( !IsLong( a_line ) && IsOfCard( a_line.m_text ) )
        ++m_outsideProperties;
}

void PimVCardCardCutter::EndTextOutside()
{
    if ( m_outsideLines > 0 )
        m_reporter.Report( PimVCardDiagnosticCode::TextOutside, -1, m_outsideBegin, m_outsideLines );
    m_outsideLines = 0;
    m_outsideProperties = 0;
}

// A card of which END is missing, and those inside it.
void PimVCardCardCutter::EndOpenCards()
{
    if ( m_state == State::Outside )
        return;
    if ( m_state == State::Inside && m_depth == 0 && m_flatEnd >= 0 )
    {
        m_card.m_endLine = m_flatEnd;
        m_card.m_nestedCards = 0;
        for ( PimVCardRawCard::Line& line : m_card.m_lines )
            line.m_isNested = false;
    }
    EndCard();
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
    line.m_begin = m_card.m_bytes.size();
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
