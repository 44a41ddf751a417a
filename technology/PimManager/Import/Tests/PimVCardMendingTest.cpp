// One rule a row: the lines of a card, what is delivered of them, and what is told about it.

#include "PimVCardImportDump.h"
#include "PimVCardImporter.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::vCardImport
{

namespace
{

using namespace std::string_view_literals;

struct Row
{
    const char* m_name;
    // Between a BEGIN line and an END line, which end in CR LF.
    std::string_view m_lines;
    // Group, name, parameters and values, a property a line.
    std::string_view m_delivered;
    const char* m_told;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

class PimVCardMendingTest : public testing::TestWithParam<Row>
{
};

TEST_P( PimVCardMendingTest, LineIsDeliveredAsMeant )
{
    const std::string text = "BEGIN:VCARD\r\n" + std::string( GetParam().m_lines ) + "END:VCARD\r\n";
    const PimVCardImportResult result = PimVCardImporter().Import( QByteArray::fromStdString( text ) );
    ASSERT_EQ( result.m_cards.size(), 1U );
    EXPECT_EQ( DumpOf( *result.m_cards.front().m_card ).toStdString(), GetParam().m_delivered );
    QByteArray told;
    for ( const PimVCardDiagnostic& diagnostic : result.m_account.m_diagnostics )
        told += QByteArray( NameOf( diagnostic.m_code ).latin1() ) + ' ';
    EXPECT_EQ( told.toStdString(), GetParam().m_told );
    EXPECT_EQ( result.m_rejects.size(), static_cast<size_t>( result.m_account.Findings( PimVCardSeverity::Dropped ) ) );
    EXPECT_TRUE( result.m_account.AddsUp() );
}

constexpr Row s_kLineEnds[] = {
    { "CrLf", "N:a\r\n", "|N|<a>\n", "" },
    { "Lf", "N:a\n", "|N|<a>\n", "line-end " },
    { "Cr", "N:a\rFN:b\r", "|N|<a>\n|FN|<b>\n", "line-end " },
    { "CrCrLf", "N:a\r\r\n", "|N|<a>\n", "line-end " },
    { "EachKindOnce", "N:a\nN:b\nN:c\rN:d\r", "|N|<a>\n|N|<b>\n|N|<c>\n|N|<d>\n", "line-end line-end " },
    { "EmptyLines", "\r\nN:a\r\n\r\n", "|N|<a>\n", "" },
    { "FoldWithTab", "NOTE:a\r\n\tb\r\n", "|NOTE|<ab>\n", "" },
    { "FoldedHead", "NOTE;TYPE=\r\n HOME:a\r\n", "|NOTE|[TYPE=HOME]<a>\n", "" },
};

constexpr Row s_kEscapes[] = {
    { "LineFeed", "NOTE:a\\nb\\Nc\r\n", "|NOTE|<a\\xa;b\\xa;c>\n", "" },
    { "Unknown", "NOTE:a\\tb\r\n", "|NOTE|<a\\x5c;tb>\n", "unknown-escape " },
    { "Trailing", "NOTE:a\\\r\n", "|NOTE|<a\\x5c;>\n", "unknown-escape " },
    { "AtTheStart", "ORG:\\;a;\\\\b\r\n", "|ORG|<;a><\\x5c;b>\n", "" },
    { "LineFeedBeforeBlank", "NOTE:a\\n b\r\n", "|NOTE|<a\\xa; b>\n", "" },
    { "CommaAndColon", "NOTE:a\\,b\\:c\r\n", "|NOTE|<a,b:c>\n", "" },
};

constexpr Row s_kQuotedPrintable[] = {
    { "SoftBreak", "NOTE;ENCODING=QUOTED-PRINTABLE:a=\r\nb\r\n", "|NOTE|[ENCODING=QUOTED-PRINTABLE]<ab>\n", "" },
    { "BlanksBehindSoftBreak", "NOTE;ENCODING=QUOTED-PRINTABLE:a= \r\nb\r\n", "|NOTE|[ENCODING=QUOTED-PRINTABLE]<ab>\n",
      "soft-line-break " },
    { "IndentedNextLine", "NOTE;ENCODING=QUOTED-PRINTABLE:a=\r\n\tb\r\n", "|NOTE|[ENCODING=QUOTED-PRINTABLE]<ab>\n",
      "soft-line-break " },
    { "NotOverProperty", "NOTE;ENCODING=QUOTED-PRINTABLE:a=\r\nTEL:1\r\n",
      "|NOTE|[ENCODING=QUOTED-PRINTABLE]<a>\n|TEL|<1>\n", "soft-line-break " },
    { "NotOverEnd", "NOTE;ENCODING=QUOTED-PRINTABLE:a=\r\n", "|NOTE|[ENCODING=QUOTED-PRINTABLE]<a>\n",
      "soft-line-break " },
    { "EncodedLineBreakKept", "NOTE;ENCODING=QUOTED-PRINTABLE:a=0D=0A=\r\nb\r\n",
      "|NOTE|[ENCODING=QUOTED-PRINTABLE]<a=0D=0Ab>\n", "encoded-line-break " },
    { "Bare", "NOTE;QUOTED-PRINTABLE:a=\r\nb\r\n", "|NOTE|[=QUOTED-PRINTABLE]<ab>\n", "" },
    { "ColonInNextLine", "NOTE;ENCODING=QUOTED-PRINTABLE:a=\r\nSee also: b\r\n",
      "|NOTE|[ENCODING=QUOTED-PRINTABLE]<aSee also: b>\n", "" },
};

constexpr Row s_kBase64[] = {
    { "BlankLine", "LOGO;ENCODING=BASE64:\r\n AAAA\r\n\r\nTEL:1\r\n", "|LOGO|[ENCODING=BASE64]<AAAA>\n|TEL|<1>\n", "" },
    { "NoBlankLine", "LOGO;ENCODING=BASE64:\r\n AAAA\r\nTEL:1\r\n", "|LOGO|[ENCODING=BASE64]<AAAA>\n|TEL|<1>\n", "" },
    { "Unindented", "LOGO;ENCODING=BASE64:\r\nAAAA\r\nBBBB\r\nTEL:1\r\n",
      "|LOGO|[ENCODING=BASE64]<AAAABBBB>\n|TEL|<1>\n", "base64-lines " },
    { "BareWord", "LOGO;BASE64:AAAA\r\n", "|LOGO|[=BASE64]<AAAA>\n", "" },
    { "BareLetter", "LOGO;B;GIF:AAAA\r\nBBBB\r\n", "|LOGO|[=B][=GIF]<AAAABBBB>\n", "base64-lines " },
    { "Blanks", "LOGO;ENCODING=b:AA AA\r\n", "|LOGO|[ENCODING=b]<AAAA>\n", "base64-lines " },
    { "SomethingElse", "LOGO;ENCODING=b:http://x\r\n", "|LOGO|[ENCODING=b]<http://x>\n", "" },
    { "EncodedBreak", "LOGO;ENCODING=b:=0D=0A=\r\nTEL:1\r\n", "|LOGO|[ENCODING=b]<=0D=0A=>\n|TEL|<1>\n", "" },
};

constexpr Row s_kParameters[] = {
    { "OtherCharacters", "TEL;X=a&0&b==:1\r\n", "|TEL|[X=\"a&0&b==\"]<1>\n", "parameter-quoted " },
    { "Slash", "PHOTO;TYPE=image/jpeg:\r\n", "|PHOTO|[TYPE=\"image/jpeg\"]<>\n", "parameter-quoted " },
    { "Underscore", "N;CHARSET=SHIFT_JIS:a\r\n", "|N|[CHARSET=\"SHIFT_JIS\"]<a>\n", "parameter-quoted " },
    { "ListInPart", "TEL;TYPE=HOME,x/y:1\r\n", "|TEL|[TYPE=HOME,\"x/y\"]<1>\n", "parameter-quoted " },
    { "QuotedStays", "TEL;X=\"a;b:c\":1\r\n", "|TEL|[X=\"a;b:c\"]<1>\n", "" },
    { "OpenQuote", "TEL;TYPE=\"HOME:1\r\n", "|TEL|[TYPE=HOME]<1>\n", "parameter-quoted " },
    { "OpenQuoteAlone", "TEL;\":1\r\n", "|TEL|<1>\n", "empty-parameter " },
    { "QuoteInside", "TEL;X=a\"b:1\r\n", "|TEL|[X=a\"b]<1>\n", "odd-parameter " },
    { "Backslash", "TEL;X=a\\b:1\r\n", "|TEL|[X=a\\x5c;b]<1>\n", "odd-parameter " },
    { "OddName", "TEL;X_Y=a:1\r\n", "|TEL|[X_Y=a]<1>\n", "odd-parameter " },
    { "Empty", "TEL;;HOME;:1\r\n", "|TEL|[=HOME]<1>\n", "empty-parameter empty-parameter " },
    { "Blanks", "TEL ; TYPE = HOME :1\r\n", "|TEL|[TYPE=HOME]<1>\n", "name-blanks name-blanks " },
};

constexpr Row s_kNames[] = {
    { "Underscore", "X-WAB-WEDDING_ANNIVERSARY:1\r\n", "|X-WAB-WEDDING_ANNIVERSARY|<1>\n", "odd-name " },
    { "Blank", "X-GOOGLE TALK:a\r\n", "|X-GOOGLE TALK|<a>\n", "odd-name " },
    { "BlanksRound", " N : a\r\n", "|N|< a>\n", "name-blanks " },
    { "GroupWithBlanks", "item1 . TEL:1\r\n", "item1|TEL|<1>\n", "name-blanks " },
    { "GroupWithUnderscore", "my_item.TEL:1\r\n", "my_item|TEL|<1>\n", "odd-name " },
    { "DotAtTheEnd", "TEL.:1\r\n", "|TEL.|<1>\n", "odd-name " },
    { "NoColon", "TEL\r\nX-A\r\n", "|TEL|<>\n|X-A|<>\n", "missing-colon missing-colon " },
    { "NoProperty", "TEL:1\r\n***\r\n", "|TEL|<1>\n", "not-a-property " },
    { "ControlCharacters",
      "N\x01:a\x1b"sv
      "b\vc\r\n"sv,
      "|N|<ab\\xa;c>\n", "control-characters " },
    { "ByteOrderMark", "\xEF\xBB\xBFN:a\xEF\xBB\xBF\r\n", "|N|<a\\xfeff;>\n", "stray-byte-order-mark " },
};

constexpr Row s_kText[] = {
    { "LineWithoutIndentation", "NOTE:a\r\nb c\r\n", "|NOTE|<a\\xa;b c>\n", "line-joined " },
    { "UnknownNameInSuchText", "NOTE:a\r\nb c\r\nSecond: d\r\nTEL:1\r\n", "|NOTE|<a\\xa;b c\\xa;Second: d>\n|TEL|<1>\n",
      "line-joined " },
    { "CommentIsNoName", "FN:a\r\n# b\r\n", "|FN|<a>\n", "not-a-property " },
    { "NotBehindNumber", "TEL:1\r\nb c\r\n", "|TEL|<1>\n", "not-a-property " },
    { "IndentedEnd", "NOTE:a\r\n END:VCARD\r\n", "|NOTE|<aEND:VCARD>\n", "" },
    { "IndentedBegin", "NOTE:a\r\n BEGIN:VCARD\r\n", "|NOTE|<aBEGIN:VCARD>\n", "" },
    { "NestedCard", "AGENT:\r\nBEGIN:VCARD\r\nN:b\x01\r\nEND:VCARD\r\nTEL:1\r\n",
      "|AGENT|<BEGIN:VCARD\\xa;N:b\\xa;END:VCARD\\xa;>\n|TEL|<1>\n", "nested-card control-characters " },
    { "NestedCardOnTheLine", "AGENT:BEGIN:VCARD\r\nN:b\r\nEND:VCARD\r\nTEL:1\r\n",
      "|AGENT|<BEGIN:VCARD\\xa;N:b\\xa;END:VCARD\\xa;>\n|TEL|<1>\n", "nested-card " },
    { "Windows1252", "N:M\xFCller\r\n", "|N|<M\xC3\xBCller>\n", "charset " },
    { "NamedCharset", "N;CHARSET=KOI8-R:\xC1\r\nFN:\xC2\r\n", "|N|[CHARSET=KOI8-R]<\xD0\xB0>\n|FN|<\xD0\xB1>\n",
      "charset " },
};

std::string NameOfRow( const testing::TestParamInfo<Row>& a_info )
{
    return a_info.param.m_name;
}

INSTANTIATE_TEST_SUITE_P( LineEnds, PimVCardMendingTest, testing::ValuesIn( s_kLineEnds ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Escapes, PimVCardMendingTest, testing::ValuesIn( s_kEscapes ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( QuotedPrintable, PimVCardMendingTest, testing::ValuesIn( s_kQuotedPrintable ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Base64, PimVCardMendingTest, testing::ValuesIn( s_kBase64 ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Parameters, PimVCardMendingTest, testing::ValuesIn( s_kParameters ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Names, PimVCardMendingTest, testing::ValuesIn( s_kNames ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Text, PimVCardMendingTest, testing::ValuesIn( s_kText ), NameOfRow );

} // namespace

} // namespace PimManager::vCardImport
