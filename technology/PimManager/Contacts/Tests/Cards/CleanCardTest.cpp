#include "Cards/CleanCard.h"

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

struct CleanRow
{
    const char* m_name;
    // Between BEGIN and END, with LF.
    std::string m_lines;
    bool m_isClean;
};

std::ostream& operator<<( std::ostream& a_stream, const CleanRow& a_row )
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

class CleanCardTest : public ::testing::TestWithParam<CleanRow>
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

void ExpectTheIndexOfLogicalLines( const CleanCard& a_card, const std::string& a_text, size_t a_lineEnd )
{
    const LineFilter filter{ PimContactOptions() };
    LogicalLines lines( filter, 0 );
    lines.Begin( 0, 0 );
    const auto beginLength = static_cast<quint32>( s_kBeginLength + a_lineEnd );
    const auto endLength = static_cast<quint32>( s_kEndLength + a_lineEnd );
    const auto end = static_cast<quint32>( a_text.size() ) - endLength;
    lines.WriteBoundary( beginLength, false );
    TakeAllLines( lines, std::string_view( a_text ).substr( 0, end ), beginLength );
    lines.WriteBlankUpTo( end );
    lines.WriteBoundary( endLength, false );
    EXPECT_EQ( Copied( a_card.Index() ), Copied( lines.Index().Bytes() ) );
    const CardFacts& found = a_card.Facts();
    const CardFacts& expected = lines.Facts();
    EXPECT_EQ( found.m_parts, expected.m_parts );
    EXPECT_EQ( found.m_bytes, expected.m_bytes );
    EXPECT_EQ( found.m_version, expected.m_version );
    EXPECT_EQ( found.m_isWide, expected.m_isWide );
    EXPECT_EQ( found.m_folds.IsByLength(), expected.m_folds.IsByLength() );
    EXPECT_TRUE( expected.m_isValidUtf8 );
    EXPECT_FALSE( expected.m_isOdd || expected.m_isDropped || expected.m_isFiltered || expected.m_mayBeShifted );
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, CleanCardTest,
    ::testing::Values(
        CleanRow{ "Empty", "", true }, CleanRow{ "Properties", "VERSION:3.0\nFN:a\nitem1.TEL;TYPE=home:1\n", true },
        CleanRow{ "EmptyLines", "\nFN:a\n\n\nN:b\n\n", true },
        CleanRow{ "Folds", "VERSION:2.1\nNOTE:a\n b\n\tc\nFN:a\n", true },
        CleanRow{ "FoldOfWhiteSpace", "NOTE:a\n \n", true }, CleanRow{ "Wide", "FN:\xC3\xA9\nN:b\n", true },
        CleanRow{ "FoldInsideACharacter", "NOTE:a\xC3\n \xA9\nN:b\n", true },
        CleanRow{ "Base64", "PHOTO;ENCODING=b:AAAA\n AAA=\nN:b\n", true },
        CleanRow{ "SoftBreaks", "NOTE;QUOTED-PRINTABLE:a=\n=0D=0A=\nb\nFN:a\n", true },
        CleanRow{ "KnownEscapes", "NOTE:a\\, b\\nc\n", true },
        CleanRow{ "BackslashInVersion21", "VERSION:2.1\nNOTE:a\\b\n", true }, CleanRow{ "EmptyValue", "TEL:\n", true },
        CleanRow{ "ValueThatNamesABoundary", "NOTE:END:VCARD\n", true },
        CleanRow{ "SoftBreakBeforeABlank", "NOTE;QUOTED-PRINTABLE:a=\n b\n", false },
        CleanRow{ "SoftBreakBeforeAProperty", "NOTE;QUOTED-PRINTABLE:a=\nTEL:1\n", false },
        CleanRow{ "SoftBreakAtTheEnd", "NOTE;QUOTED-PRINTABLE:a=\n", false },
        CleanRow{ "SoftBreakWithBlank", "NOTE;QUOTED-PRINTABLE:a= \nb\n", false },
        CleanRow{ "EqualsOfPlainText", "NOTE:a=\nFN:a\n", false }, CleanRow{ "NoProperty", "FN:a\nmore\n", false },
        CleanRow{ "Comment", "#\n", false }, CleanRow{ "FoldFirst", " a\nFN:a\n", false },
        CleanRow{ "FoldBehindAnEmptyLine", "NOTE:a\n\n b\n", false },
        CleanRow{ "NestedCard", "AGENT:\nBEGIN:VCARD\n", false }, CleanRow{ "Agent", "AGENT:a\n", false },
        CleanRow{ "IndentedEnd", "FN:a\n END:VCARD\n", false }, CleanRow{ "UnknownEscape", "NOTE:a\\b\n", false },
        CleanRow{ "UnknownEscapeAcrossAFold", "NOTE:a\\\n b\n", false }, CleanRow{ "NotUtf8", "FN:\xE9\n", false },
        CleanRow{ "ControlCharacter", "FN:a\x01\n", false }, CleanRow{ "BlankBeforeTheColon", "FN :a\n", false },
        CleanRow{ "ByteOrderMark",
                  "\xEF\xBB\xBF"
                  "FN:a\n",
                  false } ),
    []( const ::testing::TestParamInfo<CleanRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CleanCardTest, CleanCardsAreReadWhole )
{
    CleanCard card;
    for ( const LineEndRow& lineEnd : LineEnds() )
    {
        SCOPED_TRACE( lineEnd.m_name );
        const std::string text = WithLineEnd( "BEGIN:VCARD\n" + GetParam().m_lines + "END:VCARD\n", lineEnd.m_lineEnd );
        // A lone CR ends a line only where no LF follows, so something must follow.
        const quint32 length = card.Read( text + "BEGIN:VCARD", lineEnd.m_kind );
        ASSERT_EQ( length, GetParam().m_isClean ? text.size() : 0U );
        if ( length == 0 )
            continue;
        ExpectTheIndexOfLogicalLines( card, text, lineEnd.m_lineEnd.size() );
        const std::string lines = "BEGIN:VCARD\n" + GetParam().m_lines + "END:VCARD\n";
        EXPECT_EQ( card.Lines(), std::count( lines.begin(), lines.end(), '\n' ) );
    }
}

TEST( CleanCardUseTest, EndMustHaveComeWhole )
{
    const std::string text = "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\n";
    CleanCard card;
    for ( size_t length = s_kBeginLength + 2; length < text.size(); ++length )
        EXPECT_EQ( card.Read( text.substr( 0, length ), PimContactLineEnd::CrLf ), 0U ) << length;
    EXPECT_EQ( card.Read( text, PimContactLineEnd::CrLf ), text.size() );
}

TEST( CleanCardUseTest, OneOtherLineEndIsNotClean )
{
    const std::string text = "BEGIN:VCARD\r\nFN:a\r\nN:b\r\nEND:VCARD\r\n";
    CleanCard card;
    for ( const char* const other : { "\n", "\r", "\r\r\n" } )
    {
        for ( size_t end = text.find( '\r', s_kBeginLength + 2 ); end != std::string::npos;
              end = text.find( '\r', end + 1 ) )
        {
            const std::string changed = text.substr( 0, end ) + other + text.substr( end + 2 ) + "a";
            EXPECT_EQ( card.Read( changed, PimContactLineEnd::CrLf ), 0U ) << ::testing::PrintToString( changed );
        }
    }
}

} // namespace PimManager::Contacts
