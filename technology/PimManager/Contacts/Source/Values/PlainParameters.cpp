#include "Values/PlainParameters.h"

#include "Text/Bytes.h"

#include <QtGlobal>

#include <array>

namespace PimManager::Contacts
{

namespace
{

enum ByteKind : quint8
{
    Other,
    NameByte,
    Semicolon,
    Comma,
    Equals,
};

constexpr std::array<quint8, 256> KindsOfBytes()
{
    std::array<quint8, 256> kinds = {};
    for ( size_t byte = 0; byte < kinds.size(); ++byte )
        kinds[byte] = IsNameByte( static_cast<char>( byte ) ) ? NameByte : Other;
    kinds[static_cast<size_t>( ';' )] = Semicolon;
    kinds[static_cast<size_t>( ',' )] = Comma;
    kinds[static_cast<size_t>( '=' )] = Equals;
    return kinds;
}

constexpr std::array<quint8, 256> s_kKinds = KindsOfBytes();

quint8 KindOf( char a_byte )
{
    return s_kKinds[static_cast<uchar>( a_byte )];
}

} // namespace

bool PlainParameters::AreIn( std::string_view a_parameters )
{
    quint8 last = Semicolon;
    // A name can no longer follow: there is already one, or a list has begun.
    bool isInValues = false;
    for ( const char byte : a_parameters )
    {
        const quint8 kind = KindOf( byte );
        if ( kind == Equals && ( isInValues || last != NameByte ) )
            return false;
        // A list has no empty elements, and the first parameter follows a semicolon.
        if ( kind == Other || ( kind == Comma && last != NameByte ) ||
             ( kind == Semicolon && ( last == Equals || last == Comma ) ) )
            return false;
        isInValues = kind == Equals || kind == Comma || ( isInValues && kind != Semicolon );
        last = kind;
    }
    return last == NameByte;
}

bool PlainParameters::Next()
{
    while ( !m_rest.empty() && KindOf( m_rest.front() ) == Semicolon )
    {
        m_rest.remove_prefix( 1 );
        m_name = std::string_view();
    }
    size_t end = 0;
    while ( end < m_rest.size() && KindOf( m_rest[end] ) == NameByte )
        ++end;
    if ( end < m_rest.size() && m_rest[end] == '=' )
    {
        m_name = m_rest.substr( 0, end );
        m_rest.remove_prefix( end + 1 );
        end = 0;
        while ( end < m_rest.size() && KindOf( m_rest[end] ) == NameByte )
            ++end;
    }
    m_value = m_rest.substr( 0, end );
    m_rest.remove_prefix( end );
    if ( !m_rest.empty() && m_rest.front() == ',' )
        m_rest.remove_prefix( 1 );
    return !m_value.empty();
}

} // namespace PimManager::Contacts
