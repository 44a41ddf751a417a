/// \file
/// Converts a line of a card to a property.

#pragma once

#include "Cards/LineView.h"
#include "Text/KeptTexts.h"
#include "Values/ValueDecoder.h"
#include "Writing/Property.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Reads lines, one after the other. Keeps its memory. Most lines need none.
class PropertyReader
{
public:
    /// Reads a line.
    /// \param a_line     a line; must outlive the property. If its card names no version, it is read as 3.0.
    /// \param a_property the result of PropertyNamed() for its name.
    /// \param a_number   the number of the line in its card, from 1.
    /// \return the property, which the caller may change. Valid until the next call. The nested card is not set.
    Property& Read( const IndexedLine& a_line, PropertyId a_property, int a_number );

    /// True if a part of the value could not be decoded: malformed characters, QUOTED-PRINTABLE or BASE64.
    bool IsDamaged() const { return m_isDamaged; }
    /// True if the name or the group was changed because it had characters that no version allows.
    bool IsNameMended() const { return m_isNameMended; }
    /// The name of a parameter without a value, which was left out. Empty if there is none.
    std::string_view EmptyParameter() const { return m_emptyParameter; }

private:
    void ReadName( const IndexedLine& a_line );
    void ReadParameters( const IndexedLine& a_line );
    bool ReadPlainParameters( std::string_view a_written );
    std::string_view ParameterName( std::string_view a_name );
    void AddParameter( std::string_view a_name, std::string_view a_value );
    void AddParameter( const ParameterText& a_parameter );
    void SetType( PimContactVersion a_version );
    void ReadValue( const IndexedLine& a_line );
    void ReadBytes( const IndexedLine& a_line );
    void ReadNoBytes( const IndexedLine& a_line );
    void ReadTexts();
    void ReadParts( Delimiters a_delimiters );
    void ReadPlainParts( std::string_view a_value, Delimiters a_delimiters );
    void SetContentIdType();

    Property m_property;
    // The rule of the property in the version of the line; null for a non-standard property.
    const PropertyRule* m_rule = nullptr;
    bool m_isMedia = false;
    std::string_view m_valueName;
    std::string_view m_emptyParameter;
    ValueDecoder m_head;
    ValueDecoder m_value;
    KeptTexts m_headTexts;
    KeptTexts m_valueTexts;
    QByteArray m_name;
    QByteArray m_group;
    QByteArray m_bytes;
    QByteArray m_mediaType;
    QByteArray m_uri;
    bool m_isDamaged = false;
    bool m_isNameMended = false;
};

/// \return the version by which a card is read and written; 3.0 if it names none.
inline PimContactVersion KnownVersion( PimContactVersion a_version )
{
    return a_version == PimContactVersion::Unknown ? PimContactVersion::V30 : a_version;
}

/// \return the delimiters of values of a shape.
Delimiters DelimitersOf( ValueShape a_shape );

/// \return the rule by which a version divides the value of a property. If the version does not have the property, the
///         rule of another version. Null for non-standard properties.
const PropertyRule* ShapeRuleOf( PropertyId a_property, PimContactVersion a_version );

/// \return the type that the value of a property has in a version without VALUE.
ValueType DefaultTypeOf( std::string_view a_name, PropertyId a_property, PimContactVersion a_version );
/// The same with a rule from ShapeRuleOf().
ValueType DefaultTypeOf( std::string_view a_name, PropertyId a_property, const PropertyRule* a_rule );

} // namespace PimManager::Contacts
