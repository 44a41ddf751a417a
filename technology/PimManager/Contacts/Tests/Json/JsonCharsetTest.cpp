// Texts of every character set.

#include "OneCard.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_charset;
    QByteArray m_text;
    std::string m_utf8;
};

// The last one has a byte that is a backslash in ASCII.
const std::vector<Row> s_kRows = {
    { "UTF-8", "\xC3\xA9", "\xC3\xA9" },
    { "windows-1250", "\xB9", "\xC4\x85" },
    { "windows-1251", "\xCF\xF0", "\xD0\x9F\xD1\x80" },
    { "ISO-8859-1", "\xE9\x80", "\xC3\xA9\xE2\x82\xAC" },
    { "windows-1253", "\xE1", "\xCE\xB1" },
    { "windows-1254", "\xFD", "\xC4\xB1" },
    { "windows-1255", "\xE0", "\xD7\x90" },
    { "windows-1256", "\xC7", "\xD8\xA7" },
    { "windows-1257", "\xE0", "\xC4\x85" },
    { "windows-874", "\xA1", "\xE0\xB8\x81" },
    { "ISO-8859-2", "\xB1", "\xC4\x85" },
    { "ISO-8859-15", "\xA4", "\xE2\x82\xAC" },
    { "KOI8-R", "\xF0", "\xD0\x9F" },
    { "KOI8-U", "\xA4", "\xD1\x94" },
    { "IBM850", "\x82", "\xC3\xA9" },
    { "IBM866", "\x8F", "\xD0\x9F" },
    { "macintosh", "\x8E", "\xC3\xA9" },
    { "EUC-JP", "\xC6\xFC", "\xE6\x97\xA5" },
    { "EUC-KR", "\xC7\xD1", "\xED\x95\x9C" },
    { "GB18030", "\xD6\xD0", "\xE4\xB8\xAD" },
    { "Big5", "\xA4\xA4", "\xE4\xB8\xAD" },
    { "ISO-2022-JP", "\x1B$BF|\x1B(B", "\xE6\x97\xA5" },
    { "Shift_JIS", "\x83\x5C\x93\xFA", "\xE3\x82\xBD\xE6\x97\xA5" },
};

std::string Note( const std::string& a_utf8 )
{
    return R"({"name":"NOTE","types":[],"values":["<)" + a_utf8 + R"(>"]})";
}

QByteArray QuotedPrintable( const QByteArray& a_bytes )
{
    QByteArray text;
    for ( const char byte : a_bytes )
        text += '=' + QByteArray( 1, byte ).toHex().toUpper();
    return text;
}

} // namespace

TEST( JsonCharsetTest, RawTextIsDecoded )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( PropertyOf( "NOTE;CHARSET=" + QByteArray( row.m_charset ) + ":<" + row.m_text + ">" ),
                   Note( row.m_utf8 ) )
            << row.m_charset;
}

TEST( JsonCharsetTest, QuotedPrintableTextIsDecoded )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( PropertyOf( "NOTE;QUOTED-PRINTABLE;CHARSET=" + QByteArray( row.m_charset ) + ":" +
                                   QuotedPrintable( "<" + row.m_text + ">" ),
                               "2.1" ),
                   Note( row.m_utf8 ) )
            << row.m_charset;
}

TEST( JsonCharsetTest, HeadsAreDecoded )
{
    EXPECT_EQ( PropertyOf( "i\xE9.X-\xE9;T\xE9;X=\xE9:\xE9" ),
               "{\"name\":\"X-\xC3\xA9\",\"group\":\"i\xC3\xA9\",\"types\":[\"T\xC3\xA9\"],"
               "\"parameters\":[{\"name\":\"X\",\"values\":[\"\xC3\xA9\"]}],\"values\":[\"\xC3\xA9\"]}" );
    EXPECT_EQ( PropertyOf( "NOTE;CHARSET=windows-1251;X=\xCF:\xF0" ),
               "{\"name\":\"NOTE\",\"types\":[],\"parameters\":[{\"name\":\"X\",\"values\":[\"\xD0\x9F\"]}],"
               "\"values\":[\"\xD1\x80\"]}" );
}

TEST( JsonCharsetTest, MalformedTextIsReplaced )
{
    EXPECT_EQ( PropertyOf( "NOTE;CHARSET=Shift_JIS:<\x83>" ), Note( "\xEF\xBF\xBD" ) );
    EXPECT_EQ( PropertyOf( "NOTE;CHARSET=UTF-8:\xC3\xA9\xC3\xA9<\x80>" ),
               "{\"name\":\"NOTE\",\"types\":[],\"values\":[\"\xC3\xA9\xC3\xA9<\xEF\xBF\xBD>\"]}" );
    EXPECT_EQ( PropertyOf( "NOTE;QUOTED-PRINTABLE;CHARSET=UTF-8:<=ED=A0=80>", "2.1" ),
               Note( "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD" ) );
}

} // namespace PimManager::Contacts
