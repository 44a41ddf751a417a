#include "Cards/Ledger.h"

#include <QStringList>

#include <numeric>

namespace PimManager::Contacts
{

namespace
{

using Kind = PimContactExtentKind;

template <typename Numbers>
qint64 SumOf( const Numbers& a_numbers )
{
    return std::accumulate( a_numbers.begin(), a_numbers.end(), qint64( 0 ) );
}

QString Counted( qint64 a_count, const char* a_one, const char* a_many )
{
    return QString::number( a_count ) + QLatin1Char( ' ' ) + QLatin1String( a_count == 1 ? a_one : a_many );
}

QString KindText( PimContactFileKind a_kind )
{
    switch ( a_kind )
    {
    case PimContactFileKind::Empty:
        return QStringLiteral( "an empty file" );
    case PimContactFileKind::Compressed:
        return QStringLiteral( "a compressed archive, not an address book" );
    case PimContactFileKind::Document:
        return QStringLiteral( "a PDF document, not an address book" );
    case PimContactFileKind::Image:
        return QStringLiteral( "an image, not an address book" );
    case PimContactFileKind::Html:
        return QStringLiteral( "an HTML page without a card" );
    case PimContactFileKind::Text:
        return QStringLiteral( "a text without a card" );
    case PimContactFileKind::Unknown:
        return QStringLiteral( "no text, and without a card" );
    default:
        return QString();
    }
}

} // namespace

PimContactReport PimContactReportPrivate::Create( const ReportData& a_data )
{
    PimContactReport report;
    static_cast<ReportData&>( *report.d ) = a_data;
    return report;
}

PimContactReport::PimContactReport() :
    d( new PimContactReportPrivate )
{
    d->m_isFinished = true;
}

PimContactReport::PimContactReport( const PimContactReport& a_other ) = default;
PimContactReport& PimContactReport::operator=( const PimContactReport& a_other ) = default;
PimContactReport::~PimContactReport() = default;

qint64 PimContactReport::Bytes() const
{
    return SumOf( d->m_bytes );
}

qint64 PimContactReport::Bytes( PimContactExtentKind a_kind ) const
{
    return d->m_bytes[static_cast<size_t>( a_kind )];
}

qint64 PimContactReport::Extents( PimContactExtentKind a_kind ) const
{
    return d->m_extents[static_cast<size_t>( a_kind )];
}

qint64 PimContactReport::CardsWhole() const
{
    return d->m_cardsWhole;
}

qint64 PimContactReport::CardsInPart() const
{
    return d->m_cardsInPart;
}

qint64 PimContactReport::CardsRefused() const
{
    return d->m_cardsRefused;
}

qint64 PimContactReport::CardsNested() const
{
    return d->m_cardsNested;
}

qint64 PimContactReport::Cards() const
{
    return d->m_cards;
}

qint64 PimContactReport::LineEnds( PimContactLineEnd a_kind ) const
{
    return d->m_lineEnds[static_cast<size_t>( a_kind )];
}

qint64 PimContactReport::CardsOf( PimContactVersion a_version ) const
{
    return d->m_versions[static_cast<size_t>( a_version )];
}

QByteArray PimContactReport::Charset() const
{
    return d->m_charset;
}

PimContactEvidence PimContactReport::Evidence() const
{
    return d->m_evidence;
}

bool PimContactReport::IsConverted() const
{
    return d->m_isConverted;
}

PimContactFileKind PimContactReport::FileKind() const
{
    return d->m_fileKind;
}

bool PimContactReport::IsStopped() const
{
    return d->m_isStopped;
}

QString PimContactReport::ErrorText() const
{
    return d->m_errorText;
}

QList<PimContactDiagnostic> PimContactReport::Diagnostics() const
{
    return d->m_diagnostics;
}

qint64 PimContactReport::Findings( PimContactDiagnosticCode a_code ) const
{
    return d->m_findings[static_cast<size_t>( a_code )];
}

qint64 PimContactReport::Findings( PimContactSeverity a_severity ) const
{
    qint64 findings = 0;
    for ( int code = 0; code < s_kPimContactDiagnosticCodes; ++code )
    {
        if ( SeverityOf( static_cast<PimContactDiagnosticCode>( code ) ) == a_severity )
            findings += d->m_findings[static_cast<size_t>( code )];
    }
    return findings;
}

bool PimContactReport::IsComplete() const
{
    return d->m_isFinished && !d->m_isStopped && d->m_errorText.isEmpty() && Bytes( Kind::Dropped ) == 0 &&
           Bytes( Kind::Refused ) == 0 && Bytes( Kind::Outside ) == 0;
}

QString PimContactReport::Summary() const
{
    QStringList facts;
    if ( d->m_cards == 0 && d->m_errorText.isEmpty() && !KindText( d->m_fileKind ).isEmpty() )
        facts << KindText( d->m_fileKind );
    else
        facts << Counted( d->m_cardsWhole + d->m_cardsInPart, "card", "cards" );
    if ( d->m_cardsInPart > 0 )
        facts << QString::number( d->m_cardsInPart ) + QStringLiteral( " in part" );
    if ( d->m_cardsRefused > 0 )
        facts << QString::number( d->m_cardsRefused ) + QStringLiteral( " refused" );
    if ( Extents( Kind::Dropped ) > 0 )
        facts << Counted( Extents( Kind::Dropped ), "part of a card dropped", "parts of cards dropped" );
    if ( Bytes( Kind::Outside ) > 0 )
        facts << Counted( Bytes( Kind::Outside ), "byte outside cards", "bytes outside cards" );
    if ( d->m_isStopped )
        facts << QStringLiteral( "stopped before the end" );
    if ( !d->m_errorText.isEmpty() )
        facts << d->m_errorText;
    return facts.join( QStringLiteral( "; " ) );
}

} // namespace PimManager::Contacts
