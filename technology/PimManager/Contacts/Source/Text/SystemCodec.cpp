#include "Text/SystemCodec.h"

#include <array>
#include <optional>

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kLongestCharacter = 4;

// glibc converts to its own wide characters in one step, and to UTF-8 in two. In two steps, it would convert far more
// than one character, and go back each time.
constexpr const char* s_kTarget = "WCHAR_T";
static_assert( sizeof( wchar_t ) == sizeof( char32_t ) );

struct Source
{
    Charset::Id m_id;
    const char* m_name;
};

// These have the characters that Windows and phones write, and keep the backslash, which vCard needs. SJIS and IBM943
// of glibc read it as a yen sign, and EUC-JP lacks the circled digits. Big5-HKSCS has the names of Hong Kong, which
// BIG5 lacks.
constexpr std::array s_kSources = {
    Source{ Charset::Id::ShiftJis, "CP932" },  Source{ Charset::Id::EucJp, "EUC-JP-MS" },
    Source{ Charset::Id::EucKr, "UHC" },       Source{ Charset::Id::Gb18030, "GB18030" },
    Source{ Charset::Id::Big5, "BIG5-HKSCS" },
};

constexpr size_t IndexOf( Charset::Id a_id )
{
    return static_cast<size_t>( a_id ) - static_cast<size_t>( Charset::Id::ShiftJis );
}

constexpr bool AreInOrder()
{
    size_t index = 0;
    for ( const Source& source : s_kSources )
    {
        if ( IndexOf( source.m_id ) != index++ )
            return false;
    }
    return true;
}
static_assert( AreInOrder() );

iconv_t NoHandle()
{
    return reinterpret_cast<iconv_t>( -1 ); // NOLINT(performance-no-int-to-ptr): what iconv_open() returns
}

} // namespace

SystemCodec::SystemCodec( const char* a_name ) :
    m_handle( iconv_open( s_kTarget, a_name ) )
{
}

SystemCodec::~SystemCodec()
{
    if ( IsAvailable() )
        iconv_close( m_handle );
}

SystemCodec& SystemCodec::Of( Charset a_charset )
{
    thread_local std::array<std::optional<SystemCodec>, s_kSources.size()> s_codecs;
    const size_t index = IndexOf( a_charset.Value() );
    std::optional<SystemCodec>& codec = s_codecs.at( index );
    if ( !codec.has_value() )
        codec.emplace( s_kSources.at( index ).m_name );
    return *codec;
}

bool SystemCodec::IsAvailable() const
{
    return m_handle != NoHandle();
}

size_t SystemCodec::DecodeFirst( std::string_view a_bytes, size_t a_place, DecodedText& a_text )
{
    if ( !IsAvailable() )
    {
        a_text.SetUnavailable();
        return 0;
    }
    char32_t character = 0;
    const size_t length = ReadFirst( a_bytes.substr( 0, s_kLongestCharacter ), character );
    if ( length > 0 )
        a_text.Append( character, a_place );
    if ( ReadSecond( character ) )
        a_text.Append( character, a_place );
    return length;
}

// Returns 0 for a malformed character. There is room for one character, so iconv() stops after it.
size_t SystemCodec::ReadFirst( std::string_view a_bytes, char32_t& a_character )
{
    char* in = const_cast<char*>( a_bytes.data() ); // iconv() does not write to it.
    size_t bytesLeft = a_bytes.size();
    char* out = reinterpret_cast<char*>( &a_character );
    size_t roomLeft = sizeof a_character;
    iconv( m_handle, &in, &bytesLeft, &out, &roomLeft );
    return roomLeft == 0 ? a_bytes.size() - bytesLeft : 0;
}

// A few characters of Big5 are two of Unicode; iconv() keeps the second one. In any case, this resets the handle.
bool SystemCodec::ReadSecond( char32_t& a_character )
{
    char* out = reinterpret_cast<char*>( &a_character );
    size_t roomLeft = sizeof a_character;
    iconv( m_handle, nullptr, nullptr, &out, &roomLeft );
    return roomLeft == 0;
}

} // namespace PimManager::Contacts
