#include "Text/Charset.h"

#include "Text/Bytes.h"

#include <algorithm>
#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr size_t s_kLongestLabel = 40;

// The name is the first of the labels. Only letters and digits of a label are compared, so one of ISO8859-2, ISO_8859-2
// and iso-8859-2 is enough.
struct Row
{
    Charset::Id m_id;
    std::string_view m_labels;
};

// In the order of Charset::Id.
constexpr std::array s_kRows = {
    Row{ Charset::Id::Utf8, "UTF-8 CP65001 UNICODE-1-1-UTF-8 "
                            "US-ASCII ASCII csASCII US ANSI_X3.4-1968 ANSI_X3.4-1986 ISO646-US ISO_646.irv:1991 "
                            "ISO-IR-6 IBM367 CP367" },
    Row{ Charset::Id::Windows1250, "windows-1250 x-cp1250 CP1250" },
    Row{ Charset::Id::Windows1251, "windows-1251 x-cp1251 CP1251" },
    Row{ Charset::Id::Windows1252, "windows-1252 x-cp1252 CP1252 "
                                   "ISO-8859-1 ISO_8859-1:1987 ISO-IR-100 8859_1 Latin1 ISO-Latin-1 L1 csISOLatin1 "
                                   "IBM819 CP819" },
    Row{ Charset::Id::Windows1253, "windows-1253 x-cp1253 CP1253" },
    Row{ Charset::Id::Windows1254, "windows-1254 x-cp1254 CP1254 "
                                   "ISO-8859-9 ISO_8859-9:1989 ISO-IR-148 8859_9 Latin5 L5 csISOLatin5" },
    Row{ Charset::Id::Windows1255, "windows-1255 x-cp1255 CP1255" },
    Row{ Charset::Id::Windows1256, "windows-1256 x-cp1256 CP1256" },
    Row{ Charset::Id::Windows1257, "windows-1257 x-cp1257 CP1257" },
    Row{ Charset::Id::Windows1258, "windows-1258 x-cp1258 CP1258" },
    Row{ Charset::Id::Windows874, "windows-874 CP874 TIS-620 csTIS620 DOS-874 ISO-8859-11 8859_11" },
    Row{ Charset::Id::Iso8859Part2, "ISO-8859-2 ISO_8859-2:1987 ISO-IR-101 8859_2 Latin2 L2 csISOLatin2" },
    Row{ Charset::Id::Iso8859Part3, "ISO-8859-3 ISO_8859-3:1988 ISO-IR-109 8859_3 Latin3 L3 csISOLatin3" },
    Row{ Charset::Id::Iso8859Part4, "ISO-8859-4 ISO_8859-4:1988 ISO-IR-110 8859_4 Latin4 L4 csISOLatin4" },
    Row{ Charset::Id::Iso8859Part5, "ISO-8859-5 ISO_8859-5:1988 ISO-IR-144 8859_5 Cyrillic csISOLatinCyrillic" },
    Row{ Charset::Id::Iso8859Part6, "ISO-8859-6 ISO_8859-6:1987 ISO-8859-6-I ISO-8859-6-E ISO-IR-127 8859_6 Arabic "
                                    "csISOLatinArabic csISO88596I csISO88596E ASMO-708 ECMA-114" },
    Row{ Charset::Id::Iso8859Part7, "ISO-8859-7 ISO_8859-7:1987 ISO-IR-126 8859_7 Greek Greek8 csISOLatinGreek "
                                    "ELOT_928 ECMA-118 sun_eu_greek" },
    Row{ Charset::Id::Iso8859Part8, "ISO-8859-8 ISO_8859-8:1988 ISO-8859-8-I ISO-8859-8-E ISO-IR-138 8859_8 Hebrew "
                                    "Logical Visual csISOLatinHebrew csISO88598I csISO88598E" },
    Row{ Charset::Id::Iso8859Part10, "ISO-8859-10 ISO_8859-10:1992 ISO-IR-157 8859_10 Latin6 L6 csISOLatin6" },
    Row{ Charset::Id::Iso8859Part13, "ISO-8859-13 8859_13 Latin7 L7 csISO885913" },
    Row{ Charset::Id::Iso8859Part14, "ISO-8859-14 ISO_8859-14:1998 ISO-IR-199 8859_14 Latin8 L8 csISO885914" },
    Row{ Charset::Id::Iso8859Part15, "ISO-8859-15 8859_15 Latin9 Latin-0 L9 csISOLatin9 csISO885915" },
    Row{ Charset::Id::Iso8859Part16, "ISO-8859-16 ISO_8859-16:2001 ISO-IR-226 8859_16 Latin10 L10 csISO885916" },
    Row{ Charset::Id::Koi8R, "KOI8-R KOI KOI8 csKOI8R CP878" },
    Row{ Charset::Id::Koi8U, "KOI8-U KOI8-RU csKOI8U CP1168" },
    Row{ Charset::Id::Ibm437, "IBM437 CP437 437 csPC8CodePage437" },
    Row{ Charset::Id::Ibm850, "IBM850 CP850 850 csPC850Multilingual" },
    Row{ Charset::Id::Ibm852, "IBM852 CP852 852 csPCp852" },
    Row{ Charset::Id::Ibm866, "IBM866 CP866 866 csIBM866 DOS-866" },
    Row{ Charset::Id::Macintosh, "macintosh x-mac-roman Mac-Roman Mac csMacintosh CP10000" },
    Row{ Charset::Id::MacCyrillic, "x-mac-cyrillic Mac-Cyrillic x-mac-ukrainian Mac-Ukrainian CP10007 CP10017" },
    Row{ Charset::Id::ShiftJis, "Shift_JIS x-Shift_JIS csShiftJIS SJIS x-SJIS MS_Kanji CP932 x-MS-CP932 MS932 IBM943 "
                                "CP943 windows-932 windows-31J csWindows31J" },
    Row{ Charset::Id::EucJp, "EUC-JP x-EUC-JP x-EUC EUC-JP-MS csEUCPkdFmtJapanese CP51932 UJIS" },
    Row{ Charset::Id::EucKr, "EUC-KR x-EUC-KR csEUCKR KS_C_5601-1987 KS_C_5601-1989 KS_C_5601 KSC_5601 "
                             "csKSC56011987 ISO-IR-149 Korean CP949 x-cp949 MS949 CP51949 windows-949 "
                             "x-windows-949 UHC" },
    Row{ Charset::Id::Gb18030, "GB18030 GB2312 GB_2312-80 csGB2312 csISO58GB231280 ISO-IR-58 Chinese EUC-CN x-EUC-CN "
                               "CP936 MS936 windows-936 GBK x-GBK csGBK csGB18030 CP54936" },
    Row{ Charset::Id::Big5, "Big5 x-x-Big5 x-Big5 csBig5 CN-Big5 Big5-HKSCS csBig5HKSCS Big5-ETEN CP950 x-cp950 MS950 "
                            "windows-950" },
    Row{ Charset::Id::Iso2022Jp, "ISO-2022-JP ISO-2022-JP-1 ISO-2022-JP-2 "
                                 "ISO-2022-JP-MS csISO2022JP csISO2022JP2 CP50220 CP50221 CP50222 JIS7" },
};

bool IsLetterOrDigit( char a_byte )
{
    return IsNameByte( a_byte ) && a_byte != '-';
}

bool IsPlausible( std::string_view a_label )
{
    return a_label.size() <= s_kLongestLabel &&
           std::all_of( a_label.begin(), a_label.end(),
                        []( char a_byte )
                        { return IsNameByte( a_byte ) || "_.:+()"sv.find( a_byte ) != std::string_view::npos; } );
}

// The part of a plausible label that is compared.
class Key
{
public:
    explicit Key( std::string_view a_label )
    {
        for ( const char byte : a_label )
        {
            if ( IsLetterOrDigit( byte ) )
                m_bytes.at( m_size++ ) = Upper( byte );
        }
    }

    std::string_view View() const { return std::string_view( m_bytes.data(), m_size ); }

private:
    std::array<char, s_kLongestLabel> m_bytes{};
    size_t m_size = 0;
};

/// All labels, sorted by their keys.
class Labels
{
public:
    Labels();
    Charset::Id Find( std::string_view a_key ) const;

private:
    struct Label
    {
        std::string m_key;
        Charset::Id m_id;
    };

    void Add( const Row& a_row );

    std::vector<Label> m_labels;
};

Labels::Labels()
{
    for ( const Row& row : s_kRows )
        Add( row );
    std::sort( m_labels.begin(), m_labels.end(),
               []( const Label& a_left, const Label& a_right ) { return a_left.m_key < a_right.m_key; } );
}

void Labels::Add( const Row& a_row )
{
    std::string_view rest = a_row.m_labels;
    while ( !rest.empty() )
    {
        const std::string_view label = rest.substr( 0, rest.find( ' ' ) );
        m_labels.push_back( Label{ std::string( Key( label ).View() ), a_row.m_id } );
        rest = TrimmedLeft( rest.substr( label.size() ) );
    }
}

Charset::Id Labels::Find( std::string_view a_key ) const
{
    const auto found =
        std::lower_bound( m_labels.begin(), m_labels.end(), a_key,
                          []( const Label& a_label, std::string_view a_wanted ) { return a_label.m_key < a_wanted; } );
    return found != m_labels.end() && found->m_key == a_key ? found->m_id : Charset::Id::Unknown;
}

std::string_view NameIn( const Row& a_row )
{
    return a_row.m_labels.substr( 0, a_row.m_labels.find( ' ' ) );
}

} // namespace

Charset Charset::Of( std::string_view a_label )
{
    const std::string_view label = Trimmed( a_label );
    if ( !IsPlausible( label ) )
        return Charset();
    static const Labels s_labels;
    return Charset( s_labels.Find( Key( label ).View() ) );
}

std::vector<std::string_view> Charset::Names()
{
    std::vector<std::string_view> names( s_kRows.size() );
    std::transform( s_kRows.begin(), s_kRows.end(), names.begin(), NameIn );
    return names;
}

std::string_view Charset::Name() const
{
    static_assert( s_kRows.size() == static_cast<size_t>( Id::Iso2022Jp ) );
    return IsKnown() ? NameIn( s_kRows.at( static_cast<size_t>( m_id ) - 1 ) ) : std::string_view();
}

} // namespace PimManager::Contacts
