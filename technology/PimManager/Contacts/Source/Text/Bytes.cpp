#include "Text/Bytes.h"

#include "Text/EightBytes.h"

#include <algorithm>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kFour = 4;

using FourBytes = uchar __attribute__( ( vector_size( s_kFour ) ) );
using FourUnits = ushort __attribute__( ( vector_size( s_kFour * sizeof( ushort ) ) ) );
using EightBytes = uchar __attribute__( ( vector_size( s_kWord ) ) );
using EightUnits = ushort __attribute__( ( vector_size( s_kWord * sizeof( ushort ) ) ) );

template <class Bytes, class Units>
void Widen( const char* a_from, QChar* a_to )
{
    Bytes bytes;
    std::memcpy( &bytes, a_from, sizeof( bytes ) );
    const Units units = __builtin_convertvector( bytes, Units );
    std::memcpy( static_cast<void*>( a_to ), &units, sizeof( units ) );
}

#ifdef __SSE2__
// One instruction, for which the compiler takes five.
template <>
void Widen<EightBytes, EightUnits>( const char* a_from, QChar* a_to )
{
    const __m128i bytes = _mm_loadl_epi64( reinterpret_cast<const __m128i*>( a_from ) );
    const __m128i units = _mm_unpacklo_epi8( bytes, _mm_setzero_si128() );
    _mm_storeu_si128( reinterpret_cast<__m128i*>( a_to ), units );
}
#endif

// The last ones may overlap those before them.
template <class Bytes, class Units>
void WidenAll( std::string_view a_text, QChar* a_to )
{
    for ( size_t place = 0; place + sizeof( Bytes ) < a_text.size(); place += sizeof( Bytes ) )
        Widen<Bytes, Units>( a_text.data() + place, a_to + place );
    const size_t last = a_text.size() - sizeof( Bytes );
    Widen<Bytes, Units>( a_text.data() + last, a_to + last );
}

} // namespace

bool IsSameText( std::string_view a_first, std::string_view a_second )
{
    return std::equal( a_first.begin(), a_first.end(), a_second.begin(),
                       []( char a_left, char a_right ) { return Upper( a_left ) == Upper( a_right ); } );
}

bool IsName( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsNameByte );
}

bool AreDigits( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsDigit );
}

bool IsBase64( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsBase64Byte );
}

bool AreAllBlank( std::string_view a_text )
{
    return std::all_of( a_text.begin(), a_text.end(), IsBlank );
}

std::string_view TrimmedLeft( std::string_view a_text )
{
    while ( !a_text.empty() && IsBlank( a_text.front() ) )
        a_text.remove_prefix( 1 );
    return a_text;
}

std::string_view TrimmedRight( std::string_view a_text )
{
    while ( !a_text.empty() && IsBlank( a_text.back() ) )
        a_text.remove_suffix( 1 );
    return a_text;
}

std::string_view Trimmed( std::string_view a_text )
{
    return TrimmedRight( TrimmedLeft( a_text ) );
}

size_t LengthOfMarks( std::string_view a_text )
{
    size_t length = 0;
    while ( a_text.substr( length, s_kByteOrderMark.size() ) == s_kByteOrderMark )
        length += s_kByteOrderMark.size();
    return length;
}

bool EndsWith( std::string_view a_text, std::string_view a_end )
{
    return a_text.size() >= a_end.size() && a_text.substr( a_text.size() - a_end.size() ) == a_end;
}

QByteArray BytesOf( std::string_view a_text )
{
    return QByteArray( a_text.data(), static_cast<int>( a_text.size() ) );
}

// Eight bytes at once; the last eight may overlap those before them.
bool AreAllAscii( std::string_view a_text )
{
    if ( a_text.size() <= s_kWord )
        return ( FirstEight( a_text ) & s_kHighBits ) == 0;
    const char* place = a_text.data();
    const char* const end = place + a_text.size();
    quint64 all = 0;
    for ( ; static_cast<size_t>( end - place ) > sizeof( all ); place += sizeof( all ) )
        all |= WordAt( place );
    return ( ( all | WordAt( end - sizeof( all ) ) ) & s_kHighBits ) == 0;
}

// Most texts are short, and QString::fromLatin1() costs three calls.
QString AsciiString( std::string_view a_text )
{
    QString string( static_cast<int>( a_text.size() ), Qt::Uninitialized );
    // The string is not shared yet.
    auto* const out = const_cast<QChar*>( string.constData() );
    if ( a_text.size() >= s_kWord )
        WidenAll<EightBytes, EightUnits>( a_text, out );
    else if ( a_text.size() >= s_kFour )
        WidenAll<FourBytes, FourUnits>( a_text, out );
    else
        std::transform( a_text.begin(), a_text.end(), out, []( char a_byte ) { return QLatin1Char( a_byte ); } );
    return string;
}

// Qt leaves out a byte order mark at the start.
QString StringOf( std::string_view a_text )
{
    if ( a_text.empty() )
        return QString();
    if ( AreAllAscii( a_text ) )
        return AsciiString( a_text );
    const auto size = static_cast<int>( a_text.size() );
    if ( a_text.front() != s_kByteOrderMark.front() )
        return QString::fromUtf8( a_text.data(), size );
    const size_t marks = LengthOfMarks( a_text );
    const std::string_view rest = a_text.substr( marks );
    const QString text = QString::fromUtf8( rest.data(), static_cast<int>( rest.size() ) );
    const auto count = static_cast<int>( marks / s_kByteOrderMark.size() );
    return count == 0 ? text : QString( count, QChar( QChar::ByteOrderMark ) ) + text;
}

} // namespace PimManager::Contacts
