/// \file
/// The rules of the standards for each property.

#pragma once

#include "Lines/EnumSet.h"
#include "Lines/ParameterTable.h"
#include "Lines/PropertyTable.h"
#include "Lines/StandardSection.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// How often a property may occur in a card.
enum class Occurrence : quint8
{
    One,
    OneOrMore,
    AtMostOne,
    Any,
};

/// The type of a value.
enum class ValueType : quint8
{
    Text,
    Uri,
    Date,
    Time,
    DateTime,
    DateAndOrTime,
    Timestamp,
    Boolean,
    Integer,
    Float,
    UtcOffset,
    LanguageTag,
    Binary,
    VCard,
    PhoneNumber,
    Coordinates, ///< 2.1: two numbers with a comma between them
    Inline,      ///< 2.1: the type of the property without VALUE
    ContentId,   ///< 2.1: the value is in another part of the mail message

    Other, ///< not a type of a standard
};

using ValueTypes = EnumSet<ValueType>;

/// \return true for a type whose values have a day, with or without a time.
inline bool IsDay( ValueType a_type )
{
    constexpr ValueTypes s_kTypes = { ValueType::Date, ValueType::DateTime, ValueType::DateAndOrTime,
                                      ValueType::Timestamp };
    return s_kTypes.Has( a_type );
}

/// How a value is divided.
enum class ValueShape : quint8
{
    Single,         ///< one value
    List,           ///< values between commas
    Components,     ///< components between semicolons
    ComponentLists, ///< components between semicolons, and each of them values between commas
};

/// Any number of components.
constexpr quint8 s_kAnyNumber = 0xFF;

/// The rule of a standard for a property.
struct PropertyRule
{
    PropertyId m_property = PropertyId::Other;
    Occurrence m_occurrence = Occurrence::Any;
    ValueShape m_shape = ValueShape::Single;
    /// The limits for Components and ComponentLists; the second may be s_kAnyNumber.
    quint8 m_leastComponents = 1;
    quint8 m_mostComponents = 1;
    ValueType m_defaultType = ValueType::Text;
    /// Includes the default type.
    ValueTypes m_types;
    ParameterSet m_parameters;
    StandardSection m_section;
};

/// A range of rules.
struct PropertyRules
{
    const PropertyRule* m_begin = nullptr;
    const PropertyRule* m_end = nullptr;

    const PropertyRule* begin() const { return m_begin; }
    const PropertyRule* end() const { return m_end; }
};

/// \return the rules of a version in the order of its standards; none for an unknown version.
PropertyRules RulesOf( PimContactVersion a_version );

/// Finds the rule of a property. Constant time.
/// \return null if the version does not have the property.
const PropertyRule* FindRule( PropertyId a_property, PimContactVersion a_version );

/// Determines the type that a VALUE parameter names.
/// \param a_name in any letter case.
/// \return Other if the version does not have the type.
ValueType ValueTypeOf( std::string_view a_name, PimContactVersion a_version );

/// \return the name of a type in a VALUE parameter, such as `date-and-or-time`.
std::string_view NameOf( ValueType a_type );

} // namespace PimManager::Contacts
