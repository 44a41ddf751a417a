#include "PimVCardImportRun.h"

#include "PimVCardBytes.h"

#include <algorithm>
#include <utility>

namespace PimManager::vCardImport
{

namespace
{

// What a piece may be at most, so that memory does not depend on the caller's pieces.
constexpr qsizetype s_kPiece = 0x10000;

// A clean card goes to the component as it is.
PimVCardMendedCard CleanCardOf( PimVCardRawCard& a_card )
{
    PimVCardMendedCard mended;
    mended.m_index = a_card.m_index;
    mended.m_position = a_card.Position();
    mended.m_text = a_card.m_bytes;
    PimVCardCardCounts& counts = mended.m_counts;
    for ( const PimVCardRawCard::Line& line : a_card.m_lines )
    {
        counts.m_blank += line.m_isCounted && line.m_length == 0 ? 1 : 0;
        counts.m_delivered += line.m_isCounted && line.m_length != 0 ? 1 : 0;
    }
    counts.m_boundary = a_card.m_lines.front().m_isCounted ? 2 : 1;
    counts.m_delivered -= counts.m_boundary;
    return mended;
}

} // namespace

PimVCardImportRun::PimVCardImportRun( const PimVCardImportOptions& a_options, const Handlers& a_handlers ) :
    m_options( a_options ),
    m_handlers( a_handlers ),
    m_reporter( m_account, a_options.m_limits.m_diagnostics, a_handlers.m_diagnostic, a_handlers.m_reject ),
    m_mender( m_reporter, a_options ),
    m_parser( m_reporter, [this]( PimVCardImportedCard a_card ) { return DeliverCard( std::move( a_card ) ); } ),
    m_cardCutter( m_reporter, a_options.m_limits, [this]( PimVCardRawCard& a_card ) { TakeCard( a_card ); } )
{
}

bool PimVCardImportRun::Feed( const QByteArray& a_piece )
{
    const qsizetype size = a_piece.size(); // with Qt 6 it may be more than an int can count
    for ( qsizetype begin = 0; begin < size && !IsStopped(); begin += s_kPiece )
    {
        const auto length = static_cast<int>( std::min( s_kPiece, size - begin ) );
        m_account.m_bytes += length;
        FeedText( m_decoder.Decode( QByteArray::fromRawData( a_piece.constData() + begin, length ) ) );
    }
    return !IsStopped();
}

PimVCardImportAccount PimVCardImportRun::Finish()
{
    if ( !IsStopped() )
    {
        FeedText( m_decoder.Finish() );
        m_lineCutter.Finish();
        TakeLines();
    }
    if ( !IsStopped() )
        m_cardCutter.Finish();
    if ( !IsStopped() )
        m_parser.Flush();
    m_account.m_charactersReplaced += m_decoder.Replaced();
    return m_account;
}

void PimVCardImportRun::FeedText( const QByteArray& a_text )
{
    if ( a_text.isEmpty() )
        return;
    if ( !m_isBegun )
        Begin();
    m_lineCutter.Feed( a_text );
    TakeLines();
}

void PimVCardImportRun::Begin()
{
    m_isBegun = true;
    m_lineCutter.Begin( m_decoder.MarkLength(), m_decoder.IsUtf16() );
    m_cardCutter.Begin( m_decoder.IsUtf16() );
    if ( m_decoder.Charset().isEmpty() )
        return;
    m_account.m_charset = m_decoder.Charset();
    m_account.m_evidence = m_decoder.Evidence();
    m_reporter.Report( PimVCardDiagnosticCode::Encoding, -1, PimVCardPosition() );
}

void PimVCardImportRun::TakeLines()
{
    PimVCardPhysicalLine line;
    while ( !IsStopped() && m_lineCutter.Next( line ) )
        TakeLine( line );
    if ( !IsStopped() && m_cardCutter.MayLetGo( m_lineCutter.Open() ) )
    {
        m_cardCutter.LetGo( m_lineCutter.Open() );
        m_lineCutter.LetGo();
    }
}

void PimVCardImportRun::TakeLine( const PimVCardPhysicalLine& a_line )
{
    CountLineEnd( a_line );
    m_cardCutter.Take( a_line );
}

void PimVCardImportRun::CountLineEnd( const PimVCardPhysicalLine& a_line )
{
    if ( a_line.m_end == "\r\n" )
    {
        ++m_account.m_crLfs;
        return;
    }
    qint64* count = nullptr;
    if ( a_line.m_end == "\n" )
        count = &m_account.m_lfs;
    else if ( a_line.m_end == "\r" )
        count = &m_account.m_crs;
    else if ( !a_line.m_end.empty() )
        count = &m_account.m_crCrLfs;
    if ( count == nullptr )
        m_reporter.Report( PimVCardDiagnosticCode::LastLineEnd, -1, a_line.m_position );
    else if ( ( *count )++ == 0 )
        m_reporter.Report( PimVCardDiagnosticCode::LineEnd, -1, a_line.m_position );
}

void PimVCardImportRun::TakeCard( PimVCardRawCard& a_card )
{
    ++m_cards;
    const bool isTooMany = m_options.m_limits.m_cards > 0 && m_cards > m_options.m_limits.m_cards;
    const PimVCardImportFilter& filter = m_options.m_filter;
    if ( isTooMany )
        RefuseCard( a_card );
    else if ( a_card.m_isClean && a_card.HasEnd() && filter.m_names.isEmpty() && filter.m_arePhotosWanted &&
              IsWithinLimits( a_card ) )
    {
        if ( a_card.m_isWide && m_account.m_evidence == PimVCardEvidence::None )
            m_account.m_evidence = PimVCardEvidence::ValidUtf8;
        m_parser.Add( CleanCardOf( a_card ) );
    }
    else
        m_parser.Add( m_mender.Mend( a_card ) );
}

// A card that is not longer than the limits has no longer line or value.
bool PimVCardImportRun::IsWithinLimits( const PimVCardRawCard& a_card ) const
{
    const auto exceeds = [size = a_card.m_bytes.size()]( qint64 a_limit ) { return a_limit > 0 && size > a_limit; };
    return !exceeds( m_options.m_limits.m_lineBytes ) && !exceeds( m_options.m_limits.m_valueBytes );
}

void PimVCardImportRun::RefuseCard( const PimVCardRawCard& a_card )
{
    const auto lines = std::count_if( a_card.m_lines.begin(), a_card.m_lines.end(),
                                      []( const PimVCardRawCard::Line& a_line ) { return a_line.m_isCounted; } );
    m_account.m_beginLines += 1 + a_card.m_nestedCards;
    m_account.m_cardsNested += a_card.m_nestedCards;
    ++m_account.m_cardsRefused;
    m_account.m_lines += lines;
    m_account.m_linesRefused += lines;
    m_reporter.Report( PimVCardDiagnosticCode::TooManyCards, a_card.m_index, a_card.Position() );
    m_reporter.Reject( { PimVCardDiagnosticCode::TooManyCards, a_card.m_index, a_card.Position(), a_card.m_bytes } );
}

bool PimVCardImportRun::DeliverCard( PimVCardImportedCard a_card ) const
{
    return m_handlers.m_card == nullptr || m_handlers.m_card( std::move( a_card ) );
}

} // namespace PimManager::vCardImport
