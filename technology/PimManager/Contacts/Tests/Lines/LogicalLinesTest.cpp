#include "Lines/LogicalLines.h"

#include "CardLines.h"
#include "Lines/LinePieces.h"
#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct LinesRow
{
    const char* m_name;
    std::string m_text;
    // Each entry with its length: of a line the name, the value with "|" for line feeds, and the oddities; of a dropped
    // part the reason.
    std::string m_entries;
};

std::ostream& operator<<( std::ostream& a_stream, const LinesRow& a_row )
{
    return a_stream << a_row.m_name;
}

struct OddityName
{
    PimContactOddity m_oddity;
    const char* m_name;
};

std::string NamesOf( PimContactOddities a_oddities )
{
    static const std::array<OddityName, 7> names = { { { PimContactOddity::LineJoined, " joined" },
                                                       { PimContactOddity::SoftLineBreak, " soft" },
                                                       { PimContactOddity::Base64Lines, " base64" },
                                                       { PimContactOddity::ControlCharacters, " controls" },
                                                       { PimContactOddity::NameBlanks, " blanks" },
                                                       { PimContactOddity::OddName, " name" },
                                                       { PimContactOddity::UnknownEscape, " escape" } } };
    std::string text;
    for ( const OddityName& name : names )
        text += a_oddities.testFlag( name.m_oddity ) ? name.m_name : "";
    return text;
}

std::string LineText( std::string_view a_bytes, const IndexEntry& a_entry )
{
    const std::string_view line = WithoutLineEnd( a_bytes );
    const auto unfolded = [&]( ByteRange a_range ) {
        return Unfolded( line, a_entry, PimContactFoldStyle::BlankRemoved, a_range ).replace( '\n', '|' ).toStdString();
    };
    const auto length = static_cast<quint32>( line.size() );
    const quint32 begin = std::min( a_entry.m_valueBegin, length );
    const std::string colon = a_entry.m_hasColon ? "=" : " without colon ";
    return unfolded( a_entry.m_name ) + colon + unfolded( { begin, length - begin } ) + NamesOf( a_entry.m_oddities );
}

std::string EntriesOf( const LogicalLines& a_lines, std::string_view a_text )
{
    static const std::array<const char*, s_kEntryKinds> kinds = { "Line",     "Boundary", "Blank", "Dropped",
                                                                  "Filtered", "Mark",     "Nested" };
    static const std::array<const char*, 5> reasons = { "NotAProperty", "Comment", "LineTooLong", "NestingTooDeep",
                                                        "BoundaryText" };
    std::string text;
    quint32 place = 0;
    IndexEntry entry;
    const IndexBytes index = a_lines.Index().Bytes();
    for ( IndexReader reader( index.m_data, 0, index.m_size ); !reader.AtEnd(); place += entry.m_length )
    {
        reader.Next( entry );
        text += text.empty() ? "" : "; ";
        text += std::string( kinds[static_cast<size_t>( entry.m_kind )] ) + ' ' + std::to_string( entry.m_length );
        if ( entry.m_kind == EntryKind::Line )
            text += ' ' + LineText( a_text.substr( place, entry.m_length ), entry );
        if ( entry.m_kind == EntryKind::Dropped )
            text += std::string( " " ) + reasons[static_cast<size_t>( entry.m_reason )];
    }
    EXPECT_EQ( place, a_lines.Written() );
    return text;
}

struct Wishes
{
    QList<QByteArray> m_names;
    qint64 m_mostLineBytes = 0;
    quint32 m_indentation = 0;
};

std::string Read( const std::string& a_text, const Wishes& a_wishes )
{
    PimContactOptions options;
    options.SetNames( a_wishes.m_names );
    const LineFilter filter( options );
    LogicalLines lines( filter, a_wishes.m_mostLineBytes );
    lines.Begin( 0, a_wishes.m_indentation );
    TakeAllLines( lines, a_text );
    lines.WriteBlankUpTo( static_cast<quint32>( a_text.size() ) );
    return EntriesOf( lines, a_text );
}

CardFacts FactsOf( const std::string& a_text )
{
    const LineFilter filter{ PimContactOptions() };
    LogicalLines lines( filter, 0 );
    lines.Begin( 0, 0 );
    TakeAllLines( lines, a_text );
    return lines.Facts();
}

const std::string s_kEncodedNote = "NOTE;ENCODING=QUOTED-PRINTABLE:"; // 31 bytes

// Two soft line breaks before one blank each, after lines of these lengths.
std::string BlankBreaks( size_t a_first, size_t a_second )
{
    return s_kEncodedNote + std::string( a_first - 32, 'a' ) + "=\n " + std::string( a_second - 2, 'b' ) + "=\n c\n";
}

std::string Letters( size_t a_first, const char* a_between, size_t a_second )
{
    return std::string( a_first, 'a' ) + a_between + std::string( a_second, 'b' ) + a_between + 'c';
}

class LogicalLinesTest : public ::testing::TestWithParam<LinesRow>
{
};

struct WishRow
{
    const char* m_name;
    Wishes m_wishes;
    std::string m_text;
    std::string m_entries;
};

std::ostream& operator<<( std::ostream& a_stream, const WishRow& a_row )
{
    return a_stream << a_row.m_name;
}

class LogicalLinesWishTest : public ::testing::TestWithParam<WishRow>
{
};

struct VersionRow
{
    const char* m_name;
    const char* m_value;
    PimContactVersion m_version;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, LogicalLinesTest,
    ::testing::Values(
        LinesRow{ "Nothing", "", "" }, LinesRow{ "OneProperty", "FN:a\r\n", "Line 6 FN=a" },
        LinesRow{ "NoLineEnd", "FN:a", "Line 4 FN=a" },
        LinesRow{ "Fold", "NOTE:a\r\n b\r\n\tc\r\n", "Line 16 NOTE=abc" },
        LinesRow{ "FoldedName", "NO\n TE:a\n", "Line 9 NOTE=a" },
        LinesRow{ "BlankRun", "FN:a\n\n \nN:b\n\n", "Line 5 FN=a; Blank 3; Line 4 N=b; Blank 1" },
        LinesRow{ "WhiteSpaceFirst", " \nFN:a\n", "Blank 2; Line 5 FN=a" },
        LinesRow{ "WhiteSpaceBehindAProperty", "FN:a\n \nN:b\n", "Line 7 FN=a; Line 4 N=b" },
        LinesRow{ "TextBehindNote", "NOTE:a\nmore\n", "Line 12 NOTE=a|more joined" },
        LinesRow{ "EmptyLinesBecomeLineFeeds", "NOTE:a\n\n\nmore\n", "Line 14 NOTE=a|||more joined" },
        LinesRow{ "AtMostThreeLineFeeds", "NOTE:a\n\n\n\n\n\nmore\n", "Line 17 NOTE=a|||more joined" },
        LinesRow{ "FoldBehindAnEmptyLine", "NOTE:a\n\n b\n", "Line 11 NOTE=ab joined" },
        LinesRow{ "FoldOfJoinedText", "NOTE:a\nb\n c\n", "Line 12 NOTE=a|bc joined" },
        LinesRow{ "TextBehindNumber", "TEL:1\nmore\n", "Line 6 TEL=1; Dropped 5 NotAProperty" },
        LinesRow{ "LostFold", "TEL:" + std::string( 71, '1' ) + "\n22\n",
                  "Line 79 TEL=" + std::string( 71, '1' ) + "22 joined" },
        LinesRow{ "LineTooShortForALostFold", "TEL:" + std::string( 65, '1' ) + "\n22\n",
                  "Line 70 TEL=" + std::string( 65, '1' ) + "; Dropped 3 NotAProperty" },
        LinesRow{ "TextFirst", "garbage\n\nFN:a\n", "Dropped 8 NotAProperty; Blank 1; Line 5 FN=a" },
        LinesRow{ "CommentBehindName", "FN:a\n# b\nN:b\n", "Line 5 FN=a; Dropped 4 Comment; Line 4 N=b" },
        LinesRow{ "CommentBehindNote", "NOTE:a\n# b\n", "Line 11 NOTE=a|# b joined" },
        LinesRow{ "CommentFirst", "#\nFN:a\n", "Dropped 2 Comment; Line 5 FN=a" },
        LinesRow{ "NoColon", "TEL\nFN:a\n", "Line 4 TEL without colon ; Line 5 FN=a" },
        LinesRow{ "NoColonButBlanks", "TEL \t\nNOTE \nmore\n",
                  "Line 6 TEL without colon  blanks; Line 11 NOTE without colon more joined blanks" },
        LinesRow{ "SoftBreak", s_kEncodedNote + "a=\nb\n", "Line 36 NOTE=ab" },
        LinesRow{ "OneSoftBreakBeforeABlank", s_kEncodedNote + "a=\n b\n", "Line 37 NOTE=a b" },
        LinesRow{ "SoftBreakWithBlanks", s_kEncodedNote + "a= \nb\n", "Line 37 NOTE=ab soft" },
        LinesRow{ "SoftBreakBeforeAProperty", s_kEncodedNote + "a=\nTEL:1\n", "Line 34 NOTE=a soft; Line 6 TEL=1" },
        LinesRow{ "SoftBreakAtTheEnd", s_kEncodedNote + "a=\n", "Line 34 NOTE=a soft" },
        LinesRow{ "SoftBreakBeforeTextWithColon", s_kEncodedNote + "a=\nb: c\n", "Line 39 NOTE=ab: c" },
        LinesRow{ "EncodedLineBreakOfPlainText", "NOTE:a=0D=0A=\nb\n", "Line 16 NOTE=a=0D=0Ab" },
        LinesRow{ "EncodedLineBreakOfPlainTextBeforeAProperty", "NOTE:a=0D=0A=\nTEL:1\n",
                  "Line 14 NOTE=a=0D=0A=; Line 6 TEL=1" },
        LinesRow{ "EqualsOfPlainText", "NOTE:a=\nb\n", "Line 10 NOTE=a=|b joined" },
        LinesRow{ "SoftBreaksThatTakeTheBlank", BlankBreaks( 70, 78 ), "Line 153 NOTE=" + Letters( 38, "", 76 ) },
        LinesRow{ "FirstSoftBreakTooShort", BlankBreaks( 69, 75 ), "Line 149 NOTE=" + Letters( 37, " ", 73 ) },
        LinesRow{ "SecondSoftBreakTooLong", BlankBreaks( 75, 79 ), "Line 159 NOTE=" + Letters( 43, " ", 77 ) },
        LinesRow{ "Base64", "PHOTO;ENCODING=b:AAAA\nBBBB\nN:x\n", "Line 27 PHOTO=AAAABBBB base64; Line 4 N=x" },
        LinesRow{ "Base64ThatIsFoldedLater", "PHOTO;BASE64:AAAA\nBBBB\n CCCC\nTEL:1\n",
                  "Line 29 PHOTO=AAAABBBBCCCC base64; Line 6 TEL=1" },
        LinesRow{ "Base64BeforeWhiteSpace", "LOGO;BASE64:\nAAAABBBB\nBBBBAAAABBBBCCC=\n \nTEL:1\n",
                  "Line 41 LOGO=AAAABBBBBBBBAAAABBBBCCC= base64; Line 6 TEL=1" },
        LinesRow{ "NameBehindBase64", "PHOTO;BASE64:AAAA\nTEL\n :1\n", "Line 18 PHOTO=AAAA; Line 8 TEL=1" },
        LinesRow{ "FoldedNameBehindBase64", "PHOTO;BASE64:AAAA\nORGANIZATION\n ;X=1:a\n",
                  "Line 18 PHOTO=AAAA; Line 21 ORGANIZATION=a" },
        LinesRow{ "Base64BehindAnEmptyLine", "PHOTO;ENCODING=b:AAAA\n\nBBBB\n", "Line 28 PHOTO=AAAABBBB base64" },
        LinesRow{ "EncodedLineBreakForBase64", "LOGO;ENCODING=b:=0D=0A=\nTEL:1\n",
                  "Line 24 LOGO==0D=0A=; Line 6 TEL=1" },
        LinesRow{ "FoldedBase64", "PHOTO;ENCODING=b:\n AAAA\n BBBB\n", "Line 30 PHOTO=AAAABBBB" },
        LinesRow{ "TextBehindBase64", "KEY;ENCODING=b:AAAA\nnot base64!\n",
                  "Line 20 KEY=AAAA; Dropped 12 NotAProperty" },
        LinesRow{ "ByteOrderMark", "FN:a\n\xEF\xBB\xBFN:b\n", "Line 5 FN=a; Mark 3; Line 4 N=b" },
        LinesRow{ "TwoByteOrderMarks", "\xEF\xBB\xBF\xEF\xBB\xBFN:b\n", "Mark 6; Line 4 N=b" },
        LinesRow{ "UnknownEscape", "NOTE:a\\b\n", "Line 9 NOTE=a\\b escape" },
        LinesRow{ "UnknownEscapeOfVersion21", "VERSION:2.1\nNOTE:a\\b\n", "Line 12 VERSION=2.1; Line 9 NOTE=a\\b" },
        LinesRow{ "ControlCharacter", "FN:a\x01\n", "Line 6 FN=a\x01 controls" } ),
    []( const ::testing::TestParamInfo<LinesRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LogicalLinesTest, PhysicalLinesBecomeEntries )
{
    EXPECT_EQ( Read( GetParam().m_text, Wishes() ), GetParam().m_entries );
}

TEST_P( LogicalLinesTest, LimitThatNoLineReachesChangesNothing )
{
    Wishes wishes;
    wishes.m_mostLineBytes = 1000;
    EXPECT_EQ( Read( GetParam().m_text, wishes ), GetParam().m_entries );
}

INSTANTIATE_TEST_SUITE_P(
    Cards, LogicalLinesWishTest,
    ::testing::Values(
        WishRow{ "Filter",
                 { { "FN" }, 0, 0 },
                 "FN:a\nTEL:1\nVERSION:3.0\n",
                 "Line 5 FN=a; Filtered 6; Line 12 VERSION=3.0" },
        WishRow{ "FilterWithFold", { { "FN" }, 0, 0 }, "TEL:1\n 2\nFN:a\n", "Filtered 9; Line 5 FN=a" },
        WishRow{ "FilterWithFoldedName", { { "NOTE" }, 0, 0 }, "NO\n TE:a\nT\n EL:1\n", "Line 9 NOTE=a; Filtered 8" },
        WishRow{ "LineAtTheLimit", { {}, 6, 0 }, "TEL:1\nFN:a\n", "Line 6 TEL=1; Line 5 FN=a" },
        WishRow{ "LineBeyondTheLimit", { {}, 5, 0 }, "TEL:1\nFN:a\n", "Dropped 6 LineTooLong; Line 5 FN=a" },
        WishRow{ "FoldAtTheLimit", { {}, 9, 0 }, "TEL:1\n 2\n", "Line 9 TEL=12" },
        WishRow{ "FoldBeyondTheLimit", { {}, 8, 0 }, "TEL:1\n 2\n", "Dropped 9 LineTooLong" },
        WishRow{ "Indentation", { {}, 0, 2 }, "  FN:a\n  N:b\n    c\n", "Line 7 FN=a; Line 12 N=b c" },
        WishRow{ "IndentedBlankLine", { {}, 0, 2 }, "  FN:a\n  \n  N:b\n", "Line 7 FN=a; Blank 3; Line 6 N=b" } ),
    []( const ::testing::TestParamInfo<WishRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LogicalLinesWishTest, FilterLimitAndIndentationApply )
{
    EXPECT_EQ( Read( GetParam().m_text, GetParam().m_wishes ), GetParam().m_entries );
}

TEST( LogicalLinesFactsTest, VersionOfReadsTheValue )
{
    const std::vector<VersionRow> rows = {
        { "VERSION", "2.1", PimContactVersion::V21 },      { "version", "3.0", PimContactVersion::V30 },
        { "Version", " 4.0\t", PimContactVersion::V40 },   { "VERSION", "2.0", PimContactVersion::Unknown },
        { "VERSION", "3", PimContactVersion::Unknown },    { "VERSION", "3.0.0", PimContactVersion::Unknown },
        { "VERSION", "", PimContactVersion::Unknown },     { "VERSION", "3,0", PimContactVersion::Unknown },
        { "VERSIONS", "3.0", PimContactVersion::Unknown }, { "REV", "3.0", PimContactVersion::Unknown },
    };
    for ( const VersionRow& row : rows )
        EXPECT_EQ( VersionOf( row.m_name, row.m_value ), row.m_version ) << row.m_name << ':' << row.m_value;
}

TEST( LogicalLinesFactsTest, FirstVersionCounts )
{
    EXPECT_EQ( FactsOf( "FN:a\nVERSION:3.0\nVERSION:2.1\n" ).m_version, PimContactVersion::V30 );
    EXPECT_EQ( FactsOf( "VERSION:5.0\nVERSION:2.1\n" ).m_version, PimContactVersion::V21 );
    EXPECT_EQ( FactsOf( "FN:a\n" ).m_version, PimContactVersion::Unknown );
}

TEST( LogicalLinesFactsTest, CharactersOfTheLinesAreNoted )
{
    EXPECT_FALSE( FactsOf( "FN:a\n" ).m_isWide );
    const CardFacts wide = FactsOf( "FN:\xC3\xA9\n" );
    EXPECT_TRUE( wide.m_isWide && wide.m_isValidUtf8 );
    EXPECT_FALSE( FactsOf( "FN:\xE9\n" ).m_isValidUtf8 );
    EXPECT_TRUE( FactsOf( "NOTE:\xC3\r\n \xA9\r\n" ).m_isValidUtf8 ) << "a fold inside a character";
    EXPECT_FALSE( FactsOf( "NOTE:\xC3\r\nFN:\xA9\r\n" ).m_isValidUtf8 ) << "two lines";
    EXPECT_TRUE( FactsOf( "FN:\x1B$B\n" ).m_mayBeShifted );
    EXPECT_FALSE( FactsOf( "FN:a\x01\n" ).m_mayBeShifted );
}

TEST( LogicalLinesFactsTest, PartsAreCounted )
{
    const CardFacts facts = FactsOf( "FN:a\n\nTEL:1\nmore\n#\nNOTE:b\n c\n" );
    EXPECT_EQ( facts.m_parts[static_cast<size_t>( EntryKind::Line )], 3U );
    EXPECT_EQ( facts.m_bytes[static_cast<size_t>( EntryKind::Line )], 21U );
    EXPECT_EQ( facts.m_parts[static_cast<size_t>( EntryKind::Blank )], 1U );
    EXPECT_EQ( facts.m_parts[static_cast<size_t>( EntryKind::Dropped )], 2U );
    EXPECT_EQ( facts.m_bytes[static_cast<size_t>( EntryKind::Dropped )], 7U );
    EXPECT_TRUE( facts.m_isDropped && facts.HasOddParts() );
    EXPECT_FALSE( facts.m_isFiltered || facts.HasOddLines() );
    EXPECT_FALSE( FactsOf( "FN:a\n b\n" ).HasOddParts() );
}

TEST( LogicalLinesFactsTest, LinesWithOdditiesAreCounted )
{
    const CardFacts facts = FactsOf( "FN :a\nTEL;:1\n2\x01\nNOTE\nX-A;; :b\n" );
    const auto count = [&facts]( PimContactOddity a_oddity )
    { return facts.m_oddLines[qCountTrailingZeroBits( static_cast<uint>( a_oddity ) )]; };
    EXPECT_TRUE( facts.HasOddLines() );
    EXPECT_EQ( count( PimContactOddity::NameBlanks ), 1U );
    EXPECT_EQ( count( PimContactOddity::EmptyParameter ), 2U );
    EXPECT_EQ( count( PimContactOddity::ControlCharacters ), 0U ) << "of a line that was dropped";
    EXPECT_EQ( count( PimContactOddity::MissingColon ), 1U );
    EXPECT_EQ( count( PimContactOddity::OddName ), 0U );
}

TEST( LogicalLinesFactsTest, AgentWithoutAValueIsOpen )
{
    const std::vector<std::pair<std::string, bool>> rows = {
        { "AGENT:\n", true },        { "agent;TYPE=x: \t\n", true }, { "AGENT:\n \n", true },
        { "AGENT:a\n", false },      { "AGENT\n", false },           { "FN:\n", false },
        { "AGENT:\nFN:a\n", false }, { "AGENT:\nmore\n", false },    { "AGENT:\n\n", true },
        { "item1.AGENT:\n", true },
    };
    for ( const auto& [text, isOpen] : rows )
    {
        const LineFilter filter{ PimContactOptions() };
        LogicalLines lines( filter, 0 );
        lines.Begin( 0, 0 );
        LineScanner scanner;
        scanner.Append( text );
        scanner.Finish();
        for ( PhysicalLine line; scanner.Next( line ); )
        {
            lines.SetBytes( text.data() );
            lines.Take( { static_cast<quint32>( line.m_offset ), static_cast<quint32>( line.TextEnd() ),
                          static_cast<quint32>( line.End() ), false, false } );
        }
        EXPECT_EQ( lines.IsBehindOpenAgent(), isOpen ) << text;
    }
}

} // namespace PimManager::Contacts
