#include "AccountText.h"

#include "Wording.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

const QString s_kBetween = QStringLiteral( ", " );

QString Cards( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "card" ), QStringLiteral( "cards" ) );
}

struct Counter
{
    qint64 m_count;
    QString m_name;
};

// Those that are not zero.
QList<Counter> Present( const QList<Counter>& a_counters )
{
    QList<Counter> present;
    for ( const Counter& counter : a_counters )
    {
        if ( counter.m_count > 0 )
            present << counter;
    }
    return present;
}

QString JoinedCounts( const QList<Counter>& a_counters )
{
    QStringList texts;
    for ( const Counter& counter : a_counters )
        texts << QString::number( counter.m_count ) + QLatin1Char( ' ' ) + counter.m_name;
    return texts.join( s_kBetween );
}

QString EvidenceText( PimVCardEvidence a_evidence )
{
    switch ( a_evidence )
    {
    case PimVCardEvidence::None:
        return QStringLiteral( "all ASCII" );
    case PimVCardEvidence::ByteOrderMark:
        return QStringLiteral( "byte order mark" );
    case PimVCardEvidence::NulPattern:
        return QStringLiteral( "by its NUL bytes" );
    case PimVCardEvidence::ValidUtf8:
        return QStringLiteral( "valid" );
    case PimVCardEvidence::CharsetNamed:
        return QStringLiteral( "named by CHARSET" );
    case PimVCardEvidence::Default:
        return QStringLiteral( "assumed" );
    }
    return QString();
}

} // namespace

QString CardsText( const PimVCardImportAccount& a_account )
{
    const QList<Counter> parts = Present( { { a_account.m_cardsWhole, QStringLiteral( "whole" ) },
                                            { a_account.m_cardsInPart, QStringLiteral( "in part" ) },
                                            { a_account.m_cardsRefused, QStringLiteral( "refused" ) },
                                            { a_account.m_cardsNested, QStringLiteral( "nested" ) } } );
    const QString cards = Cards( a_account.m_beginLines );
    return parts.isEmpty() ? cards : cards + QStringLiteral( ": " ) + JoinedCounts( parts );
}

QString LineEndsText( const PimVCardImportAccount& a_account )
{
    const QList<Counter> kinds = Present( { { a_account.m_crLfs, QStringLiteral( "CR LF" ) },
                                            { a_account.m_lfs, QStringLiteral( "LF" ) },
                                            { a_account.m_crs, QStringLiteral( "CR" ) },
                                            { a_account.m_crCrLfs, QStringLiteral( "CR CR LF" ) } } );
    if ( kinds.isEmpty() )
        return QStringLiteral( "no line ends" );
    if ( kinds.size() == 1 )
        return kinds.first().m_name + QStringLiteral( " line ends" );
    return QStringLiteral( "mixed line ends (%1)" ).arg( JoinedCounts( kinds ) );
}

QString EncodingText( const PimVCardImportAccount& a_account )
{
    QString text =
        QString::fromLatin1( a_account.m_charset ) + QStringLiteral( " (" ) + EvidenceText( a_account.m_evidence );
    if ( a_account.m_charactersReplaced > 0 )
        text += QStringLiteral( "; %1 replaced" )
                    .arg( Counted( a_account.m_charactersReplaced, QStringLiteral( "character" ),
                                   QStringLiteral( "characters" ) ) );
    return text + QLatin1Char( ')' );
}

QString VersionsText( const PimVCardImportAccount& a_account )
{
    const QList<Counter> versions = Present( { { a_account.m_version21, QStringLiteral( "2.1" ) },
                                               { a_account.m_version30, QStringLiteral( "3.0" ) },
                                               { a_account.m_version40, QStringLiteral( "4.0" ) },
                                               { a_account.m_versionOther, QStringLiteral( "none or other" ) } } );
    if ( versions.isEmpty() )
        return QStringLiteral( "no version" );
    if ( versions.size() == 1 )
        return QStringLiteral( "version " ) + versions.first().m_name;
    QStringList texts;
    for ( const Counter& version : versions )
        texts << QStringLiteral( "%1 (%2)" ).arg( version.m_name, Cards( version.m_count ) );
    return QStringLiteral( "versions " ) + texts.join( s_kBetween );
}

QStringList FindingsTexts( const PimVCardImportAccount& a_account )
{
    QStringList texts;
    for ( const PimVCardSeverity severity :
          { PimVCardSeverity::Refused, PimVCardSeverity::Dropped, PimVCardSeverity::Repaired, PimVCardSeverity::Note } )
    {
        for ( int number = 0; number < s_kDiagnosticCodes; ++number )
        {
            const auto code = static_cast<PimVCardDiagnosticCode>( number );
            const qint64 count = a_account.Findings( code );
            if ( count > 0 && SeverityOf( code ) == severity )
                texts << QString::number( count ) + QStringLiteral( u" \u00D7 " ) + QString( NameOf( code ) );
        }
    }
    return texts;
}

QString LossesText( const PimVCardImportAccount& a_account )
{
    QStringList losses;
    if ( a_account.m_cardsRefused > 0 )
        losses << Cards( a_account.m_cardsRefused ) + QStringLiteral( " refused" );
    if ( a_account.m_linesDropped > 0 )
        losses << Counted( a_account.m_linesDropped, QStringLiteral( "line" ), QStringLiteral( "lines" ) ) +
                      QStringLiteral( " dropped" );
    const qint64 lostCards = a_account.Findings( PimVCardDiagnosticCode::LostCard );
    if ( lostCards > 0 )
        losses << Cards( lostCards ) + QStringLiteral( " without BEGIN left out" );
    if ( losses.isEmpty() && StatusOf( a_account ) != ExitStatus::AllGiven )
        losses << QStringLiteral( "holds no vCard" );
    return losses.join( s_kBetween );
}

ExitStatus StatusOf( const PimVCardImportAccount& a_account )
{
    const bool isSomethingMissing = a_account.m_cardsRefused > 0 || a_account.m_linesDropped > 0 ||
                                    a_account.Findings( PimVCardDiagnosticCode::LostCard ) > 0;
    const bool holdsNoCard = a_account.m_bytes > 0 && a_account.m_beginLines == 0 && !a_account.m_isStopped;
    return isSomethingMissing || holdsNoCard ? ExitStatus::SomeRefused : ExitStatus::AllGiven;
}

} // namespace PimManager::vCard::Tools
