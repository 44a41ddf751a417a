#include "PimVCardCardMender.h"

#include "PimVCardBoundary.h"
#include "PimVCardBytes.h"
#include "PimVCardCharset.h"
#include "PimVCardCleanLines.h"
#include "PimVCardLineHead.h"
#include "PimVCardUtf8.h"

#include <QTextCodec>

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::vCardImport
{

namespace
{

constexpr std::string_view s_kByteOrderMark = "\xEF\xBB\xBF";
constexpr char s_kEscape = '\x1B';

bool HasEscapeSequence( const QByteArray& a_text )
{
    return a_text.contains( s_kEscape );
}

// A shift of ISO-2022-JP, which mail programs and old phones write without saying so.
bool IsShifted( const QByteArray& a_text )
{
    return a_text.contains( "\x1B$B" ) || a_text.contains( "\x1B$@" );
}

QTextCodec* CodecNamedIn( const QByteArray& a_text )
{
    return CodecOf( PimVCardLineHead::Of( ViewOf( a_text ) ).Charset() );
}

bool IsNamed( const PimVCardLineHead& a_head, std::initializer_list<std::string_view> a_names )
{
    return std::any_of( a_names.begin(), a_names.end(),
                        [name = a_head.Name()]( std::string_view a_name ) { return IsSameWord( name, a_name ); } );
}

bool IsProperty( std::string_view a_text )
{
    const PimVCardBoundary::Kind kind = PimVCardBoundary::Of( a_text ).m_kind;
    const bool isBoundary = kind != PimVCardBoundary::Kind::None && kind != PimVCardBoundary::Kind::AgentBegin;
    return !isBoundary && LooksOf( a_text ) != PimVCardLooks::Text;
}

// A line that was joined may turn out to be part of a quoted parameter, where no line feed can stand.
void BlankLineFeedsOfHead( QByteArray& a_text )
{
    const auto first = a_text.indexOf( '\n' );
    if ( first < 0 )
        return;
    const PimVCardLineHead head = PimVCardLineHead::Of( ViewOf( a_text ) );
    const auto end = a_text.size() - static_cast<int>( head.m_value.size() );
    for ( auto i = first; i < end; ++i )
    {
        if ( a_text.at( i ) == '\n' )
            a_text[i] = ' ';
    }
}

bool IsUnwanted( char a_byte )
{
    return IsControlByte( a_byte ) && a_byte != '\n';
}

// A vertical tab or a form feed is a line break, but not in a name; what else controls a terminal means nothing in a
// contact.
QByteArray WithoutUnwanted( const QByteArray& a_text, int a_valueBegin )
{
    QByteArray result;
    result.reserve( a_text.size() );
    for ( int i = 0; i < a_text.size(); ++i )
    {
        const char byte = a_text.at( i );
        const bool isBreak = ( byte == '\v' || byte == '\f' ) && i > a_valueBegin;
        if ( isBreak || !IsUnwanted( byte ) )
            result += isBreak ? '\n' : byte;
    }
    return result;
}

// Without byte order marks at the start, and the blanks between them.
QByteArray WithoutMarks( const QByteArray& a_text, qint64& a_marks )
{
    std::string_view text = ViewOf( a_text );
    std::string_view rest = text;
    while ( ( rest = TrimmedLeft( rest ) ).substr( 0, s_kByteOrderMark.size() ) == s_kByteOrderMark )
    {
        rest.remove_prefix( s_kByteOrderMark.size() );
        text = rest;
        ++a_marks;
    }
    return text.size() == ViewOf( a_text ).size() ? a_text : BytesOf( text );
}

bool IsMedia( const PimVCardLineHead& a_head )
{
    return a_head.Encoding() == PimVCardEncoding::Base64 || IsNamed( a_head, { "PHOTO", "LOGO", "SOUND", "KEY" } ) ||
           IsSameWord( TrimmedLeft( a_head.m_value ).substr( 0, 5 ), "data:" );
}

} // namespace

PimVCardCardMender::PimVCardCardMender( PimVCardReporter& a_reporter, const PimVCardImportOptions& a_options ) :
    m_reporter( a_reporter ),
    m_options( a_options )
{
}

PimVCardMendedCard PimVCardCardMender::Mend( const PimVCardRawCard& a_card )
{
    m_card = &a_card;
    m_lines = PimVCardLogicalLines::Of( a_card );
    m_mended = PimVCardMendedCard();
    m_mended.m_index = a_card.m_index;
    m_mended.m_position = a_card.Position();
    m_mended.m_isWhole = a_card.HasEnd();
    m_mended.m_arePropertiesKnown = true;
    m_mended.m_counts.m_nested = a_card.m_nestedCards;
    m_mended.m_text.reserve( a_card.m_bytes.size() + a_card.m_bytes.size() / 16 + 64 );
    m_mended.m_text += "BEGIN:VCARD\r\n";
    m_replaced = 0;

    ReportBounds();
    DecideCharset();
    std::vector<Fate> fates;
    for ( const PimVCardLogicalLine& line : m_lines.m_lines )
        fates.push_back( MendLine( line ) );
    m_mended.m_text += "END:VCARD\r\n";
    if ( m_replaced > 0 )
        m_reporter.Report( Code::CharactersReplaced, a_card.m_index, a_card.Position(), m_replaced );
    m_reporter.Account().m_charactersReplaced += m_replaced;
    Count( fates );
    m_lines = PimVCardLogicalLines();
    return std::move( m_mended );
}

void PimVCardCardMender::ReportBounds()
{
    const auto report = [this]( Code a_code, const PimVCardPosition& a_position )
    { m_reporter.Report( a_code, m_card->m_index, a_position ); };
    const auto isMended = [this]( int a_index )
    {
        const std::string_view text = m_card->TextOf( m_card->m_lines[static_cast<size_t>( a_index )] );
        return !PimVCardCleanLines::IsCleanBoundary( text );
    };
    if ( m_lines.m_isIndented )
        report( Code::IndentedCard, m_card->Position() );
    else if ( isMended( 0 ) )
        report( Code::BoundaryLine, m_card->Position() );
    if ( !m_card->HasEnd() )
        report( Code::MissingEnd, m_card->Position() );
    else if ( !m_lines.m_isIndented && isMended( m_card->m_endLine ) )
        report( Code::BoundaryLine, m_card->m_lines[static_cast<size_t>( m_card->m_endLine )].m_position );
    if ( m_card->m_nestedCards > 0 )
        report( Code::NestedCard, m_card->Position() );
}

// UTF-8 if all lines are, else what the card's CHARSET says, else the caller's character set.
void PimVCardCardMender::DecideCharset()
{
    m_cardCodec = nullptr;
    bool isAscii = true;
    m_isUtf8 = true;
    for ( const PimVCardLogicalLine& line : m_lines.m_lines )
    {
        for ( const QByteArray* text : { &line.m_text, &line.m_nested } )
        {
            const PimVCardUtf8Census census = Utf8CensusOf( ViewOf( *text ) );
            isAscii = isAscii && census.IsAscii();
            m_isUtf8 = m_isUtf8 && census.IsValid();
        }
    }
    PimVCardImportAccount& account = m_reporter.Account();
    if ( m_isUtf8 )
    {
        if ( !isAscii && account.m_evidence == PimVCardEvidence::None )
            account.m_evidence = PimVCardEvidence::ValidUtf8;
        return;
    }
    for ( const PimVCardLogicalLine& line : m_lines.m_lines )
    {
        if ( m_cardCodec == nullptr )
            m_cardCodec = CodecNamedIn( line.m_text );
    }
    const bool isNamed = m_cardCodec != nullptr;
    if ( !isNamed )
        m_cardCodec = CodecOf( ViewOf( m_options.m_defaultCharset ) );
    m_reporter.Report( Code::Charset, m_card->m_index, m_card->Position() );
    const bool isUndecided =
        account.m_evidence == PimVCardEvidence::None || account.m_evidence == PimVCardEvidence::ValidUtf8;
    if ( !isUndecided )
        return;
    account.m_evidence = isNamed ? PimVCardEvidence::CharsetNamed : PimVCardEvidence::Default;
    if ( m_cardCodec != nullptr )
        account.m_charset = m_cardCodec->name();
}

// Null for UTF-8.
QTextCodec* PimVCardCardMender::CodecFor( const QByteArray& a_text ) const
{
    if ( HasEscapeSequence( a_text ) )
    {
        QTextCodec* const named = CodecNamedIn( a_text );
        if ( named != nullptr && named->name().toUpper().startsWith( "ISO-2022" ) )
            return named;
        if ( IsShifted( a_text ) )
            return QTextCodec::codecForName( "ISO-2022-JP" );
    }
    if ( m_isUtf8 )
        return nullptr;
    const PimVCardUtf8Census census = Utf8CensusOf( ViewOf( a_text ) );
    if ( census.IsAscii() )
        return nullptr;
    if ( QTextCodec* const named = CodecNamedIn( a_text ) )
        return named;
    // A line of UTF-8 that was cut short is still one.
    return census.m_wide > census.m_malformed ? nullptr : m_cardCodec;
}

PimVCardCardMender::Fate PimVCardCardMender::MendLine( const PimVCardLogicalLine& a_line )
{
    if ( !a_line.m_isProperty )
    {
        Drop( a_line, Code::NotAProperty );
        return Fate::Dropped;
    }
    if ( !IsWanted( a_line.m_text ) )
        return Fate::Filtered;
    if ( !IsWithinLimits( a_line ) )
        return Fate::Dropped;
    if ( !a_line.m_nested.isEmpty() && m_card->m_isTooDeep )
    {
        Drop( a_line, Code::NestingTooDeep );
        return Fate::Dropped;
    }
    ReportJoins( a_line );
    const QByteArray text = WithoutDanglingBreak( a_line, WithoutControls( a_line, DecodedText( a_line ) ) );
    if ( a_line.m_nested.isEmpty() && PimVCardCleanLines::IsCleanLine( ViewOf( text ) ) )
        AddCleanProperty( a_line, text );
    else if ( IsProperty( ViewOf( text ) ) )
        AddProperty( a_line, text );
    else
    {
        Drop( a_line, Code::NotAProperty );
        return Fate::Dropped;
    }
    return Fate::Delivered;
}

bool PimVCardCardMender::IsWanted( const QByteArray& a_text ) const
{
    const PimVCardImportFilter& filter = m_options.m_filter;
    if ( filter.m_names.isEmpty() && filter.m_arePhotosWanted )
        return true;
    const PimVCardLineHead head = PimVCardLineHead::Of( ViewOf( a_text ) );
    if ( IsNamed( head, { "VERSION" } ) )
        return true;
    if ( !filter.m_arePhotosWanted && IsMedia( head ) )
        return false;
    return filter.m_names.isEmpty() || filter.m_names.contains( TextOfUtf8( head.Name() ), Qt::CaseInsensitive );
}

bool PimVCardCardMender::IsWithinLimits( const PimVCardLogicalLine& a_line )
{
    const auto exceeds = []( qint64 a_size, qint64 a_limit ) { return a_limit > 0 && a_size > a_limit; };
    const qint64 length = a_line.m_text.size() + a_line.m_nested.size();
    if ( exceeds( length, m_options.m_limits.m_lineBytes ) )
    {
        Drop( a_line, Code::LineTooLong );
        return false;
    }
    if ( !exceeds( length, m_options.m_limits.m_valueBytes ) )
        return true;
    const auto value = PimVCardLineHead::Of( ViewOf( a_line.m_text ) ).m_value.size();
    if ( exceeds( static_cast<qint64>( value ) + a_line.m_nested.size(), m_options.m_limits.m_valueBytes ) )
    {
        Drop( a_line, Code::ValueTooLong );
        return false;
    }
    return true;
}

QByteArray PimVCardCardMender::DecodedText( const PimVCardLogicalLine& a_line )
{
    QTextCodec* const codec = CodecFor( a_line.m_text );
    if ( codec == nullptr && m_isUtf8 )
        return a_line.m_text;
    const PimVCardDecodedText text = DecodeCharset( ViewOf( a_line.m_text ), codec );
    m_replaced += text.m_replaced;
    return text.m_utf8;
}

QByteArray PimVCardCardMender::WithoutControls( const PimVCardLogicalLine& a_line, const QByteArray& a_text )
{
    QByteArray text = a_text;
    BlankLineFeedsOfHead( text );
    const auto bad = std::count_if( text.cbegin(), text.cend(), IsUnwanted );
    if ( bad > 0 )
    {
        const auto* const first = std::find_if( text.cbegin(), text.cend(), IsUnwanted );
        Report( Code::ControlCharacters, a_line, static_cast<int>( first - text.cbegin() ), bad );
        while ( !text.isEmpty() && IsUnwanted( text.at( text.size() - 1 ) ) )
            text.chop( 1 );
        const auto colon = text.indexOf( ':' );
        text = WithoutUnwanted( text, static_cast<int>( colon >= 0 ? colon : text.size() ) );
    }
    qint64 marks = a_line.m_marks;
    text = WithoutMarks( text, marks );
    if ( marks > 0 )
        Report( Code::StrayByteOrderMark, a_line, 0, marks );
    return text;
}

// A soft line break with nothing to go on with.
QByteArray PimVCardCardMender::WithoutDanglingBreak( const PimVCardLogicalLine& a_line, const QByteArray& a_text )
{
    const std::string_view trimmed = Trimmed( ViewOf( a_text ) );
    if ( trimmed.empty() || trimmed.back() != '=' ||
         PimVCardLineHead::Of( ViewOf( a_text ) ).Encoding() != PimVCardEncoding::QuotedPrintable )
        return a_text;
    auto length = a_text.size();
    Report( Code::SoftLineBreak, a_line, static_cast<int>( length ) - 1 );
    while ( length > 0 && ( a_text.at( length - 1 ) == '=' || IsBlank( a_text.at( length - 1 ) ) ) )
        --length;
    return a_text.left( length );
}

void PimVCardCardMender::AddCleanProperty( const PimVCardLogicalLine& a_line, const QByteArray& a_text )
{
    PimVCardMendedCard::Property property;
    property.m_position = a_line.Position( *m_card );
    m_mended.m_text += a_text;
    m_mended.m_text += "\r\n";
    m_mended.m_properties.push_back( std::move( property ) );
}

void PimVCardCardMender::AddProperty( const PimVCardLogicalLine& a_line, const QByteArray& a_text )
{
    const QByteArray nested = NestedText( a_line );
    std::vector<PimVCardContentLine::Finding> findings;
    PimVCardContentLine line = PimVCardContentLine::Of( ViewOf( a_text ), ViewOf( nested ), findings );
    for ( const PimVCardContentLine::Finding& finding : findings )
    {
        const bool isTold = finding.m_code == Code::Base64Lines && a_line.m_areBase64LinesJoined;
        if ( !isTold )
            Report( finding.m_code, a_line, finding.m_place, finding.m_count );
    }

    PimVCardMendedCard::Property property;
    property.m_position = a_line.Position( *m_card );
    const QByteArray carried = line.CarriedText();
    m_mended.m_text += carried.isEmpty() ? PimVCardContentLine::StandIn() : carried;
    if ( carried.isEmpty() )
        property.m_real = std::make_unique<PimVCardContentLine>( std::move( line ) );
    m_mended.m_properties.push_back( std::move( property ) );
}

QByteArray PimVCardCardMender::NestedText( const PimVCardLogicalLine& a_line )
{
    if ( a_line.m_nested.isEmpty() )
        return QByteArray();
    const PimVCardDecodedText text = DecodeCharset( ViewOf( a_line.m_nested ), CodecFor( a_line.m_nested ) );
    m_replaced += text.m_replaced;
    const auto bad = std::count_if( text.m_utf8.cbegin(), text.m_utf8.cend(), IsUnwanted );
    if ( bad == 0 )
        return text.m_utf8;
    Report( Code::ControlCharacters, a_line, 0, bad );
    return WithoutUnwanted( text.m_utf8, 0 );
}

void PimVCardCardMender::ReportJoins( const PimVCardLogicalLine& a_line )
{
    const std::array<std::pair<bool, Code>, 5> joins = { {
        { a_line.m_isJoined, Code::LineJoined },
        { a_line.m_isColonAdded, Code::MissingColon },
        { a_line.m_isSoftBreakMended, Code::SoftLineBreak },
        { a_line.m_isEncodedBreakKept, Code::EncodedLineBreak },
        { a_line.m_areBase64LinesJoined, Code::Base64Lines },
    } };
    for ( const auto& [isDone, code] : joins )
    {
        if ( isDone )
            Report( code, a_line );
    }
}

void PimVCardCardMender::Drop( const PimVCardLogicalLine& a_line, Code a_code )
{
    m_mended.m_isWhole = false;
    Report( a_code, a_line );
    if ( !m_reporter.AreRejectsWanted() )
        return;
    PimVCardReject reject;
    reject.m_reason = a_code;
    reject.m_card = m_card->m_index;
    reject.m_position = a_line.Position( *m_card );
    reject.m_bytes = RawBytesOf( a_line );
    m_reporter.Reject( reject );
}

QByteArray PimVCardCardMender::RawBytesOf( const PimVCardLogicalLine& a_line ) const
{
    QByteArray bytes;
    const int owner = static_cast<int>( &a_line - m_lines.m_lines.data() );
    const std::vector<int>& owners = m_lines.m_owners;
    for ( auto i = static_cast<size_t>( a_line.m_pieces.front().m_line ); i < owners.size(); ++i )
    {
        if ( owners[i] == owner )
            Append( bytes, m_card->BytesOf( m_card->m_lines[i] ) );
        else if ( owners[i] != PimVCardLogicalLines::s_kBlank )
            break;
    }
    return bytes;
}

void PimVCardCardMender::Report( Code a_code, const PimVCardLogicalLine& a_line, int a_place, qint64 a_count )
{
    m_reporter.Report( a_code, m_card->m_index, a_line.PositionOf( *m_card, a_place ), a_count );
}

qint64& PimVCardCardMender::CounterOf( Fate a_fate )
{
    switch ( a_fate )
    {
    case Fate::Dropped:
        return m_mended.m_counts.m_dropped;
    case Fate::Filtered:
        return m_mended.m_counts.m_filtered;
    default:
        return m_mended.m_counts.m_delivered;
    }
}

void PimVCardCardMender::Count( const std::vector<Fate>& a_fates )
{
    std::vector<qint64> linesOf( a_fates.size(), 0 );
    PimVCardCardCounts& counts = m_mended.m_counts;
    for ( size_t i = 0; i < m_lines.m_owners.size(); ++i )
    {
        const int owner = m_lines.m_owners[i];
        if ( !m_card->m_lines[i].m_isCounted )
            continue;
        if ( owner == PimVCardLogicalLines::s_kBoundary )
            ++counts.m_boundary;
        else if ( owner == PimVCardLogicalLines::s_kBlank )
            ++counts.m_blank;
        else
        {
            ++CounterOf( a_fates[static_cast<size_t>( owner )] );
            ++linesOf[static_cast<size_t>( owner )];
        }
    }
    auto property = m_mended.m_properties.begin();
    for ( size_t i = 0; i < a_fates.size(); ++i )
    {
        if ( a_fates[i] == Fate::Delivered )
            ( property++ )->m_lines = linesOf[i];
    }
}

} // namespace PimManager::vCardImport
