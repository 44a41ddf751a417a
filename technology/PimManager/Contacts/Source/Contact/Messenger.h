/// \file
/// Accounts in messengers and social networks.

#pragma once

#include "Contact/LineParameters.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// A service with the data that a writer needs. A part that the service does not have is empty.
struct MessengerService
{
    std::string_view m_name;     ///< for people, such as `Google Talk`
    std::string_view m_scheme;   ///< of a URI in IMPP, with the colon, such as `xmpp:`
    std::string_view m_property; ///< for versions without IMPP, such as `X-JABBER`
};

/// \param a_name in any letter case. Only letters and digits count, so `GoogleTalk` and `GOOGLE-TALK` are the same.
/// \return nullptr if the name is unknown.
const MessengerService* MessengerServiceOf( std::string_view a_name );

/// \param a_property the name of a property in any letter case.
/// \return true for IMPP, SOCIALPROFILE (RFC 9554), X-SOCIALPROFILE, X-MS-IMADDRESS, X-KADDRESSBOOK-X-IMADDRESS,
///         `X-messaging/SERVICE-All`, and `X-` or `X-EVOLUTION-` before the name of a known service.
bool IsMessengerName( std::string_view a_property );

/// An address in a messenger or social network. A part that is not known is empty. The parts are views of the value,
/// the parameters and the buffer they were read with.
struct MessengerParts
{
    /// The name of MessengerService, or the service as written in the line if it is unknown.
    std::string_view m_service;
    /// The user name without percent-encoding.
    std::string_view m_handle;
    /// The URI as written, empty if the value is not a URI.
    std::string_view m_address;
};

/// Reads a line whose name IsMessengerName() accepts.
///
/// The service is that of X-SERVICE-TYPE or SERVICE-TYPE, else of the property name, of a TYPE, of the URI scheme, or
/// of a web address such as `https://twitter.com/omega`. In X-SOCIALPROFILE, any TYPE that is not a kind is a service.
///
/// The user name is that of X-USER or USERNAME, else of the value, else of X-USERID. A web address has a user name only
/// if it is the address of a profile in a known service.
///
/// \param a_property   the name of the property.
/// \param a_value      the text of the value.
/// \param a_parameters the parameters of the line.
/// \param a_buffer     receives the user name if it is not written in the line.
MessengerParts MessengerPartsOf( std::string_view a_property, std::string_view a_value,
                                 const LineParameters& a_parameters, QByteArray& a_buffer );

} // namespace PimManager::Contacts
