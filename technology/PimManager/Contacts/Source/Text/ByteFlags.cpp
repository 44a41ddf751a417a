#include "Text/ByteFlags.h"

#include "Text/Bytes.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace PimManager::Contacts
{

namespace
{

constexpr char s_kDelete = 0x7F;

ByteFlags FlagsOfEach( std::string_view a_text )
{
    ByteFlags flags;
    for ( const char byte : a_text )
    {
        flags.m_isAscii = flags.m_isAscii && IsAsciiByte( byte );
        flags.m_hasDelete = flags.m_hasDelete || byte == s_kDelete;
        flags.m_hasBackslash = flags.m_hasBackslash || byte == '\\';
    }
    return flags;
}

} // namespace

#ifdef __SSE2__

// Sixteen bytes at once; the last sixteen may overlap those before them.
ByteFlags ByteFlagsOf( std::string_view a_text )
{
    constexpr size_t s_kVectorBytes = sizeof( __m128i );
    if ( a_text.size() < s_kVectorBytes )
        return FlagsOfEach( a_text );
    const __m128i aDelete = _mm_set1_epi8( s_kDelete );
    const __m128i aBackslash = _mm_set1_epi8( '\\' );
    __m128i all = _mm_setzero_si128();
    __m128i deletes = all;
    __m128i backslashes = all;
    const auto take = [&]( size_t a_place )
    {
        const __m128i bytes = _mm_loadu_si128( reinterpret_cast<const __m128i*>( a_text.data() + a_place ) );
        all = _mm_or_si128( all, bytes );
        deletes = _mm_or_si128( deletes, _mm_cmpeq_epi8( bytes, aDelete ) );
        backslashes = _mm_or_si128( backslashes, _mm_cmpeq_epi8( bytes, aBackslash ) );
    };
    const size_t last = a_text.size() - s_kVectorBytes;
    for ( size_t place = 0; place < last; place += s_kVectorBytes )
        take( place );
    take( last );
    return { _mm_movemask_epi8( all ) == 0, _mm_movemask_epi8( deletes ) != 0, _mm_movemask_epi8( backslashes ) != 0 };
}

#else

ByteFlags ByteFlagsOf( std::string_view a_text )
{
    return FlagsOfEach( a_text );
}

#endif

} // namespace PimManager::Contacts
