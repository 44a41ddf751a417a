/// \file
/// The labels of the groups of a card.

#pragma once

#include "Cards/LineView.h"
#include "Text/WordGroups.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

class ContactLines;

/// The labels of the groups of one card: the values of X-ABLabel. If a group has several, the first one is used. Keeps
/// its memory.
class GroupLabels
{
public:
    /// The label of a group, as written.
    struct Label
    {
        std::string_view m_text;
        /// The id of its line in the contact; 0 if it was read from a card.
        int m_id = 0;
    };

    /// Reads the labels of a card.
    /// \param a_first a cursor at the first line of the card that has a group.
    void Read( const LineCursor& a_first );
    /// Reads the labels of a contact.
    void Read( const ContactLines& a_lines );

    /// \param a_group the group as written, in any letter case.
    /// \return the label without marks (see LabelMarks.h); empty if there is none.
    std::string_view Of( std::string_view a_group ) const;
    /// The same with marks, and the line.
    Label LabelOf( std::string_view a_group ) const;

private:
    struct Entry
    {
        ByteRange m_label;
        ByteRange m_group;
        int m_id = 0;
    };

    void Clear();
    void Add( const IndexedLine& a_line, int a_id );
    void Finish();
    ByteRange Add( std::string_view a_text );

    QByteArray m_texts;
    std::vector<Entry> m_entries;
    WordGroups m_groups;
};

} // namespace PimManager::Contacts
