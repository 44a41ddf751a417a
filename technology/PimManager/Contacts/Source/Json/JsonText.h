/// \file
/// Appends JSON to a buffer.

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>
#include <string_view>

namespace PimManager::Contacts
{

/// Appends JSON to a byte array that grows as it must. Commas and brackets are up to the caller; strings are always
/// valid: in UTF-8, with U+FFFD for malformed bytes, and with `\uXXXX` for unsafe characters (see UnsafeCharacters.h).
///
/// While an object exists, its byte array has more bytes than were appended. Finish() ends this. Without Finish(), the
/// destructor removes all that was appended.
///
/// Functions throw std::bad_alloc if the byte array becomes longer than a byte array may be.
class JsonText
{
public:
    /// \param a_out must outlive the object and not be used meanwhile.
    explicit JsonText( QByteArray& a_out );
    /// Appends to a byte array of its own, see From().
    JsonText();
    ~JsonText();
    Q_DISABLE_COPY( JsonText )

    void Finish();

    /// Appends brackets, names and the like.
    void Raw( std::string_view a_json ) { m_end = std::copy( a_json.begin(), a_json.end(), Room( a_json.size() ) ); }

    /// Appends a string with its quotes.
    void String( std::string_view a_text )
    {
        if ( a_text.empty() )
            Raw( "\"\"" );
        else
            FilledString( a_text );
    }
    /// The same with the letters of ASCII in upper case.
    void UpperString( std::string_view a_text );
    void Number( qint64 a_number );

    /// How many bytes were appended, and the bytes from a place on. The view is valid until more is appended.
    size_t Place() const { return static_cast<size_t>( m_end - m_begin ) - m_before; }
    std::string_view From( size_t a_place ) const
    {
        return std::string_view( m_begin + m_before + a_place, Place() - a_place );
    }

    /// Inserts JSON before what was appended from a place on.
    /// \param a_json is not in the same byte array.
    void Insert( size_t a_place, std::string_view a_json );

    /// Removes what was appended from a place on.
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
    void EscapedString( std::string_view a_text );
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
