/// \file
/// Bytes of a text that is ASCII where it matters: what stands beyond ASCII is never a blank, a letter or a delimiter.

#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace PimManager::vCardImport
{

inline bool IsBlank( char a_byte )
{
    return a_byte == ' ' || a_byte == '\t';
}

/// A letter, a digit or "-": what the names of the grammar consist of.
inline bool IsNameByte( char a_byte )
{
    return ( a_byte >= 'A' && a_byte <= 'Z' ) || ( a_byte >= 'a' && a_byte <= 'z' ) ||
           ( a_byte >= '0' && a_byte <= '9' ) || a_byte == '-';
}

inline bool IsHexByte( char a_byte )
{
    return ( a_byte >= '0' && a_byte <= '9' ) || ( a_byte >= 'A' && a_byte <= 'F' ) ||
           ( a_byte >= 'a' && a_byte <= 'f' );
}

inline bool IsBase64Byte( char a_byte )
{
    return a_byte == '+' || a_byte == '/' || a_byte == '=' || ( IsNameByte( a_byte ) && a_byte != '-' );
}

/// A control character that no text needs: all but the tab.
inline bool IsControlByte( char a_byte )
{
    return ( static_cast<unsigned char>( a_byte ) < 0x20 && a_byte != '\t' ) || a_byte == '\x7F';
}

/// Not empty, and nothing but letters, digits and "-".
bool IsName( std::string_view a_text );

/// Not empty, and nothing but the characters of BASE64.
bool IsBase64( std::string_view a_text );

/// Compares in any letter case of ASCII.
bool IsSameWord( std::string_view a_first, std::string_view a_second );

/// The text without the blanks and tabs at its start, and at both ends.
std::string_view TrimmedLeft( std::string_view a_text );
std::string_view Trimmed( std::string_view a_text );

inline std::string_view ViewOf( const QByteArray& a_bytes )
{
    return std::string_view( a_bytes.constData(), static_cast<size_t>( a_bytes.size() ) );
}

inline QByteArray BytesOf( std::string_view a_text )
{
    return QByteArray( a_text.data(), static_cast<int>( a_text.size() ) );
}

/// \param a_text in UTF-8. Unlike QString::fromUtf8() it keeps a byte order mark at the start.
QString TextOfUtf8( std::string_view a_text );

inline void Append( QByteArray& a_bytes, std::string_view a_text )
{
    a_bytes.append( a_text.data(), static_cast<int>( a_text.size() ) );
}

} // namespace PimManager::vCardImport
