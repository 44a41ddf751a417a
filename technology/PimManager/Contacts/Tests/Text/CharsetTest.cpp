#include "Text/Charset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// The labels are separated by blanks.
struct Row
{
    std::string_view m_name;
    const char* m_labels;
};

constexpr std::array s_kRows = {
    Row{ "UTF-8"sv, "UTF-8 utf8 UTF_8 CP65001 unicode-1-1-utf-8 US-ASCII ascii csASCII us ANSI_X3.4-1968 "
                    "ANSI_X3.4-1986 ISO646-US ISO_646.irv:1991 iso-ir-6 IBM367 cp367" },
    Row{ "windows-1250"sv, "windows-1250 Windows1250 cp1250 x-cp1250" },
    Row{ "windows-1251"sv, "windows-1251 WINDOWS-1251 cp1251 x-cp1251" },
    Row{ "windows-1252"sv, "windows-1252 cp1252 x-cp1252 ISO-8859-1 iso8859-1 ISO_8859-1 ISO_8859-1:1987 8859_1 88591 "
                           "ISO-IR-100 latin1 Latin-1 ISO-Latin-1 l1 csISOLatin1 IBM819 CP819" },
    Row{ "windows-1253"sv, "windows-1253 cp1253 x-cp1253" },
    Row{ "windows-1254"sv, "windows-1254 cp1254 x-cp1254 ISO-8859-9 ISO_8859-9:1989 8859_9 ISO-IR-148 latin5 l5 "
                           "csISOLatin5" },
    Row{ "windows-1255"sv, "windows-1255 cp1255 x-cp1255" },
    Row{ "windows-1256"sv, "windows-1256 cp1256 x-cp1256" },
    Row{ "windows-1257"sv, "windows-1257 cp1257 x-cp1257" },
    Row{ "windows-1258"sv, "windows-1258 cp1258 x-cp1258" },
    Row{ "windows-874"sv, "windows-874 cp874 dos-874 TIS-620 tis620 csTIS620 ISO-8859-11 8859_11" },
    Row{ "ISO-8859-2"sv, "ISO-8859-2 iso8859-2 ISO_8859-2:1987 8859_2 ISO-IR-101 latin2 l2 csISOLatin2" },
    Row{ "ISO-8859-3"sv, "ISO-8859-3 ISO_8859-3:1988 8859_3 ISO-IR-109 latin3 l3 csISOLatin3" },
    Row{ "ISO-8859-4"sv, "ISO-8859-4 ISO_8859-4:1988 8859_4 ISO-IR-110 latin4 l4 csISOLatin4" },
    Row{ "ISO-8859-5"sv, "ISO-8859-5 ISO_8859-5:1988 8859_5 ISO-IR-144 cyrillic csISOLatinCyrillic" },
    Row{ "ISO-8859-6"sv, "ISO-8859-6 ISO_8859-6:1987 ISO-8859-6-I ISO-8859-6-E 8859_6 ISO-IR-127 arabic ASMO-708 "
                         "ECMA-114 csISOLatinArabic csISO88596I csISO88596E" },
    Row{ "ISO-8859-7"sv, "ISO-8859-7 ISO_8859-7:1987 8859_7 ISO-IR-126 greek greek8 ELOT_928 ECMA-118 sun_eu_greek "
                         "csISOLatinGreek" },
    Row{ "ISO-8859-8"sv, "ISO-8859-8 ISO_8859-8:1988 ISO-8859-8-I ISO-8859-8-E 8859_8 ISO-IR-138 hebrew logical "
                         "visual csISOLatinHebrew csISO88598I csISO88598E" },
    Row{ "ISO-8859-10"sv, "ISO-8859-10 ISO_8859-10:1992 8859_10 ISO-IR-157 latin6 l6 csISOLatin6" },
    Row{ "ISO-8859-13"sv, "ISO-8859-13 8859_13 latin7 l7 csISO885913" },
    Row{ "ISO-8859-14"sv, "ISO-8859-14 ISO_8859-14:1998 8859_14 ISO-IR-199 latin8 l8 csISO885914" },
    Row{ "ISO-8859-15"sv, "ISO-8859-15 8859_15 latin9 latin-0 l9 csISOLatin9 csISO885915" },
    Row{ "ISO-8859-16"sv, "ISO-8859-16 ISO_8859-16:2001 8859_16 ISO-IR-226 latin10 l10 csISO885916" },
    Row{ "KOI8-R"sv, "KOI8-R koi8-r koi8 koi csKOI8R CP878" },
    Row{ "KOI8-U"sv, "KOI8-U koi8-ru csKOI8U CP1168" },
    Row{ "IBM437"sv, "IBM437 cp437 437 csPC8CodePage437" },
    Row{ "IBM850"sv, "IBM850 cp850 850 csPC850Multilingual" },
    Row{ "IBM852"sv, "IBM852 cp852 852 csPCp852" },
    Row{ "IBM866"sv, "IBM866 cp866 866 dos-866 csIBM866" },
    Row{ "macintosh"sv, "macintosh mac x-mac-roman Mac-Roman csMacintosh CP10000" },
    Row{ "x-mac-cyrillic"sv, "x-mac-cyrillic mac-cyrillic x-mac-ukrainian mac-ukrainian CP10007 CP10017" },
    Row{ "Shift_JIS"sv, "Shift_JIS SHIFT-JIS ShiftJIS x-shift-jis csShiftJIS SJIS x-sjis MS_Kanji CP932 x-ms-cp932 "
                        "MS932 IBM943 CP943 windows-932 Windows-31J csWindows31J" },
    Row{ "EUC-JP"sv, "EUC-JP EUCJP x-euc-jp x-euc EUC-JP-MS UJIS CP51932 csEUCPkdFmtJapanese" },
    Row{ "EUC-KR"sv, "EUC-KR x-euc-kr csEUCKR KS_C_5601 KS_C_5601-1987 KS_C_5601-1989 KSC_5601 KSC5601 csKSC56011987 "
                     "ISO-IR-149 korean CP949 x-cp949 MS949 CP51949 windows-949 x-windows-949 UHC" },
    Row{ "GB18030"sv, "GB18030 csGB18030 CP54936 GB2312 gb2312 GB_2312-80 csGB2312 csISO58GB231280 ISO-IR-58 chinese "
                      "EUC-CN x-EUC-CN GBK x-gbk csGBK CP936 MS936 windows-936" },
    Row{ "Big5"sv, "Big5 BIG5 big-5 x-big5 x-x-big5 csBig5 CN-Big5 Big5-HKSCS csBig5HKSCS Big5-ETEN CP950 x-cp950 "
                   "MS950 windows-950" },
    Row{ "ISO-2022-JP"sv, "ISO-2022-JP iso-2022-jp ISO-2022-JP-1 ISO-2022-JP-2 ISO-2022-JP-MS csISO2022JP "
                          "csISO2022JP2 CP50220 CP50221 CP50222 JIS7" },
};

std::vector<std::string> LabelsOf( const Row& a_row )
{
    std::istringstream labels( a_row.m_labels );
    std::vector<std::string> list;
    for ( std::string label; labels >> label; )
        list.push_back( label );
    return list;
}

template <typename Change>
std::string Changed( std::string a_text, Change a_change )
{
    std::transform( a_text.begin(), a_text.end(), a_text.begin(),
                    [a_change]( char a_byte ) { return static_cast<char>( a_change( a_byte ) ); } );
    return a_text;
}

TEST( CharsetTest, EveryLabelFindsItsCharset )
{
    for ( const Row& row : s_kRows )
    {
        for ( const std::string& label : LabelsOf( row ) )
            EXPECT_EQ( Charset::Of( label ).Name(), row.m_name ) << label;
    }
}

TEST( CharsetTest, LetterCaseBlanksAndPunctuationDoNotCount )
{
    for ( const Row& row : s_kRows )
    {
        for ( const std::string& label : LabelsOf( row ) )
        {
            const Charset charset = Charset::Of( label );
            const std::string upper = Changed( label, []( int a_byte ) { return std::toupper( a_byte ); } );
            const std::string lower = Changed( label, []( int a_byte ) { return std::tolower( a_byte ); } );
            const std::string dots = Changed( label, []( int a_byte ) { return a_byte == '-' ? '.' : a_byte; } );
            for ( const std::string& form : { upper, lower, dots, " \t" + label + "\t ", "(" + label + ")+:_" } )
                EXPECT_EQ( Charset::Of( form ), charset ) << form;
        }
    }
}

TEST( CharsetTest, NamesAreThoseOfAllCharsets )
{
    const std::vector<std::string_view> names = Charset::Names();
    ASSERT_EQ( names.size(), s_kRows.size() );
    for ( size_t index = 0; index < names.size(); ++index )
    {
        EXPECT_EQ( names[index], s_kRows.at( index ).m_name );
        EXPECT_EQ( Charset::Of( names[index] ).Value(), static_cast<Charset::Id>( index + 1 ) ) << names[index];
    }
}

TEST( CharsetTest, LabelIsUnknown )
{
    static constexpr std::array s_kLabels = {
        ""sv,
        "  \t"sv,
        "-"sv,
        "()"sv,
        "no-such-set"sv,
        "x-user-defined"sv,
        "KOI8-RR"sv,
        "KOI9-R"sv,
        "ISO-8859-12"sv,
        "ISO-8859-17"sv,
        "windows-1259"sv,
        "zz"sv,
        "0"sv,
        // No line of a card can be in them.
        "UTF-16"sv,
        "utf-16le"sv,
        "UTF-16BE"sv,
        "UTF-32"sv,
        "UTF-32LE"sv,
        "UTF-7"sv,
        "UCS-2"sv,
        "ISO-10646-UCS-2"sv,
        "WCHAR_T"sv,
        "INTERNAL"sv,
        "EBCDIC-US"sv,
        "IBM037"sv,
        // Rejected for their escape sequences.
        "ISO-2022-KR"sv,
        "ISO-2022-CN"sv,
        "ISO-2022-CN-EXT"sv,
        "HZ-GB-2312"sv,
        // Other characters.
        "UTF-8//TRANSLIT"sv,
        "KOI8-R//IGNORE"sv,
        "KOI8-R//"sv,
        "KOI8\0-R"sv,
        "KOI8-R\0"sv,
        "KOI8,R"sv,
        "../KOI8-R"sv,
        "KOI8 R"sv,
        "KOI8-R\n"sv,
        "KOI8-\xD0\xAF"sv,
        R"("KOI8-R")"sv,
    };
    for ( const std::string_view label : s_kLabels )
    {
        EXPECT_FALSE( Charset::Of( label ).IsKnown() ) << label;
        EXPECT_EQ( Charset::Of( label ).Name(), ""sv ) << label;
    }
}

TEST( CharsetTest, LongLabelIsUnknown )
{
    const std::string name = "KOI8-R";
    const std::string dashes( 40 - name.size(), '-' );
    EXPECT_TRUE( Charset::Of( name + dashes ).IsKnown() );
    EXPECT_TRUE( Charset::Of( "  " + name + dashes + "  " ).IsKnown() );
    EXPECT_FALSE( Charset::Of( name + dashes + '-' ).IsKnown() );
    EXPECT_FALSE( Charset::Of( std::string( 40, 'x' ) ).IsKnown() );
    EXPECT_FALSE( Charset::Of( std::string( 1000000, 'x' ) ).IsKnown() );
}

TEST( CharsetTest, PropertiesAreThoseOfTheCharset )
{
    struct Properties
    {
        std::string_view m_label;
        bool m_isUtf8;
        bool m_isSingleByte;
        bool m_hasAscii;
    };
    static constexpr std::array s_kProperties = {
        Properties{ "unknown"sv, false, false, true },       Properties{ "UTF-8"sv, true, false, true },
        Properties{ "US-ASCII"sv, true, false, true },       Properties{ "windows-1250"sv, false, true, true },
        Properties{ "ISO-8859-1"sv, false, true, true },     Properties{ "KOI8-R"sv, false, true, true },
        Properties{ "x-mac-cyrillic"sv, false, true, true }, Properties{ "Shift_JIS"sv, false, false, true },
        Properties{ "EUC-JP"sv, false, false, true },        Properties{ "EUC-KR"sv, false, false, true },
        Properties{ "GB2312"sv, false, false, true },        Properties{ "Big5"sv, false, false, true },
        Properties{ "ISO-2022-JP"sv, false, false, false },
    };
    for ( const Properties& expected : s_kProperties )
    {
        const Charset charset = Charset::Of( expected.m_label );
        EXPECT_EQ( charset.IsUtf8(), expected.m_isUtf8 ) << expected.m_label;
        EXPECT_EQ( charset.IsSingleByte(), expected.m_isSingleByte ) << expected.m_label;
        EXPECT_EQ( charset.ContainsAscii(), expected.m_hasAscii ) << expected.m_label;
    }
}

TEST( CharsetTest, CharsetsAreComparedByWhatIsMeant )
{
    EXPECT_EQ( Charset(), Charset::Of( "no-such-set"sv ) );
    EXPECT_EQ( Charset::Of( "latin1"sv ), Charset( Charset::Id::Windows1252 ) );
    EXPECT_NE( Charset::Of( "latin1"sv ), Charset::Of( "latin2"sv ) );
    EXPECT_EQ( sizeof( Charset ), 1U );
}

TEST( CharsetTest, CharsetIsFoundInSeveralThreads )
{
    std::array<Charset, 8> charsets{};
    std::vector<std::thread> threads;
    threads.reserve( charsets.size() );
    for ( Charset& charset : charsets )
        threads.emplace_back( [&charset] { charset = Charset::Of( "EUC-KR"sv ); } );
    for ( std::thread& thread : threads )
        thread.join();
    for ( const Charset charset : charsets )
        EXPECT_EQ( charset, Charset( Charset::Id::EucKr ) );
}

} // namespace

} // namespace PimManager::Contacts
