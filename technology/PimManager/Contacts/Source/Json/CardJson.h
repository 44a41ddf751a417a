/// \file
/// Writes cards.

#pragma once

#include "Contact/GroupLabels.h"
#include "Text/JsonText.h"
#include "Json/ContactHead.h"
#include "Json/PropertyJson.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>

#include <memory>
#include <vector>

namespace PimManager::Contacts
{

/// Writes cards, one after the other. Keeps its memory.
class CardJson
{
public:
    /// \param a_file the value of the member `file`; null to leave it out.
    void Write( const PimContactCard& a_card, const QByteArray& a_file, JsonText& a_json );

private:
    // For a card and for each card around it.
    struct Level
    {
        ContactHead m_head;
        GroupLabels m_labels;
        bool m_hasLabels = false;
    };

    void WriteMembers( const CardView& a_card, size_t a_depth, JsonText& a_json );
    PimContact ContactOf( const CardView& a_card ) const;
    void WriteProperties( const CardView& a_card, size_t a_depth, JsonText& a_json );
    Level& LevelAt( size_t a_depth );

    PropertyJson m_property;
    std::vector<std::unique_ptr<Level>> m_levels;
    JsonText m_head;
    // The outermost card.
    PimContactCard m_card;
    const PimContact m_noContact;
    // The line of the file with the first byte of the outermost card, from 1.
    qint64 m_firstLine = 1;
};

} // namespace PimManager::Contacts
