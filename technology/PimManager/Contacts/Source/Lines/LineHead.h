/// \file
/// The left side of a content line: group, name and parameters, up to the colon.

#pragma once

#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactLine.h>

#include <QtGlobal>

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// A range of bytes in a line.
struct ByteRange
{
    quint32 m_begin = 0;
    quint32 m_length = 0;

    quint32 End() const { return m_begin + m_length; }
    std::string_view In( std::string_view a_text ) const { return a_text.substr( m_begin, m_length ); }
};

/// The positions of the parts of a content line. Nothing is repaired or copied.
///
/// The head ends at the first colon that is not in quotes. A quote opens only at the start of a parameter, after its
/// first "=", or after a comma, with optional blanks in between. It closes at the next quote before a comma, a
/// semicolon, a colon or the end of the line, again with optional blanks in between. The name of the property is never
/// quoted.
///
/// An opening quote that is never closed is not a part of the name or element after it: `CHARSET="UTF-8` means
/// `CHARSET=UTF-8`. Any other quote is an ordinary character.
///
/// A parameter is bare if it has no "=", or if nothing, a comma or a quote precedes the first "=".
struct LineHead
{
    /// The group without the dot and without blanks around it. Empty if there is none. The text before the last dot is
    /// not a group if nothing follows the dot, or if the text has characters other than name bytes, dots and blanks and
    /// the name after it is neither known nor an extension.
    ByteRange m_group;
    /// The name without blanks around it. May be empty, and may have any characters except ":" and ";".
    ByteRange m_name;
    /// The property with that name, if it has been looked up. Read() does not look it up.
    std::optional<PropertyId> m_property;
    /// From the first semicolon up to the colon or the end. Empty if there are no parameters.
    ByteRange m_parameters;
    /// The position after the colon; the length of the line if there is none.
    quint32 m_valueBegin = 0;
    bool m_hasColon = false;
    /// A bare parameter contains a blank, such as `and so on` in `Third; and so on: text`.
    bool m_hasWordsForParameters = false;
    /// The encoding from the first parameter that names one: ENCODING, also with a list, or a bare word; see
    /// EncodingOf().
    PimContactEncoding m_encoding = PimContactEncoding::None;
    /// The value of the first CHARSET parameter without quotes. Empty if there is none.
    ByteRange m_charset;
    /// Any of these:
    /// - NameBlanks: blanks before the colon, or around the group, the name, a parameter, or the "=" of a parameter.
    ///   One blank directly after a semicolon is usual, and so are blanks around a comma.
    /// - OddName: the name is empty, is BEGIN or END, or has characters other than name bytes; or the group has
    ///   characters other than name bytes, dots and blanks.
    /// - OpenQuote: an element of a parameter begins with a quote that is never closed.
    /// - OddParameter: a control character; a quote that neither encloses an element nor is an OpenQuote; a parameter
    ///   name that is empty or has characters other than name bytes; two different encodings in one line.
    /// - EmptyParameter: nothing or only blanks after a semicolon, or an empty element of a bare parameter.
    PimContactOddities m_oddities;

    /// \param a_line a content line without line endings, whose continuation lines are joined; at most 2 GiB. Only the
    ///               head is read, but the search for the end of a quote may read the whole line once.
    static LineHead Of( std::string_view a_line )
    {
        LineHead head;
        head.Read( a_line );
        return head;
    }

    /// The same for an existing object.
    /// \return true if the line is certainly a property without oddities. False if the head must be examined.
    bool Read( std::string_view a_line );
};

/// \param a_word the value of an ENCODING parameter, or a bare parameter; may be in quotes.
/// \return the encoding that it names, in any letter case: `QUOTED-PRINTABLE` (also without the hyphen or with `X-`
///         before it), `BASE64` or `B`.
PimContactEncoding EncodingOf( std::string_view a_word );

/// What a line looks like without its neighbours.
enum class LineLooks
{
    Text,            ///< not a property
    NameOnly,        ///< a known name or an extension in upper case, without a colon
    Property,        ///< a name and a colon, which may also occur in text
    ClearlyProperty, ///< a known name in one letter case, or an extension, and a colon
};

/// \param a_head the head of the line.
LineLooks LooksOf( const LineHead& a_head, std::string_view a_line );

/// Reads the parameters of a line one after the other.
class ParameterSplitter
{
public:
    /// \param a_parameters LineHead::m_parameters of a line, or any text that begins with a semicolon; must outlive the
    ///                     splitter. A colon that is not in quotes ends the parameters.
    explicit ParameterSplitter( std::string_view a_parameters );

    /// \param[out] a_parameter the text between two semicolons that are not in quotes, with its quotes but without
    ///                         blanks around it; may be empty.
    /// \return false after the last one. Then a_parameter is unchanged.
    bool Next( std::string_view& a_parameter );

private:
    std::string_view m_rest;
    bool m_isNoQuoteClosed = false;
};

} // namespace PimManager::Contacts
