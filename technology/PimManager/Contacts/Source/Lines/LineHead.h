/// \file
/// The left side of a content line: group, name and parameters, up to the colon.

#pragma once

#include <PimManager/Contacts/PimContactLine.h>

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Bytes of a line, by their place in it.
struct ByteRange
{
    quint32 m_begin = 0;
    quint32 m_length = 0;

    quint32 End() const { return m_begin + m_length; }
    std::string_view In( std::string_view a_text ) const { return a_text.substr( m_begin, m_length ); }
};

/// Where the parts of a content line are. Nothing is mended and nothing is copied.
///
/// The head ends at the first colon that is not in quotes. A quote opens only at the start of a parameter, behind its
/// first "=", or behind a comma, blanks in between allowed; it closes at the next quote that is followed, blanks in
/// between allowed, by a comma, a semicolon, a colon or the end of the line. The name of the property is never quoted.
///
/// A quote that could open, but that nothing closes, is not a part of the name or element that it precedes:
/// `CHARSET="UTF-8` means `CHARSET=UTF-8`. Any other quote is a character like any other.
///
/// A parameter is bare if it has no "=", or if nothing, a comma or a quote precedes the first "=".
struct LineHead
{
    /// Without the dot and without blanks round it. Empty without a group, and where what precedes the last dot is no
    /// group: nothing follows the dot, or the text before it has other characters than name bytes, dots and blanks and
    /// the name behind it is neither known nor an extension.
    ByteRange m_group;
    /// Without blanks round it; may be empty, or have any characters but ":" and ";".
    ByteRange m_name;
    /// From the first semicolon up to the colon or the end; empty without parameters.
    ByteRange m_parameters;
    /// Behind the colon; the length of the line without one.
    quint32 m_valueBegin = 0;
    bool m_hasColon = false;
    /// A bare parameter contains a blank, such as `and so on` in `Third; and so on: text`.
    bool m_hasWordsForParameters = false;
    /// By the first parameter that names one: ENCODING, also with a list, or a bare word; see EncodingOf().
    PimContactEncoding m_encoding = PimContactEncoding::None;
    /// The value of the first CHARSET parameter without quotes; empty without one.
    ByteRange m_charset;
    /// Any of these:
    /// - NameBlanks: blanks before the colon, or round the group, the name, a parameter, or the "=" of a parameter.
    ///   One blank directly behind a semicolon is usual, and so are blanks round a comma.
    /// - OddName: the name is empty, is BEGIN or END, or has other characters than name bytes; or the group has other
    ///   characters than name bytes, dots and blanks.
    /// - OpenQuote: an element of a parameter begins with a quote that nothing closes.
    /// - OddParameter: a control character; a quote that neither encloses an element nor is an OpenQuote; a parameter
    ///   name that is empty or has other characters than name bytes; two different encodings in one line.
    /// - EmptyParameter: nothing or only blanks behind a semicolon, or an empty element of a bare parameter.
    PimContactOddities m_oddities;

    /// \param a_line a content line without line endings, whose continuation lines are joined; at most 2 GiB. Only the
    ///               head is read, but the search for the end of a quote may run through the line once.
    static LineHead Of( std::string_view a_line )
    {
        LineHead head;
        head.Read( a_line );
        return head;
    }

    /// The same, where there is a head already.
    /// \return true if the line is surely a property without oddities; false if the head must be looked at.
    bool Read( std::string_view a_line );
};

/// \param a_word the value of an ENCODING parameter, or a bare parameter; may be in quotes.
/// \return the encoding that it names in any letter case: `QUOTED-PRINTABLE`, also without the hyphen or with `X-`
///         before it, `BASE64` or `B`.
PimContactEncoding EncodingOf( std::string_view a_word );

/// What a line looks like, taken alone.
enum class LineLooks
{
    Text,            ///< not a property
    NameOnly,        ///< a known name or an extension in capitals, without a colon
    Property,        ///< a name and a colon, which text may have too
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

    /// \param[out] a_parameter what is between two semicolons that are not in quotes, with its quotes, but without
    ///                         blanks round it; may be empty.
    /// \return false behind the last one; a_parameter is unchanged then.
    bool Next( std::string_view& a_parameter );

private:
    std::string_view m_rest;
    bool m_isNoQuoteClosed = false;
};

} // namespace PimManager::Contacts
