/// \file
/// Writes properties.

#pragma once

#include "Cards/LineView.h"
#include "Contact/GroupLabels.h"
#include "Contact/LineParameters.h"
#include "Contact/PropertyName.h"
#include "Text/KeptTexts.h"
#include "Values/PropertyKinds.h"
#include "Values/ValueDecoder.h"
#include "Json/ContactHead.h"
#include "Json/JsonText.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Writes one property after the other, and passes their texts on to the head of the contact. Keeps its memory.
class PropertyJson
{
public:
    /// Writes the object of a property, without the brace that ends it.
    /// \param a_labels of the card.
    /// \param a_holdsCard an empty value is not written, because the property holds a card.
    void Write( const IndexedLine& a_line, const GroupLabels& a_labels, bool a_holdsCard, ContactHead& a_head,
                JsonText& a_json );

private:
    std::string_view HeadText( const IndexedLine& a_line, ByteRange a_part );
    void WriteName( const IndexedLine& a_line, JsonText& a_json );
    void WriteGroup( const IndexedLine& a_line, const GroupLabels& a_labels, JsonText& a_json );
    void WriteParameters( JsonText& a_json ) const;
    void WriteValues( ContactHead& a_head, JsonText& a_json );
    void WriteText( ContactHead& a_head, JsonText& a_json );
    void WriteElements( ContactHead& a_head, JsonText& a_json );
    void WriteComponents( ContactHead& a_head, JsonText& a_json );
    void WriteMeaning( ContactHead& a_head, JsonText& a_json );
    void WriteCall( JsonText& a_json );

    ValueDecoder m_decoder;
    LineParameters m_parameters;
    KeptTexts m_texts;
    QByteArray m_group;

    // Of the property.
    PropertyName m_property = PropertyName::Other;
    Delimiters m_delimiters = Delimiters::None;
    std::string_view m_label;
    NamedParts m_parts;
};

} // namespace PimManager::Contacts
