#include "Text/MediaType.h"

#include "Text/Bytes.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// In a pattern, a dot is any byte.
struct Signature
{
    std::string_view m_mediaType;
    std::string_view m_pattern;
};

constexpr std::array s_kSignatures = {
    Signature{ "image/jpeg", "\xFF\xD8\xFF"sv }, Signature{ "image/png", "\x89PNG\r\n\x1A\n"sv },
    Signature{ "image/gif", "GIF87a"sv },        Signature{ "image/gif", "GIF89a"sv },
    Signature{ "image/webp", "RIFF....WEBP"sv }, Signature{ "image/heic", "....ftypheic"sv },
    Signature{ "image/heic", "....ftypheix"sv }, Signature{ "image/heic", "....ftyphevc"sv },
    Signature{ "image/heif", "....ftypmif1"sv }, Signature{ "image/heif", "....ftypmsf1"sv },
    Signature{ "image/avif", "....ftypavif"sv }, Signature{ "image/tiff", "II*\0"sv },
    Signature{ "image/tiff", "MM\0*"sv },        Signature{ "image/bmp", "BM....\0\0\0\0"sv },
    Signature{ "image/x-icon", "\0\0\1\0"sv },   Signature{ "audio/wav", "RIFF....WAVE"sv },
    Signature{ "audio/mpeg", "ID3"sv },          Signature{ "audio/mpeg", "\xFF\xFB"sv },
    Signature{ "audio/mpeg", "\xFF\xF3"sv },     Signature{ "audio/ogg", "OggS"sv },
    Signature{ "audio/amr", "#!AMR"sv },         Signature{ "audio/midi", "MThd"sv },
    Signature{ "audio/flac", "fLaC"sv },         Signature{ "audio/basic", ".snd"sv },
};

bool Matches( std::string_view a_start, std::string_view a_pattern )
{
    return a_start.size() >= a_pattern.size() &&
           std::equal( a_pattern.begin(), a_pattern.end(), a_start.begin(),
                       []( char a_expected, char a_byte ) { return a_expected == '.' || a_expected == a_byte; } );
}

bool IsTokenByte( char a_byte )
{
    return IsNameByte( a_byte ) || std::string_view( "!#$&^_.+" ).find( a_byte ) != std::string_view::npos;
}

bool IsToken( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsTokenByte );
}

} // namespace

std::string_view MediaTypeBySignature( std::string_view a_start )
{
    const auto* const found =
        std::find_if( s_kSignatures.begin(), s_kSignatures.end(),
                      [a_start]( const Signature& a_signature ) { return Matches( a_start, a_signature.m_pattern ); } );
    return found == s_kSignatures.end() ? std::string_view() : found->m_mediaType;
}

bool IsMediaType( std::string_view a_text )
{
    const size_t slash = a_text.find( '/' );
    return slash != std::string_view::npos && IsToken( a_text.substr( 0, slash ) ) &&
           IsToken( a_text.substr( slash + 1 ) );
}

QByteArray MediaTypeNamed( std::string_view a_text )
{
    const std::string_view type = Trimmed( a_text.substr( 0, a_text.find( ';' ) ) );
    return IsMediaType( type ) ? BytesOf( type ).toLower() : QByteArray();
}

} // namespace PimManager::Contacts
