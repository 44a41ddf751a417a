#include "AccountText.h"

#include "ReportPhrases.h"
#include "Wording.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

QString Cards( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "card" ), QStringLiteral( "cards" ) );
}

} // namespace

QString CardsText( const PimVCardImportAccount& a_account )
{
    return CardsPhrase( a_account.m_beginLines, { { a_account.m_cardsWhole, QStringLiteral( "whole" ) },
                                                  { a_account.m_cardsInPart, QStringLiteral( "in part" ) },
                                                  { a_account.m_cardsRefused, QStringLiteral( "refused" ) },
                                                  { a_account.m_cardsNested, QStringLiteral( "nested" ) } } );
}

QString LineEndsText( const PimVCardImportAccount& a_account )
{
    return LineEndsPhrase( { { a_account.m_crLfs, QStringLiteral( "CR LF" ) },
                             { a_account.m_lfs, QStringLiteral( "LF" ) },
                             { a_account.m_crs, QStringLiteral( "CR" ) },
                             { a_account.m_crCrLfs, QStringLiteral( "CR CR LF" ) } } );
}

QString EncodingText( const PimVCardImportAccount& a_account )
{
    // The two enumerations have the same members in the same order.
    const auto evidence = static_cast<Contacts::PimContactEvidence>( a_account.m_evidence );
    QString text = QString::fromLatin1( a_account.m_charset ) + QStringLiteral( " (" ) + EvidencePhrase( evidence );
    if ( a_account.m_charactersReplaced > 0 )
        text += QStringLiteral( "; %1 replaced" )
                    .arg( Counted( a_account.m_charactersReplaced, QStringLiteral( "character" ),
                                   QStringLiteral( "characters" ) ) );
    return text + QLatin1Char( ')' );
}

QString VersionsText( const PimVCardImportAccount& a_account )
{
    return VersionsPhrase( { { a_account.m_version21, QStringLiteral( "2.1" ) },
                             { a_account.m_version30, QStringLiteral( "3.0" ) },
                             { a_account.m_version40, QStringLiteral( "4.0" ) },
                             { a_account.m_versionOther, QStringLiteral( "none or other" ) } } );
}

QStringList FindingsTexts( const PimVCardImportAccount& a_account )
{
    QList<FindingCount> codes;
    for ( int number = 0; number < s_kDiagnosticCodes; ++number )
    {
        const auto code = static_cast<PimVCardDiagnosticCode>( number );
        codes << FindingCount{ static_cast<int>( SeverityOf( code ) ),
                               { a_account.Findings( code ), QString( NameOf( code ) ) } };
    }
    return FindingPhrases( codes );
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
    return losses.join( QStringLiteral( ", " ) );
}

ExitStatus StatusOf( const PimVCardImportAccount& a_account )
{
    const bool isSomethingMissing = a_account.m_cardsRefused > 0 || a_account.m_linesDropped > 0 ||
                                    a_account.Findings( PimVCardDiagnosticCode::LostCard ) > 0;
    const bool holdsNoCard = a_account.m_bytes > 0 && a_account.m_beginLines == 0 && !a_account.m_isStopped;
    return isSomethingMissing || holdsNoCard ? ExitStatus::SomeRefused : ExitStatus::AllGiven;
}

} // namespace PimManager::vCard::Tools
