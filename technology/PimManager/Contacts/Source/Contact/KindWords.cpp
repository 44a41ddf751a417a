#include "Contact/KindWords.h"

#include "Text/Bytes.h"
#include "Text/WordTable.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Phone = PimContactPhoneKind;
using PhoneRow = WordRow<PimContactPhoneKinds>;
using Address = PimContactAddressKind;
using AddressRow = WordRow<PimContactAddressKinds>;
using Kind = PimContactKind;
using KindRow = WordRow<PimContactKinds>;

constexpr WordTable s_kPhoneTable( std::array{
    PhoneRow{ "HOME", Phone::Home },
    PhoneRow{ "WORK", Phone::Work },
    PhoneRow{ "BUSINESS", Phone::Work },
    PhoneRow{ "CELL", Phone::Mobile },
    PhoneRow{ "CELLULAR", Phone::Mobile },
    PhoneRow{ "MOBILE", Phone::Mobile },
    PhoneRow{ "IPHONE", Phone::Mobile },
    PhoneRow{ "FAX", Phone::Fax },
    PhoneRow{ "PAGER", Phone::Pager },
    PhoneRow{ "VIDEO", Phone::Video },
    PhoneRow{ "TEXT", Phone::Text },
    PhoneRow{ "SMS", Phone::Text },
    PhoneRow{ "TEXTPHONE", Phone::TextPhone },
    PhoneRow{ "TTY", Phone::TextPhone },
    PhoneRow{ "TDD", Phone::TextPhone },
    PhoneRow{ "TTYTDD", Phone::TextPhone },
    PhoneRow{ "TTY-TDD", Phone::TextPhone },
    PhoneRow{ "VOICE", Phone::Voice },
    PhoneRow{ "MSG", Phone::Text },
    PhoneRow{ "CAR", Phone::Car },
    PhoneRow{ "ISDN", Phone::Isdn },
    PhoneRow{ "BBS", Phone::Bbs },
    PhoneRow{ "MODEM", Phone::Modem },
    PhoneRow{ "PCS", Phone::Pcs },
    PhoneRow{ "MAIN", Phone::Main },
    PhoneRow{ "MAIN-NUMBER", Phone::Main },
    PhoneRow{ "ASSISTANT", Phone::Assistant },
    PhoneRow{ "CALLBACK", Phone::Callback },
    PhoneRow{ "COMPANY", Phone::Company },
    PhoneRow{ "RADIO", Phone::Radio },
    PhoneRow{ "TELEX", Phone::Telex },
    PhoneRow{ "TLX", Phone::Telex },
    PhoneRow{ "OTHER", Phone::Other },
    PhoneRow{ "HOMEFAX", Phone::Home | Phone::Fax },
    PhoneRow{ "HOME-FAX", Phone::Home | Phone::Fax },
    PhoneRow{ "HOME_FAX", Phone::Home | Phone::Fax },
    PhoneRow{ "FAX-HOME", Phone::Home | Phone::Fax },
    PhoneRow{ "FAX_HOME", Phone::Home | Phone::Fax },
    PhoneRow{ "WORKFAX", Phone::Work | Phone::Fax },
    PhoneRow{ "WORK-FAX", Phone::Work | Phone::Fax },
    PhoneRow{ "WORK_FAX", Phone::Work | Phone::Fax },
    PhoneRow{ "FAX-WORK", Phone::Work | Phone::Fax },
    PhoneRow{ "FAX_WORK", Phone::Work | Phone::Fax },
    PhoneRow{ "OTHERFAX", Phone::Other | Phone::Fax },
    PhoneRow{ "OTHER-FAX", Phone::Other | Phone::Fax },
    PhoneRow{ "OTHER_FAX", Phone::Other | Phone::Fax },
    PhoneRow{ "WORK-MOBILE", Phone::Work | Phone::Mobile },
    PhoneRow{ "WORK_MOBILE", Phone::Work | Phone::Mobile },
    PhoneRow{ "WORK-PAGER", Phone::Work | Phone::Pager },
    PhoneRow{ "WORK_PAGER", Phone::Work | Phone::Pager },
    PhoneRow{ "COMPANY-MAIN", Phone::Company | Phone::Main },
    PhoneRow{ "COMPANY_MAIN", Phone::Company | Phone::Main },
} );
static_assert( s_kPhoneTable.HasAllWords() );

constexpr WordTable s_kAddressTable( std::array{
    AddressRow{ "HOME", Address::Home },
    AddressRow{ "WORK", Address::Work },
    AddressRow{ "BUSINESS", Address::Work },
    AddressRow{ "DOM", Address::Domestic },
    AddressRow{ "INTL", Address::International },
    AddressRow{ "POSTAL", Address::Postal },
    AddressRow{ "PARCEL", Address::Parcel },
    AddressRow{ "BILLING", Address::Billing },
    AddressRow{ "DELIVERY", Address::Delivery },
    AddressRow{ "OTHER", Address::Other },
} );
static_assert( s_kAddressTable.HasAllWords() );

constexpr WordTable s_kKindTable( std::array{
    KindRow{ "HOME", Kind::Home },
    KindRow{ "PERSONAL", Kind::Home },
    KindRow{ "WORK", Kind::Work },
    KindRow{ "BUSINESS", Kind::Work },
    KindRow{ "CELL", Kind::Mobile },
    KindRow{ "CELLULAR", Kind::Mobile },
    KindRow{ "MOBILE", Kind::Mobile },
    KindRow{ "IPHONE", Kind::Mobile },
    KindRow{ "OTHER", Kind::Other },
} );
static_assert( s_kKindTable.HasAllWords() );

// The words to write, and the versions that define them.
constexpr std::array s_kPhoneWords = {
    VersionWord<Phone>{ Phone::Home, "X-HOME", s_kAllVersions },
    VersionWord<Phone>{ Phone::Work, "X-WORK", s_kAllVersions },
    VersionWord<Phone>{ Phone::Mobile, "X-CELL", s_kAllVersions },
    VersionWord<Phone>{ Phone::Fax, "X-FAX", s_kAllVersions },
    VersionWord<Phone>{ Phone::Pager, "X-PAGER", s_kAllVersions },
    VersionWord<Phone>{ Phone::Video, "X-VIDEO", s_kAllVersions },
    VersionWord<Phone>{ Phone::Text, "X-TEXT", s_kVersion40 },
    VersionWord<Phone>{ Phone::TextPhone, "X-TEXTPHONE", s_kVersion40 },
    VersionWord<Phone>{ Phone::Voice, "X-VOICE", s_kAllVersions },
    VersionWord<Phone>{ Phone::Car, "X-CAR", s_kVersions21And30 },
    VersionWord<Phone>{ Phone::Isdn, "X-ISDN", s_kVersions21And30 },
    VersionWord<Phone>{ Phone::Bbs, "X-BBS", s_kVersions21And30 },
    VersionWord<Phone>{ Phone::Modem, "X-MODEM", s_kVersions21And30 },
    VersionWord<Phone>{ Phone::Pcs, "X-PCS", s_kVersion30 },
    VersionWord<Phone>{ Phone::Main, "X-MAIN", s_kNoVersion },
    VersionWord<Phone>{ Phone::Assistant, "X-ASSISTANT", s_kNoVersion },
    VersionWord<Phone>{ Phone::Callback, "X-CALLBACK", s_kNoVersion },
    VersionWord<Phone>{ Phone::Company, "X-COMPANY", s_kNoVersion },
    VersionWord<Phone>{ Phone::Radio, "X-RADIO", s_kNoVersion },
    VersionWord<Phone>{ Phone::Telex, "X-TELEX", s_kNoVersion },
    VersionWord<Phone>{ Phone::Other, "X-OTHER", s_kNoVersion },
};

constexpr std::array s_kAddressWords = {
    VersionWord<Address>{ Address::Home, "X-HOME", s_kAllVersions },
    VersionWord<Address>{ Address::Work, "X-WORK", s_kAllVersions },
    VersionWord<Address>{ Address::Domestic, "X-DOM", s_kVersions21And30 },
    VersionWord<Address>{ Address::International, "X-INTL", s_kVersions21And30 },
    VersionWord<Address>{ Address::Postal, "X-POSTAL", s_kVersions21And30 },
    VersionWord<Address>{ Address::Parcel, "X-PARCEL", s_kVersions21And30 },
    VersionWord<Address>{ Address::Billing, "X-BILLING", s_kVersion40 },
    VersionWord<Address>{ Address::Delivery, "X-DELIVERY", s_kVersion40 },
    VersionWord<Address>{ Address::Other, "X-OTHER", s_kNoVersion },
};

constexpr std::array s_kKindWords = {
    VersionWord<Kind>{ Kind::Home, "X-HOME", s_kAllVersions },
    VersionWord<Kind>{ Kind::Work, "X-WORK", s_kAllVersions },
    VersionWord<Kind>{ Kind::Mobile, "X-MOBILE", s_kNoVersion },
    VersionWord<Kind>{ Kind::Other, "X-OTHER", s_kNoVersion },
};

} // namespace

PimContactPhoneKinds PhoneKindsOf( std::string_view a_word )
{
    return s_kPhoneTable.Of( WithoutExtensionMark( a_word ), PimContactPhoneKinds() );
}

PimContactAddressKinds AddressKindsOf( std::string_view a_word )
{
    return s_kAddressTable.Of( WithoutExtensionMark( a_word ), PimContactAddressKinds() );
}

PimContactKinds KindsOf( std::string_view a_word )
{
    return s_kKindTable.Of( WithoutExtensionMark( a_word ), PimContactKinds() );
}

bool IsMailDefault( std::string_view a_word )
{
    return IsSameWord( a_word, "INTERNET" );
}

std::string_view CustomLabelOf( std::string_view a_word )
{
    return IsExtensionName( a_word ) ? a_word.substr( s_kExtensionMarkLength ) : a_word;
}

KindWords PhoneWordsOf( PimContactPhoneKinds a_kinds, PimContactVersion a_version )
{
    const KindWords words = WordsIn( s_kPhoneWords, a_kinds, a_version );
    if ( a_version == PimContactVersion::V40 )
        return words;
    // Before 4.0, the word for messages is MSG.
    KindWords old;
    for ( const std::string_view word : words )
        old.Add( word == "X-TEXT" ? "MSG" : word );
    return old;
}

KindWords AddressWordsOf( PimContactAddressKinds a_kinds, PimContactVersion a_version )
{
    return WordsIn( s_kAddressWords, a_kinds, a_version );
}

KindWords WordsOf( PimContactKinds a_kinds, PimContactVersion a_version )
{
    return WordsIn( s_kKindWords, a_kinds, a_version );
}

} // namespace PimManager::Contacts
