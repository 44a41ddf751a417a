#include "Text/FileSignature.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;
using Kind = PimContactFileKind;

struct Row
{
    const char* m_name;
    std::string_view m_start;
    Kind m_kind;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

constexpr std::array s_kSignatures = {
    Row{ "gzip", "\x1F\x8B"sv, Kind::Compressed },
    Row{ "zip", "PK\x03\x04"sv, Kind::Compressed },
    Row{ "zip without files", "PK\x05\x06"sv, Kind::Compressed },
    Row{ "zip in parts", "PK\x07\x08"sv, Kind::Compressed },
    Row{ "PDF", "%PDF-"sv, Kind::Document },
    Row{ "JPEG", "\xFF\xD8\xFF"sv, Kind::Image },
    Row{ "PNG", "\x89\x50\x4E\x47\x0D\x0A\x1A\x0A"sv, Kind::Image },
    Row{ "GIF 87a", "GIF87a"sv, Kind::Image },
    Row{ "GIF 89a", "GIF89a"sv, Kind::Image },
    Row{ "WebP", "RIFF\x24\x10\x00\x00WEBP"sv, Kind::Image },
    Row{ "HEIF heic",
         "\0\0\0\x18"
         "ftypheic"sv,
         Kind::Image },
    Row{ "HEIF heix",
         "\0\0\0\x18"
         "ftypheix"sv,
         Kind::Image },
    Row{ "HEIF hevc",
         "\0\0\0\x18"
         "ftyphevc"sv,
         Kind::Image },
    Row{ "HEIF mif1",
         "\0\0\0\x18"
         "ftypmif1"sv,
         Kind::Image },
    Row{ "HEIF msf1",
         "\0\0\0\x18"
         "ftypmsf1"sv,
         Kind::Image },
    Row{ "AVIF",
         "\0\0\0\x1C"
         "ftypavif"sv,
         Kind::Image },
    Row{ "TIFF, little endian", "II*\0"sv, Kind::Image },
    Row{ "TIFF, big endian", "MM\0*"sv, Kind::Image },
    Row{ "BMP", "BM\x46\x10\x02\x00\0\0\0\0"sv, Kind::Image },
};

TEST( FileSignatureTest, SignatureIsRecognised )
{
    for ( const Row& row : s_kSignatures )
    {
        EXPECT_EQ( FileKindBySignature( row.m_start ), row.m_kind ) << row;
        EXPECT_EQ( FileKindBySignature( std::string( row.m_start ) + "\x01\x02" ), row.m_kind ) << row;
        EXPECT_LE( row.m_start.size(), s_kSignatureBytes ) << row;
    }
}

TEST( FileSignatureTest, SignatureCutShortIsUnknown )
{
    for ( const Row& row : s_kSignatures )
    {
        for ( size_t length = 0; length < row.m_start.size(); ++length )
            EXPECT_EQ( FileKindBySignature( row.m_start.substr( 0, length ) ), Kind::Unknown ) << row << length;
    }
}

TEST( FileSignatureTest, SignatureAfterAnotherByteIsUnknown )
{
    for ( const Row& row : s_kSignatures )
        EXPECT_EQ( FileKindBySignature( "\n" + std::string( row.m_start ) ), Kind::Unknown ) << row;
}

TEST( FileSignatureTest, TextIsUnknown )
{
    static constexpr std::array s_kRows = {
        Row{ "a card", "BEGIN:VCARD\r\nVERSION:3.0"sv, Kind::Unknown },
        Row{ "a card behind a byte order mark",
             "\xEF\xBB\xBF"
             "BEGIN:VCARD"sv,
             Kind::Unknown },
        Row{ "PKW", "PKW: Passat\r\nTEL:1234"sv, Kind::Unknown },
        Row{ "PK and a digit", "PK34 is a code"sv, Kind::Unknown },
        Row{ "PK, end of text and another byte", "PK\x03\x05 and more text"sv, Kind::Unknown },
        Row{ "BMW", "BMW: green\r\nTEL:1234"sv, Kind::Unknown },
        Row{ "BMP with one reserved byte set", "BM\x46\x10\x02\x00\0\0\0\x01\x36\0\0\0"sv, Kind::Unknown },
        Row{ "GIF and text", "GIF is a format"sv, Kind::Unknown },
        Row{ "GIF of another version", "GIF88a\x01\x02\x03\x04"sv, Kind::Unknown },
        Row{ "%PD", "%PD is a discount"sv, Kind::Unknown },
        Row{ "%PDF without a version", "%PDF is a format"sv, Kind::Unknown },
        Row{ "RIFF and text", "RIFF are rocks, in German"sv, Kind::Unknown },
        Row{ "RIFF with sound", "RIFF\x24\x10\x00\x00WAVE"sv, Kind::Unknown },
        Row{ "a film",
             "\0\0\0\x18"
             "ftypisom"sv,
             Kind::Unknown },
        Row{ "ftyp at the start", "ftypheic and more"sv, Kind::Unknown },
        Row{ "II and text", "II* is a grade"sv, Kind::Unknown },
        Row{ "MM and text", "MM*0 is a code"sv, Kind::Unknown },
        Row{ "PNG without its first byte", "PNG\r\n\x1A\n12345"sv, Kind::Unknown },
        Row{ "UTF-16",
             "\xFF\xFE"
             "B\0E\0G\0I\0"sv,
             Kind::Unknown },
        Row{ "UTF-16 that begins with BM", "B\0M\0W\0:\0 \0g\0"sv, Kind::Unknown },
        Row{ "the start of gzip reversed", "\x8B\x1F\x08\x00"sv, Kind::Unknown },
        Row{ "the marker of JPEG interrupted", "\xFF\xD8\xFE\xFF"sv, Kind::Unknown },
        Row{ "zeros", "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv, Kind::Unknown },
    };
    for ( const Row& row : s_kRows )
        EXPECT_EQ( FileKindBySignature( row.m_start ), row.m_kind ) << row;
}

Kind KindOf( std::string_view a_text )
{
    TextKind kind;
    kind.Take( a_text );
    return kind.Kind();
}

constexpr std::array s_kTexts = {
    Row{ "document type", "<!DOCTYPE html>\n<title>Contacts</title>"sv, Kind::Html },
    Row{ "document type in capitals", "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">"sv, Kind::Html },
    Row{ "document type in small letters", "<!doctype html>"sv, Kind::Html },
    Row{ "document type on two lines", "<!DOCTYPE\r\nhtml>"sv, Kind::Html },
    Row{ "element", "<html><body>Sign in</body></html>"sv, Kind::Html },
    Row{ "element with attributes", "<HTML lang=\"en\">"sv, Kind::Html },
    Row{ "element that is closed at once", "<br/>text"sv, Kind::Html },
    Row{ "element that the text ends in", "<html"sv, Kind::Html },
    Row{ "head", "<head>"sv, Kind::Html },
    Row{ "script", "<script>location = '/'</script>"sv, Kind::Html },
    Row{ "table", "<table border=1>"sv, Kind::Html },
    Row{ "white space", "\r\n\t \f<html>"sv, Kind::Html },
    Row{ "byte order mark", "\xEF\xBB\xBF<html>"sv, Kind::Html },
    Row{ "byte order mark and white space", "\xEF\xBB\xBF\r\n<html>"sv, Kind::Html },
    Row{ "comments", "<!-- one --> <!-- two\n-- three -->\n<html>"sv, Kind::Html },
    Row{ "XML declaration", "<?xml version=\"1.0\"?>\n<!DOCTYPE html>"sv, Kind::Html },
    Row{ "XML declaration and comment", "<?xml version=\"1.0\"?><!-- -->\n<html xmlns=\"\">"sv, Kind::Html },
    Row{ "HTML with zeros", "<html>\0\0"sv, Kind::Html },

    Row{ "nothing", ""sv, Kind::Text },
    Row{ "text", "Ann 1234\r\nBob 5678\r\n"sv, Kind::Text },
    Row{ "tabs and line endings only", "\t\t\r\n\r\n\t"sv, Kind::Text },
    Row{ "text in another character set", "J\xF6rg\t1234\n"sv, Kind::Text },
    Row{ "another document type", "<!DOCTYPE svg>"sv, Kind::Text },
    Row{ "another document type that names HTML later", "<!DOCTYPE svg html>"sv, Kind::Text },
    Row{ "another element", "<contacts><html>"sv, Kind::Text },
    Row{ "a longer name", "<html5>"sv, Kind::Text },
    Row{ "a mail address", "<a@b.example> wrote:"sv, Kind::Text },
    Row{ "element behind text", "see <html>"sv, Kind::Text },
    Row{ "an end tag", "</html>"sv, Kind::Text },
    Row{ "element without a name", "<>"sv, Kind::Text },
    Row{ "less-than sign alone", "<"sv, Kind::Text },
    Row{ "html without brackets", "html>"sv, Kind::Text },
    Row{ "comment that is not closed", "<!-- <html>"sv, Kind::Text },
    Row{ "XML declaration that is not closed", "<?xml <html>"sv, Kind::Text },
    Row{ "another processing instruction", "<?php ?><html>"sv, Kind::Text },
    Row{ "XML without HTML", "<?xml version=\"1.0\"?>\n<contacts/>"sv, Kind::Text },
    Row{ "one control character in 32", "0123456789012345678901234567890\x1A"sv, Kind::Text },

    Row{ "one control character in 31", "012345678901234567890123456789\x1A"sv, Kind::Unknown },
    Row{ "one delete character in 31", "012345678901234567890123456789\x7F"sv, Kind::Text },
    Row{ "two control characters in 63",
         "\x01"
         "0123456789012345678901234567890123456789012345678901234567890\x02"sv,
         Kind::Unknown },
    Row{ "a zero in a long text", "0123456789012345678901234567890123456789012345678901234567890123456789\0"sv,
         Kind::Unknown },
    Row{ "zeros", "\0\0\0"sv, Kind::Unknown },
};

TEST( FileSignatureTest, TextKindIsDetermined )
{
    for ( const Row& row : s_kTexts )
        EXPECT_EQ( KindOf( row.m_start ), row.m_kind ) << row;
}

TEST( FileSignatureTest, TextKindDoesNotDependOnThePieces )
{
    for ( const Row& row : s_kTexts )
    {
        TextKind kind;
        for ( size_t place = 0; place < row.m_start.size(); ++place )
            kind.Take( row.m_start.substr( place, 1 ) );
        EXPECT_EQ( kind.Kind(), row.m_kind ) << row;
    }
}

TEST( FileSignatureTest, OnlyTheFirst4KiBDecideAboutText )
{
    const std::string text( 4096, 'x' );
    EXPECT_EQ( KindOf( text + '\0' ), Kind::Text );
    EXPECT_EQ( KindOf( text.substr( 1 ) + '\0' ), Kind::Unknown );
    EXPECT_EQ( KindOf( std::string( 4090, ' ' ) + "<html>" ), Kind::Html );
    EXPECT_EQ( KindOf( std::string( 4096, ' ' ) + "<html>" ), Kind::Text );

    TextKind kind;
    kind.Take( text.substr( 100 ) );
    kind.Take( text.substr( 0, 100 ) + '\0' );
    kind.Take( "\0\0\0"sv );
    EXPECT_EQ( kind.Kind(), Kind::Text );
}

} // namespace

} // namespace PimManager::Contacts
