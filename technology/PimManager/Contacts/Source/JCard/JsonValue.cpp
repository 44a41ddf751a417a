#include "JCard/JsonValue.h"

#include "JCard/JsonCursor.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

bool IsOpening( char a_byte )
{
    return a_byte == '[' || a_byte == '{';
}

bool IsClosing( char a_byte )
{
    return a_byte == ']' || a_byte == '}';
}

} // namespace

void JsonValueSearch::Begin( char a_first )
{
    m_depth = IsOpening( a_first ) ? 1 : 0;
    m_isInString = a_first == '"';
    m_isWord = m_depth == 0 && !m_isInString;
    m_isEscaped = false;
}

const char* JsonValueSearch::Find( const char* a_begin, const char* a_end )
{
    const char* place = a_begin;
    if ( m_isWord )
    {
        place = std::find_if( place, a_end, EndsJsonWord );
        return place < a_end ? place : nullptr;
    }
    while ( place < a_end )
    {
        if ( m_isInString )
        {
            if ( !PassString( place, a_end ) )
                return nullptr;
            if ( m_depth == 0 )
                return place;
            continue;
        }
        const char byte = *place++;
        if ( byte == '"' )
            m_isInString = true;
        else if ( IsOpening( byte ) )
            ++m_depth;
        else if ( IsClosing( byte ) && --m_depth == 0 )
            return place;
    }
    return nullptr;
}

const char* JsonValueSearch::FindString( const char* a_begin, const char* a_end )
{
    const char* place = a_begin;
    if ( !m_isInString && place < a_end )
    {
        m_isInString = true;
        ++place;
    }
    return PassString( place, a_end ) ? place : nullptr;
}

// \return false if the string continues after the end.
bool JsonValueSearch::PassString( const char*& a_place, const char* a_end )
{
    while ( a_place < a_end )
    {
        if ( m_isEscaped )
        {
            m_isEscaped = false;
            ++a_place;
            continue;
        }
        a_place = FindQuoteOrBackslash( a_place, a_end );
        if ( a_place == a_end )
            return false;
        if ( *a_place++ == '"' )
        {
            m_isInString = false;
            return true;
        }
        m_isEscaped = true;
    }
    return false;
}

} // namespace PimManager::Contacts
