#include "Outputs/ReportPhrases.h"

#include "Terminal/Wording.h"

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

const QString s_kBetween = QStringLiteral( ", " );

QString Cards( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "card" ), QStringLiteral( "cards" ) );
}

QList<NamedCount> Present( const QList<NamedCount>& a_counts )
{
    QList<NamedCount> present;
    for ( const NamedCount& count : a_counts )
    {
        if ( count.m_count > 0 )
            present << count;
    }
    return present;
}

QString JoinedCounts( const QList<NamedCount>& a_counts )
{
    QStringList texts;
    for ( const NamedCount& count : a_counts )
        texts << QString::number( count.m_count ) + QLatin1Char( ' ' ) + count.m_name;
    return texts.join( s_kBetween );
}

QString SumPhrase( const QString& a_sum, const QList<NamedCount>& a_parts )
{
    const QString parts = JoinedCounts( Present( a_parts ) );
    return parts.isEmpty() ? a_sum : a_sum + QStringLiteral( ": " ) + parts;
}

} // namespace

QString CardsPhrase( qint64 a_cards, const QList<NamedCount>& a_fates )
{
    return SumPhrase( Cards( a_cards ), a_fates );
}

QString BytesPhrase( qint64 a_bytes, const QString& a_unit, const QList<NamedCount>& a_places )
{
    return SumPhrase( QString::number( a_bytes ) + QLatin1Char( ' ' ) + a_unit, a_places );
}

QString LineEndsPhrase( const QList<NamedCount>& a_kinds )
{
    const QList<NamedCount> kinds = Present( a_kinds );
    if ( kinds.isEmpty() )
        return QStringLiteral( "no line endings" );
    if ( kinds.size() == 1 )
        return kinds.first().m_name + QStringLiteral( " line endings" );
    return QStringLiteral( "mixed line endings (%1)" ).arg( JoinedCounts( kinds ) );
}

QString EvidencePhrase( PimContactEvidence a_evidence )
{
    switch ( a_evidence )
    {
    case PimContactEvidence::None:
        return QStringLiteral( "all ASCII" );
    case PimContactEvidence::ByteOrderMark:
        return QStringLiteral( "byte order mark" );
    case PimContactEvidence::NulPattern:
        return QStringLiteral( "by its NUL bytes" );
    case PimContactEvidence::ValidUtf8:
        return QStringLiteral( "valid" );
    case PimContactEvidence::CharsetNamed:
        return QStringLiteral( "named by CHARSET" );
    case PimContactEvidence::Default:
        return QStringLiteral( "assumed" );
    }
    return QString();
}

QString VersionsPhrase( const QList<NamedCount>& a_versions )
{
    const QList<NamedCount> versions = Present( a_versions );
    if ( versions.isEmpty() )
        return QStringLiteral( "no version" );
    if ( versions.size() == 1 )
        return QStringLiteral( "version " ) + versions.first().m_name;
    QStringList texts;
    for ( const NamedCount& version : versions )
        texts << QStringLiteral( "%1 (%2)" ).arg( version.m_name, Cards( version.m_count ) );
    return QStringLiteral( "versions " ) + texts.join( s_kBetween );
}

QStringList FindingPhrases( QList<FindingCount> a_codes )
{
    std::stable_sort( a_codes.begin(), a_codes.end(),
                      []( const FindingCount& a_first, const FindingCount& a_second )
                      { return a_first.m_severity > a_second.m_severity; } );
    QStringList phrases;
    for ( const FindingCount& code : a_codes )
    {
        if ( code.m_findings.m_count > 0 )
            phrases << QString::number( code.m_findings.m_count ) + QStringLiteral( u" \u00D7 " ) +
                           code.m_findings.m_name;
    }
    return phrases;
}

} // namespace PimManager::Tools
