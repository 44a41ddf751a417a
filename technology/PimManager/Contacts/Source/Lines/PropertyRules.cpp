#include "Lines/PropertyRules.h"

#include "Text/Bytes.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Shape
{
    ValueShape m_shape;
    quint8 m_least = 1;
    quint8 m_most = 1;
};

constexpr Shape s_kSingle = { ValueShape::Single };
constexpr Shape s_kList = { ValueShape::List };

constexpr Shape Components( quint8 a_least, quint8 a_most )
{
    return { ValueShape::Components, a_least, a_most };
}

constexpr Shape ComponentLists( quint8 a_least, quint8 a_most )
{
    return { ValueShape::ComponentLists, a_least, a_most };
}

// The types of a value, the default first.
struct Types
{
    constexpr explicit Types( ValueType a_default, std::initializer_list<ValueType> a_others = {} ) :
        m_default( a_default ),
        m_all( a_others )
    {
        m_all.Add( a_default );
    }

    ValueType m_default;
    ValueTypes m_all;
};

constexpr PropertyRule Rule( PropertyId a_property, Occurrence a_occurrence, Shape a_shape, Types a_types,
                             ParameterSet a_parameters, StandardSection a_section )
{
    return { a_property,        a_occurrence,  a_shape.m_shape, a_shape.m_least, a_shape.m_most,
             a_types.m_default, a_types.m_all, a_parameters,    a_section };
}

constexpr Occurrence s_kOne = Occurrence::One;
constexpr Occurrence s_kOneOrMore = Occurrence::OneOrMore;
constexpr Occurrence s_kAtMostOne = Occurrence::AtMostOne;
constexpr Occurrence s_kAny = Occurrence::Any;

constexpr ParameterSet s_kNoParameters;

constexpr Types s_kText( ValueType::Text );
constexpr Types s_kUri( ValueType::Uri );
constexpr Types s_kTextOrUri( ValueType::Text, { ValueType::Uri } );
constexpr Types s_kUriOrText( ValueType::Uri, { ValueType::Text } );

// Version 2.1.

constexpr StandardSection V21( std::string_view a_number )
{
    return { Standard::VCard21, a_number };
}

// Any value may be in another part of the message.
constexpr Types Types21( ValueType a_default, std::initializer_list<ValueType> a_others = {} )
{
    Types types( a_default, a_others );
    types.m_all = types.m_all | ValueTypes{ ValueType::Inline, ValueType::Uri, ValueType::ContentId };
    return types;
}

constexpr Types s_kText21 = Types21( ValueType::Text );
constexpr Types s_kBinary21 = Types21( ValueType::Binary );

// Its grammar does not restrict the parameters of a property.
constexpr ParameterSet s_kParameters21 = { StandardParameter::Type, StandardParameter::Value,
                                           StandardParameter::Encoding, StandardParameter::Charset,
                                           StandardParameter::Language };

constexpr PropertyRule Rule21( PropertyId a_property, Occurrence a_occurrence, Shape a_shape, Types a_types,
                               std::string_view a_section )
{
    return Rule( a_property, a_occurrence, a_shape, a_types, s_kParameters21, V21( a_section ) );
}

constexpr std::array s_kRules21 = {
    Rule( PropertyId::Begin, s_kOne, s_kSingle, s_kText, s_kNoParameters, V21( "2.1.1" ) ),
    Rule( PropertyId::End, s_kOne, s_kSingle, s_kText, s_kNoParameters, V21( "2.1.1" ) ),
    Rule21( PropertyId::Fn, s_kAny, s_kSingle, s_kText21, "2.2.1" ),
    Rule21( PropertyId::N, s_kOne, Components( 1, 5 ), s_kText21, "2.2.2" ),
    Rule21( PropertyId::Photo, s_kAny, s_kSingle, s_kBinary21, "2.2.3" ),
    Rule21( PropertyId::Bday, s_kAny, s_kSingle, Types21( ValueType::Date ), "2.2.4" ),
    Rule21( PropertyId::Adr, s_kAny, Components( 1, 7 ), s_kText21, "2.3.1" ),
    Rule21( PropertyId::Label, s_kAny, s_kSingle, s_kText21, "2.3.2" ),
    Rule21( PropertyId::Tel, s_kAny, s_kSingle, Types21( ValueType::PhoneNumber ), "2.4.1" ),
    Rule21( PropertyId::Email, s_kAny, s_kSingle, s_kText21, "2.4.2" ),
    Rule21( PropertyId::Mailer, s_kAny, s_kSingle, s_kText21, "2.4.3" ),
    Rule21( PropertyId::Tz, s_kAny, s_kSingle, Types21( ValueType::UtcOffset ), "2.4.5" ),
    Rule21( PropertyId::Geo, s_kAny, s_kSingle, Types21( ValueType::Coordinates ), "2.4.6" ),
    Rule21( PropertyId::Title, s_kAny, s_kSingle, s_kText21, "2.5.1" ),
    Rule21( PropertyId::Role, s_kAny, s_kSingle, s_kText21, "2.5.2" ),
    Rule21( PropertyId::Logo, s_kAny, s_kSingle, s_kBinary21, "2.5.3" ),
    Rule21( PropertyId::Agent, s_kAny, s_kSingle, Types21( ValueType::VCard ), "2.5.4" ),
    Rule21( PropertyId::Org, s_kAny, Components( 1, s_kAnyNumber ), s_kText21, "2.5.5" ),
    Rule21( PropertyId::Note, s_kAny, s_kSingle, s_kText21, "2.6.1" ),
    Rule21( PropertyId::Rev, s_kAny, s_kSingle, Types21( ValueType::DateTime ), "2.6.2" ),
    Rule21( PropertyId::Sound, s_kAny, s_kSingle, Types21( ValueType::Text, { ValueType::Binary } ), "2.6.3" ),
    Rule21( PropertyId::Url, s_kAny, s_kSingle, Types21( ValueType::Uri ), "2.6.4" ),
    Rule21( PropertyId::Uid, s_kAny, s_kSingle, s_kText21, "2.6.5" ),
    Rule21( PropertyId::Version, s_kOne, s_kSingle, s_kText21, "2.6.6" ),
    Rule21( PropertyId::Key, s_kAny, s_kSingle, Types21( ValueType::Binary, { ValueType::Text } ), "2.7.1" ),
};

// Version 3.0.

constexpr StandardSection Rfc2426( std::string_view a_number )
{
    return { Standard::Rfc2426, a_number };
}

constexpr ParameterSet s_kValue30 = { StandardParameter::Value };
constexpr ParameterSet s_kText30 = { StandardParameter::Value, StandardParameter::Language };
constexpr ParameterSet s_kTypedText30 = { StandardParameter::Value, StandardParameter::Language,
                                          StandardParameter::Type };
constexpr ParameterSet s_kTyped30 = { StandardParameter::Value, StandardParameter::Type };
constexpr ParameterSet s_kSource30 = { StandardParameter::Value, StandardParameter::Context };
constexpr ParameterSet s_kBinary30 = { StandardParameter::Value, StandardParameter::Type, StandardParameter::Encoding };

constexpr Types s_kBinaryOrUri( ValueType::Binary, { ValueType::Uri } );

constexpr std::array s_kRules30 = {
    Rule( PropertyId::Begin, s_kOne, s_kSingle, s_kText, s_kNoParameters, Rfc2426( "2.1.1" ) ),
    Rule( PropertyId::End, s_kOne, s_kSingle, s_kText, s_kNoParameters, Rfc2426( "2.1.1" ) ),
    Rule( PropertyId::Name, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "2.1.2" ) ),
    Rule( PropertyId::Profile, s_kAny, s_kSingle, s_kText, s_kValue30, Rfc2426( "2.1.3" ) ),
    Rule( PropertyId::Source, s_kAny, s_kSingle, s_kUri, s_kSource30, Rfc2426( "2.1.4" ) ),
    Rule( PropertyId::Fn, s_kOneOrMore, s_kSingle, s_kText, s_kText30, Rfc2426( "3.1.1" ) ),
    Rule( PropertyId::N, s_kOne, ComponentLists( 1, 5 ), s_kText, s_kText30, Rfc2426( "3.1.2" ) ),
    Rule( PropertyId::Nickname, s_kAny, s_kList, s_kText, s_kText30, Rfc2426( "3.1.3" ) ),
    Rule( PropertyId::Photo, s_kAny, s_kSingle, s_kBinaryOrUri, s_kBinary30, Rfc2426( "3.1.4" ) ),
    Rule( PropertyId::Bday, s_kAny, s_kSingle, Types( ValueType::Date, { ValueType::DateTime } ), s_kValue30,
          Rfc2426( "3.1.5" ) ),
    Rule( PropertyId::Adr, s_kAny, ComponentLists( 1, 7 ), s_kText, s_kTypedText30, Rfc2426( "3.2.1" ) ),
    Rule( PropertyId::Label, s_kAny, s_kSingle, s_kText, s_kTypedText30, Rfc2426( "3.2.2" ) ),
    Rule( PropertyId::Tel, s_kAny, s_kSingle, Types( ValueType::PhoneNumber ), s_kTyped30, Rfc2426( "3.3.1" ) ),
    Rule( PropertyId::Email, s_kAny, s_kSingle, s_kText, s_kTyped30, Rfc2426( "3.3.2" ) ),
    Rule( PropertyId::Mailer, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "3.3.3" ) ),
    Rule( PropertyId::Tz, s_kAny, s_kSingle, Types( ValueType::UtcOffset, { ValueType::Text } ), s_kValue30,
          Rfc2426( "3.4.1" ) ),
    Rule( PropertyId::Geo, s_kAny, Components( 2, 2 ), Types( ValueType::Float ), s_kValue30, Rfc2426( "3.4.2" ) ),
    Rule( PropertyId::Title, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "3.5.1" ) ),
    Rule( PropertyId::Role, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "3.5.2" ) ),
    Rule( PropertyId::Logo, s_kAny, s_kSingle, s_kBinaryOrUri, s_kBinary30, Rfc2426( "3.5.3" ) ),
    Rule( PropertyId::Agent, s_kAny, s_kSingle, Types( ValueType::VCard, { ValueType::Uri, ValueType::Text } ),
          s_kValue30, Rfc2426( "3.5.4" ) ),
    Rule( PropertyId::Org, s_kAny, Components( 1, s_kAnyNumber ), s_kText, s_kText30, Rfc2426( "3.5.5" ) ),
    Rule( PropertyId::Categories, s_kAny, s_kList, s_kText, s_kText30, Rfc2426( "3.6.1" ) ),
    Rule( PropertyId::Note, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "3.6.2" ) ),
    Rule( PropertyId::ProdId, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "3.6.3" ) ),
    Rule( PropertyId::Rev, s_kAny, s_kSingle, Types( ValueType::DateTime, { ValueType::Date } ), s_kValue30,
          Rfc2426( "3.6.4" ) ),
    Rule( PropertyId::SortString, s_kAny, s_kSingle, s_kText, s_kText30, Rfc2426( "3.6.5" ) ),
    Rule( PropertyId::Sound, s_kAny, s_kSingle, s_kBinaryOrUri, s_kBinary30, Rfc2426( "3.6.6" ) ),
    Rule( PropertyId::Uid, s_kAny, s_kSingle, s_kText, s_kTyped30, Rfc2426( "3.6.7" ) ),
    Rule( PropertyId::Url, s_kAny, s_kSingle, s_kUri, s_kValue30, Rfc2426( "3.6.8" ) ),
    Rule( PropertyId::Version, s_kOne, s_kSingle, s_kText, s_kValue30, Rfc2426( "3.6.9" ) ),
    Rule( PropertyId::Class, s_kAny, s_kSingle, s_kText, s_kValue30, Rfc2426( "3.7.1" ) ),
    Rule( PropertyId::Key, s_kAny, s_kSingle, Types( ValueType::Binary, { ValueType::Text } ), s_kBinary30,
          Rfc2426( "3.7.2" ) ),
};

// Version 4.0.

constexpr StandardSection Rfc6350( std::string_view a_number )
{
    return { Standard::Rfc6350, a_number };
}

constexpr StandardSection Rfc6474( std::string_view a_number )
{
    return { Standard::Rfc6474, a_number };
}

constexpr StandardSection Rfc6715( std::string_view a_number )
{
    return { Standard::Rfc6715, a_number };
}

constexpr StandardSection Rfc9554( std::string_view a_number )
{
    return { Standard::Rfc9554, a_number };
}

// The parameters that RFC 9554 and RFC 9555 allow with every property.
constexpr ParameterSet s_kEverywhere40 = { StandardParameter::Author,  StandardParameter::AuthorName,
                                           StandardParameter::Created, StandardParameter::Derived,
                                           StandardParameter::PropId,  StandardParameter::JsPtr };
constexpr ParameterSet s_kValue40 = s_kEverywhere40 | ParameterSet{ StandardParameter::Value };
// For properties that may occur several times.
constexpr ParameterSet s_kRepeated40 =
    s_kValue40 | ParameterSet{ StandardParameter::AltId, StandardParameter::Pid, StandardParameter::Pref };
constexpr ParameterSet s_kTyped40 = s_kRepeated40 | ParameterSet{ StandardParameter::Type };
constexpr ParameterSet s_kWords40 = { StandardParameter::Language, StandardParameter::Phonetic,
                                      StandardParameter::Script };
constexpr ParameterSet s_kText40 = s_kTyped40 | s_kWords40;
constexpr ParameterSet s_kUri40 = s_kTyped40 | ParameterSet{ StandardParameter::MediaType };
constexpr ParameterSet s_kUriWithLanguage40 = s_kUri40 | ParameterSet{ StandardParameter::Language };
constexpr ParameterSet s_kUntypedUri40 = s_kRepeated40 | ParameterSet{ StandardParameter::MediaType };
constexpr ParameterSet s_kAltId40 = s_kValue40 | ParameterSet{ StandardParameter::AltId };
constexpr ParameterSet s_kDate40 = s_kAltId40 | ParameterSet{ StandardParameter::CalScale };
constexpr ParameterSet s_kDateOrText40 = s_kDate40 | s_kWords40;
constexpr ParameterSet s_kName40 =
    s_kAltId40 | s_kWords40 | ParameterSet{ StandardParameter::SortAs, StandardParameter::JsComps };
constexpr ParameterSet s_kAddress40 =
    s_kText40 | ParameterSet{ StandardParameter::Label, StandardParameter::Geo, StandardParameter::Tz,
                              StandardParameter::Cc, StandardParameter::JsComps };
constexpr ParameterSet s_kAccount40 =
    s_kUri40 | ParameterSet{ StandardParameter::ServiceType, StandardParameter::UserName };
constexpr ParameterSet s_kPlace40 = s_kAltId40 | s_kWords40;
constexpr ParameterSet s_kIndexed40 = s_kText40 | ParameterSet{ StandardParameter::Index };
constexpr ParameterSet s_kSkill40 = s_kIndexed40 | ParameterSet{ StandardParameter::Level };

constexpr Types s_kDayOrText( ValueType::DateAndOrTime, { ValueType::Text } );
constexpr Types s_kTimestamp( ValueType::Timestamp );
constexpr Types s_kLanguageTag( ValueType::LanguageTag );

constexpr std::array s_kRules40 = {
    Rule( PropertyId::Begin, s_kOne, s_kSingle, s_kText, s_kNoParameters, Rfc6350( "6.1.1" ) ),
    Rule( PropertyId::End, s_kOne, s_kSingle, s_kText, s_kNoParameters, Rfc6350( "6.1.2" ) ),
    Rule( PropertyId::Source, s_kAny, s_kSingle, s_kUri, s_kUntypedUri40, Rfc6350( "6.1.3" ) ),
    Rule( PropertyId::Kind, s_kAtMostOne, s_kSingle, s_kText, s_kValue40, Rfc6350( "6.1.4" ) ),
    Rule( PropertyId::Xml, s_kAny, s_kSingle, s_kText, s_kAltId40, Rfc6350( "6.1.5" ) ),
    Rule( PropertyId::Fn, s_kOneOrMore, s_kSingle, s_kText, s_kText40, Rfc6350( "6.2.1" ) ),
    Rule( PropertyId::N, s_kAtMostOne, ComponentLists( 5, 7 ), s_kText, s_kName40, Rfc6350( "6.2.2" ) ),
    Rule( PropertyId::Nickname, s_kAny, s_kList, s_kText, s_kText40, Rfc6350( "6.2.3" ) ),
    Rule( PropertyId::Photo, s_kAny, s_kSingle, s_kUri, s_kUri40, Rfc6350( "6.2.4" ) ),
    Rule( PropertyId::Bday, s_kAtMostOne, s_kSingle, s_kDayOrText, s_kDateOrText40, Rfc6350( "6.2.5" ) ),
    Rule( PropertyId::Anniversary, s_kAtMostOne, s_kSingle, s_kDayOrText, s_kDate40, Rfc6350( "6.2.6" ) ),
    Rule( PropertyId::Gender, s_kAtMostOne, Components( 1, 2 ), s_kText, s_kValue40, Rfc6350( "6.2.7" ) ),
    Rule( PropertyId::Adr, s_kAny, ComponentLists( 7, 18 ), s_kText, s_kAddress40, Rfc6350( "6.3.1" ) ),
    Rule( PropertyId::Tel, s_kAny, s_kSingle, s_kTextOrUri, s_kUri40, Rfc6350( "6.4.1" ) ),
    Rule( PropertyId::Email, s_kAny, s_kSingle, s_kText, s_kTyped40, Rfc6350( "6.4.2" ) ),
    Rule( PropertyId::Messenger, s_kAny, s_kSingle, s_kUri, s_kAccount40, Rfc6350( "6.4.3" ) ),
    Rule( PropertyId::Lang, s_kAny, s_kSingle, s_kLanguageTag, s_kTyped40, Rfc6350( "6.4.4" ) ),
    Rule( PropertyId::Tz, s_kAny, s_kSingle, Types( ValueType::Text, { ValueType::Uri, ValueType::UtcOffset } ),
          s_kUri40, Rfc6350( "6.5.1" ) ),
    Rule( PropertyId::Geo, s_kAny, s_kSingle, s_kUri, s_kUri40, Rfc6350( "6.5.2" ) ),
    Rule( PropertyId::Title, s_kAny, s_kSingle, s_kText, s_kText40, Rfc6350( "6.6.1" ) ),
    Rule( PropertyId::Role, s_kAny, s_kSingle, s_kText, s_kText40, Rfc6350( "6.6.2" ) ),
    Rule( PropertyId::Logo, s_kAny, s_kSingle, s_kUri, s_kUriWithLanguage40, Rfc6350( "6.6.3" ) ),
    Rule( PropertyId::Org, s_kAny, Components( 1, s_kAnyNumber ), s_kText,
          s_kText40 | ParameterSet{ StandardParameter::SortAs, StandardParameter::JsComps }, Rfc6350( "6.6.4" ) ),
    Rule( PropertyId::Member, s_kAny, s_kSingle, s_kUri, s_kUntypedUri40, Rfc6350( "6.6.5" ) ),
    Rule( PropertyId::Related, s_kAny, s_kSingle, s_kUriOrText, s_kUriWithLanguage40, Rfc6350( "6.6.6" ) ),
    Rule( PropertyId::Categories, s_kAny, s_kList, s_kText, s_kTyped40, Rfc6350( "6.7.1" ) ),
    Rule( PropertyId::Note, s_kAny, s_kSingle, s_kText, s_kText40, Rfc6350( "6.7.2" ) ),
    Rule( PropertyId::ProdId, s_kAtMostOne, s_kSingle, s_kText, s_kValue40, Rfc6350( "6.7.3" ) ),
    Rule( PropertyId::Rev, s_kAtMostOne, s_kSingle, s_kTimestamp, s_kValue40, Rfc6350( "6.7.4" ) ),
    Rule( PropertyId::Sound, s_kAny, s_kSingle, s_kUri, s_kUriWithLanguage40, Rfc6350( "6.7.5" ) ),
    Rule( PropertyId::Uid, s_kAtMostOne, s_kSingle, s_kUriOrText,
          s_kValue40 | ParameterSet{ StandardParameter::MediaType }, Rfc6350( "6.7.6" ) ),
    Rule( PropertyId::ClientPidMap, s_kAny, Components( 2, 2 ), s_kText, s_kEverywhere40, Rfc6350( "6.7.7" ) ),
    Rule( PropertyId::Url, s_kAny, s_kSingle, s_kUri, s_kUri40, Rfc6350( "6.7.8" ) ),
    Rule( PropertyId::Version, s_kOne, s_kSingle, s_kText, s_kValue40, Rfc6350( "6.7.9" ) ),
    Rule( PropertyId::Key, s_kAny, s_kSingle, s_kUriOrText, s_kUri40, Rfc6350( "6.8.1" ) ),
    Rule( PropertyId::FbUrl, s_kAny, s_kSingle, s_kUri, s_kUri40, Rfc6350( "6.9.1" ) ),
    Rule( PropertyId::CalAdrUri, s_kAny, s_kSingle, s_kUri, s_kUri40, Rfc6350( "6.9.2" ) ),
    Rule( PropertyId::CalUri, s_kAny, s_kSingle, s_kUri, s_kUri40, Rfc6350( "6.9.3" ) ),
    Rule( PropertyId::BirthPlace, s_kAtMostOne, s_kSingle, s_kTextOrUri, s_kPlace40, Rfc6474( "2.1" ) ),
    Rule( PropertyId::DeathPlace, s_kAtMostOne, s_kSingle, s_kTextOrUri, s_kPlace40, Rfc6474( "2.2" ) ),
    Rule( PropertyId::DeathDate, s_kAtMostOne, s_kSingle, s_kDayOrText, s_kDateOrText40, Rfc6474( "2.3" ) ),
    Rule( PropertyId::Expertise, s_kAny, s_kSingle, s_kText, s_kSkill40, Rfc6715( "2.1" ) ),
    Rule( PropertyId::Hobby, s_kAny, s_kSingle, s_kText, s_kSkill40, Rfc6715( "2.2" ) ),
    Rule( PropertyId::Interest, s_kAny, s_kSingle, s_kText, s_kSkill40, Rfc6715( "2.3" ) ),
    Rule( PropertyId::OrgDirectory, s_kAny, s_kSingle, s_kUri, s_kIndexed40, Rfc6715( "2.4" ) ),
    Rule( PropertyId::ContactUri, s_kAny, s_kSingle, s_kUri, s_kUri40, { Standard::Rfc8605, "2.1" } ),
    Rule( PropertyId::Created, s_kAtMostOne, s_kSingle, s_kTimestamp, s_kValue40, Rfc9554( "3.1" ) ),
    Rule( PropertyId::GramGender, s_kAny, s_kSingle, s_kText, s_kText40, Rfc9554( "3.2" ) ),
    Rule( PropertyId::Language, s_kAtMostOne, s_kSingle, s_kLanguageTag, s_kValue40, Rfc9554( "3.3" ) ),
    Rule( PropertyId::Pronouns, s_kAny, s_kSingle, s_kText, s_kText40, Rfc9554( "3.4" ) ),
    Rule( PropertyId::SocialProfile, s_kAny, s_kSingle, s_kUriOrText, s_kAccount40, Rfc9554( "3.5" ) ),
    Rule( PropertyId::JsProp, s_kAny, s_kSingle, s_kText, s_kValue40, { Standard::Rfc9555, "3.2.1" } ),
};

// The index of the rule of each property in the rules of a version.

constexpr quint8 s_kNoRule = 0xFF;

using RulePlaces = std::array<quint8, s_kProperties>;

template <size_t s_kSize>
constexpr RulePlaces PlacesIn( const std::array<PropertyRule, s_kSize>& a_rules )
{
    static_assert( s_kSize < s_kNoRule );
    RulePlaces places = {};
    for ( quint8& place : places )
        place = s_kNoRule;
    for ( size_t i = 0; i < s_kSize; ++i )
        places[static_cast<size_t>( a_rules[i].m_property )] = static_cast<quint8>( i );
    return places;
}

constexpr RulePlaces s_kPlaces21 = PlacesIn( s_kRules21 );
constexpr RulePlaces s_kPlaces30 = PlacesIn( s_kRules30 );
constexpr RulePlaces s_kPlaces40 = PlacesIn( s_kRules40 );

template <size_t s_kSize>
const PropertyRule* FindIn( const std::array<PropertyRule, s_kSize>& a_rules, const RulePlaces& a_places,
                            PropertyId a_property )
{
    const quint8 place = a_places[static_cast<size_t>( a_property )];
    return place == s_kNoRule ? nullptr : &a_rules[place];
}

struct TypeName
{
    std::string_view m_name;
    ValueType m_type;
    EnumSet<PimContactVersion> m_versions;
};

constexpr EnumSet<PimContactVersion> s_k21 = { PimContactVersion::V21 };
constexpr EnumSet<PimContactVersion> s_k30 = { PimContactVersion::V30 };
constexpr EnumSet<PimContactVersion> s_k40 = { PimContactVersion::V40 };

// The first name of a type is the usual one.
constexpr std::array s_kTypeNames = {
    TypeName{ "text", ValueType::Text, s_k30 | s_k40 },
    TypeName{ "ptext", ValueType::Text, s_k30 },
    TypeName{ "uri", ValueType::Uri, s_k30 | s_k40 },
    TypeName{ "url", ValueType::Uri, s_k21 },
    TypeName{ "date", ValueType::Date, s_k30 | s_k40 },
    TypeName{ "time", ValueType::Time, s_k30 | s_k40 },
    TypeName{ "date-time", ValueType::DateTime, s_k30 | s_k40 },
    TypeName{ "date-and-or-time", ValueType::DateAndOrTime, s_k40 },
    TypeName{ "timestamp", ValueType::Timestamp, s_k40 },
    TypeName{ "boolean", ValueType::Boolean, s_k30 | s_k40 },
    TypeName{ "integer", ValueType::Integer, s_k30 | s_k40 },
    TypeName{ "float", ValueType::Float, s_k30 | s_k40 },
    TypeName{ "utc-offset", ValueType::UtcOffset, s_k30 | s_k40 },
    TypeName{ "language-tag", ValueType::LanguageTag, s_k40 },
    TypeName{ "binary", ValueType::Binary, s_k30 },
    TypeName{ "vcard", ValueType::VCard, s_k30 },
    TypeName{ "phone-number", ValueType::PhoneNumber, s_k30 },
    TypeName{ "coordinates", ValueType::Coordinates, {} },
    TypeName{ "inline", ValueType::Inline, s_k21 },
    TypeName{ "content-id", ValueType::ContentId, s_k21 },
    TypeName{ "cid", ValueType::ContentId, s_k21 },
};

} // namespace

PropertyRules RulesOf( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return { s_kRules21.data(), s_kRules21.data() + s_kRules21.size() };
    case PimContactVersion::V30:
        return { s_kRules30.data(), s_kRules30.data() + s_kRules30.size() };
    case PimContactVersion::V40:
        return { s_kRules40.data(), s_kRules40.data() + s_kRules40.size() };
    default:
        return {};
    }
}

const PropertyRule* FindRule( PropertyId a_property, PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return FindIn( s_kRules21, s_kPlaces21, a_property );
    case PimContactVersion::V30:
        return FindIn( s_kRules30, s_kPlaces30, a_property );
    case PimContactVersion::V40:
        return FindIn( s_kRules40, s_kPlaces40, a_property );
    default:
        return nullptr;
    }
}

ValueType ValueTypeOf( std::string_view a_name, PimContactVersion a_version )
{
    for ( const TypeName& row : s_kTypeNames )
    {
        if ( row.m_versions.Has( a_version ) && IsSameWord( row.m_name, a_name ) )
            return row.m_type;
    }
    return ValueType::Other;
}

std::string_view NameOf( ValueType a_type )
{
    for ( const TypeName& row : s_kTypeNames )
    {
        if ( row.m_type == a_type )
            return row.m_name;
    }
    return {};
}

} // namespace PimManager::Contacts
