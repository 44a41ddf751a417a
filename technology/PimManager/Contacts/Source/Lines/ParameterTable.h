/// \file
/// The parameters of the standards.

#pragma once

#include "Lines/EnumSet.h"
#include "Lines/StandardSection.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// A parameter of the standards.
enum class StandardParameter : quint8
{
    AltId,
    Author,
    AuthorName,
    CalScale,
    Cc,
    Charset,
    Context,
    Created,
    Derived,
    Encoding,
    Geo,
    Index,
    JsComps,
    JsPtr,
    Label,
    Language,
    Level,
    MediaType,
    Phonetic,
    Pid,
    Pref,
    PropId,
    Script,
    ServiceType,
    SortAs,
    Type,
    Tz,
    UserName,
    Value,

    Other, ///< not a parameter of a standard
};

/// The number of parameters of the standards.
constexpr size_t s_kStandardParameters = static_cast<size_t>( StandardParameter::Other );

using ParameterSet = EnumSet<StandardParameter>;

/// Determines the parameter with a name. Constant time.
/// \param a_name in any letter case.
StandardParameter StandardParameterOf( std::string_view a_name );

/// \return true if the value of a parameter is written in quotes: for its delimiters, and for white space, which a
/// reader
///         removes at the ends of a value without quotes.
bool NeedsQuotes( std::string_view a_value );

/// \return true for GROUP in any letter case. vCard 4.0 does not have this parameter (RFC 7095, section 7.1).
bool IsReservedParameter( std::string_view a_name );

/// \return the name in upper case.
/// \param a_parameter not Other.
std::string_view NameOf( StandardParameter a_parameter );

/// Determines the section that defines a parameter for a version.
/// \param a_parameter not Other.
/// \return a section without a number if the version does not have the parameter.
StandardSection SectionOf( StandardParameter a_parameter, PimContactVersion a_version );

} // namespace PimManager::Contacts
