#include "SupportAnswer.h"

#include "SupportReadings.h"

#include "PimVCardParser.h"
#include "PimVCardTestLog.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactVCard.h>

#include <QStringList>

#include <algorithm>
#include <memory>
#include <vector>

namespace PimManager::vCard::Documents
{

using namespace Contacts;

namespace
{

using Cards = std::vector<std::unique_ptr<PimVCard>>;

QString ShownProperty( const QString& a_group, const QString& a_name, const QStringList& a_parameters,
                       const QStringList& a_values )
{
    QString text = a_group.isEmpty() ? a_name : a_group + QLatin1Char( '.' ) + a_name;
    for ( const QString& parameter : a_parameters )
        text += QLatin1Char( '[' ) + parameter + QLatin1Char( ']' );
    for ( const QString& value : a_values )
        text += QLatin1Char( '<' ) + value + QLatin1Char( '>' );
    return QLatin1Char( '`' ) + Shown( text ) + QLatin1Char( '`' );
}

QString ShownProperty( const PimVCardProperty& a_property )
{
    QStringList parameters;
    const QList<PimVCardParameter*> ofProperty = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : ofProperty )
    {
        const QString name = parameter->GetName().isEmpty() ? QString() : parameter->GetName() + QLatin1Char( '=' );
        parameters << name + parameter->GetValue();
    }
    return ShownProperty( a_property.GetGroupID(), a_property.GetName(), parameters,
                          QStringList( a_property.GetValues() ) );
}

// White space in BASE64 is ignored.
QStringList ValuesOf( const PimContactLine& a_line )
{
    QStringList values = a_line.Values();
    if ( a_line.Encoding() == PimContactEncoding::Base64 && a_line.Kind() == PimContactValueKind::Binary )
        values.replaceInStrings( QStringLiteral( " " ), QString() );
    return values;
}

QStringList ShownProperties( const PimContactCard& a_card );

QString ShownProperty( const PimContactLine& a_line )
{
    QStringList parameters;
    const QList<QByteArray> ofLine = a_line.Parameters();
    for ( const QByteArray& parameter : ofLine )
        parameters << QString::fromUtf8( parameter );
    const QString text = ShownProperty( QString::fromUtf8( a_line.Group() ), QString::fromUtf8( a_line.Name() ),
                                        parameters, ValuesOf( a_line ) );
    if ( a_line.NestedCard().IsNull() )
        return text;
    return text + QLatin1String( " { " ) + ShownProperties( a_line.NestedCard() ).join( QLatin1Char( ' ' ) ) +
           QLatin1String( " }" );
}

QStringList ShownProperties( const PimContactCard& a_card )
{
    QStringList properties;
    for ( const PimContactLine& line : a_card )
        properties << ShownProperty( line );
    return properties;
}

QStringList ShownProperties( const std::unique_ptr<PimVCard>& a_card )
{
    QStringList properties;
    const QList<PimVCardProperty*> ofCard = a_card->GetProperties();
    for ( const PimVCardProperty* property : ofCard )
        properties << ShownProperty( *property );
    return properties;
}

template <typename CardsOfAReader>
QString ShownCards( const CardsOfAReader& a_cards, const SupportExample& a_example )
{
    QStringList cards;
    for ( const auto& card : a_cards )
    {
        // The document does not show the line VERSION.
        const QStringList properties = ShownProperties( card ).mid( a_example.m_isWrapped ? 1 : 0 );
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

QString ComponentWord( const Cards& a_cards, const PimContactBook& a_book, bool a_isSame )
{
    if ( a_cards.empty() )
        return QStringLiteral( "refused" );
    const bool isParsed =
        std::all_of( a_book.Cards().begin(), a_book.Cards().end(),
                     []( const PimContactCard& a_card ) { return PimContactVCard::FromCard( a_card ).IsParsed(); } );
    if ( !a_isSame && !isParsed )
        return QStringLiteral( "changed" );
    const bool isDecoded =
        std::any_of( a_book.Cards().begin(), a_book.Cards().end(),
                     []( const PimContactCard& a_card ) { return !DecodedReadings( a_card ).isEmpty(); } );
    return a_isSame && !isDecoded ? QStringLiteral( "accepted" ) : QStringLiteral( "as written" );
}

QString ContactsWord( const PimContactReport& a_report, bool a_isSame )
{
    if ( a_report.Cards() == 0 )
        return QStringLiteral( "no card" );
    for ( const PimContactSeverity severity :
          { PimContactSeverity::Refused, PimContactSeverity::Dropped, PimContactSeverity::Repaired } )
    {
        if ( a_report.Findings( severity ) > 0 )
            return NameOf( severity );
    }
    return a_isSame ? QStringLiteral( "same" ) : QStringLiteral( "delivered" );
}

QString FindingsText( const PimContactReport& a_report )
{
    QStringList words;
    const QList<PimContactDiagnostic> diagnostics = a_report.Diagnostics();
    for ( const PimContactDiagnostic& diagnostic : diagnostics )
        words << QLatin1Char( '`' ) + NameOf( diagnostic.Code() ) + QLatin1Char( '`' );
    words.removeDuplicates();
    return words.isEmpty() ? QString() : QStringLiteral( " (%1)" ).arg( words.join( QStringLiteral( ", " ) ) );
}

QStringList ReadingsOf( const PimContactBook& a_book )
{
    QStringList readings;
    for ( const PimContactCard& card : a_book.Cards() )
        readings << AllReadings( card );
    readings.removeDuplicates();
    return readings;
}

QString Joined( const QString& a_first, const QString& a_sign, const QString& a_second )
{
    return a_second.isEmpty() ? a_first : a_first + a_sign + a_second;
}

} // namespace

SupportAnswer AnswerTo( const SupportExample& a_example )
{
    const Cards cards = ReadByComponent( a_example.m_text );
    const PimContactBook book = PimContactBook::FromBytes( a_example.m_text );
    const QString shown = ShownCards( cards, a_example );
    const QString shownByContacts = ShownCards( book.Cards(), a_example );
    const bool isSame = shown == shownByContacts;

    const QString colon = QStringLiteral( ": " );
    const QString word = ContactsWord( book.Report(), isSame ) + FindingsText( book.Report() );
    return { Joined( ComponentWord( cards, book, isSame ), colon, shown ),
             Joined( Joined( word, colon, isSame ? QString() : shownByContacts ), QStringLiteral( "; " ),
                     ReadingsOf( book ).join( QStringLiteral( ", " ) ) ) };
}

} // namespace PimManager::vCard::Documents
