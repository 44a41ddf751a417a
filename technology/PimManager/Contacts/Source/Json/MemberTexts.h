/// \file
/// The JSON of the members of a contact, in any order.

#pragma once

#include "Text/JsonText.h"
#include "Json/ContactMember.h"

#include <QtGlobal>

#include <array>
#include <vector>

namespace PimManager::Contacts
{

/// Collects the elements of members while the properties are read, and sorts them by member. Linear. Keeps its memory.
class MemberTexts
{
public:
    void Clear();

    bool Has( ContactMember a_member ) const { return ( m_members & BitOf( a_member ) ) != 0; }
    ContactMembers Members() const { return m_members; }

    /// Begins an element. It ends when the next one begins.
    /// \return the buffer for its JSON.
    JsonText& Begin( ContactMember a_member );
    /// The element that was begun last.
    JsonText& Last() { return m_json; }

    /// Appends the member with a comma before it, and commas between its elements.
    void Write( ContactMember a_member, JsonText& a_json ) const;

private:
    struct Element
    {
        size_t m_begin;
        /// The next element of the member; s_kNone for the last one.
        size_t m_next;
    };
    // The first and the last element of a member.
    struct Chain
    {
        size_t m_first;
        size_t m_last;
    };

    static constexpr size_t s_kNone = ~static_cast<size_t>( 0 );

    std::string_view TextOf( size_t a_element ) const;

    JsonText m_json;
    std::vector<Element> m_elements;
    // The entries of m_members that have a value.
    std::array<Chain, s_kContactMembers> m_chains;
    ContactMembers m_members = 0;
};

/// Appends a member with a comma before it.
/// \param a_value one or more elements, with commas between them.
void WriteMember( ContactMember a_member, std::string_view a_value, JsonText& a_json );

} // namespace PimManager::Contacts
