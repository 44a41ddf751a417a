#include "Lines/ValueEscapes.h"

#include "Lines/LinePieces.h"

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kEscaped = "\\,;:nN";

// Nothing of a value is escaped across a break.
bool AreAllKnown( std::string_view a_value )
{
    size_t place = 0;
    while ( ( place = a_value.find( '\\', place ) ) != std::string_view::npos )
    {
        if ( place + 1 == a_value.size() || s_kEscaped.find( a_value[place + 1] ) == std::string_view::npos )
            return false;
        place += 2;
    }
    return true;
}

} // namespace

UnknownEscapes UnknownEscapesIn( std::string_view a_line, const IndexEntry& a_entry )
{
    UnknownEscapes escapes;
    if ( a_entry.m_valueBegin >= a_line.size() )
        return escapes;
    const ByteRange value{ a_entry.m_valueBegin, static_cast<quint32>( a_line.size() ) - a_entry.m_valueBegin };
    if ( AreAllKnown( value.In( a_line ) ) )
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
