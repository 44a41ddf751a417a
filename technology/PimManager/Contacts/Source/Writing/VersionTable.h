/// \file
/// The parts of each property that each version keeps.

#pragma once

#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// How a version writes a property.
struct VersionCell
{
    /// The name in the version; empty if the property keeps its name.
    std::string_view m_name;
    /// The part that is kept, for docs/vcard-support.md; empty if everything is kept.
    std::string_view m_kept;
};

/// A property in each version.
struct VersionRow
{
    PropertyId m_property = PropertyId::Other;
    /// For versions 2.1, 3.0 and 4.0. jCard uses that of 4.0.
    std::array<VersionCell, 3> m_cells;

    const VersionCell& In( PimContactVersion a_version ) const
    {
        return m_cells[a_version == PimContactVersion::V21 ? 0 : ( a_version == PimContactVersion::V40 ? 2 : 1 )];
    }
};

/// \return the row of a property. A property that no version changes has a row without names.
const VersionRow& VersionRowOf( PropertyId a_property );

/// \return the name of a property in a version. Names that are not in the row, such as those of vendors, do not change.
std::string_view NameIn( std::string_view a_name, PropertyId a_property, PimContactVersion a_version );

/// \return the rows as the Markdown table in docs/vcard-support.md.
QByteArray VersionTableText();

} // namespace PimManager::Contacts
