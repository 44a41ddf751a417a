/// \file
/// Writes properties as vCards.

#pragma once

#include "Text/Bytes.h"
#include "Writing/Property.h"

#include <QByteArray>

#include <array>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// The head of a line in its written form.
struct LineHeadText
{
    /// The group with its dot. Empty if there is none.
    std::string_view m_group;
    /// The name and the parameters, without ENCODING and CHARSET.
    std::string_view m_text;

    size_t Size() const { return m_group.size() + m_text.size(); }
};

/// Writes cards in one version: UTF-8, CR LF, and physical lines of at most 75 octets, unless the name and the
/// parameters of a line in 2.1 are longer. No text can end a line or a parameter.
///
/// In 2.1, a text is QUOTED-PRINTABLE in UTF-8 if it is not ASCII, or has line breaks or backslashes, or is too long
/// for a line. Its BASE64 ends in an empty line.
class VCardText : public PropertySink
{
public:
    /// \param a_out must outlive the object.
    VCardText( PimContactVersion a_version, QByteArray& a_out ) :
        m_version( a_version ),
        m_out( a_out )
    {
    }

    void BeginCard() override;
    void TakeVersion() override;
    void Take( const Property& a_property ) override;
    void EndCard() override;

    /// Appends text that is already written.
    void TakeWritten( std::string_view a_text );
    /// Appends a line that is already written, except for its folds and its line ending.
    void TakeLong( std::string_view a_line );
    /// Appends a line whose value is written unchanged. In 2.1, IsShort() must accept the line.
    void TakeValue( const LineHeadText& a_head, std::string_view a_value );
    /// \return true if 2.1 need not encode a value, because it consists of visible ASCII and blanks without
    ///         backslashes.
    static bool IsShort( const LineHeadText& a_head, std::string_view a_value, ValueShape a_shape );
    /// Appends a line of 2.1 with these texts, which must be clean.
    void TakeOldTexts( const LineHeadText& a_head, const std::vector<ValueText>& a_texts, ValueShape a_shape );
    /// The head of the property that was taken last, without its group.
    std::string_view Head() const { return ViewOf( m_line ).substr( m_headBegin, m_headLength ); }
    /// Appends the line of a property that contains the card that follows.
    void TakeHolder( const Property& a_property );
    /// Lines are not folded, because they become a text.
    void SetUnfolded() { m_isFolded = false; }

    PimContactVersion Version() const { return m_version; }

private:
    using ByteSet = std::array<bool, 256>;

    bool Is21() const { return m_version == PimContactVersion::V21; }
    void AppendHead( const Property& a_property );
    void AppendParameters( const Property& a_property );
    void AppendParameterValue( const ParameterText& a_parameter );
    void AppendOldParameterByte( char a_byte, std::string_view a_name );
    void AppendValueType( const Property& a_property );
    void AppendMediaType( const Property& a_property );
    void TakeBytes( const Property& a_property );
    void TakeTexts( const Property& a_property );
    void TakeOldTexts( const Property& a_property );
    void AppendOldTexts( ValueShape a_shape, bool a_isEncoded );
    void AppendEscaped( std::string_view a_text );
    void AppendPlain( std::string_view a_text );
    void AppendValue( std::string_view a_text, const ByteSet& a_special );
    void AppendSpecial( std::string_view& a_rest );
    void AppendEncoded( std::string_view a_text, char a_delimiter );
    void AppendOldText( std::string_view a_text, char a_delimiter );
    bool NeedsEncoding( ValueShape a_shape ) const;
    void CleanOldTexts();
    void EndEncodedLine();
    void EndLine();

    PimContactVersion m_version;
    QByteArray& m_out;
    // The line, and its value if it is QUOTED-PRINTABLE.
    QByteArray m_line;
    QByteArray m_value;
    size_t m_headBegin = 0;
    size_t m_headLength = 0;
    std::vector<ValueText> m_oldTexts;
    std::vector<QByteArray> m_copies;
    bool m_isFolded = true;
};

/// \return true if VALUE must name the type of a value, because a reader of the version would assume another type.
bool NeedsTypeName( const Property& a_property, PimContactVersion a_version );

/// \return true if a value of this type is text, in which delimiters are escaped. Values of other types, such as URIs,
///         are written unchanged.
bool IsEscapedType( ValueType a_type );

/// \return the VERSION line of a version, such as `VERSION:3.0`, with its line ending.
std::string_view VersionLineOf( PimContactVersion a_version );

} // namespace PimManager::Contacts
