#include "Text/Base64Vectors.h"

#include "Text/Bytes.h"

#include <QtAlgorithms>

#include <array>

#ifdef __SSE2__
#include <immintrin.h>
#endif

namespace PimManager::Contacts
{

#ifdef __SSE2__

namespace
{

constexpr size_t s_kCharacters = 16;
constexpr size_t s_kBytes = 12;
constexpr size_t s_kBreak = 3;

constexpr uint s_kAll = 0xFFFF;

// A character belongs to the alphabet if its two halves have no bit in common here. A bit stands for some rows of the
// table of ASCII (the upper half), and is set for the columns (the lower half) in which they have no character of it.
//
//     row 2: '+' and '/'     rows 4 and 6: all but '@' and '`'     all others: none
//     row 3: '0' to '9'      rows 5 and 7: 'P' to 'Z', 'p' to 'z'
constexpr char s_kRow2 = 0x01;
constexpr char s_kRow3 = 0x02;
constexpr char s_kRows46 = 0x04;
constexpr char s_kRows57 = 0x08;
constexpr char s_kOtherRows = 0x10;

__attribute__( ( target( "avx" ) ) ) inline __m128i RowsOf( __m128i a_text )
{
    return _mm_and_si128( _mm_srli_epi16( a_text, 4 ), _mm_set1_epi8( 0x0F ) );
}

/// \return a bit for each character that belongs to the alphabet.
__attribute__( ( target( "avx" ) ) ) inline uint InAlphabet( __m128i a_text )
{
    constexpr char never = s_kOtherRows;
    constexpr char in0 = never | s_kRow2 | s_kRows46;
    constexpr char in1to9 = never | s_kRow2;
    constexpr char inA = never | s_kRow2 | s_kRow3;
    constexpr char inB = never | s_kRow3 | s_kRows57;
    constexpr char inCtoE = never | s_kRow2 | s_kRow3 | s_kRows57;
    constexpr char inF = never | s_kRow3 | s_kRows57;
    const __m128i ofColumns = _mm_setr_epi8( in0, in1to9, in1to9, in1to9, in1to9, in1to9, in1to9, in1to9, in1to9,
                                             in1to9, inA, inB, inCtoE, inCtoE, inCtoE, inF );
    const __m128i ofRows = _mm_setr_epi8( never, never, s_kRow2, s_kRow3, s_kRows46, s_kRows57, s_kRows46, s_kRows57,
                                          never, never, never, never, never, never, never, never );
    const __m128i columns = _mm_and_si128( a_text, _mm_set1_epi8( 0x0F ) );
    const __m128i faults =
        _mm_and_si128( _mm_shuffle_epi8( ofRows, RowsOf( a_text ) ), _mm_shuffle_epi8( ofColumns, columns ) );
    return static_cast<uint>( _mm_movemask_epi8( _mm_cmpeq_epi8( faults, _mm_setzero_si128() ) ) );
}

__attribute__( ( target( "avx" ) ) ) inline __m128i Sum( __m128i a_first, __m128i a_second )
{
    using Bytes = uchar __attribute__( ( vector_size( s_kCharacters ) ) );
    return reinterpret_cast<__m128i>( reinterpret_cast<Bytes>( a_first ) + reinterpret_cast<Bytes>( a_second ) );
}

/// \return the six bits of each character, by its distance from them, which is the same for all characters of a row
///         but '/'.
__attribute__( ( target( "avx" ) ) ) inline __m128i ValuesOf( __m128i a_text )
{
    const __m128i distances =
        _mm_setr_epi8( 0, 62 - '+', 63 - '/', 52 - '0', 0 - 'A', 0 - 'A', 26 - 'a', 26 - 'a', 0, 0, 0, 0, 0, 0, 0, 0 );
    // Row 2 without '/' is one before.
    const __m128i isPlus = _mm_cmpeq_epi8( a_text, _mm_set1_epi8( '+' ) );
    return Sum( a_text, _mm_shuffle_epi8( distances, Sum( RowsOf( a_text ), isPlus ) ) );
}

/// Puts four times six bits into three bytes.
__attribute__( ( target( "avx" ) ) ) inline __m128i Packed( __m128i a_values )
{
    const __m128i pairs = _mm_maddubs_epi16( a_values, _mm_set1_epi32( 0x01400140 ) );
    const __m128i groups = _mm_madd_epi16( pairs, _mm_set1_epi32( 0x00011000 ) );
    return _mm_shuffle_epi8( groups, _mm_setr_epi8( 2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1 ) );
}

__attribute__( ( target( "avx" ) ) ) inline __m128i VectorAt( const char* a_place )
{
    return _mm_loadu_si128( reinterpret_cast<const __m128i*>( a_place ) );
}

/// \return the 16 characters at a position, without the break after the first a_before of them.
__attribute__( ( target( "avx" ) ) ) inline __m128i VectorRoundBreak( const char* a_place, uint a_before )
{
    // Selects as many bytes as are left of the 16 before its middle.
    static constexpr std::array<char, 2 * s_kCharacters> s_kMask = { -1, -1, -1, -1, -1, -1, -1, -1,
                                                                     -1, -1, -1, -1, -1, -1, -1, -1 };
    const __m128i mask = VectorAt( s_kMask.data() + s_kCharacters - a_before );
    return _mm_or_si128( _mm_and_si128( mask, VectorAt( a_place ) ),
                         _mm_andnot_si128( mask, VectorAt( a_place + s_kBreak ) ) );
}

bool IsBreak( const char* a_place )
{
    return a_place[0] == '\r' && a_place[1] == '\n' && IsBlank( a_place[2] );
}

__attribute__( ( target( "avx" ) ) ) size_t DecodeVectors( const char* a_text, size_t a_size, char*& a_out )
{
    size_t place = 0;
    while ( a_size - place >= s_kCharacters )
    {
        __m128i text = VectorAt( a_text + place );
        size_t length = s_kCharacters;
        const uint inAlphabet = InAlphabet( text );
        if ( inAlphabet != s_kAll )
        {
            length += s_kBreak;
            const uint before = qCountTrailingZeroBits( ~inAlphabet );
            if ( a_size - place < length || !IsBreak( a_text + place + before ) )
                break;
            text = VectorRoundBreak( a_text + place, before );
            if ( InAlphabet( text ) != s_kAll )
                break;
        }
        _mm_storeu_si128( reinterpret_cast<__m128i*>( a_out ), Packed( ValuesOf( text ) ) );
        a_out += s_kBytes;
        place += length;
    }
    return place;
}

} // namespace

size_t DecodeBase64Vectors( const char* a_text, size_t a_size, char*& a_out )
{
    static const bool s_isPossible = static_cast<bool>( __builtin_cpu_supports( "avx" ) );
    return s_isPossible ? DecodeVectors( a_text, a_size, a_out ) : 0;
}

#else

size_t DecodeBase64Vectors( const char* /*a_text*/, size_t /*a_size*/, char*& /*a_out*/ )
{
    return 0;
}

#endif

} // namespace PimManager::Contacts
