#include "Values/PropertyKinds.h"

#include "Lines/PropertyRules.h"

namespace PimManager::Contacts
{

namespace
{

// A card without a version is read as 3.0. Phones write the lists of 3.0 into cards of 2.1.
const PropertyRule* RuleFor( PropertyId a_property, PimContactVersion a_version )
{
    const PropertyRule* const rule = FindRule( a_property, a_version );
    const bool is30Tried = rule == nullptr && a_version != PimContactVersion::V40;
    return is30Tried ? FindRule( a_property, PimContactVersion::V30 ) : rule;
}

} // namespace

Delimiters DelimitersOf( PropertyId a_property, PimContactVersion a_version )
{
    const PropertyRule* const rule = RuleFor( a_property, a_version );
    switch ( rule == nullptr ? ValueShape::Single : rule->m_shape )
    {
    case ValueShape::List:
        return Delimiters::Commas;
    case ValueShape::Components:
        return Delimiters::Semicolons;
    case ValueShape::ComponentLists:
        return Delimiters::SemicolonsAndCommas;
    default:
        return Delimiters::None;
    }
}

} // namespace PimManager::Contacts
