/// \file
/// Writes properties as jCards.

#pragma once

#include "Text/JsonText.h"
#include "Writing/Property.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Writes cards as jCards (RFC 7095), each on one line and without a line ending. The properties are those of version
/// 4.0, and PropertyConverter converts the result to what VCardText writes in that version.
///
/// - Names and groups are in lower case. A group is the parameter `group`. VALUE is the type of the value.
/// - N and ADR have all required components, including the empty ones after the last text.
/// - Binary values are a `data:` URI, with type `unknown` if the property does not allow a URI. Dates and times are in
///   the extended form. A boolean is `true` or `false`. A number is a JSON number, so it has neither a plus sign nor
///   leading zeros.
/// - A non-standard property without VALUE has the type `unknown`. Its value is that of version 4.0 with all its
///   escapes (section 5).
/// - Control characters are kept, but a carriage return becomes a line feed.
class JCardSink : public PropertySink
{
public:
    /// \param a_out must outlive the object. It is not complete between BeginCard() and EndCard().
    explicit JCardSink( QByteArray& a_out ) :
        m_out( a_out )
    {
    }

    void BeginCard() override;
    void Take( const Property& a_property ) override;
    void EndCard() override;

private:
    void AppendParameters( const Property& a_property );
    void SortParameters( const Property& a_property );
    void AddValues( const ParameterText& a_parameter );
    void AppendValues();
    // The result is valid until a value is appended.
    std::string_view TypeNameOf( const Property& a_property );
    quint32 ComponentsOf( const Property& a_property ) const;
    void AppendBytes( const Property& a_property );
    template <class AddText>
    void Join( const Property& a_property, AddText a_addText );
    void AppendUnknown( const Property& a_property );
    void AppendTexts( const Property& a_property );
    void AppendJoined( const Property& a_property );
    void AppendComponents( const Property& a_property, quint32 a_count );
    void AppendRun( const Property& a_property, size_t a_begin, size_t a_end );
    void AppendText( std::string_view a_text, ValueType a_type );
    void AppendOtherText( std::string_view a_text, ValueType a_type );
    std::string_view WithLineFeeds( std::string_view a_text );
    void AppendString( std::string_view a_text );
    void AppendExtended( std::string_view a_text, bool a_isTime );

    QByteArray& m_out;
    std::optional<JsonText> m_json;
    // The rule of the property; null if it is not a standard property.
    const PropertyRule* m_rule = nullptr;
    std::vector<const ParameterText*> m_parameters;
    // For one parameter.
    std::vector<std::string_view> m_values;
    std::string m_buffer;
    std::string m_text;
};

} // namespace PimManager::Contacts
