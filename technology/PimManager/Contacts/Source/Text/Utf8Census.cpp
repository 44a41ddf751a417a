#include "Text/Utf8Census.h"

#include "Text/Bytes.h"

#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr uchar s_kFirstTail = 0x80;
constexpr uchar s_kLastTail = 0xBF;

// The highest bit of each byte of a word.
constexpr size_t s_kHighBits = ~static_cast<size_t>( 0 ) / 0xFF * 0x80;

bool IsTail( char a_byte )
{
    return ( static_cast<uchar>( a_byte ) & 0xC0U ) == s_kFirstTail;
}

const char* SkipAscii( const char* a_place, const char* a_end )
{
    size_t word = 0;
    while ( static_cast<size_t>( a_end - a_place ) >= sizeof word )
    {
        std::memcpy( &word, a_place, sizeof word );
        if ( ( word & s_kHighBits ) != 0 )
            break;
        a_place += sizeof word;
    }
    while ( a_place != a_end && IsAsciiByte( *a_place ) )
        ++a_place;
    return a_place;
}

// A short cut for most letters: the length of a character of two or three bytes whose second byte may be any tail.
// Returns 0 for all others, and close to the end of the piece.
size_t LengthOfUsual( const char* a_place, const char* a_end )
{
    const auto lead = static_cast<uchar>( *a_place );
    if ( a_end - a_place < 3 || lead < 0xC2 || lead >= 0xF0 || !IsTail( a_place[1] ) )
        return 0;
    if ( lead < 0xE0 )
        return 2;
    return lead != 0xE0 && lead != 0xED && IsTail( a_place[2] ) ? 3 : 0;
}

} // namespace

void Utf8Census::Take( std::string_view a_piece )
{
    // The members of a local copy can remain in registers.
    Utf8Census census = *this;
    const char* place = a_piece.data();
    const char* const end = place + a_piece.size();
    while ( place != end )
    {
        const bool isBegun = census.m_missing > 0;
        if ( !isBegun && IsAsciiByte( *place ) )
            place = SkipAscii( place, end );
        else if ( const size_t length = isBegun ? 0 : LengthOfUsual( place, end ); length > 0 )
        {
            ++census.m_wide;
            place += length;
        }
        else
            census.TakeByte( static_cast<uchar>( *place++ ) );
    }
    *this = census;
}

void Utf8Census::EndText()
{
    if ( m_missing > 0 )
        m_malformed += m_taken;
    m_missing = 0;
}

inline void Utf8Census::TakeByte( uchar a_byte )
{
    if ( m_missing > 0 && a_byte >= m_least && a_byte <= m_most )
    {
        ++m_taken;
        --m_missing;
        m_wide += m_missing == 0 ? 1 : 0;
        m_least = s_kFirstTail;
        m_most = s_kLastTail;
        return;
    }
    EndText();
    Begin( a_byte );
}

// The second byte decides whether a character is overlong, a surrogate, or beyond U+10FFFF.
inline void Utf8Census::Begin( uchar a_lead )
{
    if ( a_lead < s_kFirstTail )
        return;
    if ( a_lead < 0xC2 || a_lead > 0xF4 )
        ++m_malformed;
    else if ( a_lead < 0xE0 )
        Expect( 1, s_kFirstTail, s_kLastTail );
    else if ( a_lead < 0xF0 )
        Expect( 2, a_lead == 0xE0 ? 0xA0 : s_kFirstTail, a_lead == 0xED ? 0x9F : s_kLastTail );
    else
        Expect( 3, a_lead == 0xF0 ? 0x90 : s_kFirstTail, a_lead == 0xF4 ? 0x8F : s_kLastTail );
}

inline void Utf8Census::Expect( int a_tails, uchar a_least, uchar a_most )
{
    m_taken = 1;
    m_missing = a_tails;
    m_least = a_least;
    m_most = a_most;
}

} // namespace PimManager::Contacts
