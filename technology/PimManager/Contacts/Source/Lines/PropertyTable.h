/// \file
/// The properties of the standards and of vendors.

#pragma once

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// The meaning of a property. Several names may have the same meaning: X-ANNIVERSARY is an Anniversary.
///
/// The first six can be the display name of a contact, the best one first.
enum class PropertyId : quint8
{
    Fn,
    N,
    Nickname,
    Org,
    Email,
    Tel,

    Other, ///< any other property

    Adr,
    AddressCountry, ///< X-ABADR
    Agent,
    AndroidCustom,
    Anniversary,
    Bday,
    Begin,
    BirthPlace,
    CalAdrUri,
    CalUri,
    CallTime, ///< X-IRMC-CALL-DATETIME
    Categories,
    Class,
    ClientPidMap,
    ContactUri,
    Created,
    DeathDate,
    DeathPlace,
    End,
    Expertise,
    FbUrl,
    Gender,
    Geo,
    GramGender,
    GroupDate,  ///< X-ABDATE
    GroupLabel, ///< X-ABLabel
    Hobby,
    Interest,
    JsProp,
    Key,
    Kind,
    Label,
    Lang,
    Language,
    Logo,
    Mailer,
    MaidenName,
    Member,
    Messenger, ///< IMPP and the properties that programs write instead
    Name,
    Note,
    OrgDirectory,
    PhoneticFamily,
    PhoneticGiven,
    PhoneticMiddle,
    Photo,
    ProdId,
    Profile,
    Pronouns,
    Related, ///< RELATED, and names such as X-SPOUSE
    Rev,
    Role,
    SocialProfile,
    SortString,
    Sound,
    Source,
    Title,
    Tz,
    Uid,
    Url,
    Version,
    Xml,
};

/// The number of properties.
constexpr size_t s_kProperties = static_cast<size_t>( PropertyId::Xml ) + 1;

/// Determines the property with a name. Constant time.
/// \param a_name in any letter case.
PropertyId PropertyOf( std::string_view a_name );

/// The same for a name at the start of a text. It is faster if the text continues.
/// \param a_length the length of the name, from 1.
PropertyId PropertyAt( std::string_view a_text, size_t a_length );

/// Determines the property of a standard with a name. Constant time.
/// \param a_name in any letter case.
/// \return Other for the names of vendors as well.
PropertyId StandardPropertyOf( std::string_view a_name );

/// \return true for a name that begins with `X-` in any letter case and is longer.
bool IsExtensionName( std::string_view a_name );

/// \return the name that a standard gives the property, in upper case. Empty for properties that only vendors use.
std::string_view NameOf( PropertyId a_property );

} // namespace PimManager::Contacts
