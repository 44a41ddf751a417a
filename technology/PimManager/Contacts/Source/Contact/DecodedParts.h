/// \file
/// Decodes parts of a text that refers to something: a URI, or a mail address with a name.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Decodes parts of one text into one buffer, which does not move in the meantime. A part without anything to decode is
/// not copied.
class DecodedParts
{
public:
    /// \param a_text   contains all parts, each of which is decoded at most once by each function.
    /// \param a_buffer holds what is decoded. It must outlive the parts.
    DecodedParts( std::string_view a_text, QByteArray& a_buffer );

    /// \return a part without percent-encoding and without white space at both ends.
    std::string_view PercentDecoded( std::string_view a_part );

    /// \return a part without the backslashes of a quoted string (RFC 5322, section 3.2.4).
    std::string_view Unescaped( std::string_view a_part );

private:
    std::string_view From( qsizetype a_place ) const;

    QByteArray& m_buffer;
};

} // namespace PimManager::Contacts
