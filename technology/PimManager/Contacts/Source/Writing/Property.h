/// \file
/// A property, independent of the form of any version.

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
    /// The name. Upper case for a standard parameter, otherwise as written.
    std::string_view m_name;
    /// The decoded value in UTF-8. It may contain any line breaks and control characters.
    std::string_view m_value;
    StandardParameter m_parameter = StandardParameter::Other;

    bool Is( StandardParameter a_parameter ) const { return m_parameter == a_parameter; }
};

/// One text of a value.
struct ValueText
{
    /// The text in UTF-8 without escapes. It may contain any line breaks and control characters.
    std::string_view m_text;
    /// The number of its component, from 0. Each component has at least one text, which may be empty.
    quint32 m_component = 0;
};

/// A property. All texts refer to the memory of the object that created it, and are valid until that object creates the
/// next one.
///
/// - ENCODING, CHARSET and VALUE are not among the parameters, because the value is decoded and its type is known. A
///   bare word of 2.1 is a TYPE.
/// - The values of one parameter follow each other in the order of the line.
/// - A Single value has one text. A List has one for each element, all in component 0. Components have one for each
///   component, and ComponentLists one or more for each component.
/// - A binary value has no texts, and neither has a value that is a nested card.
struct Property
{
    /// The group as written. Empty if there is none. It has only name bytes.
    std::string_view m_group;
    /// The name as written. It has only name bytes and is not empty.
    std::string_view m_name;
    /// PropertyNamed() of the name.
    PropertyId m_property = PropertyId::Other;
    std::vector<ParameterText> m_parameters;

    /// The type of the texts. Other for a non-standard property without VALUE. Its texts are then the parts between
    /// unescaped semicolons and commas.
    ValueType m_type = ValueType::Text;
    ValueShape m_shape = ValueShape::Single;
    std::vector<ValueText> m_texts;

    bool m_isBinary = false;
    std::string_view m_bytes;
    /// The media type of the bytes, such as `image/jpeg`. Empty if it is unknown.
    std::string_view m_mediaType;
    /// The nested card, as in AGENT. Null for other properties.
    PimContactCard m_nested;

    /// The number of its line in the card, from 1; 0 for a property that was added.
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

    /// \return the first text. Empty if there is none.
    std::string_view Text() const { return m_texts.empty() ? std::string_view() : m_texts.front().m_text; }

    /// \return the first value of a parameter. Empty if there is none.
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

/// Receives the properties of cards, one card after the other, in the version to write.
class PropertySink
{
public:
    PropertySink() = default;
    PropertySink( const PropertySink& ) = delete;
    PropertySink& operator=( const PropertySink& ) = delete;
    virtual ~PropertySink() = default;

    virtual void BeginCard() = 0;
    /// The card has VERSION at this position. Never called for 4.0, where VERSION follows BEGIN.
    virtual void TakeVersion() {}
    /// Receives a property, but never BEGIN, VERSION or END.
    virtual void Take( const Property& a_property ) = 0;
    virtual void EndCard() = 0;

    /// Clears the record of lost characters. Call this for a line that may become a part of another one.
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
