#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using Problem = PimContactDecodingProblem;

struct ValueCharsetRow
{
    const char* m_name;
    QByteArray m_line;
    std::string m_components;
    PimContactDecodingProblems m_problems;
    QByteArray m_charset;
};

std::ostream& operator<<( std::ostream& a_stream, const ValueCharsetRow& a_row )
{
    return a_stream << a_row.m_name;
}

class ValueCharsetTest : public ::testing::TestWithParam<ValueCharsetRow>
{
};

std::string RowName( const ::testing::TestParamInfo<ValueCharsetRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

// 0x5C is the second byte of a character in each of these: it neither escapes nor delimits.
INSTANTIATE_TEST_SUITE_P(
    SecondBytes, ValueCharsetTest,
    ::testing::Values(
        ValueCharsetRow{
            "ShiftJisRaw", "N;CHARSET=Shift_JIS:\x83\x5C;\x95\x5C\\;", "\xE3\x82\xBD|\xE8\xA1\xA8;", {}, "Shift_JIS" },
        ValueCharsetRow{ "ShiftJisEncoded",
                         "N;CHARSET=Shift_JIS;ENCODING=QUOTED-PRINTABLE:=83=5C;=95=5C\\;",
                         "\xE3\x82\xBD|\xE8\xA1\xA8;",
                         {},
                         "Shift_JIS" },
        ValueCharsetRow{ "ShiftJisHalfEncoded",
                         "N;CHARSET=Shift_JIS;ENCODING=QUOTED-PRINTABLE:=83\\;=95\\\\;",
                         "\xE3\x82\xBD|\xE8\xA1\xA8;",
                         {},
                         "Shift_JIS" },
        ValueCharsetRow{ "Big5Raw", "N;CHARSET=Big5:\xA5\x5C;\xB3\x5C\\;", "\xE5\x8A\x9F|\xE8\xA8\xB1;", {}, "Big5" },
        ValueCharsetRow{ "Big5Encoded",
                         "N;CHARSET=Big5;QUOTED-PRINTABLE:=A5=5C;=B3\\\\;",
                         "\xE5\x8A\x9F|\xE8\xA8\xB1;",
                         {},
                         "Big5" },
        ValueCharsetRow{ "GbkRaw", "N;CHARSET=GBK:\x81\x5C;\\;", "\xE4\xB9\x97|;", {}, "GB18030" },
        ValueCharsetRow{ "GbkEncoded",
                         "N;CHARSET=GBK;QUOTED-PRINTABLE:=81=5C;=81\\\\;",
                         "\xE4\xB9\x97|\xE4\xB9\x97;",
                         {},
                         "GB18030" },
        ValueCharsetRow{ "Iso2022JpRaw", "N:\x1B$B%\\;;\x1B(B;a\\;", "\xE3\x83\x9C\xE7\xAE\x97|a;", {}, "ISO-2022-JP" },
        ValueCharsetRow{ "Iso2022JpRawAmongEncoded",
                         "N;QUOTED-PRINTABLE:\x1B$B%\\\x1B(B=20;a",
                         "\xE3\x83\x9C |a",
                         {},
                         "ISO-2022-JP" },
        ValueCharsetRow{ "Iso2022JpEncoded",
                         "N;CHARSET=ISO-2022-JP;QUOTED-PRINTABLE:=1B=24=42=25=5C=1B=28=42;=1B$B%\\=1B(B\\;",
                         "\xE3\x83\x9C|\xE3\x83\x9C;",
                         {},
                         "ISO-2022-JP" } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Choices, ValueCharsetTest,
    ::testing::Values(
        ValueCharsetRow{ "RawUtf8", "N:\xC3\xA9", "\xC3\xA9", {}, "UTF-8" },
        ValueCharsetRow{ "RawUtf8WhateverIsNamed", "N;CHARSET=KOI8-R:\xC3\xA9", "\xC3\xA9", {}, "UTF-8" },
        ValueCharsetRow{ "RawNamed", "N;CHARSET=KOI8-R:\xC1", "\xD0\xB0", {}, "KOI8-R" },
        ValueCharsetRow{ "RawNamedQuoted", "N;CHARSET=\"KOI8-R\":\xC1", "\xD0\xB0", {}, "KOI8-R" },
        ValueCharsetRow{ "FirstCharsetWins", "N;CHARSET=KOI8-R;CHARSET=ISO-8859-1:\xC1", "\xD0\xB0", {}, "KOI8-R" },
        ValueCharsetRow{ "FirstCharsetWinsEncoded",
                         "N;CHARSET=KOI8-R;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:=C1",
                         "\xD0\xB0",
                         {},
                         "KOI8-R" },
        ValueCharsetRow{ "RawDefault", "N:\xE9", "\xC3\xA9", Problem::AssumedCharset, "windows-1252" },
        ValueCharsetRow{ "RawUnknownName", "N;CHARSET=x-none:\xE9", "\xC3\xA9",
                         Problem::AssumedCharset | Problem::UnknownCharset, "windows-1252" },
        // The name is decoded in memory of the parameters, and needed afterwards.
        ValueCharsetRow{ "RawNameWithACaret", "N;CHARSET=x^^none:\xE9", "\xC3\xA9",
                         Problem::AssumedCharset | Problem::UnknownCharset, "windows-1252" },
        ValueCharsetRow{ "EncodedNameWithACaret", "N;CHARSET=x^^none;QUOTED-PRINTABLE:=E9", "\xC3\xA9",
                         Problem::AssumedCharset | Problem::UnknownCharset, "windows-1252" },
        ValueCharsetRow{ "EncodedUtf8", "N;QUOTED-PRINTABLE:=C3=A9", "\xC3\xA9", {}, "UTF-8" },
        ValueCharsetRow{
            "EncodedUtf8NamedAscii", "N;CHARSET=US-ASCII;QUOTED-PRINTABLE:=C3=A9", "\xC3\xA9", {}, "UTF-8" },
        ValueCharsetRow{
            "EncodedUtf8NamedIso2022Jp", "N;CHARSET=ISO-2022-JP;QUOTED-PRINTABLE:=C3=A9", "\xC3\xA9", {}, "UTF-8" },
        ValueCharsetRow{ "EncodedUtf8UnknownName", "N;CHARSET=x-none;QUOTED-PRINTABLE:=C3=A9", "\xC3\xA9",
                         Problem::UnknownCharset, "UTF-8" },
        ValueCharsetRow{ "EncodedDefault", "N;QUOTED-PRINTABLE:=E9", "\xC3\xA9", Problem::AssumedCharset,
                         "windows-1252" },
        ValueCharsetRow{ "EncodedUnknownName", "N;CHARSET=x-none;QUOTED-PRINTABLE:=E9", "\xC3\xA9",
                         Problem::AssumedCharset | Problem::UnknownCharset, "windows-1252" },
        ValueCharsetRow{
            "EncodedNamed", "N;CHARSET=KOI8-R;QUOTED-PRINTABLE:=C1;=C2", "\xD0\xB0|\xD0\xB1", {}, "KOI8-R" },
        ValueCharsetRow{ "BareWordNames", "N;SHIFT_JIS;QUOTED-PRINTABLE:=83=5C", "\xE3\x82\xBD", {}, "Shift_JIS" },
        ValueCharsetRow{ "NamedUtf8ButMalformed", "N;CHARSET=UTF-8;QUOTED-PRINTABLE:a=E9b",
                         "a\xEF\xBF\xBD"
                         "b",
                         Problem::MalformedText, "UTF-8" },
        ValueCharsetRow{ "RawUtf8AmongEncoded",
                         "N;CHARSET=KOI8-R;QUOTED-PRINTABLE:=C1\xC3\xA9;=C2",
                         "\xD0\xB0\xC3\xA9|\xD0\xB1",
                         {},
                         "KOI8-R" },
        ValueCharsetRow{
            "RawDefaultAmongEncoded", "N;CHARSET=KOI8-R;QUOTED-PRINTABLE:=C1\xC1", "\xD0\xB0\xD0\xB0", {}, "KOI8-R" },
        ValueCharsetRow{ "RawDefaultAmongEncodedUtf8", "N;CHARSET=UTF-8;QUOTED-PRINTABLE:=C3=A9\xE9;=C3=A9",
                         "\xC3\xA9\xC3\xA9|\xC3\xA9", Problem::AssumedCharset, "UTF-8" },
        ValueCharsetRow{ "RawAndEncodedHalves", "N;QUOTED-PRINTABLE:\xC3=A9", "\xC3\xA9", {}, "UTF-8" } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Base64, ValueCharsetTest,
    ::testing::Values(
        ValueCharsetRow{ "Utf8", "N;BASE64:" + QByteArray( "\xC3\xA9;a" ).toBase64(), "\xC3\xA9|a", {}, "UTF-8" },
        ValueCharsetRow{ "Named",
                         "N;CHARSET=KOI8-R;BASE64:" + QByteArray( "\xC1;\xC2" ).toBase64(),
                         "\xD0\xB0|\xD0\xB1",
                         {},
                         "KOI8-R" },
        ValueCharsetRow{ "NamedBig5",
                         "N;CHARSET=Big5;BASE64:" + QByteArray( "\xA5\x5C;\xB3\x5C" ).toBase64(),
                         "\xE5\x8A\x9F|\xE8\xA8\xB1",
                         {},
                         "Big5" },
        ValueCharsetRow{ "Iso2022Jp",
                         "N;CHARSET=ISO-2022-JP;BASE64:" + QByteArray( "\x1B$B%\\\x1B(B;a" ).toBase64(),
                         "\xE3\x83\x9C|a",
                         {},
                         "ISO-2022-JP" },
        ValueCharsetRow{ "Utf8NamedIso2022Jp",
                         "N;CHARSET=ISO-2022-JP;BASE64:" + QByteArray( "\xC3\xA9" ).toBase64(),
                         "\xC3\xA9",
                         {},
                         "UTF-8" },
        ValueCharsetRow{ "BareWordNames",
                         "N;SHIFT_JIS;BASE64:" + QByteArray( "\x83\x5C" ).toBase64(),
                         "\xE3\x82\xBD",
                         {},
                         "Shift_JIS" },
        ValueCharsetRow{ "UnknownName", "N;CHARSET=x-none;BASE64:" + QByteArray( "\xC3\xA9" ).toBase64(), "\xC3\xA9",
                         Problem::UnknownCharset, "UTF-8" },
        ValueCharsetRow{ "Escapes", "N;BASE64:" + QByteArray( "\\q" ).toBase64(), "\\q", Problem::UnknownEscape,
                         "UTF-8" },
        ValueCharsetRow{ "NamedByAnotherLine",
                         "N;BASE64:" + QByteArray( "\xC3\xA9" ).toBase64() + "\r\nFN;CHARSET=KOI8-R:\xC1",
                         "\xC3\xA9",
                         {},
                         "UTF-8" } ),
    RowName );

TEST_P( ValueCharsetTest, CharsetOfTheLineIsDecoded )
{
    const ValueCharsetRow& row = GetParam();
    const PimContactLine line = OneLine( row.m_line, "2.1" );
    EXPECT_EQ( Joined( line.Components() ), row.m_components );
    EXPECT_EQ( static_cast<int>( line.Decoding().Problems() ), static_cast<int>( row.m_problems ) );
    EXPECT_EQ( line.Decoding().Charset(), row.m_charset );
}

TEST( ValueCharsetOfCallerTest, DefaultHoldsForRawAndEncodedText )
{
    PimContactOptions options;
    options.SetDefaultCharset( "KOI8-R" );
    EXPECT_EQ( OneLine( "NOTE:\xC1", "2.1", options ).Text().toStdString(), "\xD0\xB0" );
    EXPECT_EQ( OneLine( "NOTE;QUOTED-PRINTABLE:=C1", "2.1", options ).Text().toStdString(), "\xD0\xB0" );
}

TEST( ValueCharsetOfCallerTest, DefaultDoesNotHoldForBase64 )
{
    PimContactOptions options;
    options.SetDefaultCharset( "KOI8-R" );
    const PimContactLine line = OneLine( "NOTE;BASE64:wQ==", "2.1", options );
    EXPECT_EQ( line.Kind(), PimContactValueKind::Binary );
    EXPECT_EQ( line.Text().toStdString(), "wQ==" );
    EXPECT_EQ( line.Binary().Bytes(), "\xC1" );
}

TEST( ValueCharsetOfCallerTest, WithoutDefaultMalformedBytesAreReplaced )
{
    PimContactOptions options;
    options.SetDefaultCharset( "UTF-8" );
    const PimContactLine raw = OneLine( "NOTE:a\xE9", "2.1", options );
    EXPECT_EQ( raw.Text().toStdString(), "a\xEF\xBF\xBD" );
    EXPECT_EQ( raw.Decoding().FirstPlace( Problem::MalformedText ), 1 );
    const PimContactLine encoded = OneLine( "NOTE;QUOTED-PRINTABLE:a=20=E9=E9", "2.1", options );
    EXPECT_EQ( encoded.Text().toStdString(), "a \xEF\xBF\xBD\xEF\xBF\xBD" );
    EXPECT_EQ( encoded.Decoding().Count( Problem::MalformedText ), 2 );
    EXPECT_EQ( encoded.Decoding().FirstPlace( Problem::MalformedText ), 2 );
}

TEST( ValueCharsetOfCallerTest, BlankThatDividesACharacterIsFound )
{
    const PimContactLine line = OneLine( "NOTE:a\xC3\r\n \xA9", "2.1" );
    EXPECT_EQ( line.Text().toStdString(), "a\xEF\xBF\xBD \xEF\xBF\xBD" );
    EXPECT_EQ( line.Decoding().Count( Problem::MalformedText ), 2 );
}

TEST( ValueCharsetOfCallerTest, ParametersAreInTheCharsetOfTheLine )
{
    // The second byte of the character is a caret.
    const PimContactLine line = OneLine( "ADR;CHARSET=Shift_JIS;LABEL=\"\x83\x5E^nx\":\x83\x5C", "3.0" );
    EXPECT_EQ( Joined( line.Parameter( QLatin1String( "LABEL" ) ) ), "\xE3\x82\xBF\nx" );
}

} // namespace PimManager::Contacts
