#include "Text/Base64.h"

#include "Text/Base64Vectors.h"
#include "Text/Bytes.h"

#include <QtEndian>

#include <array>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr quint32 s_kOther = 0x80000000;
constexpr size_t s_kGroup = 4;
constexpr size_t s_kBytesOfGroup = 3;
constexpr uint s_kBitsOfCharacter = 6;

/// The bits of a character in the three bytes of its group, if the first byte is the lowest.
using Contributions = std::array<quint32, 256>;

constexpr quint32 Contribution( quint32 a_value, size_t a_place )
{
    switch ( a_place )
    {
    case 0:
        return a_value << 2U;
    case 1:
        return a_value >> 4U | ( a_value & 0x0FU ) << 12U;
    case 2:
        return ( a_value >> 2U ) << 8U | ( a_value & 0x03U ) << 22U;
    default:
        return a_value << 16U;
    }
}

constexpr Contributions FindContributions( size_t a_place )
{
    Contributions contributions = {};
    for ( quint32& contribution : contributions )
        contribution = s_kOther;
    for ( size_t value = 0; value < s_kAlphabet.size(); ++value )
        contributions[static_cast<uchar>( s_kAlphabet[value] )] =
            Contribution( static_cast<quint32>( value ), a_place );
    return contributions;
}

constexpr std::array<Contributions, s_kGroup> s_kContributions = { FindContributions( 0 ), FindContributions( 1 ),
                                                                   FindContributions( 2 ), FindContributions( 3 ) };

inline quint32 GroupAt( const char* a_place )
{
    const auto of = [a_place]( size_t a_index )
    { return s_kContributions[a_index][static_cast<uchar>( a_place[a_index] )]; };
    return of( 0 ) | of( 1 ) | of( 2 ) | of( 3 );
}

inline void Write( quint32 a_group, char* a_place )
{
    const quint32 group = qToLittleEndian( a_group );
    std::memcpy( a_place, &group, sizeof( group ) );
}

/// Decodes complete groups up to the first one that has another character.
/// \param a_out advances after the output. The byte there is overwritten.
/// \return the end of the decoded text.
const char* DecodeGroups( const char* a_text, const char* a_end, char*& a_out )
{
    constexpr size_t s_kRun = 4 * s_kGroup;
    const char* place = a_text;
    const char* const end = a_end;
    for ( ; static_cast<size_t>( end - place ) >= s_kRun; place += s_kRun, a_out += 4 * s_kBytesOfGroup )
    {
        const quint32 first = GroupAt( place );
        const quint32 second = GroupAt( place + s_kGroup );
        const quint32 third = GroupAt( place + 2 * s_kGroup );
        const quint32 fourth = GroupAt( place + 3 * s_kGroup );
        if ( ( ( first | second | third | fourth ) & s_kOther ) != 0 )
            break;
        Write( first, a_out );
        Write( second, a_out + s_kBytesOfGroup );
        Write( third, a_out + 2 * s_kBytesOfGroup );
        Write( fourth, a_out + 3 * s_kBytesOfGroup );
    }
    for ( ; static_cast<size_t>( end - place ) >= s_kGroup; place += s_kGroup, a_out += s_kBytesOfGroup )
    {
        const quint32 group = GroupAt( place );
        if ( ( group & s_kOther ) != 0 )
            break;
        Write( group, a_out );
    }
    return place;
}

/// Decodes the group that a break divides: a CR LF and the blank after it, as in a folded line.
/// \return the end of the group; a_text if there is anything else.
const char* DecodeDividedGroup( const char* a_text, const char* a_end, char*& a_out )
{
    constexpr size_t s_kBreak = 3;
    if ( static_cast<size_t>( a_end - a_text ) < s_kGroup + s_kBreak )
        return a_text;
    size_t before = 0;
    while ( before < s_kGroup && a_text[before] != '\r' )
        ++before;
    const char* const behind = a_text + before + s_kBreak;
    if ( before == s_kGroup || behind[-2] != '\n' || !IsBlank( behind[-1] ) )
        return a_text;
    std::array<char, s_kGroup> characters;
    for ( size_t i = 0; i < s_kGroup; ++i )
        characters[i] = i < before ? a_text[i] : a_text[i + s_kBreak];
    const quint32 group = GroupAt( characters.data() );
    if ( ( group & s_kOther ) != 0 )
        return a_text;
    Write( group, a_out );
    a_out += s_kBytesOfGroup;
    return a_text + s_kGroup + s_kBreak;
}

/// Decodes complete groups and the breaks of folded lines.
/// \param a_out advances after the output. Four bytes there are overwritten.
/// \return the number of characters decoded.
size_t DecodeLines( std::string_view a_text, char*& a_out )
{
    const char* place = a_text.data();
    const char* const end = place + a_text.size();
    for ( const char* line = nullptr; line != place; )
    {
        const size_t vectors = DecodeBase64Vectors( place, static_cast<size_t>( end - place ), a_out );
        line = DecodeGroups( place + vectors, end, a_out );
        place = DecodeDividedGroup( line, end, a_out );
    }
    return static_cast<size_t>( place - a_text.data() );
}

quint32 ValueOf( char a_byte )
{
    return s_kContributions[0][static_cast<uchar>( a_byte )];
}

} // namespace

Base64Decoder::Base64Decoder( size_t a_length, QByteArray& a_out ) :
    m_out( a_out )
{
    const auto size = a_out.size();
    const size_t room = ( a_length / s_kGroup + 1 ) * s_kBytesOfGroup + sizeof( quint32 );
    a_out.resize( size + static_cast<int>( room ) );
    m_end = a_out.data() + size;
}

bool Base64Decoder::Take( std::string_view a_piece )
{
    if ( m_faultPlace >= 0 )
        return false;
    for ( size_t place = 0; place < a_piece.size(); ++place )
    {
        if ( m_held == 0 && !m_isPadded )
        {
            place += DecodeLines( a_piece.substr( place ), m_end );
            if ( place == a_piece.size() )
                break;
        }
        if ( !TakeByte( a_piece[place] ) )
        {
            m_faultPlace = m_taken + static_cast<qint64>( place );
            return false;
        }
    }
    m_taken += static_cast<qint64>( a_piece.size() );
    return true;
}

inline bool Base64Decoder::TakeByte( char a_byte )
{
    const quint32 value = ValueOf( a_byte );
    if ( value == s_kOther || m_isPadded )
        return TakeOther( a_byte );
    m_bits = m_bits << s_kBitsOfCharacter | value >> 2U;
    if ( ++m_held == s_kGroup )
        WriteGroup();
    return true;
}

bool Base64Decoder::TakeOther( char a_byte )
{
    const bool isWhiteSpace = IsBlank( a_byte ) || IsLineEndByte( a_byte );
    return isWhiteSpace || ( a_byte == '=' && TakePadding() );
}

bool Base64Decoder::TakePadding()
{
    if ( m_held == 1 )
        return false;
    WriteRest();
    m_isPadded = true;
    return true;
}

void Base64Decoder::WriteGroup()
{
    for ( uint shift = 24; shift > 0; )
    {
        shift -= 8;
        *m_end++ = static_cast<char>( m_bits >> shift & 0xFFU );
    }
    m_bits = 0;
    m_held = 0;
}

/// Two characters are one byte, and three characters are two bytes.
void Base64Decoder::WriteRest()
{
    if ( m_held < 2 )
        return;
    const int bytes = m_held - 1;
    m_bits <<= s_kBitsOfCharacter * ( s_kGroup - static_cast<uint>( m_held ) );
    WriteGroup();
    m_end -= static_cast<int>( s_kBytesOfGroup ) - bytes;
}

bool Base64Decoder::Finish()
{
    if ( m_faultPlace < 0 && m_held == 1 )
        m_faultPlace = m_taken;
    WriteRest();
    m_out.resize( static_cast<int>( m_end - m_out.constData() ) );
    m_held = 0;
    return m_faultPlace < 0;
}

} // namespace PimManager::Contacts
