#include "ReportText.h"

#include "ReportPhrases.h"
#include "Wording.h"

#include <QStringList>

namespace PimManager::vCard::Tools
{

using namespace Contacts;

namespace
{

// What a file without cards is.
QString KindText( PimContactFileKind a_kind )
{
    switch ( a_kind )
    {
    case PimContactFileKind::Compressed:
        return QStringLiteral( "is a gzip or zip archive" );
    case PimContactFileKind::Document:
        return QStringLiteral( "is a PDF document" );
    case PimContactFileKind::Image:
        return QStringLiteral( "is an image" );
    case PimContactFileKind::Html:
        return QStringLiteral( "is an HTML page" );
    case PimContactFileKind::Text:
        return QStringLiteral( "is text without a card" );
    case PimContactFileKind::Unknown:
        return QStringLiteral( "is of an unknown kind" );
    case PimContactFileKind::Empty:
    case PimContactFileKind::AddressBook:
        break;
    }
    return QString();
}

bool IsText( PimContactFileKind a_kind )
{
    return a_kind == PimContactFileKind::AddressBook || a_kind == PimContactFileKind::Html ||
           a_kind == PimContactFileKind::Text;
}

QString CardsText( const PimContactReport& a_report )
{
    return CardsPhrase( a_report.Cards(), { { a_report.CardsWhole(), QStringLiteral( "whole" ) },
                                            { a_report.CardsInPart(), QStringLiteral( "in part" ) },
                                            { a_report.CardsRefused(), QStringLiteral( "refused" ) } } );
}

QString LineEndsText( const PimContactReport& a_report )
{
    return LineEndsPhrase( { { a_report.LineEnds( PimContactLineEnd::CrLf ), QStringLiteral( "CR LF" ) },
                             { a_report.LineEnds( PimContactLineEnd::Lf ), QStringLiteral( "LF" ) },
                             { a_report.LineEnds( PimContactLineEnd::Cr ), QStringLiteral( "CR" ) },
                             { a_report.LineEnds( PimContactLineEnd::CrCrLf ), QStringLiteral( "CR CR LF" ) } } );
}

QString EncodingText( const PimContactReport& a_report )
{
    return QStringLiteral( "%1 (%2)" )
        .arg( QString::fromLatin1( a_report.Charset() ), EvidencePhrase( a_report.Evidence() ) );
}

QString VersionsText( const PimContactReport& a_report )
{
    return VersionsPhrase( { { a_report.CardsOf( PimContactVersion::V21 ), QStringLiteral( "2.1" ) },
                             { a_report.CardsOf( PimContactVersion::V30 ), QStringLiteral( "3.0" ) },
                             { a_report.CardsOf( PimContactVersion::V40 ), QStringLiteral( "4.0" ) },
                             { a_report.CardsOf( PimContactVersion::Unknown ), QStringLiteral( "none or other" ) } } );
}

QString FindingsText( const PimContactReport& a_report )
{
    QList<FindingCount> codes;
    for ( int number = 0; number < s_kPimContactDiagnosticCodes; ++number )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( number );
        codes << FindingCount{ static_cast<int>( SeverityOf( code ) ),
                               { a_report.Findings( code ), QString( NameOf( code ) ) } };
    }
    const QStringList phrases = FindingPhrases( codes );
    return phrases.isEmpty() ? QStringLiteral( "no findings" ) : phrases.join( QStringLiteral( ", " ) );
}

bool HoldsCards( const PimContactReport& a_report )
{
    return a_report.FileKind() == PimContactFileKind::AddressBook;
}

QStringList FactsOnCards( const PimContactReport& a_report )
{
    QStringList facts( CardsText( a_report ) );
    if ( a_report.CardsNested() > 0 )
        facts << Counted( a_report.CardsNested(), QStringLiteral( "nested card" ), QStringLiteral( "nested cards" ) );
    return facts;
}

QStringList FactsOnText( const PimContactReport& a_report )
{
    QStringList facts = { LineEndsText( a_report ), EncodingText( a_report ) };
    if ( a_report.CardsWhole() + a_report.CardsInPart() > 0 )
        facts << VersionsText( a_report );
    return facts;
}

QStringList Facts( const PimContactReport& a_report )
{
    const PimContactFileKind kind = a_report.FileKind();
    QStringList facts = HoldsCards( a_report ) ? FactsOnCards( a_report ) : QStringList( KindText( kind ) );
    if ( IsText( kind ) )
        facts << FactsOnText( a_report );
    return facts << FindingsText( a_report );
}

QString Cards( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "card" ), QStringLiteral( "cards" ) );
}

QString Lines( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "line" ), QStringLiteral( "lines" ) );
}

// What a file is that should hold cards. Neither text nor bytes of an unknown kind say what was meant.
QString WithoutCardText( PimContactFileKind a_kind )
{
    const bool isKnown = a_kind != PimContactFileKind::Text && a_kind != PimContactFileKind::Unknown;
    return isKnown ? KindText( a_kind ) : QStringLiteral( "holds no vCard" );
}

} // namespace

QString SummaryText( const PimContactReport& a_report, bool a_isReadToEnd )
{
    const bool isEmpty = a_report.FileKind() == PimContactFileKind::Empty;
    if ( isEmpty && a_isReadToEnd )
        return QStringLiteral( "is empty" );
    QStringList facts = isEmpty ? QStringList() : Facts( a_report );
    if ( !a_isReadToEnd )
        facts << QStringLiteral( "not read to its end" );
    return facts.join( QStringLiteral( "; " ) );
}

QString LossesText( const PimContactReport& a_report, bool a_isReadToEnd )
{
    QStringList losses;
    if ( a_report.CardsRefused() > 0 )
        losses << Cards( a_report.CardsRefused() ) + QStringLiteral( " refused" );
    const qint64 dropped = a_report.Findings( PimContactSeverity::Dropped );
    if ( dropped > 0 )
        losses << Lines( dropped ) + QStringLiteral( " dropped" );
    if ( losses.isEmpty() && StatusOf( a_report, a_isReadToEnd ) != ExitStatus::AllGiven )
        losses << WithoutCardText( a_report.FileKind() );
    return losses.join( QStringLiteral( ", " ) );
}

ExitStatus StatusOf( const PimContactReport& a_report, bool a_isReadToEnd )
{
    const bool isSomethingMissing =
        a_report.Findings( PimContactSeverity::Dropped ) + a_report.Findings( PimContactSeverity::Refused ) > 0;
    const bool holdsNoCard =
        a_isReadToEnd && !HoldsCards( a_report ) && a_report.FileKind() != PimContactFileKind::Empty;
    return isSomethingMissing || holdsNoCard ? ExitStatus::SomeRefused : ExitStatus::AllGiven;
}

} // namespace PimManager::vCard::Tools
