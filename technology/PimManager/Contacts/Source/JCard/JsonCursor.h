/// \file
/// Reads a JSON text from its start to its end (RFC 8259).

#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// How the characters of a string are written.
enum class StringForm
{
    Decoded, ///< unchanged; line breaks become line feeds
    OneLine, ///< unchanged; line breaks become `\n`
    Uri,     ///< a backslash precedes backslashes; line breaks become `\n`
    Escaped, ///< as a text of vCard: a backslash precedes backslashes, commas and semicolons; line breaks become `\n`
};

/// White space of JSON.
constexpr bool IsJsonSpace( char a_byte )
{
    return a_byte == ' ' || a_byte == '\t' || a_byte == '\n' || a_byte == '\r';
}

/// A byte that ends a word such as a number.
constexpr bool EndsJsonWord( char a_byte )
{
    return IsJsonSpace( a_byte ) || a_byte == ',' || a_byte == '[' || a_byte == ']' || a_byte == '{' || a_byte == '"';
}

/// Searches a string for its end, eight bytes at a time.
/// \return the position of the first quote or backslash, or a_end.
const char* FindQuoteOrBackslash( const char* a_begin, const char* a_end );

/// Reads the tokens of a text, one after the other. No function reads beyond the end. At the end they return false.
///
/// Errors inside a string do not end it, but are counted. An unknown escape loses its backslash, a surrogate without
/// its other half becomes U+FFFD, and control characters are kept.
class JsonCursor
{
public:
    /// \param a_text must exist as long as the object.
    explicit JsonCursor( std::string_view a_text ) :
        m_begin( a_text.data() ),
        m_place( a_text.data() ),
        m_end( a_text.data() + a_text.size() )
    {
    }

    /// \return the next byte that is not white space; NUL at the end.
    char Peek();
    /// Reads a delimiter. \return false if something else is next.
    bool Take( char a_delimiter );
    /// Reads the next string and appends it. \return false if there is no complete string.
    bool AppendString( std::string& a_out, StringForm a_form );
    /// Reads a number or another word. \return an empty text if there is none or if it may continue after the end.
    std::string_view TakeWord();

    /// The number of bytes that were read.
    size_t Length() const { return static_cast<size_t>( m_place - m_begin ); }
    /// The number of errors, and the position of the first one.
    qint64 Errors() const { return m_errors; }
    size_t FirstError() const { return m_firstError; }

private:
    void AddError( const char* a_place );
    const char* CopyPlain( const char* a_place, std::string& a_out, StringForm a_form ) const;
    const char* TakeEscape( const char* a_place, std::string& a_out, StringForm a_form );
    const char* TakeUnicode( const char* a_place, std::string& a_out, StringForm a_form );
    int UnitAt( const char* a_place ) const;
    void AppendByte( char a_byte, std::string& a_out, StringForm a_form );

    const char* m_begin;
    const char* m_place;
    const char* m_end;
    // The last character was a carriage return, so a line feed is part of the same line break.
    bool m_isBehindReturn = false;
    qint64 m_errors = 0;
    size_t m_firstError = 0;
};

} // namespace PimManager::Contacts
