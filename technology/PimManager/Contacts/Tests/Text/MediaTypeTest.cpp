#include "Text/MediaType.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

struct Row
{
    std::string_view m_start;
    std::string_view m_type;
};

constexpr std::array s_kSignatures = {
    Row{ "\xFF\xD8\xFF\xE0"sv, "image/jpeg" },
    Row{ "\x89PNG\r\n\x1A\n"sv, "image/png" },
    Row{ "GIF87a"sv, "image/gif" },
    Row{ "GIF89a"sv, "image/gif" },
    Row{ "RIFFxxxxWEBPVP8 "sv, "image/webp" },
    Row{ "RIFFxxxxWAVEfmt "sv, "audio/wav" },
    Row{ "\0\0\0\x18"
         "ftypheic"sv,
         "image/heic" },
    Row{ "\0\0\0\x18"
         "ftypheix"sv,
         "image/heic" },
    Row{ "\0\0\0\x18"
         "ftyphevc"sv,
         "image/heic" },
    Row{ "\0\0\0\x18"
         "ftypmif1"sv,
         "image/heif" },
    Row{ "\0\0\0\x18"
         "ftypmsf1"sv,
         "image/heif" },
    Row{ "\0\0\0\x18"
         "ftypavif"sv,
         "image/avif" },
    Row{ "II*\0"sv, "image/tiff" },
    Row{ "MM\0*"sv, "image/tiff" },
    Row{ "BMxxxx\0\0\0\0"sv, "image/bmp" },
    Row{ "\0\0\1\0"sv, "image/x-icon" },
    Row{ "ID3\3"sv, "audio/mpeg" },
    Row{ "\xFF\xFB\x90"sv, "audio/mpeg" },
    Row{ "\xFF\xF3\x90"sv, "audio/mpeg" },
    Row{ "OggS"sv, "audio/ogg" },
    Row{ "#!AMR\n"sv, "audio/amr" },
    Row{ "MThd"sv, "audio/midi" },
    Row{ "fLaC"sv, "audio/flac" },
    Row{ ".snd"sv, "audio/basic" },
    Row{ ""sv, "" },
    Row{ "\xFF\xD8"sv, "" },
    Row{ "BMtext that begins so"sv, "" },
    Row{ "RIFFxxxxAVI "sv, "" },
    Row{ "plain text"sv, "" },
};

} // namespace

TEST( MediaTypeTest, TypesAreRecognised )
{
    for ( const Row& row : s_kSignatures )
        EXPECT_EQ( MediaTypeBySignature( row.m_start ), row.m_type ) << row.m_start;
}

TEST( MediaTypeTest, NamesAreWellFormedOrEmpty )
{
    EXPECT_EQ( MediaTypeNamed( " Image/JPEG ; q=1" ), "image/jpeg" );
    EXPECT_EQ( MediaTypeNamed( "application/vnd.a+b-c" ), "application/vnd.a+b-c" );
    for ( const char* text :
          { "", "JPEG", "image/", "/jpeg", "image/jp\"eg", "image/a/b", "im age/x", "image/\xC3\xA9" } )
        EXPECT_EQ( MediaTypeNamed( text ), "" ) << text;
}

} // namespace PimManager::Contacts
