#include "Lines/ValueEscapes.h"

#include "Lines/LinePieces.h"
#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kEscaped = "\\,;:nN";

// \return the position of the first backslash before something else, which may be a break.
size_t FirstUnknown( std::string_view a_value )
{
    size_t place = 0;
    while ( ( place = a_value.find( '\\', place ) ) != std::string_view::npos )
    {
        if ( place + 1 == a_value.size() || s_kEscaped.find( a_value[place + 1] ) == std::string_view::npos )
            return place;
        place += 2;
    }
    return std::string_view::npos;
}

bool MayBeginBreak( char a_byte )
{
    return a_byte == '=' || IsBlank( a_byte ) || IsLineEndByte( a_byte );
}

} // namespace

bool HasUnknownEscapes( std::string_view a_line, const IndexEntry& a_entry )
{
    const std::string_view value = a_line.substr( std::min<size_t>( a_entry.m_valueBegin, a_line.size() ) );
    const size_t first = FirstUnknown( value );
    if ( first == std::string_view::npos )
        return false;
    const bool isOnOneLine = !a_entry.m_hasFolds && a_entry.m_joins.m_size == 0;
    const bool isBeforeText = first + 1 < value.size() && !MayBeginBreak( value[first + 1] );
    return isOnOneLine || isBeforeText || UnknownEscapesIn( a_line, a_entry ).m_count > 0;
}

UnknownEscapes UnknownEscapesIn( std::string_view a_line, const IndexEntry& a_entry )
{
    UnknownEscapes escapes;
    if ( a_entry.m_valueBegin >= a_line.size() )
        return escapes;
    const ByteRange value{ a_entry.m_valueBegin, static_cast<quint32>( a_line.size() ) - a_entry.m_valueBegin };
    if ( FirstUnknown( value.In( a_line ) ) == std::string_view::npos )
        return escapes;
    const auto add = [&escapes]( quint32 a_place )
    { escapes.m_first = escapes.m_count++ == 0 ? a_place : escapes.m_first; };
    // A backslash at the end of a piece escapes the first character of the next one.
    bool isOpen = false;
    quint32 open = 0;
    LinePieces pieces( a_line, a_entry, PimContactFoldStyle::BlankRemoved, value );
    while ( pieces.Next() )
    {
        const std::string_view text = pieces.Text();
        size_t place = 0;
        if ( isOpen && !text.empty() )
        {
            isOpen = false;
            if ( s_kEscaped.find( text.front() ) == std::string_view::npos )
                add( open );
            else
                place = 1;
        }
        for ( ; ( place = text.find( '\\', place ) ) != std::string_view::npos; ++place )
        {
            open = pieces.Begin() + static_cast<quint32>( place );
            isOpen = place + 1 == text.size();
            if ( isOpen )
                break;
            if ( s_kEscaped.find( text[place + 1] ) == std::string_view::npos )
                add( open );
            else
                ++place;
        }
    }
    if ( isOpen )
        add( open );
    return escapes;
}

} // namespace PimManager::Contacts
