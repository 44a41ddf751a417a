#include "Json/ContactMember.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;
using Member = ContactMember;

constexpr std::array<std::string_view, s_kContactMembers> s_kBegins = {
    R"(,"nameParts":)"sv,
    R"(,"sortName":)"sv,
    R"(,"formattedNames":[)"sv,
    R"(,"nicknames":[)"sv,
    R"(,"addresses":[)"sv,
    R"(,"messengers":[)"sv,
    R"(,"urls":[)"sv,
    R"(,"contactUris":[)"sv,
    R"(,"spokenLanguages":[)"sv,
    R"(,"position":)"sv,
    R"(,"timeZone":)"sv,
    R"(,"events":[)"sv,
    R"(,"organisations":[)"sv,
    R"(,"titles":[)"sv,
    R"(,"roles":[)"sv,
    R"(,"expertise":[)"sv,
    R"(,"hobbies":[)"sv,
    R"(,"interests":[)"sv,
    R"(,"organisationDirectories":[)"sv,
    R"(,"relations":[)"sv,
    R"(,"kind":)"sv,
    R"(,"members":[)"sv,
    R"(,"photos":[)"sv,
    R"(,"logos":[)"sv,
    R"(,"sounds":[)"sv,
    R"(,"keys":[)"sv,
    R"(,"uid":)"sv,
    R"(,"revision":)"sv,
    R"(,"created":)"sv,
    R"(,"callTime":)"sv,
    R"(,"notes":[)"sv,
    R"(,"categories":[)"sv,
    R"(,"gender":)"sv,
    R"(,"grammaticalGenders":[)"sv,
    R"(,"pronouns":[)"sv,
    R"(,"defaultLanguage":)"sv,
    R"(,"calendarUris":[)"sv,
    R"(,"calendarAddresses":[)"sv,
    R"(,"freeBusyUris":[)"sv,
    R"(,"sources":[)"sv,
    R"(,"xml":[)"sv,
    R"(,"clientPidMap":[)"sv,
    R"(,"classification":)"sv,
    R"(,"mailer":)"sv,
    R"(,"productId":)"sv,
};

struct Row
{
    PropertyId m_property;
    FieldWay m_way;
    Member m_member;
    ContactMembers m_others = 0;
};

constexpr std::array s_kRows = {
    Row{ PropertyId::Fn, FieldWay::FormattedName, Member::FormattedNames },
    Row{ PropertyId::N, FieldWay::Name, Member::NameParts, BitOf( Member::SortName ) },
    Row{ PropertyId::Nickname, FieldWay::Elements, Member::Nicknames },
    Row{ PropertyId::Org, FieldWay::Organisation, Member::Organisations, BitOf( Member::SortName ) },
    Row{ PropertyId::Adr, FieldWay::Address, Member::Addresses },
    Row{ PropertyId::AddressCountry, FieldWay::Deferred, Member::Addresses },
    Row{ PropertyId::Agent, FieldWay::Deferred, Member::Relations },
    Row{ PropertyId::AndroidCustom, FieldWay::Deferred, Member::Nicknames,
         BitOf( Member::Events ) | BitOf( Member::Relations ) },
    Row{ PropertyId::Anniversary, FieldWay::Event, Member::Events },
    Row{ PropertyId::Bday, FieldWay::Event, Member::Events },
    Row{ PropertyId::BirthPlace, FieldWay::Deferred, Member::Events },
    Row{ PropertyId::CalAdrUri, FieldWay::Text, Member::CalendarAddresses },
    Row{ PropertyId::CalUri, FieldWay::Text, Member::CalendarUris },
    Row{ PropertyId::CallTime, FieldWay::OnlyDate, Member::CallTime },
    Row{ PropertyId::Categories, FieldWay::Elements, Member::Categories },
    Row{ PropertyId::Class, FieldWay::OnlyText, Member::Classification },
    Row{ PropertyId::ClientPidMap, FieldWay::Deferred, Member::ClientPidMap },
    Row{ PropertyId::ContactUri, FieldWay::Text, Member::ContactUris },
    Row{ PropertyId::Created, FieldWay::OnlyDate, Member::Created },
    Row{ PropertyId::DeathDate, FieldWay::Event, Member::Events },
    Row{ PropertyId::DeathPlace, FieldWay::Deferred, Member::Events },
    Row{ PropertyId::Expertise, FieldWay::Text, Member::Expertise },
    Row{ PropertyId::FbUrl, FieldWay::Text, Member::FreeBusyUris },
    Row{ PropertyId::Gender, FieldWay::Deferred, Member::Gender },
    Row{ PropertyId::Geo, FieldWay::Deferred, Member::Position, BitOf( Member::Addresses ) },
    Row{ PropertyId::GramGender, FieldWay::Text, Member::GrammaticalGenders },
    Row{ PropertyId::GroupDate, FieldWay::Deferred, Member::Events },
    Row{ PropertyId::Hobby, FieldWay::Text, Member::Hobbies },
    Row{ PropertyId::Interest, FieldWay::Text, Member::Interests },
    Row{ PropertyId::Key, FieldWay::Media, Member::Keys },
    Row{ PropertyId::Kind, FieldWay::Deferred, Member::Kind },
    Row{ PropertyId::Label, FieldWay::Deferred, Member::Addresses },
    Row{ PropertyId::Lang, FieldWay::Text, Member::SpokenLanguages },
    Row{ PropertyId::Language, FieldWay::OnlyText, Member::DefaultLanguage },
    Row{ PropertyId::Logo, FieldWay::Media, Member::Logos },
    Row{ PropertyId::Mailer, FieldWay::OnlyText, Member::Mailer },
    Row{ PropertyId::MaidenName, FieldWay::Deferred, Member::NameParts },
    Row{ PropertyId::Member, FieldWay::Text, Member::Members },
    Row{ PropertyId::Messenger, FieldWay::Deferred, Member::Messengers },
    Row{ PropertyId::Note, FieldWay::Text, Member::Notes },
    Row{ PropertyId::OrgDirectory, FieldWay::Text, Member::OrganisationDirectories },
    Row{ PropertyId::PhoneticFamily, FieldWay::Deferred, Member::NameParts },
    Row{ PropertyId::PhoneticGiven, FieldWay::Deferred, Member::NameParts },
    Row{ PropertyId::PhoneticMiddle, FieldWay::Deferred, Member::NameParts },
    Row{ PropertyId::Photo, FieldWay::Media, Member::Photos },
    Row{ PropertyId::ProdId, FieldWay::OnlyText, Member::ProductId },
    Row{ PropertyId::Pronouns, FieldWay::Text, Member::Pronouns },
    Row{ PropertyId::Related, FieldWay::Deferred, Member::Relations },
    Row{ PropertyId::Rev, FieldWay::OnlyDate, Member::Revision },
    Row{ PropertyId::Role, FieldWay::Text, Member::Roles },
    Row{ PropertyId::SocialProfile, FieldWay::Deferred, Member::Messengers },
    Row{ PropertyId::SortString, FieldWay::Deferred, Member::SortName },
    Row{ PropertyId::Sound, FieldWay::Media, Member::Sounds },
    Row{ PropertyId::Source, FieldWay::Text, Member::Sources },
    Row{ PropertyId::Title, FieldWay::Text, Member::Titles },
    Row{ PropertyId::Tz, FieldWay::Deferred, Member::TimeZone, BitOf( Member::Addresses ) },
    Row{ PropertyId::Uid, FieldWay::OnlyText, Member::Uid },
    Row{ PropertyId::Url, FieldWay::Text, Member::Urls },
    Row{ PropertyId::Xml, FieldWay::Text, Member::Xml },
};

constexpr std::array<FieldRule, s_kProperties> MakeRules()
{
    std::array<FieldRule, s_kProperties> rules;
    for ( const Row& row : s_kRows )
    {
        FieldRule& rule = rules[static_cast<size_t>( row.m_property )];
        rule.m_way = row.m_way;
        rule.m_member = row.m_member;
        rule.m_members = BitOf( row.m_member ) | row.m_others;
    }
    return rules;
}

constexpr std::array<FieldRule, s_kProperties> s_kRules = MakeRules();

} // namespace

std::string_view BeginOf( ContactMember a_member )
{
    return s_kBegins[static_cast<size_t>( a_member )];
}

FieldRule FieldRuleOf( PropertyId a_property )
{
    return s_kRules[static_cast<size_t>( a_property )];
}

} // namespace PimManager::Contacts
