#include "Text/Codec.h"

#include "Text/Bytes.h"
#include "Text/DecodedText.h"
#include "Text/Iso2022Jp.h"
#include "Text/SystemCodec.h"

#include <QString>

#include <gtest/gtest.h>

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::string_view s_kReplacement = "\xEF\xBF\xBD";

using Places = std::vector<quint32>;

// The text of a byte, or U+FFFD: what iconv() of the system says.
std::string JudgedByte( const std::string& a_charset, char a_byte )
{
    auto* const handle = iconv_open( "UTF-8", a_charset.c_str() );
    EXPECT_NE( reinterpret_cast<std::intptr_t>( handle ), -1 ) << a_charset;
    std::array<char, 16> text{};
    char* in = &a_byte;
    size_t bytesLeft = 1;
    char* out = text.data();
    size_t roomLeft = text.size();
    iconv( handle, &in, &bytesLeft, &out, &roomLeft );
    iconv( handle, nullptr, nullptr, &out, &roomLeft );
    iconv_close( handle );
    return bytesLeft > 0 ? std::string( s_kReplacement ) : std::string( text.data(), text.size() - roomLeft );
}

TEST( CodecTest, SingleBytesAreThoseOfIconv )
{
    int tables = 0;
    for ( const std::string_view name : Charset::Names() )
    {
        const Charset charset = Charset::Of( name );
        if ( !charset.IsSingleByte() )
            continue;
        ++tables;
        const std::string judge( name == "x-mac-cyrillic"sv ? "MAC-CYRILLIC"sv : name );
        for ( int byte = 0; byte <= 0xFF; ++byte )
        {
            const char bytes = static_cast<char>( byte );
            QByteArray text;
            const DecodeResult result = DecodeTo( charset, std::string_view( &bytes, 1 ), text );
            EXPECT_EQ( std::string( ViewOf( text ) ), JudgedByte( judge, bytes ) ) << name << ' ' << byte;
            EXPECT_EQ( result.m_malformed, ViewOf( text ) == s_kReplacement ? 1 : 0 ) << name << ' ' << byte;
        }
    }
    EXPECT_EQ( tables, 30 );
}

struct Row
{
    const char* m_name;
    std::string_view m_charset;
    std::string_view m_bytes;
    std::string_view m_text;
    // For each character of the text, the position where it begins in the bytes: a digit, or a letter from ten on.
    std::string_view m_begins;
    qint64 m_malformed = 0;
    quint32 m_firstMalformed = 0;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_charset << ", " << a_row.m_name;
}

quint32 NumberOf( char a_digit )
{
    return static_cast<quint32>( a_digit <= '9' ? a_digit - '0' : a_digit - 'a' + 10 );
}

// The positions of the bytes of a text, by those of its characters.
Places PlacesOf( std::string_view a_text, std::string_view a_begins )
{
    Places places;
    size_t characters = 0;
    for ( const char byte : a_text )
    {
        const bool isTail = ( static_cast<uchar>( byte ) & 0xC0U ) == 0x80U;
        characters += isTail ? 0 : 1;
        places.push_back( NumberOf( a_begins.at( characters - 1 ) ) );
    }
    EXPECT_EQ( characters, a_begins.size() );
    return places;
}

void ExpectDecoded( const Row& a_row )
{
    SCOPED_TRACE( a_row );
    QByteArray text( "before " );
    Places places = { 7 };
    const DecodeResult result = DecodeTo( Charset::Of( a_row.m_charset ), a_row.m_bytes, text, &places );
    EXPECT_EQ( ViewOf( text ), "before " + std::string( a_row.m_text ) );
    Places expected = PlacesOf( a_row.m_text, a_row.m_begins );
    expected.insert( expected.begin(), 7 );
    EXPECT_EQ( places, expected );
    EXPECT_EQ( result.m_malformed, a_row.m_malformed );
    EXPECT_EQ( result.m_firstMalformed, a_row.m_firstMalformed );
    EXPECT_FALSE( result.m_isUnavailable );

    QByteArray sameText;
    const DecodeResult sameResult = DecodeTo( Charset::Of( a_row.m_charset ), a_row.m_bytes, sameText );
    EXPECT_EQ( ViewOf( sameText ), a_row.m_text );
    EXPECT_EQ( sameResult.m_malformed, a_row.m_malformed );
    EXPECT_EQ( sameResult.m_firstMalformed, a_row.m_firstMalformed );
}

template <size_t Size>
void ExpectRows( const std::array<Row, Size>& a_rows )
{
    for ( const Row& row : a_rows )
        ExpectDecoded( row );
}

TEST( CodecTest, Utf8IsKept )
{
    static constexpr std::array s_kRows = {
        Row{ "nothing", "UTF-8"sv, ""sv, ""sv, ""sv },
        Row{ "ASCII", "UTF-8"sv, "Ann"sv, "Ann"sv, "012"sv },
        Row{ "ASCII by its own name", "US-ASCII"sv, "Ann"sv, "Ann"sv, "012"sv },
        Row{ "no character set", ""sv, "J\xC3\xB6rg"sv, "Jörg"sv, "0134"sv },
        Row{ "characters of all lengths", "UTF-8"sv, "a\xC3\xB6\xE8\xA1\xA8\xF0\x9F\x98\x80z"sv, "aö表😀z"sv,
             "0136a"sv },
        Row{ "NUL", "UTF-8"sv, "a\0z"sv, "a\0z"sv, "012"sv },
        Row{ "byte order mark", "UTF-8"sv, "\xEF\xBB\xBF-"sv, "\xEF\xBB\xBF-"sv, "03"sv },
    };
    ExpectRows( s_kRows );
}

TEST( CodecTest, MalformedUtf8IsReplacedByteForByte )
{
    static constexpr std::array s_kRows = {
        Row{ "at the start", "UTF-8"sv, "\xF6rg"sv, "�rg"sv, "012"sv, 1, 0 },
        Row{ "in the middle", "UTF-8"sv, "J\xF6rg\xC3\xB6"sv, "J�rgö"sv, "01234"sv, 1, 1 },
        Row{ "at the end", "UTF-8"sv, "ab\xFF"sv, "ab�"sv, "012"sv, 1, 2 },
        Row{ "cut short at the end", "UTF-8"sv, "a\xF0\x9F\x98"sv, "a���"sv, "0123"sv, 3, 1 },
        Row{ "interrupted by a delimiter", "UTF-8"sv, "\xE2\x82;a"sv, "��;a"sv, "0123"sv, 2, 0 },
        Row{ "interrupted by another character", "UTF-8"sv, "\xE2\x82\xC3\xB6"sv, "��ö"sv, "012"sv, 2, 0 },
        Row{ "overlong", "UTF-8"sv, "a\xC0\xAF"sv, "a��"sv, "012"sv, 2, 1 },
        Row{ "surrogate", "UTF-8"sv, "\xED\xA0\x80"sv, "���"sv, "012"sv, 3, 0 },
        Row{ "beyond U+10FFFF", "UTF-8"sv, "\xF4\x90\x80\x80"sv, "����"sv, "0123"sv, 4, 0 },
    };
    ExpectRows( s_kRows );
    for ( const Row& row : s_kRows )
        EXPECT_EQ( QString::fromUtf8( BytesOf( row.m_bytes ) ).toUtf8(), BytesOf( row.m_text ) ) << row;
}

TEST( CodecTest, SingleBytesAreDecoded )
{
    static constexpr std::array s_kRows = {
        Row{ "letters", "ISO-8859-1"sv, "J\xF6rg"sv, "Jörg"sv, "0123"sv },
        Row{ "what Windows means by Latin 1", "ISO-8859-1"sv, "\x80\x93x\x94"sv, "€“x”"sv, "0123"sv },
        Row{ "undefined", "windows-1252"sv, "a\x81;\x9D"sv, "a�;�"sv, "0123"sv, 2, 1 },
        Row{ "undefined only", "windows-1255"sv, "\xFF"sv, "�"sv, "0"sv, 1, 0 },
        Row{ "control characters of ISO 8859", "ISO-8859-2"sv, "\x85"sv, "\xC2\x85"sv, "0"sv },
        Row{ "Cyrillic", "KOI8-R"sv, "\xE9\xD7\xC1\xCE"sv, "Иван"sv, "0123"sv },
        Row{ "Thai", "TIS-620"sv, "\xA1\xA2"sv, "กข"sv, "01"sv },
        Row{ "Vietnamese, with a mark of its own", "windows-1258"sv, "a\xEC"sv, "a\xCC\x81"sv, "01"sv },
        Row{ "NUL", "windows-1251"sv, "\xC8\0\xE2"sv, "И\0в"sv, "012"sv },
    };
    ExpectRows( s_kRows );
}

// In these sets, the second byte of a character may be the byte of a backslash or a letter.
TEST( CodecTest, CharactersOfSeveralBytesAreDecoded )
{
    static constexpr std::array s_kRows = {
        Row{ "ASCII", "Shift_JIS"sv, R"(a\~z)"sv, R"(a\~z)"sv, "0123"sv },
        Row{ "backslash as the second byte", "Shift_JIS"sv, "\x95\\\x8E\xA6;\x83\\\\n"sv, "表示;ソ\\n"sv, "024578"sv },
        Row{ "half-width katakana", "Shift_JIS"sv, "\xC0\xC5\xB6"sv, "ﾀﾅｶ"sv, "012"sv },
        Row{ "characters of Windows", "Shift_JIS"sv, "\x87\x40\x87\x8A\xEE\xE0"sv, "①㈱髙"sv, "024"sv },
        Row{ "NUL", "Shift_JIS"sv, "\x95\\\0\x83\\"sv, "表\0ソ"sv, "023"sv },

        Row{ "ASCII", "EUC-JP"sv, R"(a\~z)"sv, R"(a\~z)"sv, "0123"sv },
        Row{ "two bytes", "EUC-JP"sv, "\xC9\xBD\xBC\xA8;"sv, "表示;"sv, "024"sv },
        Row{ "two and three bytes", "EUC-JP"sv, "\x8E\xC0\x8F\xB0\xA1"sv, "ﾀ丂"sv, "02"sv },
        Row{ "characters of Windows", "EUC-JP"sv, "\xAD\xA1\xAD\xEA"sv, "①㈱"sv, "02"sv },

        Row{ "ASCII", "EUC-KR"sv, R"(a\~z)"sv, R"(a\~z)"sv, "0123"sv },
        Row{ "syllables", "EUC-KR"sv, "\xB1\xE8\xC3\xB6\xBC\xF6"sv, "김철수"sv, "024"sv },
        Row{ "a letter as the second byte", "EUC-KR"sv, "\x8C\x63\xB9\xE6"sv, "똠방"sv, "02"sv },

        Row{ "ASCII", "GB2312"sv, R"(a\~z)"sv, R"(a\~z)"sv, "0123"sv },
        Row{ "characters of GB2312", "GB2312"sv, "\xC0\xEE\xC3\xF7"sv, "李明"sv, "02"sv },
        Row{ "backslash as the second byte", "GBK"sv, "\x9C\\;\x81\\\\"sv, "淺;乗\\"sv, "0235"sv },
        Row{ "four bytes", "GB18030"sv, "a\x95\x34\xB2\x35z"sv, "a𠮷z"sv, "015"sv },
        Row{ "euro", "GB18030"sv, "\xA2\xE3"sv, "€"sv, "0"sv },

        Row{ "ASCII", "Big5"sv, R"(a\~z)"sv, R"(a\~z)"sv, "0123"sv },
        Row{ "backslash as the second byte", "Big5"sv, "\xB3\\\xA5\\\xBB\\\\"sv, "許功蓋\\"sv, "0246"sv },
        Row{ "names of Hong Kong", "Big5"sv, "\xB1\xD2\x90\x68"sv, "啟邨"sv, "02"sv },
        Row{ "two characters of one", "Big5"sv, "\x88\x62z\x88\x64"sv, "Ê̄zÊ̌"sv, "00233"sv },
    };
    ExpectRows( s_kRows );
}

TEST( CodecTest, MalformedCharacterSwallowsNoDelimiter )
{
    static constexpr std::array s_kRows = {
        Row{ "at the start", "Shift_JIS"sv, "\x81;\x95\\"sv, "�;表"sv, "012"sv, 1, 0 },
        Row{ "in the middle", "Shift_JIS"sv, "\x95\\\x95\"\x95\\"sv, "表�\"表"sv, "0234"sv, 1, 2 },
        Row{ "cut short at the end", "Shift_JIS"sv, "a\x95"sv, "a�"sv, "01"sv, 1, 1 },
        Row{ "at the start", "EUC-JP"sv, "\xC9;\xC9\xBD"sv, "�;表"sv, "012"sv, 1, 0 },
        Row{ "cut short after two of three", "EUC-JP"sv, "\x8F\xB0"sv, "��"sv, "01"sv, 2, 0 },
        Row{ "cut short at the end", "EUC-JP"sv, "\xC9\xBD\xC9"sv, "表�"sv, "02"sv, 1, 2 },
        Row{ "at the start", "EUC-KR"sv, "\xB1;\xB1\xE8"sv, "�;김"sv, "012"sv, 1, 0 },
        Row{ "byte that never occurs", "EUC-KR"sv, "\xFF\xB1\xE8"sv, "�김"sv, "01"sv, 1, 0 },
        Row{ "cut short at the end", "EUC-KR"sv, "\xB1\xE8\xB1"sv, "김�"sv, "02"sv, 1, 2 },
        Row{ "at the start", "GB18030"sv, "\xC0;\xC0\xEE"sv, "�;李"sv, "012"sv, 1, 0 },
        Row{ "cut short after three of four", "GB18030"sv, "\x95\x34\xB2"sv, "�4�"sv, "012"sv, 2, 0 },
        Row{ "byte that never occurs", "GB18030"sv, "\xFF\xC0\xEE"sv, "�李"sv, "01"sv, 1, 0 },
        Row{ "at the start", "Big5"sv, "\xA5;\xA5\\"sv, "�;功"sv, "012"sv, 1, 0 },
        Row{ "byte that never occurs", "Big5"sv, "\xFF\xA5\\"sv, "�功"sv, "01"sv, 1, 0 },
        Row{ "cut short at the end", "Big5"sv, "\xA5\\\xA5"sv, "功�"sv, "02"sv, 1, 2 },
    };
    ExpectRows( s_kRows );
}

TEST( CodecTest, Iso2022JpIsDecoded )
{
    static constexpr std::string_view charset = "ISO-2022-JP"sv;
    static constexpr std::array s_kRows = {
        Row{ "ASCII", charset, R"(a\~z)"sv, R"(a\~z)"sv, "0123"sv },
        Row{ "kanji", charset, "N:\x1B$BEDCf\x1B(B;"sv, "N:田中;"sv, "0157c"sv },
        Row{ "the older kanji", charset, "\x1B$@EDCf\x1B(J\\"sv, "田中\\"sv, "35a"sv },
        Row{ "delimiters as bytes", charset, "\x1B$B\\;\\,\\\\!\\\x1B(B"sv, "椹棯樛＋"sv, "3579"sv },
        Row{ "half-width katakana", charset, "\x1B(I@E6\x1B(B6"sv, "ﾀﾅｶ6"sv, "3459"sv },
        Row{ "additional kanji", charset, "\x1B$(D0!\x1B(B"sv, "丂"sv, "4"sv },
        Row{ "circled digit", charset, "\x1B$B-!\x1B(B"sv, "①"sv, "3"sv },
        Row{ "no way back", charset, "\x1B$BED"sv, "田"sv, "3"sv },
        Row{ "blank and control character between kanji", charset, "\x1B$BED \nCf\x1B(B"sv, "田 \n中"sv, "3567"sv },
        Row{ "NUL between kanji", charset, "\x1B$BED\0Cf"sv, "田\0中"sv, "356"sv },
        Row{ "escape sequences only", charset, "\x1B$B\x1B(B\x1B(J"sv, ""sv, ""sv },
    };
    ExpectRows( s_kRows );
}

TEST( CodecTest, MalformedIso2022JpIsReplaced )
{
    static constexpr std::string_view charset = "ISO-2022-JP"sv;
    static constexpr std::array s_kRows = {
        Row{ "byte beyond ASCII", charset, "a\xF6z"sv, "a�z"sv, "012"sv, 1, 1 },
        Row{ "byte beyond ASCII between kanji", charset,
             "\x1B$BED\xF6"
             "Cf"sv,
             "田�中"sv, "356"sv, 1, 5 },
        Row{ "other escape sequence", charset, "\x1B[1mAnn"sv, "�[1mAnn"sv, "0123456"sv, 1, 0 },
        Row{ "escape character at the end", charset, "a\x1B"sv, "a�"sv, "01"sv, 1, 1 },
        Row{ "escape sequence cut short", charset, "a\x1B$"sv, "a�$"sv, "012"sv, 1, 1 },
        Row{ "half a pair at the end", charset, "\x1B$BEDC"sv, "田�"sv, "35"sv, 1, 5 },
        Row{ "half a pair before the way back", charset, "\x1B$BEDC\x1B(B;"sv, "田�;"sv, "359"sv, 1, 5 },
        Row{ "pair without a character", charset, "\x1B$B/!ED"sv, "��田"sv, "345"sv, 2, 3 },
        Row{ "no katakana", charset, "\x1B(I`@"sv, "�ﾀ"sv, "34"sv, 1, 3 },
    };
    ExpectRows( s_kRows );
}

TEST( CodecTest, EachTextBeginsInAscii )
{
    const Charset charset = Charset::Of( "ISO-2022-JP"sv );
    QByteArray text;
    DecodeTo( charset, "\x1B$BED"sv, text );
    DecodeTo( charset, "ED"sv, text );
    DecodeTo( Charset::Of( "Big5"sv ), "\xA5"sv, text );
    DecodeTo( Charset::Of( "Big5"sv ), "\\\xA5\\"sv, text );
    EXPECT_EQ( ViewOf( text ), "田ED�\\功"sv );
}

TEST( CodecTest, LongHostileTextIsReplacedAsAWhole )
{
    constexpr size_t length = 200000;
    static constexpr std::array s_kLabels = { "UTF-8"sv,  "windows-1252"sv, "KOI8-R"sv, "Shift_JIS"sv,  "EUC-JP"sv,
                                              "EUC-KR"sv, "GB18030"sv,      "Big5"sv,   "ISO-2022-JP"sv };
    const std::string highest( length, '\xFF' );
    const std::string controls( length, '\x81' );
    const std::string escapes( length, '\x1B' );
    for ( const std::string_view label : s_kLabels )
    {
        const Charset charset = Charset::Of( label );
        for ( const std::string& bytes : { highest, controls, escapes } )
        {
            SCOPED_TRACE( std::string( label ) + ' ' + std::to_string( static_cast<uchar>( bytes.front() ) ) );
            QByteArray one;
            QByteArray all;
            Places places;
            const qint64 inTwo = DecodeTo( charset, std::string_view( bytes ).substr( 0, 2 ), one ).m_malformed;
            const qint64 inAll = DecodeTo( charset, bytes, all, &places ).m_malformed;
            EXPECT_EQ( inAll, inTwo * static_cast<qint64>( length / 2 ) );
            EXPECT_TRUE( all == one.repeated( length / 2 ) );
            ASSERT_EQ( places.size(), static_cast<size_t>( all.size() ) );
            EXPECT_TRUE( std::is_sorted( places.begin(), places.end() ) );
            EXPECT_GE( places.back(), length - 2 );
        }
    }
}

TEST( CodecTest, ThreadsDecodeAtOnce )
{
    struct Sample
    {
        std::string_view m_charset;
        std::string_view m_bytes;
        std::string_view m_text;
    };
    static constexpr std::array s_kSamples = {
        Sample{ "Shift_JIS"sv, "\x95\\\x8E\xA6"sv, "表示"sv },
        Sample{ "EUC-JP"sv, "\xC9\xBD\xBC\xA8"sv, "表示"sv },
        Sample{ "ISO-2022-JP"sv, "\x1B$BEDCf"sv, "田中"sv },
        Sample{ "EUC-KR"sv, "\xB1\xE8\xC3\xB6"sv, "김철"sv },
        Sample{ "GB18030"sv, "\xC0\xEE\xC3\xF7"sv, "李明"sv },
        Sample{ "Big5"sv, "\xB3\\\xA5\\"sv, "許功"sv },
        Sample{ "windows-1251"sv, "\xC8\xE2\xE0\xED"sv, "Иван"sv },
    };
    const auto countWrong = []( int& a_wrong )
    {
        for ( int round = 0; round < 1000; ++round )
        {
            for ( const Sample& sample : s_kSamples )
            {
                QByteArray text;
                DecodeTo( Charset::Of( sample.m_charset ), sample.m_bytes, text );
                a_wrong += ViewOf( text ) == sample.m_text ? 0 : 1;
            }
        }
    };
    std::array<int, 4> wrong{};
    std::vector<std::thread> threads;
    threads.reserve( wrong.size() );
    for ( int& count : wrong )
        threads.emplace_back( countWrong, std::ref( count ) );
    for ( std::thread& thread : threads )
        thread.join();
    EXPECT_EQ( wrong, ( std::array<int, 4>{} ) );
}

TEST( CodecTest, MissingModuleIsReported )
{
    SystemCodec codec( "NO-SUCH-CHARSET" );
    EXPECT_FALSE( codec.IsAvailable() );
    QByteArray bytes;
    DecodedText text( bytes, nullptr );
    EXPECT_EQ( codec.DecodeFirst( "\x95\\"sv, 0, text ), 0U );
    EXPECT_TRUE( text.Result().m_isUnavailable );
    EXPECT_TRUE( bytes.isEmpty() );
}

TEST( CodecTest, Iso2022JpWithoutAModuleKeepsItsAscii )
{
    SystemCodec codec( "NO-SUCH-CHARSET" );
    QByteArray bytes;
    DecodedText text( bytes, nullptr );
    DecodeIso2022Jp( "N:"sv, codec, text );
    EXPECT_FALSE( text.Result().m_isUnavailable );
    DecodeIso2022Jp( "\x1B$BED\x1B(B;Ann"sv, codec, text );
    EXPECT_TRUE( text.Result().m_isUnavailable );
    EXPECT_EQ( text.Result().m_malformed, 2 );
    EXPECT_EQ( ViewOf( bytes ), "N:��;Ann"sv );
}

} // namespace

} // namespace PimManager::Contacts
