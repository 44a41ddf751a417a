#include "Strict/CardName.h"

#include "PimVCard.h"
#include "PimVCardVocabulary.h"
#include "Strict/PlainText.h"

#include <QStringList>

namespace PimManager::Tools
{

using namespace vCard;

namespace
{

// From "family;given;additional;prefixes;suffixes" to the order in which a name is spoken.
QStringList InSpokenOrder( const QStringList& a_parts )
{
    QStringList spoken;
    for ( const int part : { 3, 1, 2, 0, 4 } )
        spoken.append( a_parts.value( part ) );
    return spoken;
}

QString NameFrom( const PimVCardProperty& a_property )
{
    QStringList parts( a_property.GetValues() );
    if ( IsSameWord( a_property.GetName(), s_kN ) )
        parts = InSpokenOrder( parts );
    return parts.join( s_kSpace ).simplified();
}

QString FirstNameFrom( const PimVCard& a_card, const QString& a_propertyName )
{
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property == nullptr || !IsSameWord( property->GetName(), a_propertyName ) )
            continue;
        QString name = NameFrom( *property );
        if ( !name.isEmpty() )
            return name;
    }
    return QString();
}

} // namespace

QString CardName( const PimVCard& a_card )
{
    static const QString s_kOrg = QStringLiteral( "ORG" );
    for ( const QString& source : { s_kFn, s_kN, s_kNickname, s_kOrg, s_kEmail, s_kTel } )
    {
        QString name = FirstNameFrom( a_card, source );
        if ( !name.isEmpty() )
            return name;
    }
    return QStringLiteral( "(no name)" );
}

} // namespace PimManager::Tools
