/// \file
/// A property apart from how a version writes it.

#pragma once

#include "Lines/ParameterTable.h"
#include "Lines/PropertyRules.h"
#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// One value of a parameter.
struct ParameterText
{
    /// Of a standard parameter in upper case, else as written.
    std::string_view m_name;
    /// Decoded, in UTF-8. It may have any line breaks and control characters.
    std::string_view m_value;
    StandardParameter m_parameter = StandardParameter::Other;

    bool Is( StandardParameter a_parameter ) const { return m_parameter == a_parameter; }
};

/// One text of a value.
struct ValueText
{
    /// Without escapes, in UTF-8. It may have any line breaks and control characters.
    std::string_view m_text;
    /// Which component it belongs to, from 0. Each component has one text at least, which may be empty.
    quint32 m_component = 0;
};

/// A property. All texts refer to memory of what made it, and are valid until that makes the next one.
///
/// - ENCODING, CHARSET and VALUE are no parameters here: the value is decoded, and its type is known. A bare word of
///   2.1 is a TYPE.
/// - The values of one parameter follow each other, in the order in which the line has them.
/// - A Single value has one text; a List one for each element, all of component 0; Components one for each component;
///   and ComponentLists one or more for each component.
/// - A value that is bytes has no texts, and neither has one that is a card of its own.
struct Property
{
    /// As written; empty without one. It has name bytes only.
    std::string_view m_group;
    /// As written; it has name bytes only, and is not empty.
    std::string_view m_name;
    /// PropertyNamed() of the name.
    PropertyId m_property = PropertyId::Other;
    std::vector<ParameterText> m_parameters;

    /// Of the texts. Other for a property of no standard without VALUE: its texts are what is between unescaped
    /// semicolons and commas.
    ValueType m_type = ValueType::Text;
    ValueShape m_shape = ValueShape::Single;
    std::vector<ValueText> m_texts;

    bool m_isBinary = false;
    std::string_view m_bytes;
    /// Of the bytes, such as `image/jpeg`; empty if it is unknown.
    std::string_view m_mediaType;
    /// A card inside the card, as AGENT has; null for other properties.
    PimContactCard m_nested;

    /// Its number among the lines of the card, from 1; 0 for a property that was added.
    int m_line = 0;

    void Clear()
    {
        m_group = m_name = m_bytes = m_mediaType = std::string_view();
        m_property = PropertyId::Other;
        m_parameters.clear();
        m_type = ValueType::Text;
        m_shape = ValueShape::Single;
        m_texts.clear();
        m_isBinary = false;
        m_nested = PimContactCard();
        m_line = 0;
    }

    bool IsText() const { return !m_isBinary && m_nested.IsNull(); }

    /// \return the first text; empty without one.
    std::string_view Text() const { return m_texts.empty() ? std::string_view() : m_texts.front().m_text; }

    /// \return the first value of a parameter; empty without it.
    std::string_view First( StandardParameter a_parameter ) const
    {
        for ( const ParameterText& parameter : m_parameters )
        {
            if ( parameter.Is( a_parameter ) )
                return parameter.m_value;
        }
        return std::string_view();
    }

    void SetText( std::string_view a_text )
    {
        m_shape = ValueShape::Single;
        m_texts.assign( 1, { a_text, 0 } );
    }
};

/// Receives the properties of one card after the other, in the version that is to be written.
class PropertySink
{
public:
    PropertySink() = default;
    PropertySink( const PropertySink& ) = delete;
    PropertySink& operator=( const PropertySink& ) = delete;
    virtual ~PropertySink() = default;

    virtual void BeginCard() = 0;
    /// The card has VERSION here. Never called for 4.0, where it follows BEGIN.
    virtual void TakeVersion() {}
    /// Never BEGIN, VERSION or END.
    virtual void Take( const Property& a_property ) = 0;
    virtual void EndCard() = 0;

    /// Nothing is lost before the next property is taken. Call this for a line that may become a part of another one.
    void ForgetLosses()
    {
        m_isTextLost = false;
        m_lostParameter = std::string_view();
    }
    /// \return true if a character of the value of the last property could not be written.
    bool IsTextLost() const { return m_isTextLost; }
    /// \return the name of a parameter of the last property of which a character could not be written; empty if there
    ///         is none.
    std::string_view LostParameter() const { return m_lostParameter; }

protected:
    bool m_isTextLost = false;
    std::string_view m_lostParameter;
};

} // namespace PimManager::Contacts
