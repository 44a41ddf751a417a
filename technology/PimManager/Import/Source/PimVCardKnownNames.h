/// \file
/// Which lines look like properties to a reader who knows the standards.

#pragma once

#include <string_view>

namespace PimManager::vCardImport
{

/// A property name of vCard 2.1, 3.0 or 4.0, in any letter case.
bool IsKnownName( std::string_view a_name );

/// "X-" and more, whatever its characters.
bool IsExtensionName( std::string_view a_name );

/// How sure it is that a line begins a property.
enum class PimVCardLooks
{
    /// Text that some value goes on with.
    Text,
    /// A known name without a colon.
    NameOnly,
    /// The component would read it, or it has a name with other characters that somebody may have given to a property.
    Property,
    /// It cannot be anything else: a known name or an extension, in the letter case of names.
    ClearlyProperty,
};

/// \param a_line a content line without folds.
PimVCardLooks LooksOf( std::string_view a_line );

} // namespace PimManager::vCardImport
