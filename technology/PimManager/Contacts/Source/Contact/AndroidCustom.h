/// \file
/// Data that phones write as X-ANDROID-CUSTOM because version 2.1 has no property for it.

#pragma once

#include <PimManager/Contacts/PimContactKinds.h>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// Such as `vnd.android.cursor.item/relation;Sue;0;Neighbour;;;;;;;;;;;;`.
struct AndroidCustom
{
    enum class Item
    {
        Unknown,
        Nickname,
        Event,
        Relation,
    };

    enum class Event
    {
        Other,
        Custom,
        Anniversary,
        Birthday,
    };

    Item m_item = Item::Unknown;
    std::string_view m_text; ///< the nickname, the date as written, or the name of the person
    Event m_event = Event::Other;
    PimContactRelationKinds m_relation; ///< empty for a custom or unknown relation
    std::string_view m_label;           ///< the label of a custom type
};

/// The number of components that AndroidCustomOf() reads.
using AndroidCustomParts = std::array<std::string_view, 4>;

/// \param a_parts the first components of an X-ANDROID-CUSTOM: the item, its text, a number for its type, and a label,
///                which is used if the number is 0. Components that the line does not have are empty.
/// \return the item without white space around its parts. An unknown item has no other parts.
AndroidCustom AndroidCustomOf( const AndroidCustomParts& a_parts );

} // namespace PimManager::Contacts
