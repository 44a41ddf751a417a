/// \file
/// Writes properties.

#pragma once

#include "Cards/LineView.h"
#include "Contact/GroupLabels.h"
#include "Text/KeptTexts.h"
#include "Values/ValueDecoder.h"
#include "Json/ContactHead.h"
#include "Json/HeadJson.h"
#include "Json/JsonText.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Writes one property after the other, and passes their texts on to the contact. Keeps its memory.
class PropertyJson
{
public:
    /// Writes the object of a property, without the brace that ends it.
    /// \param a_labels of the card.
    /// \param a_holdsCard an empty value is not written, because the property holds a card.
    void Write( const IndexedLine& a_line, const GroupLabels& a_labels, bool a_holdsCard, ContactHead& a_contact,
                JsonText& a_json );

private:
    void WriteGroupAndHead( const IndexedLine& a_line, const HeadJson& a_head, const GroupLabels& a_labels,
                            JsonText& a_json );
    std::string_view GroupText( const IndexedLine& a_line );
    void WriteValues( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteText( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteElements( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteComponents( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteMeaning( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteCall( const HeadJson& a_head, JsonText& a_json );

    HeadCache m_heads;
    ValueDecoder m_decoder;
    KeptTexts m_texts;
    QByteArray m_group;

    // Of the property: the member `label` with a comma before it, and the parts of an N or ADR.
    JsonText m_label;
    NamedParts m_parts;
};

} // namespace PimManager::Contacts
