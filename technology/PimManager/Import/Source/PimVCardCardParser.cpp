#include "PimVCardCardParser.h"

#include "PimVCardDecoding.h"
#include "PimVCardParser.h"

#include <QList>
#include <QString>

#include <utility>

namespace PimManager::vCardImport
{

namespace
{

using vCard::PimVCard;
using vCard::PimVCardParameter;
using vCard::PimVCardParser;
using vCard::PimVCardProperty;

// So many bytes are worth a parser, and are little beside the largest card.
constexpr int s_kRunBytes = 128 * 1024;

PimVCardProperty* CopyOf( const PimVCardProperty& a_property )
{
    auto parameters = std::make_unique<QList<PimVCardParameter*>>();
    const QList<PimVCardParameter*> originals = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : originals )
        parameters->append( new PimVCardParameter( parameter->GetName(), parameter->GetValue() ) );
    auto values = std::make_unique<QList<QString>>( a_property.GetValues() );
    return new PimVCardProperty( a_property.GetGroupID(), a_property.GetName(), parameters.release(),
                                 values.release() );
}

// The content lines of a card between BEGIN and END, folds joined.
QList<QByteArray> ContentLinesOf( const QByteArray& a_text )
{
    QList<QByteArray> lines;
    auto begin = a_text.indexOf( "\r\n" ) + 2;
    for ( auto end = a_text.indexOf( "\r\n", begin ); end >= 0; end = a_text.indexOf( "\r\n", begin ) )
    {
        const QByteArray line = a_text.mid( begin, end + 2 - begin );
        const bool isContinuation = line.startsWith( ' ' ) || line.startsWith( '\t' );
        if ( isContinuation && !lines.isEmpty() )
            lines.last() += line;
        else if ( line.size() > 2 )
            lines.append( line );
        begin = end + 2;
    }
    if ( !lines.isEmpty() )
        lines.removeLast();
    return lines;
}

} // namespace

PimVCardCardParser::PimVCardCardParser( PimVCardReporter& a_reporter, const CardTaker& a_taker ) :
    m_reporter( a_reporter ),
    m_taker( a_taker )
{
    m_text.reserve( s_kRunBytes );
}

void PimVCardCardParser::Add( PimVCardMendedCard a_card )
{
    Waiting waiting;
    waiting.m_begin = static_cast<int>( m_text.size() );
    waiting.m_length = static_cast<int>( a_card.m_text.size() );
    m_text += a_card.m_text;
    a_card.m_text = QByteArray();
    waiting.m_card = std::move( a_card );
    m_waiting.push_back( std::move( waiting ) );
    if ( m_text.size() >= s_kRunBytes )
        Flush();
}

void PimVCardCardParser::Flush()
{
    size_t next = 0;
    while ( next < m_waiting.size() && !m_isStopped )
    {
        next = ParseRun( next );
        if ( next < m_waiting.size() && !m_isStopped )
            ParseAlone( m_waiting[next++] );
    }
    m_waiting.clear();
    m_text.resize( 0 );
}

// Stops before the first card that the component refuses.
size_t PimVCardCardParser::ParseRun( size_t a_first )
{
    const int begin = m_waiting[a_first].m_begin;
    PimVCardParser parser( QByteArray::fromRawData( m_text.constData() + begin, m_text.size() - begin ) );
    size_t next = a_first;
    for ( ; next < m_waiting.size() && !m_isStopped; ++next )
    {
        PimVCardMendedCard& mended = m_waiting[next].m_card;
        std::unique_ptr<PimVCard> card( parser.ParseVCard() );
        if ( card != nullptr )
            card = WithRealProperties( std::move( card ), mended );
        if ( card == nullptr )
            return next;
        Deliver( std::move( card ), mended );
    }
    return next;
}

void PimVCardCardParser::ParseAlone( Waiting& a_waiting )
{
    PimVCardParser parser( TextOf( a_waiting ) );
    std::unique_ptr<PimVCard> card( parser.ParseVCard() );
    if ( card != nullptr )
        card = WithRealProperties( std::move( card ), a_waiting.m_card );
    if ( card == nullptr )
        card = ParseLines( a_waiting );
    if ( card != nullptr )
        Deliver( std::move( card ), a_waiting.m_card );
    else
        Refuse( a_waiting );
}

// Each line has a parser of its own; null if none is read.
std::unique_ptr<PimVCard> PimVCardCardParser::ParseLines( Waiting& a_waiting )
{
    PimVCardMendedCard& mended = a_waiting.m_card;
    const QList<QByteArray> lines = ContentLinesOf( TextOf( a_waiting ) );
    const bool areKnown =
        mended.m_arePropertiesKnown && static_cast<size_t>( lines.size() ) == mended.m_properties.size();
    auto properties = std::make_unique<Properties>();
    for ( int i = 0; i < lines.size(); ++i )
    {
        const PimVCardMendedCard::Property* known = areKnown ? &mended.m_properties[static_cast<size_t>( i )] : nullptr;
        if ( known != nullptr && known->m_real != nullptr )
        {
            properties->append( known->m_real->NewProperty() );
            continue;
        }
        PimVCardParser parser( lines.at( i ) );
        if ( PimVCardProperty* const property = parser.ParseProperty() )
        {
            properties->append( property );
            continue;
        }
        const PimVCardPosition& position = known != nullptr ? known->m_position : mended.m_position;
        const qint64 count = known != nullptr ? known->m_lines : 1;
        mended.m_isWhole = false;
        mended.m_counts.m_delivered -= count;
        mended.m_counts.m_dropped += count;
        m_reporter.Report( PimVCardDiagnosticCode::LineUnreadable, mended.m_index, position );
        m_reporter.Reject( { PimVCardDiagnosticCode::LineUnreadable, mended.m_index, position, lines.at( i ) } );
    }
    auto card = std::make_unique<PimVCard>( properties.release() );
    return card->GetProperties().isEmpty() && !lines.isEmpty() ? nullptr : std::move( card );
}

// Null if the component found another number of properties than the text has.
std::unique_ptr<PimVCard> PimVCardCardParser::WithRealProperties( std::unique_ptr<PimVCard> a_card,
                                                                  const PimVCardMendedCard& a_mended )
{
    if ( !a_mended.m_arePropertiesKnown )
        return a_card;
    const QList<PimVCardProperty*> originals = a_card->GetProperties();
    if ( static_cast<size_t>( originals.size() ) != a_mended.m_properties.size() )
        return nullptr;
    bool hasStandIn = false;
    for ( const PimVCardMendedCard::Property& property : a_mended.m_properties )
        hasStandIn = hasStandIn || property.m_real != nullptr;
    if ( !hasStandIn )
        return a_card;
    auto properties = std::make_unique<Properties>();
    for ( int i = 0; i < originals.size(); ++i )
    {
        const PimVCardMendedCard::Property& known = a_mended.m_properties[static_cast<size_t>( i )];
        properties->append( known.m_real != nullptr ? known.m_real->NewProperty() : CopyOf( *originals.at( i ) ) );
    }
    return std::make_unique<PimVCard>( properties.release() );
}

QByteArray PimVCardCardParser::TextOf( const Waiting& a_waiting ) const
{
    return m_text.mid( a_waiting.m_begin, a_waiting.m_length );
}

void PimVCardCardParser::Deliver( std::unique_ptr<PimVCard> a_card, PimVCardMendedCard& a_mended )
{
    PimVCardImportAccount& account = m_reporter.Account();
    const PimVCardCardCounts& counts = a_mended.m_counts;
    account.m_beginLines += 1 + counts.m_nested;
    account.m_cardsNested += counts.m_nested;
    ++( a_mended.m_isWhole ? account.m_cardsWhole : account.m_cardsInPart );
    account.m_lines += counts.Lines();
    account.m_linesDelivered += counts.m_delivered;
    account.m_linesBoundary += counts.m_boundary;
    account.m_linesDropped += counts.m_dropped;
    account.m_linesFiltered += counts.m_filtered;
    account.m_linesBlank += counts.m_blank;
    CountVersion( *a_card );

    PimVCardImportedCard card;
    card.m_card = std::move( a_card );
    card.m_index = a_mended.m_index;
    card.m_position = a_mended.m_position;
    card.m_isWhole = a_mended.m_isWhole;
    if ( !m_taker( std::move( card ) ) )
    {
        m_isStopped = true;
        account.m_isStopped = true;
    }
}

void PimVCardCardParser::Refuse( const Waiting& a_waiting )
{
    const PimVCardMendedCard& mended = a_waiting.m_card;
    PimVCardImportAccount& account = m_reporter.Account();
    account.m_beginLines += 1 + mended.m_counts.m_nested;
    account.m_cardsNested += mended.m_counts.m_nested;
    ++account.m_cardsRefused;
    account.m_lines += mended.m_counts.Lines();
    account.m_linesRefused += mended.m_counts.Lines();
    m_reporter.Report( PimVCardDiagnosticCode::CardUnreadable, mended.m_index, mended.m_position );
    m_reporter.Reject(
        { PimVCardDiagnosticCode::CardUnreadable, mended.m_index, mended.m_position, TextOf( a_waiting ) } );
}

void PimVCardCardParser::CountVersion( const PimVCard& a_card )
{
    PimVCardImportAccount& account = m_reporter.Account();
    const PimVCardProperty* const property = FindProperty( a_card, "VERSION" );
    const QString version = property != nullptr ? property->GetValues().value( 0 ).trimmed() : QString();
    if ( version == QLatin1String( "2.1" ) )
        ++account.m_version21;
    else if ( version == QLatin1String( "3.0" ) )
        ++account.m_version30;
    else if ( version == QLatin1String( "4.0" ) )
        ++account.m_version40;
    else
        ++account.m_versionOther;
}

} // namespace PimManager::vCardImport
