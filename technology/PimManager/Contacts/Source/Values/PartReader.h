/// \file
/// Splits a value and removes its escapes.

#pragma once

#include "Values/Findings.h"

#include <QByteArray>
#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// A value in UTF-8, with its escapes.
struct EscapedText
{
    std::string_view m_text;
    /// Semicolons, commas and backslashes that were written as QUOTED-PRINTABLE, by their positions. They neither
    /// delimit nor escape.
    const std::vector<quint32>* m_literals = nullptr;
};

/// The delimiters of a value.
enum class Delimiters : quint8
{
    None = 0,
    Semicolons = 0x01,
    Commas = 0x02,
    SemicolonsAndCommas = 0x03,
};

/// Reads the parts of a value one after the other, without their escapes. An empty value has one empty part.
///
/// A backslash before `n` or `N` becomes a line feed, and a backslash before a backslash, comma, semicolon, colon,
/// quote or apostrophe is removed (RFC 2426, section 4; RFC 6350, section 3.4). Any other backslash is kept, including
/// one at the end. The rules are the same for every version: 2.1 defines the escaped semicolon only, but programs that
/// write 2.1 use the others too.
class PartReader
{
public:
    /// \param a_text     must outlive the reader.
    /// \param a_buffer   receives parts that have escapes.
    /// \param a_findings receives UnknownEscape and EscapedQuote.
    PartReader( const EscapedText& a_text, Delimiters a_delimiters, QByteArray& a_buffer, Findings& a_findings );

    /// \return false after the last part.
    bool Next();

    /// The part. Valid until the next call of Next().
    std::string_view Text() const { return m_part; }

    /// The delimiter after the part; NUL at the end.
    char Delimiter() const { return m_delimiter; }

private:
    size_t FindSpecial( size_t a_place );
    size_t FindByte( size_t a_place ) const;
    bool IsLiteral( size_t a_place );
    size_t TakeEscape( size_t a_backslash );
    void Replace( size_t a_backslash, size_t a_length, char a_character );
    void CopyUpTo( size_t a_place );
    void EndPart( size_t a_begin, size_t a_end );

    std::string_view m_text;
    // The remaining literals.
    const quint32* m_literal = nullptr;
    const quint32* m_literalsEnd = nullptr;
    uint m_specials;
    QByteArray& m_buffer;
    Findings& m_findings;

    size_t m_place = 0;
    // If the part has escapes, the text before this position is in the buffer, up to its end.
    size_t m_copied = 0;
    char* m_end = nullptr;
    bool m_isAtEnd = false;
    std::string_view m_part;
    char m_delimiter = '\0';
};

} // namespace PimManager::Contacts
