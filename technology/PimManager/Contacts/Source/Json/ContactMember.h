/// \file
/// The members of a contact that come from its properties, and how each property is read.

#pragma once

#include "Lines/PropertyTable.h"

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// In the order of the JSON. Each except FormattedNames has the name of a function of PimContact.
enum class ContactMember : quint8
{
    NameParts, ///< PimContact::Name()
    SortName,
    FormattedNames,
    Nicknames,
    Addresses,
    Messengers,
    Urls,
    ContactUris,
    SpokenLanguages,
    Position,
    TimeZone,
    Events,
    Organisations,
    Titles,
    Roles,
    Expertise,
    Hobbies,
    Interests,
    OrganisationDirectories,
    Relations,
    Kind,
    Members,
    Photos,
    Logos,
    Sounds,
    Keys,
    Uid,
    Revision,
    Created,
    CallTime,
    Notes,
    Categories,
    Gender,
    GrammaticalGenders,
    Pronouns,
    DefaultLanguage,
    CalendarUris,
    CalendarAddresses,
    FreeBusyUris,
    Sources,
    Xml,
    ClientPidMap,
    Classification,
    Mailer,
    ProductId,
};

/// The number of members.
constexpr size_t s_kContactMembers = static_cast<size_t>( ContactMember::ProductId ) + 1;

/// A set of members, one bit for each.
using ContactMembers = quint64;
static_assert( s_kContactMembers <= sizeof( ContactMembers ) * 8 );

constexpr ContactMembers BitOf( ContactMember a_member )
{
    return ContactMembers( 1 ) << static_cast<unsigned>( a_member );
}

/// \return a comma, the name, a colon, and for a list its opening bracket.
std::string_view BeginOf( ContactMember a_member );

/// How a property becomes a part of a member.
enum class FieldWay : quint8
{
    None,     ///< there is no member for it, or one that every contact has
    Text,     ///< a list of texts
    OnlyText, ///< the first text
    Elements, ///< a list of the elements between commas
    OnlyDate, ///< the first date
    FormattedName,
    Name,
    Address,
    Organisation,
    Event,
    Media,
    Deferred, ///< PimContact reads it: it is rare, or needs other properties
};

/// How a property is handled.
struct FieldRule
{
    FieldWay m_way = FieldWay::None;
    ContactMember m_member = ContactMember::NameParts;
    /// All members that depend on the property.
    ContactMembers m_members = 0;
};

FieldRule FieldRuleOf( PropertyId a_property );

} // namespace PimManager::Contacts
