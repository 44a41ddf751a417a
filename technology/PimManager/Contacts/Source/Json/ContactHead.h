/// \file
/// The members of a contact that are written before its properties.

#pragma once

#include "Contact/ContactName.h"
#include "Contact/NamedParts.h"
#include "Text/JsonText.h"
#include "Json/HeadJson.h"
#include "Json/MemberTexts.h"

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// The data of a field from the parameters and the label of its line.
struct FieldHead
{
    const HeadJson& m_head;
    /// JSON: members, each with a comma before it.
    std::string_view m_common;
    /// True if the value should be bytes and cannot be decoded.
    bool m_isDamaged = false;
};

/// A value as text, and as JSON with the quotes.
struct FieldText
{
    std::string_view m_text;
    std::string_view m_json;
};

/// The texts of the components of an N or ADR, as JSON.
struct FieldParts
{
    struct Part
    {
        size_t m_component;
        size_t m_begin;
        size_t m_length;
    };

    const JsonText& m_json;
    /// The texts, without empty ones, as positions in m_json.
    const std::vector<Part>& m_parts;

    std::string_view TextOf( const Part& a_part ) const
    {
        return m_json.From( a_part.m_begin ).substr( 0, a_part.m_length );
    }
};

/// Collects the members of a contact while its properties are written. Each value is decoded only once. Members that
/// need several properties are deferred, see DeferredMembers.h. Keeps its memory.
class ContactHead
{
public:
    void Clear();

    /// Takes the text of a property that is neither N, ADR nor ORG. Call TakeElement() for its elements before.
    void TakeText( const FieldHead& a_head, const FieldText& a_text );
    /// Takes one element of a NICKNAME or CATEGORIES after the other.
    void TakeElement( const FieldHead& a_head, const FieldText& a_element );
    /// Takes an N.
    void TakeName( const FieldHead& a_head, const NamedParts& a_components, const FieldParts& a_parts );
    /// Takes an ADR.
    void TakeAddress( const FieldHead& a_head, const FieldParts& a_parts );
    /// Takes one component of an ORG after the other.
    void TakeUnit( const FieldText& a_unit );
    /// Ends an ORG.
    void EndUnits( const FieldHead& a_head );
    /// Takes a binary picture, sound or key.
    /// \param a_members JSON: `mediaType` and `size`; empty if the value is damaged.
    /// \param a_property its position in the list of properties.
    void TakeMedia( const FieldHead& a_head, std::string_view a_members, size_t a_property );
    /// Marks members to be read by PimContact.
    void Defer( ContactMembers a_members ) { m_deferred |= a_members; }

    /// \return true if WriteTo() needs the contact.
    bool IsDeferred() const { return m_deferred != 0; }
    void WriteTo( const PimContact& a_contact, JsonText& a_json );

private:
    void TakeNumber( const FieldHead& a_head, std::string_view a_text );
    void TakeMail( const FieldHead& a_head, std::string_view a_text );
    void TakeOnlyText( PropertyId a_property, std::string_view a_text );
    void TakeField( const FieldHead& a_head, const FieldText& a_text );
    void TakeFormattedName( const FieldHead& a_head );
    void TakeEvent( const FieldHead& a_head, const FieldText& a_text );
    void TakeLinkedMedia( const FieldHead& a_head, const FieldText& a_text );
    void EndMedia( const FieldHead& a_head );
    void AddText( ContactMember a_member, const FieldText& a_text, std::string_view a_common );
    void AddUnit( const FieldText& a_unit );
    void AddSortName( std::string_view a_name );

    ContactName m_name;
    QByteArray m_version;
    bool m_hasVersion = false;
    bool m_hasFormattedName = false;
    QByteArray m_organisation;
    // For an ORG: all components, their number, and which of them have a text.
    QByteArray m_units;
    size_t m_unitCount = 0;
    bool m_hasOrganisation = false;
    bool m_hasUnits = false;
    JsonText m_numbers;
    JsonText m_mails;
    MemberTexts m_members;
    ContactMembers m_deferred = 0;
    // JSON without quotes: the family names and the given names.
    JsonText m_sortName;
    QByteArray m_buffer;
    QByteArray m_number;
};

} // namespace PimManager::Contacts
