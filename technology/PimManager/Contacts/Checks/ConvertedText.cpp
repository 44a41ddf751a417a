#include "Checks/ConvertedText.h"

#include <QChar>

#include <algorithm>
#include <vector>

namespace PimManager::Contacts::Checks
{

namespace
{

constexpr char32_t s_kReplacement = 0xFFFD;

bool IsZero( const QByteArray& a_file, int a_place )
{
    return a_file.at( a_place ) == '\0';
}

bool HasNulPattern( const QByteArray& a_file )
{
    const int count = std::min( 4, static_cast<int>( a_file.size() ) );
    for ( int place = 1; place < count; ++place )
    {
        if ( IsZero( a_file, place ) == IsZero( a_file, place - 1 ) )
            return false;
    }
    return count >= 2;
}

bool IsBigEndian( const QByteArray& a_file )
{
    return a_file.startsWith( "\xFE\xFF" ) || ( !a_file.startsWith( "\xFF\xFE" ) && IsZero( a_file, 0 ) );
}

std::vector<char16_t> UnitsOf( const QByteArray& a_file )
{
    const int high = IsBigEndian( a_file ) ? 0 : 1;
    std::vector<char16_t> units;
    for ( int i = 0; i + 1 < a_file.size(); i += 2 )
        units.push_back( static_cast<char16_t>( static_cast<uchar>( a_file.at( i + high ) ) * 256 +
                                                static_cast<uchar>( a_file.at( i + 1 - high ) ) ) );
    return units;
}

void AppendUtf8( QByteArray& a_text, char32_t a_character )
{
    const auto append = [&a_text]( char32_t a_byte ) { a_text += static_cast<char>( a_byte ); };
    if ( a_character < 0x80 )
        return append( a_character );
    if ( a_character < 0x800 )
        append( 0xC0 | ( a_character >> 6 ) );
    else if ( a_character < 0x10000 )
        append( 0xE0 | ( a_character >> 12 ) );
    else
        append( 0xF0 | ( a_character >> 18 ) );
    if ( a_character >= 0x10000 )
        append( 0x80 | ( ( a_character >> 12 ) & 0x3F ) );
    if ( a_character >= 0x800 )
        append( 0x80 | ( ( a_character >> 6 ) & 0x3F ) );
    append( 0x80 | ( a_character & 0x3F ) );
}

bool IsPairAt( const std::vector<char16_t>& a_units, size_t a_index )
{
    return QChar::isHighSurrogate( a_units[a_index] ) && a_index + 1 < a_units.size() &&
           QChar::isLowSurrogate( a_units[a_index + 1] );
}

} // namespace

bool IsUtf16( const QByteArray& a_file )
{
    return a_file.startsWith( "\xFF\xFE" ) || a_file.startsWith( "\xFE\xFF" ) || HasNulPattern( a_file );
}

QByteArray ConvertedTextOf( const QByteArray& a_file )
{
    if ( !IsUtf16( a_file ) )
        return a_file;
    QByteArray text;
    const std::vector<char16_t> units = UnitsOf( a_file );
    for ( size_t i = 0; i < units.size(); ++i )
    {
        if ( IsPairAt( units, i ) )
        {
            AppendUtf8( text, QChar::surrogateToUcs4( units[i], units[i + 1] ) );
            ++i;
        }
        else
        {
            AppendUtf8( text, QChar::isSurrogate( units[i] ) ? s_kReplacement : units[i] );
        }
    }
    if ( a_file.size() % 2 != 0 )
        AppendUtf8( text, s_kReplacement );
    return text;
}

} // namespace PimManager::Contacts::Checks
