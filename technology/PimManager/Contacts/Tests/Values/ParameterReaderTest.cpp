#include "OneLine.h"

#include "Text/Charset.h"
#include "Values/ParameterReader.h"

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

constexpr PimContactVersion s_k21 = PimContactVersion::V21;
constexpr PimContactVersion s_k30 = PimContactVersion::V30;
constexpr PimContactVersion s_k40 = PimContactVersion::V40;

struct ParameterRow
{
    const char* m_name;
    PimContactVersion m_version;
    std::string_view m_parameters;
    // Each value after its name.
    std::string_view m_values;
};

std::ostream& operator<<( std::ostream& a_stream, const ParameterRow& a_row )
{
    return a_stream << a_row.m_name;
}

class ParameterReaderTest : public ::testing::TestWithParam<ParameterRow>
{
};

std::string RowName( const ::testing::TestParamInfo<ParameterRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Types, ParameterReaderTest,
    ::testing::Values(
        ParameterRow{ "None", s_k30, "", "" }, ParameterRow{ "Named", s_k30, ";TYPE=HOME", "TYPE=HOME " },
        ParameterRow{ "NameAsWritten", s_k30, ";type=Home", "type=Home " },
        ParameterRow{ "List", s_k30, ";TYPE=HOME,WORK", "TYPE=HOME TYPE=WORK " },
        ParameterRow{ "Repeated", s_k30, ";TYPE=HOME;TYPE=WORK", "TYPE=HOME TYPE=WORK " },
        ParameterRow{ "BareWords", s_k21, ";HOME;VOICE", "TYPE=HOME TYPE=VOICE " },
        ParameterRow{ "BareList", s_k21, ";HOME,VOICE", "TYPE=HOME TYPE=VOICE " },
        ParameterRow{ "NameInTheList", s_k30, ";TYPE=HOME,TYPE=VOICE", "TYPE=HOME TYPE=VOICE " },
        ParameterRow{ "OtherCaseInTheList", s_k30, ";TYPE=HOME,type=VOICE,Type=", "TYPE=HOME TYPE=VOICE " },
        ParameterRow{ "NameBehindBareWord", s_k30, ";HOME,TYPE=VOICE", "TYPE=HOME TYPE=VOICE " },
        ParameterRow{ "EmptyValues", s_k21, ";HOME=;CELL=", "TYPE=HOME TYPE=CELL " },
        ParameterRow{ "EmptyPreference", s_k21, ";PREF=", "TYPE=PREF " },
        ParameterRow{ "Preference", s_k40, ";PREF=1", "PREF=1 " }, ParameterRow{ "EmptyType", s_k30, ";TYPE=", "" },
        ParameterRow{ "EmptyElements", s_k30, ";TYPE=,HOME,", "TYPE=HOME " },
        ParameterRow{ "EmptyParameters", s_k30, ";;HOME; ;", "TYPE=HOME " },
        ParameterRow{ "Quoted", s_k40, ";TYPE=\"home\"", "TYPE=home " },
        ParameterRow{ "QuotedList", s_k40, ";TYPE=\"home,voice\",work", "TYPE=home TYPE=voice TYPE=work " },
        ParameterRow{ "ListOfQuoted", s_k40, ";TYPE=\"home\",\"voice\"", "TYPE=home TYPE=voice " },
        ParameterRow{ "QuotedBareWord", s_k40, ";\"home\"", "TYPE=home " },
        ParameterRow{ "Blanks", s_k30, "; TYPE = HOME , WORK ; CELL", "TYPE=HOME TYPE=WORK TYPE=CELL " },
        ParameterRow{ "UnknownWord", s_k21, ";X-MINE;telex", "TYPE=X-MINE TYPE=telex " } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    BareWords, ParameterReaderTest,
    ::testing::Values( ParameterRow{ "QuotedPrintable", s_k21, ";QUOTED-PRINTABLE", "ENCODING=QUOTED-PRINTABLE " },
                       ParameterRow{ "XQuotedPrintable", s_k21, ";X-quoted-printable", "ENCODING=X-quoted-printable " },
                       ParameterRow{ "Base64", s_k21, ";HOME;base64", "TYPE=HOME ENCODING=base64 " },
                       ParameterRow{ "B", s_k30, ";b", "ENCODING=b " },
                       ParameterRow{ "Bits", s_k21, ";7BIT;8bit", "ENCODING=7BIT ENCODING=8bit " },
                       ParameterRow{ "Charset", s_k21, ";SHIFT_JIS;utf-8", "CHARSET=SHIFT_JIS CHARSET=utf-8 " },
                       ParameterRow{ "UnknownCharset", s_k21, ";SHIFTY_JIS", "TYPE=SHIFTY_JIS " },
                       ParameterRow{ "ValueKinds", s_k21, ";INLINE;url;CID;Content-ID",
                                     "VALUE=INLINE VALUE=url VALUE=CID VALUE=Content-ID " } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Values, ParameterReaderTest,
    ::testing::Values( ParameterRow{ "EmptyKnownParameter", s_k40, ";LABEL=;LANGUAGE=", "LABEL= LANGUAGE= " },
                       ParameterRow{ "CommaInQuotes", s_k40, ";SORT-AS=\"a,b\",c", "SORT-AS=a,b SORT-AS=c " },
                       ParameterRow{ "SemicolonAndColonInQuotes", s_k40, ";GEO=\"geo:1;2\";PID=1.1",
                                     "GEO=geo:1;2 PID=1.1 " },
                       ParameterRow{ "QuoteInsideQuotes", s_k40, ";LABEL=\"a\"b\"", "LABEL=a\"b " },
                       ParameterRow{ "BackslashOfAnotherParameter", s_k40, ";X-A=a\\nb", "X-A=a\\nb " },
                       ParameterRow{ "EqualsInValue", s_k40, ";X-A=b=c", "X-A=b=c " },
                       ParameterRow{ "OpenQuote", s_k30, ";CHARSET=\"UTF-8", "CHARSET=UTF-8 " },
                       ParameterRow{ "OpenQuoteBeforeName", s_k30, ";\"TYPE=HOME", "TYPE=HOME " },
                       ParameterRow{ "OpenQuotesInAList", s_k30, ";TYPE=\"a,\"b,\" c", "TYPE=a TYPE=b TYPE=c " },
                       ParameterRow{ "OnlyQuotes", s_k30, ";\"\"\";TYPE=\"", "TYPE=\" " },
                       ParameterRow{ "Carets30", s_k30, ";X-A=a^nb^'c^^d^e^", "X-A=a\nb\"c^d^e^ " },
                       ParameterRow{ "Carets40", s_k40, ";X-A=\"^n^'^^^\"", "X-A=\n\"^^ " },
                       ParameterRow{ "CaretsWithoutVersion", PimContactVersion::Unknown, ";X-A=^n", "X-A=\n " },
                       ParameterRow{ "Carets21", s_k21, ";X-A=a^nb^'c^^", "X-A=a^nb^'c^^ " },
                       ParameterRow{ "EscapedCaretBeforeLetter", s_k40, ";X-A=^^n", "X-A=^n " },
                       ParameterRow{ "Label", s_k40, ";LABEL=\"1 Main St\\nTown\\, X\\\\^nEnd\"",
                                     "LABEL=1 Main St\nTown, X\\\nEnd " } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Labels, ParameterReaderTest,
    ::testing::Values(
        ParameterRow{ "Plain", s_k21, ";X-CUSTOM=Boat", "X-CUSTOM=Boat " },
        ParameterRow{ "Encoded", s_k21, ";CELL;X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=42=6F=61=74);HOME",
                      "TYPE=CELL X-CUSTOM=Boat TYPE=HOME " },
        ParameterRow{ "NameAsWritten", s_k30, ";x-custom(encoding=quoted-printable,charset=utf-8,=D0=94)",
                      "x-custom=\xD0\x94 " },
        ParameterRow{ "CommasAndEquals", s_k21, ";X-CUSTOM(ENCODING=QUOTED-PRINTABLE,a, b=3D=,c=)",
                      "X-CUSTOM=a, b==,c= " },
        ParameterRow{ "NotEncoded", s_k30, ";X-CUSTOM( Boat^n, old=42 )", "X-CUSTOM=Boat^n, old=42 " },
        ParameterRow{ "OtherCharset", s_k21, ";X-CUSTOM(CHARSET=ISO-8859-1,ENCODING=QUOTED-PRINTABLE,caf=E9)",
                      "X-CUSTOM=caf\xC3\xA9 " },
        ParameterRow{ "BytesOfUtf8", s_k21, ";X-CUSTOM(CHARSET=ISO-8859-1,ENCODING=QUOTED-PRINTABLE,caf\xC3\xA9)",
                      "X-CUSTOM=caf\xC3\xA9 " },
        ParameterRow{ "UnknownCharset", s_k21, ";X-CUSTOM(CHARSET=x,ENCODING=QUOTED-PRINTABLE,=C3=A9)",
                      "X-CUSTOM=\xC3\xA9 " },
        ParameterRow{ "Malformed", s_k21, ";X-CUSTOM(ENCODING=QUOTED-PRINTABLE,=C3)", "X-CUSTOM=\xEF\xBF\xBD " },
        ParameterRow{ "Empty", s_k21, ";X-CUSTOM()", "X-CUSTOM= " },
        ParameterRow{ "OnlyFields", s_k21, ";X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,)", "X-CUSTOM= " },
        ParameterRow{ "NotClosed", s_k21, ";X-CUSTOM(Boat", "TYPE=X-CUSTOM(Boat " },
        ParameterRow{ "OtherName", s_k21, ";X-CUSTOMS(Boat)", "TYPE=X-CUSTOMS(Boat) " } ),
    RowName );

TEST_P( ParameterReaderTest, ValuesAreReadByTheirMeaning )
{
    const ParameterRow& row = GetParam();
    std::string values;
    ParameterReader reader( row.m_parameters, row.m_version );
    while ( reader.Next() )
        values += std::string( reader.Name() ) + '=' + std::string( reader.Value() ) + ' ';
    EXPECT_EQ( values, row.m_values );
    EXPECT_FALSE( reader.Next() );
}

TEST( ParametersOfLineTest, ValuesAreFoundByName )
{
    const PimContactLine line = OneLine( "TEL;HOME;TYPE=cell,voice;PREF=1;type=WORK;X-A=\xC3\xA9:1" );
    EXPECT_EQ( Joined( line.ParameterNames() ), "TYPE|PREF|X-A" );
    EXPECT_EQ( Joined( line.Types() ), "HOME|cell|voice|WORK" );
    EXPECT_EQ( Joined( line.Parameter( QLatin1String( "type" ) ) ), "HOME|cell|voice|WORK" );
    EXPECT_EQ( Joined( line.Parameter( QLatin1String( "pref" ) ) ), "1" );
    EXPECT_EQ( Joined( line.Parameter( QLatin1String( "X-A" ) ) ), "\xC3\xA9" );
    EXPECT_TRUE( line.Parameter( QLatin1String( "PRE" ) ).isEmpty() );
    EXPECT_TRUE( line.Parameter( QLatin1String() ).isEmpty() );
}

TEST( ParametersOfLineTest, ValuesAreListedWithTheirNames )
{
    QStringList parameters;
    const PimContactLine line = OneLine( "TEL;HOME;pref=1;TYPE=cell,voice;X-A=\"a^nb\":1" );
    for ( const QPair<QString, QString>& parameter : line.NamedParameters() )
        parameters << parameter.first + QLatin1Char( '=' ) + parameter.second;
    EXPECT_EQ( Joined( parameters ), "TYPE=HOME|PREF=1|TYPE=cell|TYPE=voice|X-A=a\nb" );
}

TEST( ParametersOfLineTest, FoldInsideParametersIsRemoved )
{
    const PimContactLine line = OneLine( "TEL;TYPE=ho\r\n me;X-A=\"a\r\n  b\":1" );
    EXPECT_EQ( Joined( line.Types() ), "home" );
    EXPECT_EQ( Joined( line.Parameter( QLatin1String( "X-A" ) ) ), "a b" );
}

TEST( ParametersOfLineTest, ParametersAndBareWordsAreDistinguished )
{
    std::string values;
    ParameterReader reader( ";TYPE=,a,b;;c,d;CELL=", s_k30 );
    while ( reader.Next() )
    {
        values += reader.IsFirst() ? ";" : ",";
        values += reader.IsBare() ? "" : "TYPE=";
        values += reader.Value();
    }
    EXPECT_EQ( values, ";TYPE=a,TYPE=b;c,d;CELL" );
}

// So bare words of the standards are never taken for a character set.
TEST( ParametersOfLineTest, NoTypeOfTheStandardsIsACharset )
{
    static constexpr std::array s_kTypes = {
        "DOM"sv,        "INTL"sv,      "POSTAL"sv, "PARCEL"sv,   "HOME"sv,    "WORK"sv,      "PREF"sv,    "VOICE"sv,
        "FAX"sv,        "MSG"sv,       "CELL"sv,   "PAGER"sv,    "BBS"sv,     "MODEM"sv,     "CAR"sv,     "ISDN"sv,
        "VIDEO"sv,      "AOL"sv,       "PCS"sv,    "CIS"sv,      "EWORLD"sv,  "TLX"sv,       "IBMMAIL"sv, "PRODIGY"sv,
        "POWERSHARE"sv, "MCIMAIL"sv,   "X400"sv,   "GIF"sv,      "CGM"sv,     "WMF"sv,       "BMP"sv,     "MET"sv,
        "PMB"sv,        "DIB"sv,       "PICT"sv,   "TIFF"sv,     "PS"sv,      "PDF"sv,       "JPEG"sv,    "MPEG"sv,
        "MPEG2"sv,      "AVI"sv,       "QTIME"sv,  "WAVE"sv,     "AIFF"sv,    "PCM"sv,       "X509"sv,    "PGP"sv,
        "TEXT"sv,       "TEXTPHONE"sv, "FRIEND"sv, "INTERNET"sv, "ATTMAIL"sv, "APPLELINK"sv,
    };
    for ( const std::string_view type : s_kTypes )
        EXPECT_FALSE( Charset::Of( type ).IsKnown() ) << type;
}

} // namespace PimManager::Contacts
