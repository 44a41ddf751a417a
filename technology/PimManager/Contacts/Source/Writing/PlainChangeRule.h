/// \file
/// Rules for values that are the same in another version.

#pragma once

#include "Lines/PropertyRules.h"
#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// The version of a card and the version in which it is written.
struct VersionStep
{
    PimContactVersion m_source = PimContactVersion::V30;
    PimContactVersion m_target = PimContactVersion::V30;

    bool IsNone() const { return m_source == m_target; }
    bool operator==( const VersionStep& a_other ) const
    {
        return m_source == a_other.m_source && m_target == a_other.m_target;
    }
};

/// Lines such as FN, TEL and ADR whose name is the same in another version, and whose only parameters are words of
/// TYPE. What becomes of such a head does not depend on the value, and most values remain as they are.
struct PlainChangeRule
{
    /// \param a_parameters from the first semicolon up to the colon; may be empty.
    static PlainChangeRule Of( PropertyId a_property, std::string_view a_name, std::string_view a_parameters,
                               VersionStep a_step );

    /// \return true if a value is written unchanged in the target, unless 2.1 must encode it.
    /// \param a_value clean text without continuation lines.
    bool Keeps( std::string_view a_value ) const;

    /// \return true if the target has this many components.
    bool MayHave( quint32 a_components ) const { return a_components >= m_least && a_components <= m_most; }

    bool m_isAllowed = false;
    /// For the value in its version.
    ValueShape m_shape = ValueShape::Single;
    /// The number of components in the target.
    quint32 m_least = 0;
    quint32 m_most = 0;
    bool m_isOldTarget = false;
    /// The target escapes delimiters.
    bool m_isText = true;
    /// A mail may be a `mailto:` URI, and a number of 4.0 a `tel:` URI.
    bool m_mayBeUri = false;
};

} // namespace PimManager::Contacts
