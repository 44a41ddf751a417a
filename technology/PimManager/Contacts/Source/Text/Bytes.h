/// \file
/// Functions for the bytes of a text whose delimiters are ASCII. Bytes beyond ASCII are never a blank, a letter or a
/// delimiter.

#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace PimManager::Contacts
{

/// The byte order mark in UTF-8.
constexpr std::string_view s_kByteOrderMark = "\xEF\xBB\xBF";

inline bool IsAsciiByte( char a_byte )
{
    return static_cast<unsigned char>( a_byte ) < 0x80;
}

inline bool IsBlank( char a_byte )
{
    return a_byte == ' ' || a_byte == '\t';
}

inline bool IsDigit( char a_byte )
{
    return a_byte >= '0' && a_byte <= '9';
}

/// A letter, a digit or "-". Names consist of these bytes.
constexpr bool IsNameByte( char a_byte )
{
    return ( a_byte >= 'A' && a_byte <= 'Z' ) || ( a_byte >= 'a' && a_byte <= 'z' ) ||
           ( a_byte >= '0' && a_byte <= '9' ) || a_byte == '-';
}

inline bool IsBase64Byte( char a_byte )
{
    return a_byte == '+' || a_byte == '/' || a_byte == '=' || ( IsNameByte( a_byte ) && a_byte != '-' );
}

/// A control character that no text needs: all below U+0020 except the tab.
inline bool IsControlByte( char a_byte )
{
    return static_cast<unsigned char>( a_byte ) < 0x20 && a_byte != '\t';
}

inline bool IsLineEndByte( char a_byte )
{
    return a_byte == '\r' || a_byte == '\n';
}

inline char Upper( char a_byte )
{
    return a_byte >= 'a' && a_byte <= 'z' ? static_cast<char>( a_byte - ( 'a' - 'A' ) ) : a_byte;
}

inline char Lower( char a_byte )
{
    return a_byte >= 'A' && a_byte <= 'Z' ? static_cast<char>( a_byte + ( 'a' - 'A' ) ) : a_byte;
}

/// \return true for the same word in any letter case of ASCII. Both have the same length.
bool IsSameText( std::string_view a_first, std::string_view a_second );

/// \return true for the same word in any letter case of ASCII.
inline bool IsSameWord( std::string_view a_first, std::string_view a_second )
{
    // Most words differ in their length or their first letter.
    return a_first.size() == a_second.size() &&
           ( a_first.empty() ||
             ( Upper( a_first.front() ) == Upper( a_second.front() ) && IsSameText( a_first, a_second ) ) );
}

/// \return true if it is not empty and has only name bytes.
bool IsName( std::string_view a_text );

/// \return true if it is not empty and has only digits.
bool AreDigits( std::string_view a_text );

/// \return true if it is not empty and has only bytes of BASE64.
bool IsBase64( std::string_view a_text );

/// \return true if it is empty or has only bytes of ASCII.
bool AreAllAscii( std::string_view a_text );

/// \return true if it has only blanks and tabs.
bool AreAllBlank( std::string_view a_text );

/// \return true if it is empty or has only blanks and tabs.
inline bool IsWhiteSpace( std::string_view a_text )
{
    return a_text.empty() || ( IsBlank( a_text.front() ) && AreAllBlank( a_text ) );
}

std::string_view TrimmedLeft( std::string_view a_text );
std::string_view TrimmedRight( std::string_view a_text );
std::string_view Trimmed( std::string_view a_text );

/// \return the length of the byte order marks at the start.
size_t LengthOfMarks( std::string_view a_text );

bool EndsWith( std::string_view a_text, std::string_view a_end );

inline std::string_view ViewOf( const QByteArray& a_bytes )
{
    return std::string_view( a_bytes.constData(), static_cast<size_t>( a_bytes.size() ) );
}

QByteArray BytesOf( std::string_view a_text );

/// \param a_text ASCII.
QString AsciiString( std::string_view a_text );

/// \param a_text UTF-8. A byte order mark at the start is a character of the text.
QString StringOf( std::string_view a_text );

} // namespace PimManager::Contacts
