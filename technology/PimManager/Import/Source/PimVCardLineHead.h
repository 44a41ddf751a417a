/// \file
/// The left side of a content line, up to its colon.

#pragma once

#include "PimVCardDecoding.h"

#include <string_view>
#include <vector>

namespace PimManager::vCardImport
{

/// Where the parts of a content line stand, found without mending anything. Views into the line.
struct PimVCardLineHead
{
    struct Parameter
    {
        /// All between two semicolons.
        std::string_view m_text;
        /// Up to the "="; null for a bare word. Open quotes are passed over.
        std::string_view m_name;
        /// Behind the "=", or all of it.
        std::string_view m_value;
        bool IsBare() const { return m_name.data() == nullptr; }
    };

    /// Group and name, up to the first colon or semicolon.
    std::string_view m_fullName;
    std::vector<Parameter> m_parameters;
    /// Behind the colon.
    std::string_view m_value;
    /// Without a colon the line is no property, or only the start of one.
    bool m_hasColon = false;

    static PimVCardLineHead Of( std::string_view a_line );

    /// Without the groups and without blanks.
    std::string_view Name() const;
    /// With the dot that ends it; empty without one.
    std::string_view Groups() const;
    /// By ENCODING, or a bare word.
    PimVCardEncoding Encoding() const;
    /// An ENCODING parameter says so, and not only a bare word. Only then the component reads the value by it.
    bool IsEncodingNamed() const;
    /// ENCODING says QUOTED-PRINTABLE and BASE64 at once, which the component refuses.
    bool HasTwoEncodings() const;
    /// Of CHARSET, without quotes; empty without one.
    std::string_view Charset() const;
};

/// Nothing but names, dots and blanks.
bool IsPlainGroup( std::string_view a_groups );

/// The elements of a parameter value: what stands between commas that are not quoted.
std::vector<std::string_view> ElementsOf( std::string_view a_value );

/// \return behind the quote that closes a text whose first character is a quote; 0 if none does. A quote closes before
///         a comma, a semicolon, a colon or the end.
size_t EndOfQuoted( std::string_view a_text );

/// The text without quotes at its start that none closes.
std::string_view WithoutOpenQuotes( std::string_view a_text );

/// The text without the quotes round it, if it has them.
std::string_view Unquoted( std::string_view a_text );

} // namespace PimManager::vCardImport
