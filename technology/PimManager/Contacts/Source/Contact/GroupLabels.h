/// \file
/// The labels that a card has for groups of properties.

#pragma once

#include "Cards/LineView.h"
#include "Text/WordGroups.h"
#include "Values/ValueDecoder.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// The labels of the groups of one card: the values of X-ABLabel. The first one of a group counts. Keeps its memory.
class GroupLabels
{
public:
    /// Reads the labels of a card.
    /// \param a_first is at the first line of the card that has a group.
    void Read( const LineCursor& a_first );

    /// \param a_group in any letter case, as written.
    /// \return the label without marks (see LabelMarks.h); empty if there is none.
    std::string_view Of( std::string_view a_group ) const;

private:
    void Add( const IndexedLine& a_line );
    ByteRange Add( std::string_view a_text );

    ValueDecoder m_decoder;
    QByteArray m_texts;
    std::vector<ByteRange> m_labels;
    std::vector<ByteRange> m_groupRanges;
    WordGroups m_groups;
};

} // namespace PimManager::Contacts
