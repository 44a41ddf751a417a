/// \file
/// The members of a contact that precede its properties.

#pragma once

#include "Contact/ContactName.h"
#include "Contact/NamedParts.h"
#include "Json/HeadJson.h"
#include "Json/JsonText.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Collects the members `version`, `name`, `numbers`, `mails` and `organisation` while the properties are written.
class ContactHead
{
public:
    void Clear();

    /// Takes the text of a property that is neither N nor ORG.
    /// \param a_label JSON: a comma and the member `label`; empty without one.
    void TakeText( PropertyName a_property, std::string_view a_text, const HeadJson& a_head, std::string_view a_label );
    /// Takes an N.
    void TakeName( const NamedParts& a_parts );
    /// Takes one component of an ORG after the other.
    void TakeUnit( std::string_view a_unit );
    /// Ends an ORG.
    void EndUnits();

    void WriteTo( JsonText& a_json ) const;

private:
    void TakeOnlyText( PropertyName a_property, std::string_view a_text );

    ContactName m_name;
    QByteArray m_version;
    bool m_hasVersion = false;
    QByteArray m_organisation;
    QByteArray m_units;
    JsonText m_numbers;
    JsonText m_mails;
    QByteArray m_buffer;
};

} // namespace PimManager::Contacts
