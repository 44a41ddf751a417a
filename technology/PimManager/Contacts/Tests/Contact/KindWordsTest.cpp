#include "Contact/KindWords.h"

#include <QByteArray>
#include <QMetaEnum>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using Phone = PimContactPhoneKind;
using Address = PimContactAddressKind;
using Kind = PimContactKind;

constexpr std::array s_kVersions = { PimContactVersion::V21, PimContactVersion::V30, PimContactVersion::V40 };

template <typename Kinds>
struct Row
{
    const char* m_word;
    Kinds m_kinds;
};

const std::array s_kPhones = {
    Row<PimContactPhoneKinds>{ "HOME", Phone::Home },
    Row<PimContactPhoneKinds>{ "Work", Phone::Work },
    Row<PimContactPhoneKinds>{ "business", Phone::Work },
    Row<PimContactPhoneKinds>{ "cell", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "CELLULAR", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "Mobile", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "X-MOBILE", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "x-cell", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "iPhone", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "X-IPHONE", Phone::Mobile },
    Row<PimContactPhoneKinds>{ "FAX", Phone::Fax },
    Row<PimContactPhoneKinds>{ "HomeFAX", Phone::Home | Phone::Fax },
    Row<PimContactPhoneKinds>{ "HOME-FAX", Phone::Home | Phone::Fax },
    Row<PimContactPhoneKinds>{ "FAX-HOME", Phone::Home | Phone::Fax },
    Row<PimContactPhoneKinds>{ "WORKFAX", Phone::Work | Phone::Fax },
    Row<PimContactPhoneKinds>{ "work_fax", Phone::Work | Phone::Fax },
    Row<PimContactPhoneKinds>{ "OtherFAX", Phone::Other | Phone::Fax },
    Row<PimContactPhoneKinds>{ "work_mobile", Phone::Work | Phone::Mobile },
    Row<PimContactPhoneKinds>{ "WORK-PAGER", Phone::Work | Phone::Pager },
    Row<PimContactPhoneKinds>{ "pager", Phone::Pager },
    Row<PimContactPhoneKinds>{ "VIDEO", Phone::Video },
    Row<PimContactPhoneKinds>{ "text", Phone::Text },
    Row<PimContactPhoneKinds>{ "SMS", Phone::Text },
    Row<PimContactPhoneKinds>{ "MSG", Phone::Text },
    Row<PimContactPhoneKinds>{ "textphone", Phone::TextPhone },
    Row<PimContactPhoneKinds>{ "TTY", Phone::TextPhone },
    Row<PimContactPhoneKinds>{ "TTY-TDD", Phone::TextPhone },
    Row<PimContactPhoneKinds>{ "X-EVOLUTION-TTYTDD", Phone::TextPhone },
    Row<PimContactPhoneKinds>{ "voice", Phone::Voice },
    Row<PimContactPhoneKinds>{ "CAR", Phone::Car },
    Row<PimContactPhoneKinds>{ "ISDN", Phone::Isdn },
    Row<PimContactPhoneKinds>{ "BBS", Phone::Bbs },
    Row<PimContactPhoneKinds>{ "MODEM", Phone::Modem },
    Row<PimContactPhoneKinds>{ "PCS", Phone::Pcs },
    Row<PimContactPhoneKinds>{ "Main", Phone::Main },
    Row<PimContactPhoneKinds>{ "main-number", Phone::Main },
    Row<PimContactPhoneKinds>{ "COMPANY-MAIN", Phone::Company | Phone::Main },
    Row<PimContactPhoneKinds>{ "company_main", Phone::Company | Phone::Main },
    Row<PimContactPhoneKinds>{ "X-EVOLUTION-COMPANY", Phone::Company },
    Row<PimContactPhoneKinds>{ "X-Evolution-Assistant", Phone::Assistant },
    Row<PimContactPhoneKinds>{ "ASSISTANT", Phone::Assistant },
    Row<PimContactPhoneKinds>{ "X-EVOLUTION-CALLBACK", Phone::Callback },
    Row<PimContactPhoneKinds>{ "X-EVOLUTION-RADIO", Phone::Radio },
    Row<PimContactPhoneKinds>{ "X-EVOLUTION-TELEX", Phone::Telex },
    Row<PimContactPhoneKinds>{ "TLX", Phone::Telex },
    Row<PimContactPhoneKinds>{ "Other", Phone::Other },
    Row<PimContactPhoneKinds>{ "PREF", {} },
    Row<PimContactPhoneKinds>{ "PRIVATE", {} },
    Row<PimContactPhoneKinds>{ "School", {} },
    Row<PimContactPhoneKinds>{ "DOM", {} },
    Row<PimContactPhoneKinds>{ "INTERNET", {} },
    Row<PimContactPhoneKinds>{ "X-", {} },
    Row<PimContactPhoneKinds>{ "X-EVOLUTION-", {} },
    Row<PimContactPhoneKinds>{ "X-X-HOME", {} },
    Row<PimContactPhoneKinds>{ "EVOLUTION-TELEX", {} },
    Row<PimContactPhoneKinds>{ "HOM", {} },
    Row<PimContactPhoneKinds>{ "HOMER", {} },
    Row<PimContactPhoneKinds>{ "a word that is longer than all others", {} },
    Row<PimContactPhoneKinds>{ "", {} },
};

const std::array s_kAddresses = {
    Row<PimContactAddressKinds>{ "home", Address::Home },
    Row<PimContactAddressKinds>{ "WORK", Address::Work },
    Row<PimContactAddressKinds>{ "Business", Address::Work },
    Row<PimContactAddressKinds>{ "DOM", Address::Domestic },
    Row<PimContactAddressKinds>{ "intl", Address::International },
    Row<PimContactAddressKinds>{ "POSTAL", Address::Postal },
    Row<PimContactAddressKinds>{ "parcel", Address::Parcel },
    Row<PimContactAddressKinds>{ "billing", Address::Billing },
    Row<PimContactAddressKinds>{ "X-BILLING", Address::Billing },
    Row<PimContactAddressKinds>{ "delivery", Address::Delivery },
    Row<PimContactAddressKinds>{ "Other", Address::Other },
    Row<PimContactAddressKinds>{ "CELL", {} },
    Row<PimContactAddressKinds>{ "PREF", {} },
    Row<PimContactAddressKinds>{ "", {} },
};

const std::array s_kOthers = {
    Row<PimContactKinds>{ "Home", Kind::Home },
    Row<PimContactKinds>{ "personal", Kind::Home },
    Row<PimContactKinds>{ "WORK", Kind::Work },
    Row<PimContactKinds>{ "business", Kind::Work },
    Row<PimContactKinds>{ "mobile", Kind::Mobile },
    Row<PimContactKinds>{ "CELL", Kind::Mobile },
    Row<PimContactKinds>{ "X-OTHER", Kind::Other },
    Row<PimContactKinds>{ "INTERNET", {} },
    Row<PimContactKinds>{ "X400", {} },
    Row<PimContactKinds>{ "FAX", {} },
    Row<PimContactKinds>{ "HomePage", {} },
    Row<PimContactKinds>{ "", {} },
};

std::string Joined( const KindWords& a_words )
{
    std::string text;
    for ( const std::string_view word : a_words )
        text += ( text.empty() ? "" : "," ) + std::string( word );
    return text;
}

// Each kind of the enum has one word in each version, and the word is read as this kind.
template <typename Kind, typename ToWords, typename ToKinds>
void ExpectWordsForAllKinds( ToWords a_toWords, ToKinds a_toKinds )
{
    const QMetaEnum kinds = QMetaEnum::fromType<QFlags<Kind>>();
    EXPECT_GT( kinds.keyCount(), 1 );
    for ( int i = 0; i < kinds.keyCount(); ++i )
    {
        const auto kind = static_cast<Kind>( kinds.value( i ) );
        for ( const PimContactVersion version : s_kVersions )
        {
            const KindWords words = a_toWords( kind, version );
            ASSERT_EQ( words.Size(), 1U ) << kinds.key( i );
            EXPECT_EQ( a_toKinds( *words.begin() ), QFlags<Kind>( kind ) ) << kinds.key( i );
        }
    }
}

} // namespace

TEST( KindWordsTest, PhoneWordsAreRead )
{
    for ( const auto& row : s_kPhones )
        EXPECT_EQ( PhoneKindsOf( row.m_word ), row.m_kinds ) << row.m_word;
}

TEST( KindWordsTest, AddressWordsAreRead )
{
    for ( const auto& row : s_kAddresses )
        EXPECT_EQ( AddressKindsOf( row.m_word ), row.m_kinds ) << row.m_word;
}

TEST( KindWordsTest, OtherWordsAreRead )
{
    for ( const auto& row : s_kOthers )
        EXPECT_EQ( KindsOf( row.m_word ), row.m_kinds ) << row.m_word;
    EXPECT_TRUE( IsMailDefault( "Internet" ) );
    EXPECT_FALSE( IsMailDefault( "X400" ) );
}

TEST( KindWordsTest, EveryKindHasAWordInEveryVersion )
{
    ExpectWordsForAllKinds<PimContactPhoneKind>( PhoneWordsOf, PhoneKindsOf );
    ExpectWordsForAllKinds<PimContactAddressKind>( AddressWordsOf, AddressKindsOf );
    ExpectWordsForAllKinds<PimContactKind>( WordsOf, KindsOf );
}

TEST( KindWordsTest, WordsOfOtherVersionsAreExtensions )
{
    const PimContactPhoneKinds phones = Phone::Home | Phone::Mobile | Phone::Text | Phone::Pcs;
    EXPECT_EQ( Joined( PhoneWordsOf( phones, PimContactVersion::V21 ) ), "HOME,CELL,MSG,X-PCS" );
    EXPECT_EQ( Joined( PhoneWordsOf( phones, PimContactVersion::V30 ) ), "HOME,CELL,MSG,PCS" );
    EXPECT_EQ( Joined( PhoneWordsOf( phones, PimContactVersion::V40 ) ), "HOME,CELL,TEXT,X-PCS" );
    const PimContactAddressKinds addresses = Address::Work | Address::Domestic | Address::Billing;
    EXPECT_EQ( Joined( AddressWordsOf( addresses, PimContactVersion::V30 ) ), "WORK,DOM,X-BILLING" );
    EXPECT_EQ( Joined( AddressWordsOf( addresses, PimContactVersion::V40 ) ), "WORK,X-DOM,BILLING" );
    EXPECT_EQ( Joined( WordsOf( Kind::Work | Kind::Mobile, PimContactVersion::V40 ) ), "WORK,X-MOBILE" );
    EXPECT_EQ( Joined( PhoneWordsOf( {}, PimContactVersion::V30 ) ), "" );
}

} // namespace PimManager::Contacts
