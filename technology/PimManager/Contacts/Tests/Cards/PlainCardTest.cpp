#include "Cards/PlainCard.h"

#include "CardLines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct PlainRow
{
    const char* m_name;
    // Between BEGIN and END, with LF.
    std::string m_lines;
    bool m_isPlain;
};

std::ostream& operator<<( std::ostream& a_stream, const PlainRow& a_row )
{
    return a_stream << a_row.m_name;
}

constexpr size_t s_kBeginLength = 11;
constexpr size_t s_kEndLength = 9;

std::string WithLineEnd( const std::string& a_text, const std::string& a_lineEnd )
{
    std::string text;
    for ( const char byte : a_text )
        text += byte == '\n' ? a_lineEnd : std::string( 1, byte );
    return text;
}

std::vector<uchar> Copied( IndexBytes a_bytes )
{
    return std::vector<uchar>( a_bytes.m_data, a_bytes.m_data + a_bytes.m_size );
}

// The line endings in a text are of one length.
qint64 LinesIn( std::string_view a_text, size_t a_lineEnd )
{
    const auto bytes = std::count_if( a_text.begin(), a_text.end(), IsLineEndByte );
    return static_cast<qint64>( static_cast<size_t>( bytes ) / a_lineEnd );
}

class PlainCardTest : public ::testing::TestWithParam<PlainRow>
{
};

struct LineEndRow
{
    const char* m_name;
    std::string m_lineEnd;
    PimContactLineEnd m_kind;
};

std::vector<LineEndRow> LineEnds()
{
    return { { "CR LF", "\r\n", PimContactLineEnd::CrLf },
             { "LF", "\n", PimContactLineEnd::Lf },
             { "CR", "\r", PimContactLineEnd::Cr },
             { "CR CR LF", "\r\r\n", PimContactLineEnd::CrCrLf } };
}

void ExpectSameFacts( const CardFacts& a_found, const CardFacts& a_expected )
{
    EXPECT_EQ( a_found.m_parts, a_expected.m_parts );
    EXPECT_EQ( a_found.m_bytes, a_expected.m_bytes );
    EXPECT_EQ( a_found.m_oddLines, a_expected.m_oddLines );
    EXPECT_EQ( a_found.m_mendedBoundaries, a_expected.m_mendedBoundaries );
    EXPECT_EQ( a_found.m_version, a_expected.m_version );
    EXPECT_EQ( a_found.m_isWide, a_expected.m_isWide );
    EXPECT_EQ( a_found.m_isValidUtf8, a_expected.m_isValidUtf8 );
    EXPECT_EQ( a_found.m_mayBeShifted, a_expected.m_mayBeShifted );
    EXPECT_EQ( a_found.m_folds.IsByLength(), a_expected.m_folds.IsByLength() );
    EXPECT_FALSE( a_expected.HasOddParts() || a_expected.m_isDropped || a_expected.m_isFiltered );
}

// Reads all lines of a text with LogicalLines, from the state of a plain card on, or from the BEGIN line.
void ReadOn( LogicalLines& a_lines, const std::string& a_text, quint32 a_begin, quint32 a_endLength )
{
    const auto end = static_cast<quint32>( a_text.size() ) - a_endLength;
    TakeAllLines( a_lines, std::string_view( a_text ).substr( 0, end ), a_begin );
    a_lines.WriteBlankUpTo( end );
    a_lines.WriteBoundary( a_endLength, false );
}

void ExpectTheIndexOfLogicalLines( const PlainCard& a_card, const std::string& a_text, size_t a_lineEnd )
{
    const LineFilter filter{ PimContactOptions() };
    LogicalLines lines( filter, 0 );
    lines.Begin( 0, 0 );
    const auto beginLength = static_cast<quint32>( s_kBeginLength + a_lineEnd );
    lines.WriteBoundary( beginLength, false );
    ReadOn( lines, a_text, beginLength, static_cast<quint32>( s_kEndLength + a_lineEnd ) );
    EXPECT_EQ( Copied( a_card.Index() ), Copied( lines.Index().Bytes() ) );
    ExpectSameFacts( a_card.Facts(), lines.Facts() );
}

// The longer road, from where the short one ends, and all of it.
void ExpectTheSameFromThereOn( PlainCard& a_card, const std::string& a_text, size_t a_lineEnd )
{
    const LineFilter filter{ PimContactOptions() };
    const auto endLength = static_cast<quint32>( s_kEndLength + a_lineEnd );
    const auto beginLength = static_cast<quint32>( s_kBeginLength + a_lineEnd );
    LogicalLines all( filter, 0 );
    all.Begin( 0, 0 );
    all.WriteBoundary( beginLength, false );
    ReadOn( all, a_text, beginLength, endLength );
    LogicalLines rest( filter, 0 );
    rest.Begin( 0, 0 );
    const std::string_view closed = std::string_view( a_text ).substr( 0, a_card.BytesClosed() );
    EXPECT_EQ( a_card.LinesClosed(), LinesIn( closed, a_lineEnd ) );
    const CardFacts facts = a_card.FactsClosed();
    rest.Continue( a_card.Writer(), facts, a_card.BytesClosed() );
    ReadOn( rest, a_text, a_card.BytesClosed(), endLength );
    EXPECT_EQ( Copied( rest.Index().Bytes() ), Copied( all.Index().Bytes() ) );
    EXPECT_EQ( rest.Facts().m_parts, all.Facts().m_parts );
    EXPECT_EQ( rest.Facts().m_oddLines, all.Facts().m_oddLines );
    EXPECT_EQ( rest.Facts().m_isValidUtf8, all.Facts().m_isValidUtf8 );
    EXPECT_EQ( rest.Facts().m_folds.IsByLength(), all.Facts().m_folds.IsByLength() );
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, PlainCardTest,
    ::testing::Values(
        PlainRow{ "Empty", "", true }, PlainRow{ "Properties", "VERSION:3.0\nFN:a\nitem1.TEL;TYPE=home:1\n", true },
        PlainRow{ "EmptyLines", "\nFN:a\n\n\nN:b\n\n", true },
        PlainRow{ "Folds", "VERSION:2.1\nNOTE:a\n b\n\tc\nFN:a\n", true },
        PlainRow{ "FoldOfWhiteSpace", "NOTE:a\n \n", true }, PlainRow{ "Wide", "FN:\xC3\xA9\nN:b\n", true },
        PlainRow{ "FoldInsideACharacter", "NOTE:a\xC3\n \xA9\nN:b\n", true },
        PlainRow{ "Base64", "PHOTO;ENCODING=b:AAAA\n AAA=\nN:b\n", true },
        PlainRow{ "SoftBreaks", "NOTE;QUOTED-PRINTABLE:a=\n=0D=0A=\nb\nFN:a\n", true },
        PlainRow{ "KnownEscapes", "NOTE:a\\, b\\nc\n", true },
        PlainRow{ "BackslashInVersion21", "VERSION:2.1\nNOTE:a\\b\n", true }, PlainRow{ "EmptyValue", "TEL:\n", true },
        PlainRow{ "ValueThatNamesABoundary", "NOTE:END:VCARD\n", true },
        PlainRow{ "SoftBreakBeforeABlank", "NOTE;QUOTED-PRINTABLE:a=\n b\n", false },
        PlainRow{ "SoftBreakBeforeAProperty", "NOTE;QUOTED-PRINTABLE:a=\nTEL:1\n", false },
        PlainRow{ "SoftBreakAtTheEnd", "NOTE;QUOTED-PRINTABLE:a=\n", false },
        PlainRow{ "SoftBreakWithBlank", "NOTE;QUOTED-PRINTABLE:a= \nb\n", false },
        PlainRow{ "EqualsOfPlainText", "NOTE:a=\nFN:a\n", false }, PlainRow{ "NoProperty", "FN:a\nmore\n", false },
        PlainRow{ "Comment", "#\n", false }, PlainRow{ "FoldFirst", " a\nFN:a\n", false },
        PlainRow{ "FoldBehindAnEmptyLine", "NOTE:a\n\n b\n", false },
        PlainRow{ "NestedCard", "AGENT:\nBEGIN:VCARD\n", false }, PlainRow{ "Agent", "AGENT:a\n", false },
        PlainRow{ "IndentedEnd", "FN:a\n END:VCARD\n", false }, PlainRow{ "UnknownEscape", "NOTE:a\\b\n", true },
        PlainRow{ "UnknownEscapeAcrossAFold", "NOTE:a\\\n b\n", true }, PlainRow{ "NotUtf8", "FN:\xE9\n", true },
        PlainRow{ "ControlCharacter", "FN:a\x01\n", true }, PlainRow{ "BlankBeforeTheColon", "FN :a\n", true },
        PlainRow{ "OddLines", "N;;X_1=a :\x01\\q\nTEL; TYPE=a :1\n", true },
        PlainRow{ "GapInTheName", ".TEL:1\nN ;HOME:a\n", true }, PlainRow{ "Shifted", "FN:\x1B$B\n", true },
        PlainRow{ "NotUtf8AcrossAFold", "FN:\xC3\n a\nN:\xC3\xA9\n", true },
        PlainRow{ "FoldsByLength",
                  "VERSION:2.1\nNOTE:" + std::string( 70, 'a' ) + "\n " + std::string( 74, 'b' ) + "\n c\nN:a\n",
                  true },
        PlainRow{ "FoldsByLengthBeforeText",
                  "VERSION:2.1\nNOTE:" + std::string( 70, 'a' ) + "\n c\nmore\nNOTE:" + std::string( 70, 'a' ) +
                      "\n c\n",
                  false },
        // Two folds of this length would be folds by length, and one is not.
        PlainRow{ "OneFoldBeforeText", "VERSION:2.1\nNOTE:" + std::string( 67, 'a' ) + "\n c\nmore\n", false },
        PlainRow{ "OddNameBehindFolds", "VERSION:2.1\nNOTE:a\n c\nTEL x y:1\n", false },
        PlainRow{ "OpenQuoteBeforeAFold", "TEL;X=\"a:1\n b\":2\n", false },
        PlainRow{ "WordsForParameters", "NOTE:a\nThird; and so on: text\n", false },
        PlainRow{ "WideBeforeText", "NOTE:\xC3\nmore\nN:\xC3\xA9\n", false },
        PlainRow{ "ByteOrderMark",
                  "\xEF\xBB\xBF"
                  "FN:a\n",
                  false } ),
    []( const ::testing::TestParamInfo<PlainRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( PlainCardTest, PlainCardsAreReadWhole )
{
    PlainCard card;
    for ( const LineEndRow& lineEnd : LineEnds() )
    {
        SCOPED_TRACE( lineEnd.m_name );
        const std::string text = WithLineEnd( "BEGIN:VCARD\n" + GetParam().m_lines + "END:VCARD\n", lineEnd.m_lineEnd );
        // A lone CR ends a line only where no LF follows, so something must follow.
        const std::string all = text + "BEGIN:VCARD";
        ASSERT_TRUE( card.Begin( all ) );
        EXPECT_EQ( card.LineEnd(), lineEnd.m_kind );
        const PlainCard::Result result = card.Read( all );
        ASSERT_EQ( result, GetParam().m_isPlain ? PlainCard::Result::Whole : PlainCard::Result::NotPlain );
        if ( result == PlainCard::Result::NotPlain )
        {
            ExpectTheSameFromThereOn( card, text, lineEnd.m_lineEnd.size() );
            continue;
        }
        EXPECT_EQ( card.BytesClosed(), text.size() );
        ExpectTheIndexOfLogicalLines( card, text, lineEnd.m_lineEnd.size() );
        const std::string lines = "BEGIN:VCARD\n" + GetParam().m_lines + "END:VCARD\n";
        EXPECT_EQ( card.Lines(), std::count( lines.begin(), lines.end(), '\n' ) );
    }
}

TEST_P( PlainCardTest, BytesMayComeOneByOne )
{
    const std::string text = "BEGIN:VCARD\n" + GetParam().m_lines + "END:VCARD\n";
    PlainCard whole;
    ASSERT_TRUE( whole.Begin( text ) );
    const PlainCard::Result expected = whole.Read( text );
    PlainCard card;
    PlainCard::Result result = PlainCard::Result::Open;
    for ( size_t length = s_kBeginLength + 1; result == PlainCard::Result::Open; ++length )
    {
        ASSERT_LE( length, text.size() );
        // Elsewhere each time, as in a buffer that grows.
        const std::vector<char> part( text.begin(), text.begin() + static_cast<std::ptrdiff_t>( length ) );
        const std::string_view view( part.data(), part.size() );
        if ( length == s_kBeginLength + 1 )
        {
            ASSERT_TRUE( card.Begin( view ) );
        }
        result = card.Read( view );
    }
    EXPECT_EQ( result, expected );
    EXPECT_EQ( card.BytesClosed(), whole.BytesClosed() );
    EXPECT_EQ( card.LinesClosed(), whole.LinesClosed() );
    EXPECT_EQ( Copied( card.Index() ), Copied( whole.Index() ) );
    ExpectSameFacts( card.FactsClosed(), whole.FactsClosed() );
}

TEST( PlainCardUseTest, EndMustHaveComeWhole )
{
    const std::string text = "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\n";
    PlainCard card;
    for ( size_t length = 0; length <= text.size(); ++length )
    {
        const std::string part = text.substr( 0, length );
        const bool isBegun = card.Begin( part );
        EXPECT_EQ( isBegun, length >= s_kBeginLength + 2 ) << length;
        if ( !isBegun )
            continue;
        EXPECT_EQ( card.Read( part ), length == text.size() ? PlainCard::Result::Whole : PlainCard::Result::Open )
            << length;
    }
}

struct BeginRow
{
    const char* m_line;
    bool m_isPlain;
    bool m_isMended;
};

TEST( PlainCardUseTest, BeginMayHaveBlanksAfterIt )
{
    for ( const BeginRow& row :
          { BeginRow{ "BEGIN:VCARD", true, false }, BeginRow{ "begin:vcard", true, false },
            BeginRow{ "BEGIN:VCARD \t", true, true }, BeginRow{ "BEGIN :VCARD", true, true },
            BeginRow{ " BEGIN:VCARD", false, false }, BeginRow{ "item1.BEGIN:VCARD", false, false },
            BeginRow{ "BEGIN;X=1:VCARD", false, false }, BeginRow{ "BEGIN:VCARD text", false, false },
            BeginRow{ "BEGIN:VCARDx", false, false }, BeginRow{ "BDAY:2000", false, false } } )
    {
        const std::string text = row.m_line + std::string( "\nEND:VCARD\n" );
        PlainCard card;
        ASSERT_EQ( card.Begin( text ), row.m_isPlain ) << row.m_line;
        if ( !row.m_isPlain )
            continue;
        EXPECT_EQ( card.Read( text ), PlainCard::Result::Whole ) << row.m_line;
        EXPECT_EQ( card.BytesClosed(), text.size() ) << row.m_line;
        EXPECT_EQ( card.Facts().m_mendedBoundaries, row.m_isMended ? 1U : 0U ) << row.m_line;
    }
}

TEST( PlainCardUseTest, EndMayHaveBlanksAfterIt )
{
    const std::string text = "BEGIN:VCARD\nFN:a\nEND:VCARD  \n";
    PlainCard card;
    ASSERT_TRUE( card.Begin( text ) );
    EXPECT_EQ( card.Read( text ), PlainCard::Result::Whole );
    EXPECT_EQ( card.BytesClosed(), text.size() );
    EXPECT_EQ( card.Facts().m_mendedBoundaries, 1U );
}

TEST( PlainCardUseTest, OneOtherLineEndIsNotPlain )
{
    const std::string text = "BEGIN:VCARD\r\nFN:a\r\nN:b\r\nEND:VCARD\r\n";
    PlainCard card;
    for ( const char* const other : { "\n", "\r", "\r\r\n" } )
    {
        for ( size_t end = text.find( '\r', s_kBeginLength + 2 ); end != std::string::npos;
              end = text.find( '\r', end + 1 ) )
        {
            const std::string changed = text.substr( 0, end ) + other + text.substr( end + 2 ) + "a";
            ASSERT_TRUE( card.Begin( changed ) );
            EXPECT_EQ( card.Read( changed ), PlainCard::Result::NotPlain ) << ::testing::PrintToString( changed );
        }
    }
}

TEST( PlainCardUseTest, NothingIsLeftOfACardThatWasNotPlain )
{
    const std::string first = "BEGIN:VCARD\nNOTE:\xC3\nmore\nEND:VCARD\n";
    const std::string second = "BEGIN:VCARD\nFN:\xC3\xA9\nEND:VCARD\n";
    PlainCard card;
    ASSERT_TRUE( card.Begin( first ) );
    ASSERT_EQ( card.Read( first ), PlainCard::Result::NotPlain );
    ASSERT_TRUE( card.Begin( second ) );
    EXPECT_EQ( card.Read( second ), PlainCard::Result::Whole );
    EXPECT_TRUE( card.Facts().m_isValidUtf8 );
}

} // namespace PimManager::Contacts
