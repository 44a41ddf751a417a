/// \file
/// Writes properties.

#pragma once

#include "Cards/LineView.h"
#include "Contact/GroupLabels.h"
#include "Text/JsonText.h"
#include "Text/KeptTexts.h"
#include "Values/ValueDecoder.h"
#include "Json/BinaryJson.h"
#include "Json/ContactHead.h"
#include "Json/HeadJson.h"

#include <QByteArray>

#include <array>
#include <string_view>
#include <tuple>
#include <vector>

namespace PimManager::Contacts
{

/// Writes properties, one after the other, and passes their texts to the contact. Keeps its memory.
class PropertyJson
{
public:
    /// Writes the object of a property, without its closing brace.
    /// \param a_labels the labels of the card.
    /// \param a_holdsCard true if the property contains a card, so that an empty value is not written.
    /// \param a_place of the property in the list of properties.
    void Write( const IndexedLine& a_line, const GroupLabels& a_labels, bool a_holdsCard, size_t a_place,
                ContactHead& a_contact, JsonText& a_json );

private:
    void WriteGroupAndHead( const IndexedLine& a_line, const HeadJson& a_head, const GroupLabels& a_labels,
                            JsonText& a_json );
    std::string_view GroupText( const IndexedLine& a_line );
    void WriteLabel( const HeadJson& a_head, std::string_view a_label, JsonText& a_json );
    BinaryJson DecodeOrWrite( const IndexedLine& a_line, const HeadJson& a_head, JsonText& a_json );
    static void TakeBinary( const IndexedLine& a_line, const FieldHead& a_head, const BinaryJson& a_binary,
                            size_t a_place, ContactHead& a_contact, const JsonText& a_json );
    void WriteValues( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteText( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteElements( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteComponents( const HeadJson& a_head, ContactHead& a_contact, JsonText& a_json );
    void WriteMeaning( const FieldHead& a_head, ContactHead& a_contact, JsonText& a_json );
    template <size_t s_kSize>
    void WriteParts( const std::array<std::string_view, s_kSize>& a_names, JsonText& a_json );
    FieldParts ListsOf( const HeadJson& a_head, size_t a_written, size_t a_most, const JsonText& a_json );
    void TakeComponent( std::string_view a_text, size_t a_place, PropertyId a_property, const JsonText& a_json );
    void ReadLists( const HeadJson& a_head, size_t a_most );
    void WriteCall( const HeadJson& a_head, JsonText& a_json );

    HeadCache m_heads;
    ValueDecoder m_decoder;
    KeptTexts m_texts;
    QByteArray m_group;

    // For a property whose group has a label: the common members of its field.
    JsonText m_common;
    bool m_hasLabel = false;
    // For an N or ADR: the components without white space at both ends, their number, and the positions of their texts
    // in the JSON. The length of a component is 0 if it must be written again or does not exist. The components of an
    // ADR that need not be written again are not kept.
    NamedParts m_parts;
    std::array<FieldParts::Part, std::tuple_size<NamedParts>::value> m_written;
    size_t m_partCount = 0;
    std::vector<FieldParts::Part> m_places;
    JsonText m_lists;
};

} // namespace PimManager::Contacts
