#include "Outputs/ReportText.h"

#include "Outputs/ReportPhrases.h"
#include "Terminal/Wording.h"

#include <QStringList>

namespace PimManager::Tools
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

bool HoldsCards( const PimContactReport& a_report )
{
    return a_report.FileKind() == PimContactFileKind::AddressBook;
}

void AddCardFacts( QList<ReportFact>& a_facts, const PimContactReport& a_report )
{
    a_facts << ReportFact{ QStringLiteral( "Cards" ), CardsText( a_report ) };
    const qint64 nested = a_report.CardsNested();
    if ( nested > 0 )
        a_facts << ReportFact{ QStringLiteral( "Cards inside cards" ),
                               Counted( nested, QStringLiteral( "nested card" ), QStringLiteral( "nested cards" ) ) };
}

void AddTextFacts( QList<ReportFact>& a_facts, const PimContactReport& a_report )
{
    a_facts << ReportFact{ QStringLiteral( "Line endings" ), LineEndsText( a_report ) };
    a_facts << ReportFact{ QStringLiteral( "Encoding" ), EncodingText( a_report ) };
    if ( a_report.CardsWhole() + a_report.CardsInPart() > 0 )
        a_facts << ReportFact{ QStringLiteral( "Versions" ), VersionsText( a_report ) };
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
    return isKnown ? KindText( a_kind ) : QStringLiteral( "contains no vCard" );
}

QStringList SummaryFacts( const PimContactReport& a_report, const QList<FindingCount>& a_values )
{
    QStringList texts;
    const QList<ReportFact> facts = FactsOn( a_report );
    for ( const ReportFact& fact : facts )
        texts << fact.m_text;
    return texts << FindingsText( a_report, a_values );
}

} // namespace

QList<ReportFact> FactsOn( const PimContactReport& a_report )
{
    QList<ReportFact> facts;
    const PimContactFileKind kind = a_report.FileKind();
    if ( kind == PimContactFileKind::AddressBook )
        AddCardFacts( facts, a_report );
    else if ( kind != PimContactFileKind::Empty )
        facts << ReportFact{ QStringLiteral( "File" ), KindText( kind ) };
    if ( IsText( kind ) )
        AddTextFacts( facts, a_report );
    return facts;
}

QString BytesText( const PimContactReport& a_report )
{
    using Kind = PimContactExtentKind;
    const QString unit = a_report.IsConverted() ? QStringLiteral( "bytes in UTF-8" ) : QStringLiteral( "bytes" );
    return BytesPhrase( a_report.Bytes(), unit,
                        { { a_report.Bytes( Kind::Line ), QStringLiteral( "in properties" ) },
                          { a_report.Bytes( Kind::Boundary ), QStringLiteral( "in BEGIN and END lines" ) },
                          { a_report.Bytes( Kind::Blank ), QStringLiteral( "in blank lines" ) },
                          { a_report.Bytes( Kind::Mark ), QStringLiteral( "in byte order marks" ) },
                          { a_report.Bytes( Kind::Filtered ), QStringLiteral( "in filtered properties" ) },
                          { a_report.Bytes( Kind::Outside ), QStringLiteral( "outside cards" ) },
                          { a_report.Bytes( Kind::Dropped ), QStringLiteral( "dropped" ) },
                          { a_report.Bytes( Kind::Refused ), QStringLiteral( "refused" ) } } );
}

QString FindingsText( const PimContactReport& a_report, const QList<FindingCount>& a_values )
{
    QList<FindingCount> codes;
    for ( int number = 0; number < s_kPimContactDiagnosticCodes; ++number )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( number );
        codes << FindingCount{ static_cast<int>( SeverityOf( code ) ),
                               { a_report.Findings( code ), QString( NameOf( code ) ) } };
    }
    const QStringList phrases = FindingPhrases( codes + a_values );
    return phrases.isEmpty() ? QStringLiteral( "no findings" ) : phrases.join( QStringLiteral( ", " ) );
}

QString SummaryText( const PimContactReport& a_report, bool a_isReadToEnd, const QList<FindingCount>& a_values )
{
    const bool isEmpty = a_report.FileKind() == PimContactFileKind::Empty;
    if ( isEmpty && a_isReadToEnd )
        return QStringLiteral( "is empty" );
    QStringList facts = isEmpty ? QStringList() : SummaryFacts( a_report, a_values );
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

} // namespace PimManager::Tools
