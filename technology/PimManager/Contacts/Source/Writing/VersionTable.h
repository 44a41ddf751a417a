/// \file
/// What each version keeps of each property.

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
    /// What is kept, for docs/vcard-support.md; empty for everything.
    std::string_view m_kept;
};

/// A property in each version.
struct VersionRow
{
    PropertyId m_property = PropertyId::Other;
    /// Of versions 2.1, 3.0, and 4.0, which is also that of jCard.
    std::array<VersionCell, 3> m_cells;

    const VersionCell& In( PimContactVersion a_version ) const
    {
        return m_cells[a_version == PimContactVersion::V21 ? 0 : ( a_version == PimContactVersion::V40 ? 2 : 1 )];
    }
};

/// \return the row of a property. One that no version changes has a row without names.
const VersionRow& VersionRowOf( PropertyId a_property );

/// \return the name that a property has in a version. Names that are not in the row, such as those of vendors, remain.
std::string_view NameIn( std::string_view a_name, PropertyId a_property, PimContactVersion a_version );

/// \return the rows as a table in Markdown, as docs/vcard-support.md has it.
QByteArray VersionTableText();

} // namespace PimManager::Contacts
