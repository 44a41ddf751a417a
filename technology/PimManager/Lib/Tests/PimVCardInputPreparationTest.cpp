#include "PimVCardParser.h"

#include "PimVCardParserInspector.h"
#include "PimVCardTestText.h"
#include "PimVCardVocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace PimManager::vCard
{

namespace
{

struct Row
{
    const char* m_name;
    QByteArray m_input;
    QByteArray m_prepared;
};

struct LineBreak
{
    const char* m_name;
    QByteArray m_bytes;
};

void PrintTo( const Row& a_row, std::ostream* a_stream )
{
    *a_stream << Escaped( a_row.m_input );
}

void PrintTo( const LineBreak& a_lineBreak, std::ostream* a_stream )
{
    *a_stream << Escaped( a_lineBreak.m_bytes );
}

QByteArray Prepared( const QByteArray& a_input )
{
    const PimVCardParser parser( a_input );
    return PimVCardParserInspector( parser ).Data();
}

class InputPreparationRowTest : public testing::TestWithParam<Row>
{
};

class InputPreparationLineBreakTest : public testing::TestWithParam<LineBreak>
{
};

} // namespace

TEST_P( InputPreparationRowTest, YieldsThePreparedText )
{
    EXPECT_EQ( Prepared( GetParam().m_input ), GetParam().m_prepared );
}

INSTANTIATE_TEST_SUITE_P( Folds, InputPreparationRowTest,
                          testing::Values( Row{ "OneBlank", "NOTE:abc\r\n def\r\n", "NOTE:abcdef\r\n" },
                                           Row{ "BlanksAndTabsAllGo", "NOTE:abc\r\n \t def", "NOTE:abcdef" },
                                           Row{ "TabFirst", "NOTE:abc\r\n\t\t def", "NOTE:abcdef" },
                                           Row{ "BareLineFeed", "NOTE:abc\n def", "NOTE:abcdef" },
                                           Row{ "NewLine", "NOTE:abc\r\ndef", "NOTE:abc\r\ndef" },
                                           Row{ "Base64WithEmptyLine", "PHOTO;ENCODING=BASE64:AAAA\r\n BBBB\r\n\r\n",
                                                "PHOTO;ENCODING=BASE64:AAAABBBB\r\n\r\n" },
                                           Row{ "Several", "A:1\r\n 2\r\n\t3\r\nB:4\r\n 5\r\n", "A:123\r\nB:45\r\n" },
                                           Row{ "FoldOfBlanksOnly", "A:1\r\n  \r\n 2", "A:12" },
                                           Row{ "AfterEmptyLine", "A:1\r\n\r\n 2", "A:1\r\n2" },
                                           Row{ "AtTheStart", "\r\n A:1", "A:1" }, Row{ "AtTheEnd", "A:1\r\n ", "A:1" },
                                           Row{ "BlanksAtTheEndBeforeALine", "A:1 \r\nB:2", "A:1 \r\nB:2" },
                                           Row{ "NoBreakSpaceIsNoFold",
                                                "A:1\r\n\xC2\xA0"
                                                "2",
                                                "A:1\r\n\xC2\xA0"
                                                "2" },
                                           Row{ "OneBreakOfTwo", "A:1\n\r 2", "A:1\n2" },
                                           Row{ "EncodedBreakWithoutSoftBreak", "A:1=0D=0A\r\n 2", "A:1=0D=0A2" } ),
                          NameOf<Row> );

INSTANTIATE_TEST_SUITE_P( SoftBreaks, InputPreparationRowTest,
                          testing::Values( Row{ "BecomesOneBlank",
                                                "LABEL;ENCODING=QUOTED-PRINTABLE:one=0D=0A=\r\ntwo\r\n",
                                                "LABEL;ENCODING=QUOTED-PRINTABLE:one two\r\n" },
                                           Row{ "SwallowsBlanks", "LABEL;ENCODING=QUOTED-PRINTABLE:one=0D=0A=\r\n  two",
                                                "LABEL;ENCODING=QUOTED-PRINTABLE:one two" },
                                           Row{ "SwallowsTabs", "L:one=0D=0A=\n\t \ttwo", "L:one two" },
                                           Row{ "NoWhiteSpaceAfter", "L:a=0D=0A=\r\nb", "L:a b" },
                                           Row{ "AtTheEnd", "L:a=0D=0A=\r\n", "L:a " },
                                           Row{ "TwiceInARow", "L:a=0D=0A=\r\n=0D=0A=\r\nb", "L:a  b" },
                                           Row{ "EmptyLineAfter", "L:a=0D=0A=\r\n\r\nb", "L:a \r\nb" },
                                           Row{ "LowerCaseHexIsNone", "L:a=0d=0a=\r\nb", "L:a=0d=0a=\r\nb" },
                                           Row{ "WithoutLineBreak", "L:a=0D=0A=b", "L:a=0D=0A=b" },
                                           Row{ "BlankBeforeLineBreak", "L:a=0D=0A= \r\nb", "L:a=0D=0A= \r\nb" },
                                           Row{ "OnlyTheLineFeedEncoded", "L:a=0A=\r\n b", "L:a=0A=\r\n b" },
                                           Row{ "PlainSoftBreakStays", "N;ENCODING=QUOTED-PRINTABLE:;=4B=75=\r\n=6C",
                                                "N;ENCODING=QUOTED-PRINTABLE:;=4B=75=\r\n=6C" } ),
                          NameOf<Row> );

// A line break after "=" is kept, whatever follows. A CR LF is one line break, so its LF alone begins no fold.
INSTANTIATE_TEST_SUITE_P( Protected, InputPreparationRowTest,
                          testing::Values( Row{ "Blank", "N:x=\r\n y", "N:x=\r\n y" },
                                           Row{ "BlanksAndTabs", "N:x=\r\n \t y", "N:x=\r\n \t y" },
                                           Row{ "AtTheEnd", "N:x=\r\n ", "N:x=\r\n " },
                                           Row{ "BareLineFeed", "N:x=\n y", "N:x=\n y" },
                                           Row{ "BareCarriageReturn", "N:x=\r y", "N:x=\r y" },
                                           Row{ "OnlyTheFirstBreak", "N:x=\r\n\r\n y", "N:x=\r\ny" },
                                           Row{ "CarriageReturnThenCrlf", "N:x=\r\r\n y", "N:x=\ry" },
                                           Row{ "CrlfThenLineFeed", "N:x=\r\n\n y", "N:x=\r\ny" },
                                           Row{ "LineFeedThenCarriageReturn", "N:x=\n\r y", "N:x=\ny" },
                                           Row{ "TextBetween", "N:x=y\r\n z", "N:x=yz" } ),
                          NameOf<Row> );

// The encoded breaks are joined first, then the folds are removed. Neither step is repeated.
INSTANTIATE_TEST_SUITE_P(
    Order, InputPreparationRowTest,
    testing::Values( Row{ "JoiningMakesAFold", "L:a\r\n=0D=0A=\r\nb", "L:ab" },
                     Row{ "JoiningMakesAFoldWithMoreBlanks", "L:a\n=0D=0A=\r\n \tb", "L:ab" },
                     Row{ "UnfoldingMakesAnEncodedBreak", "L:a=0D=0A\r\n =\r\nb", "L:a=0D=0A=\r\nb" },
                     Row{ "UnfoldingMakesAnEncodedBreakBeforeBlanks", "L:a=0D=0\r\n A=\r\n b", "L:a=0D=0A=\r\n b" } ),
    NameOf<Row> );

INSTANTIATE_TEST_SUITE_P(
    Bytes, InputPreparationRowTest,
    testing::Values( Row{ "Empty", "", "" }, Row{ "CutAtNul", QByteArrayLiteral( "FN:a\0b\r\n" ), "FN:a" },
                     Row{ "NulFirst", QByteArrayLiteral( "\0FN:a" ), "" },
                     Row{ "NulInsideAFold", QByteArrayLiteral( "FN:a\r\n\0 b" ), "FN:a\r\n" },
                     Row{ "NulAtTheEnd", QByteArrayLiteral( "FN:a\0" ), "FN:a" },
                     Row{ "EveryLengthOfCharacter", "FN:a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\r\n b",
                          "FN:a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"
                          "b" },
                     Row{ "FoldInsideACharacter", "FN:\xC3\r\n \xA9", "FN:\xEF\xBF\xBD\xEF\xBF\xBD" },
                     Row{ "LoneContinuationByte", "FN:a\x80z", "FN:a\xEF\xBF\xBDz" },
                     Row{ "Latin1", "FN:caf\xE9\r\n z", "FN:caf\xEF\xBF\xBDz" },
                     Row{ "CutSequenceAtTheEnd", "FN:a\xC3", "FN:a\xEF\xBF\xBD" },
                     Row{ "OverlongNul", "FN:a\xC0\x80z", "FN:a\xEF\xBF\xBD\xEF\xBF\xBDz" },
                     Row{ "SurrogateHalf", "FN:\xED\xA0\x80", "FN:\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD" },
                     Row{ "NeverUsedBytes", "FN:\xFE\xFFz", "FN:\xEF\xBF\xBD\xEF\xBF\xBDz" },
                     Row{ "ByteOrderMark",
                          "\xEF\xBB\xBF"
                          "FN:a\r\n",
                          "FN:a\r\n" },
                     Row{ "ByteOrderMarkAlone", "\xEF\xBB\xBF", "" },
                     Row{ "SecondByteOrderMarkStays",
                          "\xEF\xBB\xBF\xEF\xBB\xBF"
                          "FN:a",
                          "\xEF\xBB\xBF"
                          "FN:a" },
                     Row{ "ByteOrderMarkInTheMiddleStays",
                          "FN:\xEF\xBB\xBF"
                          "a",
                          "FN:\xEF\xBB\xBF"
                          "a" } ),
    NameOf<Row> );

TEST_P( InputPreparationLineBreakTest, BeforeBlanksIsRemoved )
{
    EXPECT_EQ( Prepared( "A:1" + GetParam().m_bytes + " \t2" ), QByteArray( "A:12" ) );
}

TEST_P( InputPreparationLineBreakTest, BeforeTextIsKept )
{
    const QByteArray text = "A:1" + GetParam().m_bytes + "2";
    EXPECT_EQ( Prepared( text ), text );
}

TEST_P( InputPreparationLineBreakTest, AfterEqualsIsKept )
{
    const QByteArray text = "A:1=" + GetParam().m_bytes + " 2";
    EXPECT_EQ( Prepared( text ), text );
}

TEST_P( InputPreparationLineBreakTest, AfterEncodedBreakBecomesABlank )
{
    EXPECT_EQ( Prepared( "A:1=0D=0A=" + GetParam().m_bytes + "\t 2" ), QByteArray( "A:1 2" ) );
}

INSTANTIATE_TEST_SUITE_P( Kinds, InputPreparationLineBreakTest,
                          testing::Values( LineBreak{ "CrLf", "\r\n" }, LineBreak{ "Cr", "\r" },
                                           LineBreak{ "Lf", "\n" }, LineBreak{ "VerticalTab", "\v" },
                                           LineBreak{ "FormFeed", "\f" }, LineBreak{ "NextLine", "\xC2\x85" },
                                           LineBreak{ "LineSeparator", "\xE2\x80\xA8" },
                                           LineBreak{ "ParagraphSeparator", "\xE2\x80\xA9" } ),
                          NameOf<LineBreak> );

TEST( InputPreparationTest, OtherControlCharactersAreNoLineBreaks )
{
    for ( const char* control : { "\b", "\x1C", "\x1D", "\x1E", "\x1F", "\x7F", "\xC2\x84", "\xE2\x80\xA7" } )
    {
        const QByteArray text = QByteArray( "A:1" ) + control + " 2";
        EXPECT_EQ( Prepared( text ), text );
    }
}

TEST( InputPreparationTest, NullArrayYieldsEmptyData )
{
    EXPECT_EQ( Prepared( QByteArray() ), QByteArray( "" ) );
}

TEST( InputPreparationTest, CallersArrayIsUnchanged )
{
    const char* const text = "A:1\r\n 2=0D=0A=\r\n3";
    const QByteArray input( text );
    EXPECT_EQ( Prepared( input ), QByteArray( "A:12 3" ) );
    EXPECT_EQ( input, QByteArray( text ) );
}

TEST( InputPreparationTest, CallersArrayMayChangeAfterwards )
{
    QByteArray input( "A:1\r\n 2" );
    const PimVCardParser parser( input );
    input.fill( 'x' );
    EXPECT_EQ( PimVCardParserInspector( parser ).Data(), QByteArray( "A:12" ) );
}

TEST( InputPreparationTest, RawArrayIsReadToItsSizeOnly )
{
    const std::string bytes = "FN:abcdef";
    EXPECT_EQ( Prepared( QByteArray::fromRawData( bytes.data(), 5 ) ), QByteArray( "FN:ab" ) );
}

TEST( InputPreparationTest, RawArrayNeedsNoTrailingNul )
{
    const std::vector<char> bytes = { 'F', 'N', ':', 'a', '\r', '\n', ' ', 'b' };
    const auto size = static_cast<int>( bytes.size() );
    EXPECT_EQ( Prepared( QByteArray::fromRawData( bytes.data(), size ) ), QByteArray( "FN:ab" ) );
}

TEST( InputPreparationTest, RawArrayMayChangeAfterwards )
{
    std::vector<char> bytes = { 'F', 'N', ':', 'a' };
    const PimVCardParser parser( QByteArray::fromRawData( bytes.data(), static_cast<int>( bytes.size() ) ) );
    std::fill( bytes.begin(), bytes.end(), 'x' );
    EXPECT_EQ( PimVCardParserInspector( parser ).Data(), QByteArray( "FN:a" ) );
    EXPECT_EQ( Escaped( PimVCardParserInspector( parser ).Lexer().m_stream.readAll() ), "\"FN:a\"" );
}

TEST( InputPreparationTest, ScannerReadsThePreparedText )
{
    const PimVCardParser parser( "BE\r\n GIN:VCARD\r\n" );
    const PimVCardParserInspector inspector( parser );
    PimVCardLexer& lexer = inspector.Lexer();
    EXPECT_EQ( lexer.m_lineNumber, 1 );
    EXPECT_EQ( lexer.m_nextChar, QChar() );
    EXPECT_EQ( lexer.GetToken( QRegularExpression( s_kNamePattern ), false ), Text( "BEGIN" ) );
    EXPECT_EQ( lexer.m_lineNumber, 1 );
}

TEST( InputPreparationTest, BigTextIsPreparedWhole )
{
    constexpr int s_kLines = 20000;
    const QByteArray folded = "NOTE:caf\xC3\xA9 one=0D=0A=\r\n two\r\n  three=\r\n four\r\n";
    const QByteArray joined = "NOTE:caf\xC3\xA9 one twothree=\r\n four\r\n";
    const QByteArray prepared = Prepared( folded.repeated( s_kLines ) );
    EXPECT_EQ( prepared.size(), joined.size() * s_kLines );
    EXPECT_TRUE( prepared == joined.repeated( s_kLines ) );
}

} // namespace PimManager::vCard
