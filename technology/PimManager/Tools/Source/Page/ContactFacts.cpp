#include "Page/ContactFacts.h"

#include "Page/FieldWords.h"
#include "Page/ShownTexts.h"

#include <QMetaEnum>

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

using Facts = std::vector<ContactFact>;

const QString s_kComma = QStringLiteral( ", " );

QString Joined( QStringList a_texts )
{
    a_texts.removeAll( QString() );
    return a_texts.join( s_kComma );
}

// What the label does not say.
QStringList OtherUses( const PimContactField& a_field, const QString& a_label )
{
    QStringList uses = UsesOf( a_field );
    const auto isLabel = [&a_label]( const QString& a_use )
    { return a_use.compare( a_label, Qt::CaseInsensitive ) == 0; };
    uses.erase( std::remove_if( uses.begin(), uses.end(), isLabel ), uses.end() );
    return uses;
}

void Add( Facts& a_facts, const QString& a_label, const QString& a_text, const PimContactField& a_field,
          const QString& a_alsoSaid = QString(), bool a_isWhole = false )
{
    if ( !a_text.isEmpty() )
        a_facts.push_back( { a_label, a_text, a_field, OtherUses( a_field, a_label ), a_alsoSaid, a_isWhole } );
}

void AddName( Facts& a_facts, const PimContact& a_contact, const QString& a_name )
{
    const PimContactName name = a_contact.Name();
    if ( !ShownTexts::IsSaidIn( name.Text(), a_name ) )
        Add( a_facts, QStringLiteral( "Full name" ), name.Text(), name );
    const QString phonetic = QStringList( { name.PhoneticGiven(), name.PhoneticMiddle(), name.PhoneticFamily() } )
                                 .join( QLatin1Char( ' ' ) );
    Add( a_facts, QStringLiteral( "Pronounced" ), phonetic.simplified(), name );
    Add( a_facts, QStringLiteral( "Maiden name" ), name.MaidenName(), name );
}

void AddOtherNames( Facts& a_facts, const PimContact& a_contact, const QString& a_name )
{
    const PimContactList<PimContactText> names = a_contact.FormattedNames();
    for ( const PimContactText& name : names )
    {
        if ( name.Text().simplified() != a_name )
            Add( a_facts, QStringLiteral( "Also called" ), name.Text(), name );
    }
}

QString TextOf( const PimContactText& a_field )
{
    const QString level = a_field.Level();
    return level.isEmpty() ? a_field.Text() : QStringLiteral( "%1 (%2)" ).arg( a_field.Text(), level );
}

// The elements of a line are one fact.
void AddTexts( Facts& a_facts, const QString& a_label, const PimContactList<PimContactText>& a_fields )
{
    int line = 0;
    for ( const PimContactText& field : a_fields )
    {
        if ( line != 0 && field.Id() == line )
            a_facts.back().m_text += s_kComma + TextOf( field );
        else
            Add( a_facts, a_label, TextOf( field ), field );
        line = field.Id();
    }
}

QString EventLabel( const PimContactEvent& a_event )
{
    switch ( a_event.EventKind() )
    {
    case PimContactEvent::Kind::Birth:
        return QStringLiteral( "Birthday" );
    case PimContactEvent::Kind::Anniversary:
        return QStringLiteral( "Anniversary" );
    case PimContactEvent::Kind::Death:
        return QStringLiteral( "Died" );
    case PimContactEvent::Kind::Other:
        break;
    }
    const QString label = ShownLabel( a_event );
    return label.isEmpty() ? QStringLiteral( "Date" ) : label;
}

void AddEvents( Facts& a_facts, const PimContact& a_contact )
{
    const PimContactList<PimContactEvent> events = a_contact.Events();
    for ( const PimContactEvent& event : events )
    {
        Add( a_facts, EventLabel( event ), Joined( { DateWords( event.Date() ), event.Place() } ), event, QString(),
             !event.Date().IsText() );
    }
}

// Such as "Domestic partner" for DomesticPartner.
QString RelationWords( PimContactRelationKinds a_kinds )
{
    const QByteArray keys = QMetaEnum::fromType<PimContactRelationKinds>().valueToKeys( static_cast<int>( a_kinds ) );
    QString words;
    for ( const char character : keys )
    {
        const QChar letter = QLatin1Char( character );
        if ( letter.isUpper() && !words.isEmpty() && words.back().isLower() )
            words += QLatin1Char( ' ' );
        words += letter.toLower();
    }
    return words.replace( QLatin1String( "co " ), QLatin1String( "co-" ) ).replace( QLatin1Char( '|' ), s_kComma );
}

QString RelationLabel( const PimContactRelation& a_relation )
{
    QString words = RelationWords( a_relation.Kinds() );
    if ( words.isEmpty() )
        return QStringLiteral( "Related" );
    words[0] = words[0].toUpper();
    return words;
}

void AddRelations( Facts& a_facts, const PimContact& a_contact )
{
    const PimContactList<PimContactRelation> relations = a_contact.Relations();
    for ( const PimContactRelation& relation : relations )
    {
        const QString text = relation.Text().isEmpty() ? relation.Address() : relation.Text();
        Add( a_facts, RelationLabel( relation ), text, relation );
    }
}

QString SexWords( PimContactGender::Sex a_sex )
{
    switch ( a_sex )
    {
    case PimContactGender::Sex::Male:
        return QStringLiteral( "male" );
    case PimContactGender::Sex::Female:
        return QStringLiteral( "female" );
    case PimContactGender::Sex::Other:
        return QStringLiteral( "other" );
    case PimContactGender::Sex::NotApplicable:
        return QStringLiteral( "not applicable" );
    case PimContactGender::Sex::Unknown:
        return QStringLiteral( "unknown" );
    case PimContactGender::Sex::Open:
        break;
    }
    return QString();
}

void AddGender( Facts& a_facts, const PimContact& a_contact )
{
    const std::optional<PimContactGender> gender = a_contact.Gender();
    if ( !gender )
        return;
    const QString sex = SexWords( gender->SexOf() );
    const QString letter = sex == QLatin1String( "not applicable" ) ? QStringLiteral( "n" ) : sex.left( 1 );
    Add( a_facts, QStringLiteral( "Gender" ), Joined( { sex, gender->Text() } ), *gender, letter );
}

void AddLanguages( Facts& a_facts, const PimContact& a_contact )
{
    const PimContactList<PimContactText> languages = a_contact.SpokenLanguages();
    for ( const PimContactText& language : languages )
    {
        const QString code = language.Text();
        Add( a_facts, QStringLiteral( "Speaks" ), LanguageWords( code ), language, code );
    }
}

} // namespace

std::vector<ContactFact> FactsOf( const PimContact& a_contact )
{
    const QString name = a_contact.DisplayName();
    Facts facts;
    AddName( facts, a_contact, name );
    AddOtherNames( facts, a_contact, name );
    AddTexts( facts, QStringLiteral( "Nickname" ), a_contact.Nicknames() );
    AddEvents( facts, a_contact );
    AddRelations( facts, a_contact );
    AddTexts( facts, QStringLiteral( "Pronouns" ), a_contact.Pronouns() );
    AddGender( facts, a_contact );
    AddLanguages( facts, a_contact );
    AddTexts( facts, QStringLiteral( "Categories" ), a_contact.Categories() );
    AddTexts( facts, QStringLiteral( "Expertise" ), a_contact.Expertise() );
    AddTexts( facts, QStringLiteral( "Hobby" ), a_contact.Hobbies() );
    AddTexts( facts, QStringLiteral( "Interest" ), a_contact.Interests() );
    return facts;
}

} // namespace PimManager::Tools
