#include "Json/DeferredMembers.h"

#include "Contact/FieldData.h"
#include "Text/Bytes.h"
#include "Json/FieldNames.h"
#include "Json/JsonObject.h"
#include "Json/KindJson.h"
#include "Json/MemberTexts.h"

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

void Write( const QString& a_text, JsonText& a_json )
{
    const QByteArray text = a_text.toUtf8();
    a_json.String( ViewOf( text ) );
}

void AddText( std::string_view a_name, const QString& a_text, JsonObject& a_object )
{
    if ( !a_text.isEmpty() )
        Write( a_text, a_object.Key( a_name ) );
}

/// \param a_begin the name and a bracket.
void AddTexts( std::string_view a_begin, const QStringList& a_texts, JsonObject& a_object )
{
    if ( a_texts.isEmpty() )
        return;
    JsonText& json = a_object.Key( a_begin );
    std::string_view before;
    for ( const QString& text : a_texts )
    {
        json.Raw( before );
        Write( text, json );
        before = ",";
    }
    json.Raw( "]" );
}

void AddPosition( const PimContactPosition& a_position, JsonObject& a_object )
{
    const auto add = [&a_object]( std::string_view a_name, double a_degrees )
    {
        const QByteArray number = QByteArray::number( a_degrees, 'g', QLocale::FloatingPointShortest );
        a_object.Key( a_name ).Raw( ViewOf( number ) );
    };
    add( R"("latitude":)", a_position.m_latitude );
    add( R"("longitude":)", a_position.m_longitude );
}

/// Adds the members that all fields have.
template <class Kinds>
void AddCommon( const PimContactField& a_field, KindSet a_set, Kinds a_kinds, JsonObject& a_object )
{
    if ( static_cast<quint32>( a_kinds ) != 0 )
    {
        JsonText kinds;
        WriteKinds( a_set, static_cast<quint32>( a_kinds ), kinds );
        a_object.Members( kinds.From( 0 ) );
    }
    AddText( R"("label":)", a_field.Label(), a_object );
    if ( a_field.Preference() )
        a_object.Key( R"("preference":)" ).Number( *a_field.Preference() );
    AddText( R"("language":)", a_field.Language(), a_object );
    AddText( R"("altId":)", PimContactFieldPrivate::Of( a_field ).Extras().m_altId, a_object );
}

void AddField( const PimContactText& a_text, JsonObject& a_object )
{
    AddText( R"("text":)", a_text.Text(), a_object );
    AddText( R"("level":)", a_text.Level(), a_object );
    AddCommon( a_text, KindSet::Kinds, a_text.Kinds(), a_object );
}

void AddField( const PimContactAddress& a_address, JsonObject& a_object )
{
    for ( int part = 0; part < s_kPimContactAddressParts; ++part )
        AddTexts( s_kAddressComponents[static_cast<size_t>( part )],
                  a_address.Parts( static_cast<PimContactAddressPart>( part ) ), a_object );
    AddText( R"("deliveryText":)", a_address.DeliveryText(), a_object );
    AddText( R"("countryCode":)", a_address.CountryCode(), a_object );
    if ( a_address.Position() )
        AddPosition( *a_address.Position(), a_object );
    AddText( R"("timeZone":)", a_address.TimeZone(), a_object );
    AddCommon( a_address, KindSet::Address, a_address.Kinds(), a_object );
}

void AddField( const PimContactMessenger& a_messenger, JsonObject& a_object )
{
    AddText( R"("service":)", a_messenger.Service(), a_object );
    AddText( R"("handle":)", a_messenger.Handle(), a_object );
    AddText( R"("address":)", a_messenger.Address(), a_object );
    if ( a_messenger.IsSocialProfile() )
        a_object.Key( R"("socialProfile":)" ).Raw( "true" );
    AddCommon( a_messenger, KindSet::Kinds, a_messenger.Kinds(), a_object );
}

std::string_view KindOf( PimContactEvent::Kind a_kind )
{
    switch ( a_kind )
    {
    case PimContactEvent::Kind::Birth:
        return R"("birth")";
    case PimContactEvent::Kind::Anniversary:
        return R"("anniversary")";
    case PimContactEvent::Kind::Death:
        return R"("death")";
    default:
        return R"("other")";
    }
}

void AddField( const PimContactEvent& a_event, JsonObject& a_object )
{
    a_object.Key( R"("kind":)" ).Raw( KindOf( a_event.EventKind() ) );
    AddText( a_event.Date().IsText() ? R"("text":)" : R"("date":)", a_event.Date().ToString(), a_object );
    AddText( R"("place":)", a_event.Place(), a_object );
    AddText( R"("calendar":)", a_event.Calendar(), a_object );
    AddCommon( a_event, KindSet::None, 0, a_object );
}

void AddField( const PimContactOrganisation& a_organisation, JsonObject& a_object )
{
    AddText( R"("name":)", a_organisation.Name(), a_object );
    AddTexts( R"("units":[)", a_organisation.Units(), a_object );
    AddTexts( R"("sortAs":[)", a_organisation.SortAs(), a_object );
    AddCommon( a_organisation, KindSet::Kinds, a_organisation.Kinds(), a_object );
}

void AddField( const PimContactRelation& a_relation, JsonObject& a_object )
{
    AddText( R"("text":)", a_relation.Text(), a_object );
    AddText( R"("address":)", a_relation.Address(), a_object );
    AddCommon( a_relation, KindSet::Relation, a_relation.Kinds(), a_object );
}

/// \return the fields in the order of the card, and those in other languages with them.
template <class Field>
std::vector<Field> AllOf( const PimContactList<Field>& a_fields )
{
    std::vector<Field> all;
    for ( const Field& field : a_fields )
    {
        const PimContactList<Field> alternatives = field.Alternatives();
        all.insert( all.end(), alternatives.begin(), alternatives.end() );
    }
    std::stable_sort( all.begin(), all.end(),
                      []( const Field& a_first, const Field& a_second ) { return a_first.Id() < a_second.Id(); } );
    return all;
}

template <class Field>
void WriteFields( const PimContactList<Field>& a_fields, JsonText& a_json )
{
    std::string_view before;
    for ( const Field& field : AllOf( a_fields ) )
    {
        a_json.Raw( before );
        JsonObject object( a_json );
        AddField( field, object );
        before = ",";
    }
}

void WriteText( const QString& a_text, JsonText& a_json )
{
    if ( !a_text.isEmpty() )
        Write( a_text, a_json );
}

void WriteName( const PimContactName& a_name, JsonText& a_json )
{
    JsonObject object( a_json );
    for ( int part = 0; part < s_kPimContactNameParts; ++part )
        AddTexts( s_kNameComponents[static_cast<size_t>( part )],
                  a_name.Parts( static_cast<PimContactNamePart>( part ) ), object );
    AddText( R"("phoneticFamily":)", a_name.PhoneticFamily(), object );
    AddText( R"("phoneticGiven":)", a_name.PhoneticGiven(), object );
    AddText( R"("phoneticMiddle":)", a_name.PhoneticMiddle(), object );
    AddText( R"("maidenName":)", a_name.MaidenName(), object );
    AddTexts( R"("sortAs":[)", a_name.SortAs(), object );
    AddCommon( a_name, KindSet::None, 0, object );
}

void WriteSortName( const PimContact& a_contact, JsonText& a_json )
{
    const QString name = a_contact.SortName();
    if ( name != a_contact.DisplayName() )
        WriteText( name, a_json );
}

// One FN is the name of the contact.
void WriteFormattedNames( const PimContactList<PimContactText>& a_names, JsonText& a_json )
{
    if ( AllOf( a_names ).size() > 1 )
        WriteFields( a_names, a_json );
}

void WritePosition( const std::optional<PimContactPosition>& a_position, JsonText& a_json )
{
    if ( !a_position )
        return;
    JsonObject object( a_json );
    AddPosition( *a_position, object );
}

std::string_view SexOf( PimContactGender::Sex a_sex )
{
    switch ( a_sex )
    {
    case PimContactGender::Sex::Male:
        return "male";
    case PimContactGender::Sex::Female:
        return "female";
    case PimContactGender::Sex::Other:
        return "other";
    case PimContactGender::Sex::NotApplicable:
        return "not applicable";
    case PimContactGender::Sex::Unknown:
        return "unknown";
    default:
        return {};
    }
}

void WriteGender( const std::optional<PimContactGender>& a_gender, JsonText& a_json )
{
    if ( !a_gender )
        return;
    JsonObject object( a_json );
    object.Text( R"("sex":)", SexOf( a_gender->SexOf() ) );
    AddText( R"("text":)", a_gender->Text(), object );
}

void WriteClientPidMap( const QList<QPair<int, QString>>& a_map, JsonText& a_json )
{
    std::string_view before;
    for ( const QPair<int, QString>& client : a_map )
    {
        a_json.Raw( before );
        JsonObject object( a_json );
        object.Key( R"("number":)" ).Number( client.first );
        AddText( R"("uri":)", client.second, object );
        before = ",";
    }
}

void WriteOther( ContactMember a_member, const PimContact& a_contact, JsonText& a_json )
{
    switch ( a_member )
    {
    case ContactMember::Position:
        return WritePosition( a_contact.Position(), a_json );
    case ContactMember::TimeZone:
        return WriteText( a_contact.TimeZone(), a_json );
    case ContactMember::Kind:
        return WriteText( a_contact.Kind(), a_json );
    case ContactMember::Uid:
        return WriteText( a_contact.Uid(), a_json );
    case ContactMember::Revision:
        return WriteText( a_contact.Revision().ToString(), a_json );
    case ContactMember::Created:
        return WriteText( a_contact.Created().ToString(), a_json );
    case ContactMember::CallTime:
        return WriteText( a_contact.CallTime().ToString(), a_json );
    case ContactMember::Gender:
        return WriteGender( a_contact.Gender(), a_json );
    case ContactMember::DefaultLanguage:
        return WriteText( a_contact.DefaultLanguage(), a_json );
    case ContactMember::ClientPidMap:
        return WriteClientPidMap( a_contact.ClientPidMap(), a_json );
    case ContactMember::Classification:
        return WriteText( a_contact.Classification(), a_json );
    case ContactMember::Mailer:
        return WriteText( a_contact.Mailer(), a_json );
    case ContactMember::ProductId:
        return WriteText( a_contact.ProductId(), a_json );
    default:
        return;
    }
}

/// The lists of texts.
PimContactList<PimContactText> TextsOf( ContactMember a_member, const PimContact& a_contact )
{
    switch ( a_member )
    {
    case ContactMember::Nicknames:
        return a_contact.Nicknames();
    case ContactMember::Urls:
        return a_contact.Urls();
    case ContactMember::ContactUris:
        return a_contact.ContactUris();
    case ContactMember::SpokenLanguages:
        return a_contact.SpokenLanguages();
    case ContactMember::Titles:
        return a_contact.Titles();
    case ContactMember::Roles:
        return a_contact.Roles();
    case ContactMember::Expertise:
        return a_contact.Expertise();
    case ContactMember::Hobbies:
        return a_contact.Hobbies();
    case ContactMember::Interests:
        return a_contact.Interests();
    case ContactMember::OrganisationDirectories:
        return a_contact.OrganisationDirectories();
    case ContactMember::Members:
        return a_contact.Members();
    case ContactMember::Notes:
        return a_contact.Notes();
    case ContactMember::Categories:
        return a_contact.Categories();
    case ContactMember::GrammaticalGenders:
        return a_contact.GrammaticalGenders();
    case ContactMember::Pronouns:
        return a_contact.Pronouns();
    case ContactMember::CalendarUris:
        return a_contact.CalendarUris();
    case ContactMember::CalendarAddresses:
        return a_contact.CalendarAddresses();
    case ContactMember::FreeBusyUris:
        return a_contact.FreeBusyUris();
    case ContactMember::Sources:
        return a_contact.Sources();
    case ContactMember::Xml:
        return a_contact.Xml();
    default:
        return {};
    }
}

void WriteValue( ContactMember a_member, const PimContact& a_contact, JsonText& a_json )
{
    switch ( a_member )
    {
    case ContactMember::NameParts:
        return WriteName( a_contact.Name(), a_json );
    case ContactMember::SortName:
        return WriteSortName( a_contact, a_json );
    case ContactMember::FormattedNames:
        return WriteFormattedNames( a_contact.FormattedNames(), a_json );
    case ContactMember::Addresses:
        return WriteFields( a_contact.Addresses(), a_json );
    case ContactMember::Messengers:
        return WriteFields( a_contact.Messengers(), a_json );
    case ContactMember::Events:
        return WriteFields( a_contact.Events(), a_json );
    case ContactMember::Organisations:
        return WriteFields( a_contact.Organisations(), a_json );
    case ContactMember::Relations:
        return WriteFields( a_contact.Relations(), a_json );
    default:
        WriteFields( TextsOf( a_member, a_contact ), a_json );
        return WriteOther( a_member, a_contact, a_json );
    }
}

} // namespace

void WriteDeferred( ContactMember a_member, const PimContact& a_contact, JsonText& a_json )
{
    JsonText value;
    WriteValue( a_member, a_contact, value );
    const std::string_view text = value.From( 0 );
    if ( !text.empty() && text != "{}" )
        WriteMember( a_member, text, a_json );
}

} // namespace PimManager::Contacts
