#include "ContactFunctions.h"

#include <optional>

namespace PimManager::Contacts
{

namespace
{

bool IsSomething( bool a_isTrue )
{
    return a_isTrue;
}

bool IsSomething( PimContactVersion a_version )
{
    return a_version != PimContactVersion::Unknown;
}

bool IsSomething( const PimContactDate& a_date )
{
    return !a_date.IsNull();
}

bool IsSomething( const PimContactName& a_name )
{
    return !a_name.IsEmpty();
}

template <class Value>
bool IsSomething( const std::optional<Value>& a_value )
{
    return a_value.has_value();
}

template <class List>
bool IsSomething( const List& a_list )
{
    return !a_list.isEmpty();
}

struct ContactFunction
{
    const char* m_name;
    bool ( *m_hasResult )( const PimContact& );
};

template <auto s_kFunction>
bool HasResult( const PimContact& a_contact )
{
    return IsSomething( ( a_contact.*s_kFunction )() );
}

const std::vector<ContactFunction>& ContactFunctions()
{
    static const std::vector<ContactFunction> s_kFunctions = {
        { "Version()", HasResult<&PimContact::Version> },
        { "DisplayName()", HasResult<&PimContact::DisplayName> },
        { "SortName()", HasResult<&PimContact::SortName> },
        { "Name()", HasResult<&PimContact::Name> },
        { "FormattedNames()", HasResult<&PimContact::FormattedNames> },
        { "Nicknames()", HasResult<&PimContact::Nicknames> },
        { "Phones()", HasResult<&PimContact::Phones> },
        { "Mails()", HasResult<&PimContact::Mails> },
        { "Addresses()", HasResult<&PimContact::Addresses> },
        { "Messengers()", HasResult<&PimContact::Messengers> },
        { "Urls()", HasResult<&PimContact::Urls> },
        { "ContactUris()", HasResult<&PimContact::ContactUris> },
        { "SpokenLanguages()", HasResult<&PimContact::SpokenLanguages> },
        { "Position()", HasResult<&PimContact::Position> },
        { "TimeZone()", HasResult<&PimContact::TimeZone> },
        { "Events()", HasResult<&PimContact::Events> },
        { "Birthday()", HasResult<&PimContact::Birthday> },
        { "Anniversary()", HasResult<&PimContact::Anniversary> },
        { "DeathDate()", HasResult<&PimContact::DeathDate> },
        { "Organisations()", HasResult<&PimContact::Organisations> },
        { "Titles()", HasResult<&PimContact::Titles> },
        { "Roles()", HasResult<&PimContact::Roles> },
        { "Expertise()", HasResult<&PimContact::Expertise> },
        { "Hobbies()", HasResult<&PimContact::Hobbies> },
        { "Interests()", HasResult<&PimContact::Interests> },
        { "OrganisationDirectories()", HasResult<&PimContact::OrganisationDirectories> },
        { "Relations()", HasResult<&PimContact::Relations> },
        { "Kind()", HasResult<&PimContact::Kind> },
        { "IsGroup()", HasResult<&PimContact::IsGroup> },
        { "Members()", HasResult<&PimContact::Members> },
        { "Photos()", HasResult<&PimContact::Photos> },
        { "Logos()", HasResult<&PimContact::Logos> },
        { "Sounds()", HasResult<&PimContact::Sounds> },
        { "Keys()", HasResult<&PimContact::Keys> },
        { "Uid()", HasResult<&PimContact::Uid> },
        { "Revision()", HasResult<&PimContact::Revision> },
        { "Created()", HasResult<&PimContact::Created> },
        { "CallTime()", HasResult<&PimContact::CallTime> },
        { "Notes()", HasResult<&PimContact::Notes> },
        { "Categories()", HasResult<&PimContact::Categories> },
        { "Gender()", HasResult<&PimContact::Gender> },
        { "GrammaticalGenders()", HasResult<&PimContact::GrammaticalGenders> },
        { "Pronouns()", HasResult<&PimContact::Pronouns> },
        { "DefaultLanguage()", HasResult<&PimContact::DefaultLanguage> },
        { "CalendarUris()", HasResult<&PimContact::CalendarUris> },
        { "CalendarAddresses()", HasResult<&PimContact::CalendarAddresses> },
        { "FreeBusyUris()", HasResult<&PimContact::FreeBusyUris> },
        { "Sources()", HasResult<&PimContact::Sources> },
        { "Xml()", HasResult<&PimContact::Xml> },
        { "ClientPidMap()", HasResult<&PimContact::ClientPidMap> },
        { "Classification()", HasResult<&PimContact::Classification> },
        { "Mailer()", HasResult<&PimContact::Mailer> },
        { "ProductId()", HasResult<&PimContact::ProductId> },
        { "OtherLines()", HasResult<&PimContact::OtherLines> },
    };
    return s_kFunctions;
}

template <class Field>
struct FieldFunction
{
    const char* m_name;
    bool ( *m_isDifferent )( const Field&, const Field& );
};

template <class Field, auto s_kFunction>
bool IsDifferent( const Field& a_field, const Field& a_other )
{
    return ( a_field.*s_kFunction )() != ( a_other.*s_kFunction )();
}

// The alternatives include the field itself.
template <class Field>
bool IsAnotherNumber( const Field& a_field, const Field& a_other )
{
    return a_field.Alternatives().size() != a_other.Alternatives().size();
}

template <class Field>
using FieldFunctions = std::vector<FieldFunction<Field>>;

template <class Field>
const FieldFunctions<Field>& FunctionsOf();

template <>
const FieldFunctions<PimContactField>& FunctionsOf()
{
    static const FieldFunctions<PimContactField> s_kFunctions = {
        { "Id()", IsDifferent<PimContactField, &PimContactField::Id> },
        { "LineIds()", IsDifferent<PimContactField, &PimContactField::LineIds> },
        { "Label()", IsDifferent<PimContactField, &PimContactField::Label> },
        { "Types()", IsDifferent<PimContactField, &PimContactField::Types> },
        { "Purpose()", IsDifferent<PimContactField, &PimContactField::Purpose> },
        { "Preference()", IsDifferent<PimContactField, &PimContactField::Preference> },
        { "Language()", IsDifferent<PimContactField, &PimContactField::Language> },
        { "Parameters()", IsDifferent<PimContactField, &PimContactField::Parameters> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactPhone>& FunctionsOf()
{
    static const FieldFunctions<PimContactPhone> s_kFunctions = {
        { "Number()", IsDifferent<PimContactPhone, &PimContactPhone::Number> },
        { "Extension()", IsDifferent<PimContactPhone, &PimContactPhone::Extension> },
        { "Text()", IsDifferent<PimContactPhone, &PimContactPhone::Text> },
        { "Context()", IsDifferent<PimContactPhone, &PimContactPhone::Context> },
        { "Kinds()", IsDifferent<PimContactPhone, &PimContactPhone::Kinds> },
        { "Alternatives()", IsAnotherNumber<PimContactPhone> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactAddress>& FunctionsOf()
{
    static const FieldFunctions<PimContactAddress> s_kFunctions = {
        { "PostOfficeBox()", IsDifferent<PimContactAddress, &PimContactAddress::PostOfficeBox> },
        { "Extended()", IsDifferent<PimContactAddress, &PimContactAddress::Extended> },
        { "Street()", IsDifferent<PimContactAddress, &PimContactAddress::Street> },
        { "Locality()", IsDifferent<PimContactAddress, &PimContactAddress::Locality> },
        { "Region()", IsDifferent<PimContactAddress, &PimContactAddress::Region> },
        { "PostalCode()", IsDifferent<PimContactAddress, &PimContactAddress::PostalCode> },
        { "Country()", IsDifferent<PimContactAddress, &PimContactAddress::Country> },
        { "CountryCode()", IsDifferent<PimContactAddress, &PimContactAddress::CountryCode> },
        { "DeliveryText()", IsDifferent<PimContactAddress, &PimContactAddress::DeliveryText> },
        { "Text()", IsDifferent<PimContactAddress, &PimContactAddress::Text> },
        { "Position()", IsDifferent<PimContactAddress, &PimContactAddress::Position> },
        { "TimeZone()", IsDifferent<PimContactAddress, &PimContactAddress::TimeZone> },
        { "Kinds()", IsDifferent<PimContactAddress, &PimContactAddress::Kinds> },
        { "IsEmpty()", IsDifferent<PimContactAddress, &PimContactAddress::IsEmpty> },
        { "Alternatives()", IsAnotherNumber<PimContactAddress> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactMessenger>& FunctionsOf()
{
    static const FieldFunctions<PimContactMessenger> s_kFunctions = {
        { "Service()", IsDifferent<PimContactMessenger, &PimContactMessenger::Service> },
        { "Handle()", IsDifferent<PimContactMessenger, &PimContactMessenger::Handle> },
        { "Address()", IsDifferent<PimContactMessenger, &PimContactMessenger::Address> },
        { "Kinds()", IsDifferent<PimContactMessenger, &PimContactMessenger::Kinds> },
        { "IsSocialProfile()", IsDifferent<PimContactMessenger, &PimContactMessenger::IsSocialProfile> },
        { "Alternatives()", IsAnotherNumber<PimContactMessenger> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactEvent>& FunctionsOf()
{
    static const FieldFunctions<PimContactEvent> s_kFunctions = {
        { "EventKind()", IsDifferent<PimContactEvent, &PimContactEvent::EventKind> },
        { "Date()", IsDifferent<PimContactEvent, &PimContactEvent::Date> },
        { "Place()", IsDifferent<PimContactEvent, &PimContactEvent::Place> },
        { "Calendar()", IsDifferent<PimContactEvent, &PimContactEvent::Calendar> },
        { "Alternatives()", IsAnotherNumber<PimContactEvent> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactText>& FunctionsOf()
{
    static const FieldFunctions<PimContactText> s_kFunctions = {
        { "Text()", IsDifferent<PimContactText, &PimContactText::Text> },
        { "Kinds()", IsDifferent<PimContactText, &PimContactText::Kinds> },
        { "Level()", IsDifferent<PimContactText, &PimContactText::Level> },
        { "Alternatives()", IsAnotherNumber<PimContactText> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactMedia>& FunctionsOf()
{
    static const FieldFunctions<PimContactMedia> s_kFunctions = {
        { "Bytes()", IsDifferent<PimContactMedia, &PimContactMedia::Bytes> },
        { "MediaType()", IsDifferent<PimContactMedia, &PimContactMedia::MediaType> },
        { "Address()", IsDifferent<PimContactMedia, &PimContactMedia::Address> },
        { "Text()", IsDifferent<PimContactMedia, &PimContactMedia::Text> },
        { "Crop()", IsDifferent<PimContactMedia, &PimContactMedia::Crop> },
        { "IsDamaged()", IsDifferent<PimContactMedia, &PimContactMedia::IsDamaged> },
        { "Alternatives()", IsAnotherNumber<PimContactMedia> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactName>& FunctionsOf()
{
    static const FieldFunctions<PimContactName> s_kFunctions = {
        { "Family()", IsDifferent<PimContactName, &PimContactName::Family> },
        { "Given()", IsDifferent<PimContactName, &PimContactName::Given> },
        { "Additional()", IsDifferent<PimContactName, &PimContactName::Additional> },
        { "Prefix()", IsDifferent<PimContactName, &PimContactName::Prefix> },
        { "Suffix()", IsDifferent<PimContactName, &PimContactName::Suffix> },
        { "PhoneticFamily()", IsDifferent<PimContactName, &PimContactName::PhoneticFamily> },
        { "PhoneticGiven()", IsDifferent<PimContactName, &PimContactName::PhoneticGiven> },
        { "PhoneticMiddle()", IsDifferent<PimContactName, &PimContactName::PhoneticMiddle> },
        { "MaidenName()", IsDifferent<PimContactName, &PimContactName::MaidenName> },
        { "SortAs()", IsDifferent<PimContactName, &PimContactName::SortAs> },
        { "Text()", IsDifferent<PimContactName, &PimContactName::Text> },
        { "IsEmpty()", IsDifferent<PimContactName, &PimContactName::IsEmpty> },
        { "Alternatives()", IsAnotherNumber<PimContactName> },
    };
    return s_kFunctions;
}

template <>
const FieldFunctions<PimContactOrganisation>& FunctionsOf()
{
    static const FieldFunctions<PimContactOrganisation> s_kFunctions = {
        { "Name()", IsDifferent<PimContactOrganisation, &PimContactOrganisation::Name> },
        { "Units()", IsDifferent<PimContactOrganisation, &PimContactOrganisation::Units> },
        { "Text()", IsDifferent<PimContactOrganisation, &PimContactOrganisation::Text> },
        { "SortAs()", IsDifferent<PimContactOrganisation, &PimContactOrganisation::SortAs> },
        { "Kinds()", IsDifferent<PimContactOrganisation, &PimContactOrganisation::Kinds> },
        { "Alternatives()", IsAnotherNumber<PimContactOrganisation> },
    };
    return s_kFunctions;
}

template <class Field>
QStringList Differing( const Field& a_field, const Field& a_other )
{
    QStringList names;
    for ( const FieldFunction<Field>& function : FunctionsOf<Field>() )
    {
        if ( function.m_isDifferent( a_field, a_other ) )
            names.append( QString::fromLatin1( function.m_name ) );
    }
    return names;
}

template <class Field>
QStringList DifferingWithBase( const Field& a_field, const Field& a_other )
{
    return Differing<PimContactField>( a_field, a_other ) + Differing<Field>( a_field, a_other );
}

template <class Function>
ClassFunctions NamesOf( const char* a_class, const std::vector<Function>& a_functions )
{
    ClassFunctions functions = { QString::fromLatin1( a_class ), {} };
    for ( const Function& function : a_functions )
        functions.m_functions.append( QString::fromLatin1( function.m_name ) );
    return functions;
}

} // namespace

QStringList FunctionsWithResult( const PimContact& a_contact )
{
    QStringList names;
    for ( const ContactFunction& function : ContactFunctions() )
    {
        if ( function.m_hasResult( a_contact ) )
            names.append( QString::fromLatin1( function.m_name ) );
    }
    return names;
}

QStringList DifferingFunctions( const PimContactPhone& a_field, const PimContactPhone& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactAddress& a_field, const PimContactAddress& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactMessenger& a_field, const PimContactMessenger& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactEvent& a_field, const PimContactEvent& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactText& a_field, const PimContactText& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactMedia& a_field, const PimContactMedia& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactName& a_field, const PimContactName& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

QStringList DifferingFunctions( const PimContactOrganisation& a_field, const PimContactOrganisation& a_other )
{
    return DifferingWithBase( a_field, a_other );
}

std::vector<ClassFunctions> CalledFunctions()
{
    return {
        NamesOf( "PimContact", ContactFunctions() ),
        NamesOf( "PimContactField", FunctionsOf<PimContactField>() ),
        NamesOf( "PimContactPhone", FunctionsOf<PimContactPhone>() ),
        NamesOf( "PimContactAddress", FunctionsOf<PimContactAddress>() ),
        NamesOf( "PimContactMessenger", FunctionsOf<PimContactMessenger>() ),
        NamesOf( "PimContactEvent", FunctionsOf<PimContactEvent>() ),
        NamesOf( "PimContactText", FunctionsOf<PimContactText>() ),
        NamesOf( "PimContactMedia", FunctionsOf<PimContactMedia>() ),
        NamesOf( "PimContactName", FunctionsOf<PimContactName>() ),
        NamesOf( "PimContactOrganisation", FunctionsOf<PimContactOrganisation>() ),
    };
}

} // namespace PimManager::Contacts
