#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct ValueTextRow
{
    const char* m_name;
    const char* m_version;
    QByteArray m_line;
    std::string m_text;
};

std::ostream& operator<<( std::ostream& a_stream, const ValueTextRow& a_row )
{
    return a_stream << a_row.m_name;
}

class ValueTextTest : public ::testing::TestWithParam<ValueTextRow>
{
};

std::string RowName( const ::testing::TestParamInfo<ValueTextRow>& a_info )
{
    return a_info.param.m_name;
}

constexpr const char* s_kJoerg = "J\xC3\xB6rg";
constexpr const char* s_kQuotedPrintable = "NOTE;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:";

// A value of words, cut after each blank or before it: "word 0 word 1 ...".
std::string Words( int a_count )
{
    std::string text;
    for ( int i = 0; i < a_count; ++i )
        text += "word " + std::to_string( i ) + ' ';
    return text + "end";
}

// The same with a fold before each "word", at a position where a blank is text.
QByteArray FoldedWords( int a_count, const char* a_fold )
{
    QByteArray text;
    for ( int i = 0; i < a_count; ++i )
        text += "word " + QByteArray::number( i ) + a_fold;
    return text + "end";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Texts, ValueTextTest,
    ::testing::Values(
        ValueTextRow{ "Empty", "3.0", "NOTE:", "" }, ValueTextRow{ "Semicolons", "3.0", "NOTE:a;b,c", "a;b,c" },
        ValueTextRow{ "Components", "3.0", "N:Doe;Jane;;;", "Doe;Jane;;;" },
        ValueTextRow{ "TelephoneUri", "4.0", "TEL;VALUE=uri:tel:+1-555;ext=12", "tel:+1-555;ext=12" },
        ValueTextRow{ "MailWithName", "3.0", "EMAIL:\"Omega\" <omega@example.com>", "\"Omega\" <omega@example.com>" },
        ValueTextRow{ "Colons", "3.0", "URL:https://example.com:80/", "https://example.com:80/" },
        ValueTextRow{ "NumberSign", "3.0", "NOTE:#1", "#1" },
        ValueTextRow{ "Escapes21", "2.1", "NOTE:a\\nb\\,c\\;d\\\\e\\:f\\Ng", "a\nb,c;d\\e:f\ng" },
        ValueTextRow{ "Escapes30", "3.0", "NOTE:a\\nb\\,c\\;d\\\\e\\:f\\Ng", "a\nb,c;d\\e:f\ng" },
        ValueTextRow{ "Escapes40", "4.0", "NOTE:a\\nb\\,c\\;d\\\\e\\:f\\Ng", "a\nb,c;d\\e:f\ng" },
        ValueTextRow{ "EscapesWithoutVersion", "", "NOTE:a\\nb\\,c\\;d\\\\e\\:f\\Ng", "a\nb,c;d\\e:f\ng" },
        ValueTextRow{ "LineFeedBeforeABlank", "3.0", "NOTE:a\\n b", "a\n b" },
        ValueTextRow{ "EscapedQuotes", "3.0", "NOTE:\\\"a\\' b", "\"a' b" },
        ValueTextRow{ "UnknownEscapes", "3.0", "NOTE:C:\\dir\\", "C:\\dir\\" },
        ValueTextRow{ "EscapeOverFold", "3.0", "NOTE:a\\\r\n nb", "a\nb" },
        ValueTextRow{ "CharacterOverFold", "3.0", "NOTE:a\xC3\r\n \xA9z", "a\xC3\xA9z" },
        ValueTextRow{ "WideCharacters", "3.0", "NOTE:\xE3\x83\x86\\,\xF0\x9F\x98\x80",
                      "\xE3\x83\x86,\xF0\x9F\x98\x80" },
        ValueTextRow{ "ByteOrderMarksAtTheStart", "3.0", "NOTE:\xEF\xBB\xBF\xEF\xBB\xBFz",
                      "\xEF\xBB\xBF\xEF\xBB\xBFz" },
        ValueTextRow{ "Base64StaysEncoded", "3.0", "PHOTO;ENCODING=b:Zm9v\r\n Zm9v", "Zm9vZm9v" } ),
    RowName );

// Other values that say BASE64 are in BinaryValueTest.
INSTANTIATE_TEST_SUITE_P(
    Base64, ValueTextTest,
    ::testing::Values(
        ValueTextRow{ "Base64", "2.1", "FN;ENCODING=BASE64:SsO2cmc=", s_kJoerg },
        ValueTextRow{ "B", "3.0", "FN;ENCODING=b:SsO2cmc=", s_kJoerg },
        ValueTextRow{ "BareWord", "2.1", "TEL;HOME;BASE64:KzEtNTU1", "+1-555" },
        ValueTextRow{ "SmallName", "2.1", "item1.email;encoding=base64:YUBi", "a@b" },
        ValueTextRow{ "WithoutPadding", "3.0", "FN;ENCODING=b:SsO2cmc", s_kJoerg },
        ValueTextRow{ "Empty", "3.0", "FN;ENCODING=b:", "" },
        ValueTextRow{ "Folded", "2.1", "NOTE;BASE64:SsO\r\n 2cmc=", s_kJoerg },
        ValueTextRow{ "NotIndented", "2.1", "NOTE;BASE64:\r\nSsO2\r\ncmc=\r\n\r\n", s_kJoerg },
        ValueTextRow{ "Charset", "2.1", "FN;CHARSET=ISO-8859-1;ENCODING=BASE64:SvZyZw==", s_kJoerg },
        ValueTextRow{ "LineBreaks", "3.0", "NOTE;ENCODING=b:" + QByteArray( "\r\na\r\n\r\nb\nc\rd\r" ).toBase64(),
                      "\na\n\nb\nc\rd\r" },
        ValueTextRow{ "Escapes", "3.0", "NOTE;ENCODING=b:" + QByteArray( "a\\nb\\,c\\\\d;e" ).toBase64(),
                      "a\nb,c\\d;e" },
        ValueTextRow{ "Base64InBase64", "3.0", "NOTE;ENCODING=b:" + QByteArray( "Zm9v" ).toBase64(), "Zm9v" },
        ValueTextRow{ "QuotedPrintableToo", "2.1", "NOTE;BASE64;QUOTED-PRINTABLE:PTQx", "=41" },
        ValueTextRow{ "BytesStayEncoded", "3.0", "NOTE;ENCODING=b:AP//", "AP//" },
        ValueTextRow{ "FaultStaysEncoded", "3.0", "NOTE;ENCODING=b:SsO2cmc=*", "SsO2cmc=*" },
        ValueTextRow{ "ExtensionStaysEncoded", "3.0", "X-A;ENCODING=b:SsO2cmc=", "SsO2cmc=" } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    QuotedPrintable, ValueTextTest,
    ::testing::Values(
        ValueTextRow{ "Word", "2.1", "NOTE;QUOTED-PRINTABLE:a=20b", "a b" },
        ValueTextRow{ "QuotedName", "2.1", "NOTE;ENCODING=\"QUOTED-PRINTABLE\":a=20b", "a b" },
        ValueTextRow{ "ExtensionName", "2.1", "NOTE;ENCODING=X-QUOTED-PRINTABLE:a=20b", "a b" },
        ValueTextRow{ "NotDeclared", "2.1", "NOTE:a=20b", "a=20b" },
        ValueTextRow{ "LineBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "a=0D=0Ab", "a\nb" },
        ValueTextRow{ "LineBreakBeforeSoftBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "a=0D=0A=\r\nb", "a\nb" },
        ValueTextRow{ "SoftBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "a=\r\nb=\r\nc", "abc" },
        ValueTextRow{ "BlankBehindSoftBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "a=\r\n b", "a b" },
        ValueTextRow{ "TabBehindSoftBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "a=\r\n\tb", "a\tb" },
        ValueTextRow{ "BlankBeforeSoftBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "a =\r\nb", "a b" },
        ValueTextRow{ "BlankBehindTheEquals", "2.1", QByteArray( s_kQuotedPrintable ) + "a= \r\nb", "ab" },
        ValueTextRow{ "SoftBreakWithNothingToJoin", "2.1", QByteArray( s_kQuotedPrintable ) + "a=\r\nTEL:1", "a" },
        ValueTextRow{ "CharacterOverSoftBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "=C3=\r\n=A9", "\xC3\xA9" },
        ValueTextRow{ "MalformedIsKept", "2.1", QByteArray( s_kQuotedPrintable ) + "1 = 2 =x", "1 = 2 =x" },
        ValueTextRow{ "RawEscape", "2.1", QByteArray( s_kQuotedPrintable ) + "a\\nb", "a\nb" },
        ValueTextRow{ "EncodedBackslash", "2.1", QByteArray( s_kQuotedPrintable ) + "=5Cn=5C=5C=5C;", "\\n\\\\\\;" },
        ValueTextRow{ "RawBackslashBeforeEncoded", "2.1", QByteArray( s_kQuotedPrintable ) + "a\\=3Bb\\=5Cc",
                      "a;b\\c" },
        ValueTextRow{ "RawBeforeEncodedLineBreak", "2.1", QByteArray( s_kQuotedPrintable ) + "\\=0D=0A", "\\\n" },
        ValueTextRow{ "Version30", "3.0", QByteArray( s_kQuotedPrintable ) + "=C3=A9\\n", "\xC3\xA9\n" } ),
    RowName );

// Each line has eighteen folds. The blank at a fold is text in version 2.1, where it is written once, and not in 3.0,
// where it is written twice.
INSTANTIATE_TEST_SUITE_P(
    Folds, ValueTextTest,
    ::testing::Values( ValueTextRow{ "Note21", "2.1", "NOTE:" + FoldedWords( 18, "\r\n " ), Words( 18 ) },
                       ValueTextRow{ "Note30", "3.0", "NOTE:" + FoldedWords( 18, "\r\n  " ), Words( 18 ) },
                       ValueTextRow{ "BlankBeforeTheFold30", "3.0", "NOTE:" + FoldedWords( 18, " \r\n " ),
                                     Words( 18 ) },
                       ValueTextRow{ "Address21", "2.1", "ADR:;;" + FoldedWords( 18, "\r\n " ), ";;" + Words( 18 ) },
                       ValueTextRow{ "Address30", "3.0", "ADR:;;" + FoldedWords( 18, "\r\n  " ), ";;" + Words( 18 ) },
                       ValueTextRow{ "Url21", "2.1", "URL:" + FoldedWords( 18, "\r\n " ), Words( 18 ) },
                       ValueTextRow{ "Url30", "3.0", "URL:" + FoldedWords( 18, "\r\n  " ), Words( 18 ) },
                       ValueTextRow{ "Key21", "2.1", "KEY:" + FoldedWords( 18, "\r\n " ), Words( 18 ) },
                       ValueTextRow{ "Key30", "3.0", "KEY:" + FoldedWords( 18, "\r\n  " ), Words( 18 ) } ),
    RowName );

TEST_P( ValueTextTest, TextIsDecoded )
{
    const ValueTextRow& row = GetParam();
    EXPECT_EQ( OneLine( row.m_line, row.m_version ).Text().toStdString(), row.m_text );
}

TEST( ValueTextOfCardTest, PropertyAfterNestedCardIsDecoded )
{
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:2.1\r\nAGENT:\r\nBEGIN:VCARD\r\n"
                                                           "VERSION:3.0\r\nNOTE:in\\nside\r\nEND:VCARD\r\n"
                                                           "NOTE:out\\nside\r\nEND:VCARD\r\n" );
    ASSERT_EQ( book.Size(), 1 );
    QStringList texts;
    for ( const PimContactLine& line : book.CardAt( 0 ) )
    {
        texts.append( line.Text() );
        if ( !line.NestedCard().IsNull() )
            texts.append( ( ++line.NestedCard().begin() )->Text() );
    }
    EXPECT_EQ( Joined( texts ), "2.1||in\nside|out\nside" );
}

TEST( ValueTextOfLineTest, NullLineIsEmpty )
{
    const PimContactLine line;
    EXPECT_EQ( line.Text(), QString() );
    EXPECT_EQ( Joined( line.Components() ), "" );
    EXPECT_TRUE( line.Types().isEmpty() );
    EXPECT_TRUE( line.Binary().IsNull() );
    EXPECT_TRUE( line.Decoding().IsClean() );
    EXPECT_EQ( line.Kind(), PimContactValueKind::Text );
    EXPECT_FALSE( line.IsNamed( QLatin1String( "" ) ) );
}

TEST( ValueTextOfLineTest, NameIsCompared )
{
    const PimContactLine line = OneLine( "item1.Tel;HOME:1" );
    EXPECT_TRUE( line.IsNamed( QLatin1String( "TEL" ) ) );
    EXPECT_TRUE( line.IsNamed( QLatin1String( "tel" ) ) );
    EXPECT_FALSE( line.IsNamed( QLatin1String( "TE" ) ) );
    EXPECT_FALSE( line.IsNamed( QLatin1String( "TELX" ) ) );
    EXPECT_FALSE( line.IsNamed( QLatin1String( "item1.TEL" ) ) );
    EXPECT_FALSE( line.IsNamed( QLatin1String() ) );
    EXPECT_TRUE( OneLine( "NO\r\n TE:1" ).IsNamed( QLatin1String( "NOTE" ) ) );
}

} // namespace PimManager::Contacts
