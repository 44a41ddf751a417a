/// \file
/// Appends JSON to a buffer.

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace PimManager::Contacts
{

/// Copies bytes. A few bytes, the usual case, need no function call.
/// \return the end of the copy.
inline char* CopyBytes( const char* a_bytes, size_t a_size, char* a_out )
{
    // Two words that may overlap.
    const auto copyTwo = [a_bytes, a_size, a_out]( auto a_word )
    {
        auto last = a_word;
        std::memcpy( &a_word, a_bytes, sizeof( a_word ) );
        std::memcpy( &last, a_bytes + a_size - sizeof( last ), sizeof( last ) );
        std::memcpy( a_out, &a_word, sizeof( a_word ) );
        std::memcpy( a_out + a_size - sizeof( last ), &last, sizeof( last ) );
    };
    using FourWords = std::array<quint32, 4>;
    if ( a_size > 2 * sizeof( FourWords ) )
        std::memcpy( a_out, a_bytes, a_size );
    else if ( a_size >= sizeof( FourWords ) )
        copyTwo( FourWords() );
    else if ( a_size >= sizeof( quint64 ) )
        copyTwo( quint64( 0 ) );
    else if ( a_size >= sizeof( quint32 ) )
        copyTwo( quint32( 0 ) );
    else
        std::copy_n( a_bytes, a_size, a_out );
    return a_out + a_size;
}

/// Appends JSON to a byte array that grows as needed. The caller is responsible for commas and brackets. Strings are
/// always valid: in UTF-8, with U+FFFD for malformed bytes, and with `\uXXXX` for unsafe characters (see
/// UnsafeCharacters.h).
///
/// While an object exists, its byte array is longer than the appended text. Finish() sets the final length. Without
/// Finish(), the destructor removes everything that was appended.
///
/// Functions throw std::bad_alloc if the byte array becomes longer than a QByteArray can be.
class JsonText
{
public:
    /// \param a_out must outlive the object and must not be used in the meantime.
    explicit JsonText( QByteArray& a_out );
    /// Appends to a byte array of its own, see From().
    JsonText();
    ~JsonText();
    Q_DISABLE_COPY( JsonText )

    void Finish();

    /// Appends brackets, names and the like.
    void Raw( std::string_view a_json ) { m_end = CopyBytes( a_json.data(), a_json.size(), Room( a_json.size() ) ); }

    /// Appends what was appended before at a position.
    void Again( size_t a_place, size_t a_length )
    {
        char* const end = Room( a_length );
        m_end = CopyBytes( m_begin + m_before + a_place, a_length, end );
    }

    /// Appends a string with its quotes.
    void String( std::string_view a_text )
    {
        if ( a_text.empty() )
            Raw( "\"\"" );
        else
            FilledString( a_text );
    }
    /// The same for a short string without anything to escape, the usual case.
    /// \return false for any other string, which is not appended.
    bool PlainString( std::string_view a_text );
    /// The same as String(), for a text that PlainString() has refused.
    void EscapedString( std::string_view a_text );
    /// The same with the letters of ASCII in upper case.
    void UpperString( std::string_view a_text );
    /// Appends a name, which consists of letters, digits and hyphens of ASCII, in lower case and with quotes.
    void LowerName( std::string_view a_name );
    void Number( qint64 a_number );

    /// How many bytes were appended, and the bytes from a position on. The view is valid until more is appended.
    size_t Place() const { return static_cast<size_t>( m_end - m_begin ) - m_before; }
    std::string_view From( size_t a_place ) const
    {
        return std::string_view( m_begin + m_before + a_place, Place() - a_place );
    }

    /// Inserts JSON before what was appended from a position on.
    /// \param a_json is not in the same byte array.
    void Insert( size_t a_place, std::string_view a_json );

    /// Removes what was appended from a position on.
    void Remove( size_t a_place ) { m_end = m_begin + m_before + a_place; }

    /// Removes all that was appended. The memory is kept, unless it is large.
    void Clear();

private:
    char* Room( size_t a_bytes ) { return static_cast<size_t>( m_limit - m_end ) >= a_bytes ? m_end : Grow( a_bytes ); }
    char* Grow( size_t a_bytes );
    void Begin();
    void UseWholeCapacity();
    void FilledString( std::string_view a_text );
    bool CopyPlainString( std::string_view a_text );
    void Escape( std::string_view a_text );
    const char* CopyPlain( const char* a_begin, const char* a_runEnd, const char* a_textEnd );
    size_t EscapeCharacter( std::string_view a_rest );
    void Escaped( char32_t a_character );

    QByteArray m_own;
    QByteArray& m_out;
    const size_t m_before;
    bool m_isFinished = false;
    char* m_begin = nullptr;
    char* m_end = nullptr;
    char* m_limit = nullptr;
    QByteArray m_upper;
};

} // namespace PimManager::Contacts
