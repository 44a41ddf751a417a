#include "Writing/CleanText.h"

#include <algorithm>

namespace PimManager::Contacts
{

TextUnit TextUnits::NextUnusual( uchar a_byte )
{
    switch ( a_byte )
    {
    case '\r':
        m_place += IsNext( "\n" ) ? 1 : 0;
        return TextUnit::LineBreak;
    case '\n':
        return TextUnit::LineBreak;
    case 0xC2:
        if ( !IsNext( "\x85" ) )
            return TextUnit::Byte;
        m_place += 1;
        return TextUnit::LineBreak;
    case 0xE2:
        if ( !IsNext( "\x80\xA8" ) && !IsNext( "\x80\xA9" ) )
            return TextUnit::Byte;
        m_place += 2;
        return TextUnit::LineBreak;
    default:
        return TextUnit::Lost;
    }
}

bool HasOtherLineBreaks( std::string_view a_text )
{
    return a_text.find( "\xE2\x80\xA8" ) != std::string_view::npos ||
           a_text.find( "\xE2\x80\xA9" ) != std::string_view::npos ||
           a_text.find( "\xC2\x85" ) != std::string_view::npos;
}

bool IsCleanText( std::string_view a_text )
{
    const auto isUsual = []( char a_byte )
    {
        const auto byte = static_cast<uchar>( a_byte );
        return ( byte >= 0x20 && byte != 0x7F && byte != 0xC2 && byte != 0xE2 ) || byte == '\t' || byte == '\n';
    };
    const auto* const unusual = std::find_if_not( a_text.begin(), a_text.end(), isUsual );
    if ( unusual == a_text.end() )
        return true;
    for ( TextUnits units( a_text.substr( static_cast<size_t>( unusual - a_text.begin() ) ) ); !units.AtEnd(); )
    {
        char byte = '\0';
        const TextUnit unit = units.Next( byte );
        if ( unit == TextUnit::Lost || ( unit == TextUnit::LineBreak && byte != '\n' ) )
            return false;
    }
    return true;
}

QByteArray CleanText( std::string_view a_text )
{
    QByteArray clean;
    clean.reserve( static_cast<int>( a_text.size() ) );
    for ( TextUnits units( a_text ); !units.AtEnd(); )
    {
        char byte = '\0';
        const TextUnit unit = units.Next( byte );
        if ( unit != TextUnit::Lost )
            clean.append( unit == TextUnit::LineBreak ? '\n' : byte );
    }
    return clean;
}

} // namespace PimManager::Contacts
