#include "Json/KindJson.h"

#include "Contact/FieldReader.h"
#include "Contact/KindWords.h"
#include "Contact/RelationWords.h"

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// Each in the order of its flags.
constexpr std::array s_kKinds = { "home"sv, "work"sv, "mobile"sv, "other"sv };
constexpr std::array s_kPhoneKinds = {
    "home"sv,      "work"sv,      "mobile"sv,   "fax"sv,     "pager"sv, "video"sv, "text"sv,
    "textphone"sv, "voice"sv,     "car"sv,      "isdn"sv,    "bbs"sv,   "modem"sv, "pcs"sv,
    "main"sv,      "assistant"sv, "callback"sv, "company"sv, "radio"sv, "telex"sv, "other"sv,
};
constexpr std::array s_kAddressKinds = {
    "home"sv, "work"sv, "domestic"sv, "international"sv, "postal"sv, "parcel"sv, "billing"sv, "delivery"sv, "other"sv,
};
constexpr std::array s_kRelationKinds = {
    "contact"sv,   "acquaintance"sv, "friend"sv,      "met"sv,     "co-worker"sv,
    "colleague"sv, "co-resident"sv,  "neighbor"sv,    "child"sv,   "parent"sv,
    "sibling"sv,   "spouse"sv,       "kin"sv,         "muse"sv,    "crush"sv,
    "date"sv,      "sweetheart"sv,   "me"sv,          "agent"sv,   "emergency"sv,
    "assistant"sv, "manager"sv,      "referred-by"sv, "partner"sv, "domestic-partner"sv,
    "mother"sv,    "father"sv,       "brother"sv,     "sister"sv,  "relative"sv,
};

template <typename Kind>
constexpr bool IsLast( size_t a_count, Kind a_kind )
{
    return static_cast<quint32>( a_kind ) == 1U << ( a_count - 1 );
}
static_assert( IsLast( s_kKinds.size(), PimContactKind::Other ) );
static_assert( IsLast( s_kPhoneKinds.size(), PimContactPhoneKind::Other ) );
static_assert( IsLast( s_kAddressKinds.size(), PimContactAddressKind::Other ) );
static_assert( IsLast( s_kRelationKinds.size(), PimContactRelationKind::Relative ) );

template <size_t s_kSize>
void WriteWords( const std::array<std::string_view, s_kSize>& a_words, quint32 a_kinds, JsonText& a_json )
{
    std::string_view before = R"(,"kinds":[")";
    for ( size_t i = 0; i < s_kSize; ++i )
    {
        if ( ( a_kinds & 1U << i ) == 0 )
            continue;
        a_json.Raw( before );
        a_json.Raw( a_words[i] );
        before = R"(",")";
    }
    a_json.Raw( R"("])" );
}

} // namespace

KindSet KindSetOf( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Tel:
        return KindSet::Phone;
    case PropertyId::Adr:
        return KindSet::Address;
    default:
        return KindSet::Kinds;
    }
}

FieldParameters::KindsOf WordReaderOf( KindSet a_set )
{
    switch ( a_set )
    {
    case KindSet::Kinds:
        return []( std::string_view a_word ) { return static_cast<quint32>( KindsOf( a_word ) ); };
    case KindSet::Phone:
        return []( std::string_view a_word ) { return static_cast<quint32>( PhoneKindsOf( a_word ) ); };
    case KindSet::Address:
        return []( std::string_view a_word ) { return static_cast<quint32>( AddressKindsOf( a_word ) ); };
    case KindSet::Relation:
        return []( std::string_view a_word ) { return static_cast<quint32>( RelationKindsOf( a_word ) ); };
    default:
        return NoKinds;
    }
}

void WriteKinds( KindSet a_set, quint32 a_kinds, JsonText& a_json )
{
    if ( a_kinds == 0 )
        return;
    switch ( a_set )
    {
    case KindSet::Kinds:
        return WriteWords( s_kKinds, a_kinds, a_json );
    case KindSet::Phone:
        return WriteWords( s_kPhoneKinds, a_kinds, a_json );
    case KindSet::Address:
        return WriteWords( s_kAddressKinds, a_kinds, a_json );
    case KindSet::Relation:
        return WriteWords( s_kRelationKinds, a_kinds, a_json );
    default:
        return;
    }
}

} // namespace PimManager::Contacts
