/// \file
/// Converts a property of jCard to a content line.

#pragma once

#include "JCard/JsonCursor.h"
#include "Lines/PropertyRules.h"

#include <QtGlobal>

#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// Converts properties such as `["tel", {"type": "work"}, "uri", "tel:+1-555-555-0100"]` to content lines of vCard 4.0
/// (RFC 7095, section 3.3 to 3.5).
///
/// - The name is written in upper case. A parameter `group` becomes the group. A further one, or one that cannot be a
///   group, is the parameter X-GROUP, because vCard has no GROUP (section 7.1).
/// - VALUE is written if the type is neither that of the property in vCard 4.0 nor `unknown`. A value of type `unknown`
///   is copied as it is (section 5). A parameter `value`, which jCard does not have, is X-VALUE.
/// - Integers lose their decimals and exponents, and other numbers their exponents (section 3.5.9 and 3.5.10).
/// - Several values are separated by commas. An array is a value of components, which are separated by semicolons; an
///   array inside it is a component of several texts.
/// - A parameter value is written with the escapes of RFC 6868, and in quotes where it has to be.
///
/// VERSION is always 4.0. A line never contains a line break.
class PropertyConverter
{
public:
    /// \param a_json a text that begins with the property.
    /// \param[out] a_out the line with CR LF is appended to it.
    /// \return false if the text does not begin with a complete property. Then nothing is appended.
    bool Convert( std::string_view a_json, std::string& a_out );

    /// The length of the property, and the errors in its strings. Valid if Convert() returned true.
    size_t Length() const { return m_length; }
    qint64 Errors() const { return m_errors; }
    size_t FirstError() const { return m_firstError; }
    /// The property was VERSION.
    bool IsVersion() const { return m_property == PropertyId::Version; }

private:
    bool TakeName( JsonCursor& a_json );
    bool TakeParameters( JsonCursor& a_json );
    bool TakeParameter( JsonCursor& a_json );
    bool TakeParameterValue( JsonCursor& a_json );
    void AppendParameterValue( std::string_view a_value );
    void KeepGroup( size_t a_begin );
    bool TakeType( JsonCursor& a_json );
    void AppendHead( std::string& a_out ) const;
    void CompleteType( size_t a_value, std::string& a_out ) const;
    bool TakeValues( JsonCursor& a_json, std::string& a_out );
    bool TakeValue( JsonCursor& a_json, std::string& a_out );
    bool TakeComponents( JsonCursor& a_json, std::string& a_out );
    bool TakeTexts( JsonCursor& a_json, std::string& a_out );
    bool TakeText( JsonCursor& a_json, std::string& a_out, StringForm a_form );
    bool TakeDate( JsonCursor& a_json, std::string& a_out );
    bool TakeWord( JsonCursor& a_json, std::string& a_out ) const;
    bool IsAllowed( std::string_view a_value ) const;

    PropertyId m_property = PropertyId::Other;
    ValueType m_type = ValueType::Text;
    // Raw: the text is copied. It has no type.
    bool m_isUnknown = false;
    // The type is that of the property, which may also be a text.
    bool m_mayBeText = false;
    // The parameter is LABEL.
    bool m_isLabel = false;
    std::string m_group;
    std::string m_name;
    std::string m_parameters;
    std::string m_typeName;
    std::string m_buffer;
    size_t m_length = 0;
    qint64 m_errors = 0;
    size_t m_firstError = 0;
};

} // namespace PimManager::Contacts
