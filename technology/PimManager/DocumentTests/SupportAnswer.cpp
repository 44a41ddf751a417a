#include "SupportAnswer.h"

#include "SupportReadings.h"

#include "PimVCardImporter.h"
#include "PimVCardParser.h"
#include "PimVCardTestLog.h"

#include <QStringList>

#include <algorithm>
#include <memory>
#include <vector>

namespace PimManager::vCard::Documents
{

using namespace vCardImport;

namespace
{

using Properties = QList<PimVCardProperty*>;
using Cards = std::vector<std::unique_ptr<PimVCard>>;

Properties ExampleProperties( const PimVCard& a_card, const SupportExample& a_example )
{
    // The line VERSION that the document does not show.
    return a_card.GetProperties().mid( a_example.m_isWrapped ? 1 : 0 );
}

QString Shown( const PimVCardProperty& a_property )
{
    QString text = a_property.GetGroupID();
    if ( !text.isEmpty() )
        text += QLatin1Char( '.' );
    text += a_property.GetName();
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        const QString name = parameter->GetName().isEmpty() ? QString() : parameter->GetName() + QLatin1Char( '=' );
        text += QLatin1Char( '[' ) + name + parameter->GetValue() + QLatin1Char( ']' );
    }
    const QList<QString> values = a_property.GetValues();
    for ( const QString& value : values )
        text += QLatin1Char( '<' ) + value + QLatin1Char( '>' );
    return QLatin1Char( '`' ) + Documents::Shown( text ) + QLatin1Char( '`' );
}

QString Shown( const Cards& a_cards, const SupportExample& a_example )
{
    QStringList cards;
    for ( const std::unique_ptr<PimVCard>& card : a_cards )
    {
        QStringList properties;
        const Properties ofCard = ExampleProperties( *card, a_example );
        for ( const PimVCardProperty* property : ofCard )
            properties << Shown( *property );
        cards << ( properties.isEmpty() ? QStringLiteral( "no property" ) : properties.join( QLatin1Char( ' ' ) ) );
    }
    return cards.join( QStringLiteral( " / " ) );
}

Cards ReadByComponent( const QByteArray& a_text )
{
    const LogCapture quiet;
    Cards cards;
    const std::unique_ptr<QList<PimVCard*>> list( PimVCardParser( a_text ).ParseVCards() );
    for ( PimVCard* card : *list )
        cards.emplace_back( card );
    return cards;
}

bool IsEncoded( const PimVCard& a_card )
{
    const Properties properties = a_card.GetProperties();
    return std::any_of( properties.begin(), properties.end(),
                        []( const PimVCardProperty* a_property )
                        { return !DecodedReadings( *a_property ).isEmpty(); } );
}

QString ComponentWord( const Cards& a_cards, bool a_isSame )
{
    if ( a_cards.empty() )
        return QStringLiteral( "refused" );
    if ( !a_isSame )
        return QStringLiteral( "changed" );
    const bool isAsWritten =
        std::any_of( a_cards.begin(), a_cards.end(),
                     []( const std::unique_ptr<PimVCard>& a_card ) { return IsEncoded( *a_card ); } );
    return isAsWritten ? QStringLiteral( "as written" ) : QStringLiteral( "accepted" );
}

QString ImportWord( const PimVCardImportAccount& a_account, bool a_isSame )
{
    if ( a_account.m_beginLines == 0 )
        return QStringLiteral( "no card" );
    if ( a_account.Findings( PimVCardSeverity::Refused ) > 0 )
        return QStringLiteral( "refused" );
    if ( a_account.Findings( PimVCardSeverity::Dropped ) > 0 )
        return QStringLiteral( "dropped" );
    if ( a_account.Findings( PimVCardSeverity::Repaired ) > 0 )
        return QStringLiteral( "mended" );
    return a_isSame ? QStringLiteral( "same" ) : QStringLiteral( "delivered" );
}

QString FindingsText( const PimVCardImportAccount& a_account )
{
    QStringList words;
    for ( const PimVCardDiagnostic& diagnostic : a_account.m_diagnostics )
        words << QLatin1Char( '`' ) + NameOf( diagnostic.m_code ) + QLatin1Char( '`' );
    words.removeDuplicates();
    return words.isEmpty() ? QString() : QStringLiteral( " (%1)" ).arg( words.join( QStringLiteral( ", " ) ) );
}

QStringList ReadingsOf( const Cards& a_cards )
{
    QStringList readings;
    for ( const std::unique_ptr<PimVCard>& card : a_cards )
    {
        const Properties properties = card->GetProperties();
        for ( const PimVCardProperty* property : properties )
            readings << AllReadings( *card, *property );
    }
    readings.removeAll( QString() );
    readings.removeDuplicates();
    return readings;
}

// What import gave, and how.
struct ImportReading
{
    Cards m_cards;
    PimVCardImportAccount m_account;
};

ImportReading ReadByImport( const QByteArray& a_text )
{
    PimVCardImportResult result = PimVCardImporter().Import( a_text );
    ImportReading reading;
    for ( PimVCardImportedCard& card : result.m_cards )
        reading.m_cards.push_back( std::move( card.m_card ) );
    reading.m_account = result.m_account;
    return reading;
}

QString Joined( const QString& a_first, const QString& a_sign, const QString& a_second )
{
    return a_second.isEmpty() ? a_first : a_first + a_sign + a_second;
}

} // namespace

SupportAnswer AnswerTo( const SupportExample& a_example )
{
    const Cards cards = ReadByComponent( a_example.m_text );
    const ImportReading import = ReadByImport( a_example.m_text );
    const QString shown = Shown( cards, a_example );
    const QString shownByImport = Shown( import.m_cards, a_example );
    const bool isSame = shown == shownByImport;

    const QString colon = QStringLiteral( ": " );
    const QString word = ImportWord( import.m_account, isSame ) + FindingsText( import.m_account );
    return { Joined( ComponentWord( cards, isSame ), colon, shown ),
             Joined( Joined( word, colon, isSame ? QString() : shownByImport ), QStringLiteral( "; " ),
                     ReadingsOf( import.m_cards ).join( QStringLiteral( ", " ) ) ) };
}

} // namespace PimManager::vCard::Documents
