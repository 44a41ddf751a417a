#include "Cards/CardFindings.h"

#include "SealedText.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

// The card is the fifth one of its text, and begins in line 3, after this many bytes.
constexpr qint64 s_kNumber = 5;
constexpr qint64 s_kFirstLine = 3;
constexpr size_t s_kBytesBefore = 20;

const std::string s_kMark = "\xEF\xBB\xBF";

std::string WithLineEnds( const std::string& a_text, const std::string& a_lineEnd = "\n" )
{
    std::string text;
    for ( const char byte : a_text )
        text += byte == '/' ? a_lineEnd : std::string( 1, byte );
    return text;
}

std::string Card( const std::string& a_lines )
{
    return "BEGIN:VCARD/" + a_lines + "END:VCARD/";
}

// What a ledger receives about a card.
class CardReport
{
public:
    // As many findings are kept; -1 keeps all of them.
    CardReport( const CardIndex& a_index, std::string_view a_bytes, bool a_isEndOfFile, int a_mostDiagnostics,
                bool a_hasExtentHandler = true )
    {
        m_ledger.Reset( a_mostDiagnostics );
        if ( a_hasExtentHandler )
            m_ledger.SetExtentHandler( [this]( const PimContactExtent& a_extent ) { Take( a_extent ); } );
        m_ledger.Add( PimContactExtentKind::Outside, std::string( s_kBytesBefore, 'x' ), 0 );
        m_extents.clear();
        const TextPlace begin = { s_kBytesBefore, s_kFirstLine, s_kBytesBefore };
        CardFindings( m_ledger, a_index, a_bytes, begin, s_kNumber ).Tell( a_isEndOfFile );
    }
    Q_DISABLE_COPY( CardReport )

    // Each with its line, column, and the count if that is not 1.
    std::string Findings() const
    {
        std::string text;
        for ( const PimContactDiagnostic& finding : m_ledger.Data().m_diagnostics )
        {
            text += NameOf( finding.Code() ).data() + ( ' ' + std::to_string( finding.Line() ) ) + ':' +
                    std::to_string( finding.Column() );
            text += finding.Count() == 1 ? "; " : " x" + std::to_string( finding.Count() ) + "; ";
        }
        return text;
    }

    // The kind and the bytes of each.
    const std::string& Extents() const { return m_extents; }
    const ReportData& Data() const { return m_ledger.Data(); }

private:
    void Take( const PimContactExtent& a_extent )
    {
        if ( a_extent.Card() == s_kNumber )
            m_extents += NameOf( a_extent.Kind() ).data() + ( ' ' + a_extent.Bytes().toStdString() ) + "; ";
    }

    Ledger m_ledger;
    std::string m_extents;
};

struct FindingsRow
{
    const char* m_name;
    // "/" is a line ending.
    std::string m_text;
    const char* m_findings;
    // Flags of the card that its lines do not know.
    int m_flags = 0;
    bool m_isEndOfFile = false;
    qint64 m_lineBytes = 0;
};

std::ostream& operator<<( std::ostream& a_stream, const FindingsRow& a_row )
{
    return a_stream << a_row.m_name;
}

SealedText Sealed( const FindingsRow& a_row, const std::string& a_lineEnd )
{
    PimContactOptions options;
    options.SetLineBytes( a_row.m_lineBytes );
    return SealedText( WithLineEnds( a_row.m_text, a_lineEnd ), options, true, a_row.m_flags );
}

const std::string s_kLong = "NOTE:" + std::string( 70, 'a' );

const std::vector<FindingsRow>& Rows()
{
    static const std::vector<FindingsRow> rows = {
        { "Clean", Card( "VERSION:3.0/FN:a/NOTE:b/ c///TEL;HOME:1/" ), "" },
        // The card.
        { "BeginMissing", "FN:a/END:VCARD/", "missing-begin 3:1; " },
        { "EndMissing", "BEGIN:VCARD/FN:a/", "missing-end 5:1; " },
        { "EndMissingAtTheEndOfTheFile", "BEGIN:VCARD/FN:a/", "end-of-file 5:1; ", 0, true },
        { "EndMissingBehindAnOpenLine", "BEGIN:VCARD/FN:a", "end-of-file 4:5; ", 0, true },
        { "EndOfFileBehindAWholeCard", Card( "FN:a/" ), "", 0, true },
        { "Charset", Card( "FN:a/N:\xE9/" ), "charset 3:1; " },
        { "IndentedCard", Card( "FN:a/" ), "indented-card 3:1; ", CardRecord::IsIndented },
        { "FoldsByLength", Card( "VERSION:2.1/" + s_kLong + "/ b/" ), "folds-by-length 3:1; " },
        { "CardBeforeItsLines", "VERSION:2.1/N:\xE9/" + s_kLong + "/ b/TEL/",
          "missing-begin 3:1; charset 3:1; indented-card 3:1; folds-by-length 3:1; missing-colon 7:1; missing-end "
          "8:1; ",
          CardRecord::IsIndented },
        // Boundaries and dropped lines.
        { "BoundaryWithBlanks", "BEGIN:VCARD /FN:a/ END:VCARD/", "boundary-line 3:1; boundary-line 5:1; " },
        { "BoundaryOfAnIndentedCard", " BEGIN:VCARD/FN:a/ END:VCARD/", "indented-card 3:1; ", CardRecord::IsIndented },
        { "NotAProperty", Card( "TEL:1/garbage/TEL:2/" ), "not-a-property 5:1; " },
        { "Comment", Card( "TEL:1/#a/TEL:2/" ), "comment 5:1; " },
        { "LineTooLong", Card( "TEL:1/TEL:12345/TEL:2/" ), "line-too-long 5:1; ", 0, false, 8 },
        { "ByteOrderMark", Card( "FN:a/" + s_kMark + "N:b/" ), "stray-byte-order-mark 5:1; " },
        { "ByteOrderMarks", Card( s_kMark + s_kMark + "N:b/TEL/" ),
          "stray-byte-order-mark 4:1 x2; missing-colon 5:1; " },
        // Lines.
        { "LineJoined", Card( "NOTE:a/b/c/" ), "line-joined 5:1; " },
        { "LineJoinedBehindAFold", Card( "NOTE:a/ b/c/" ), "line-joined 6:1; " },
        { "LineJoinedDirectly", Card( s_kLong + "/b/" ), "line-joined 5:1; " },
        { "LineJoinedWithBlanks", Card( "NOTE:a//b/" ), "line-joined 6:1; " },
        { "Base64Lines", Card( "PHOTO;BASE64:AAAA/ AAAA/AAAA/AAAA/" ), "base64-lines 6:1; " },
        { "MissingColon", Card( "FN:a/TEL/N:b/" ), "missing-colon 5:1; " },
        { "SoftLineBreakWithBlank", Card( "NOTE;QUOTED-PRINTABLE:a=/b= /c/" ), "soft-line-break 5:2; " },
        { "SoftLineBreakWithNothingToJoin", Card( "NOTE;QUOTED-PRINTABLE:a=/" ), "soft-line-break 4:24; " },
        { "SoftLineBreakThatIsPlain", Card( "NOTE;QUOTED-PRINTABLE:a=/b=/ c/" ), "" },
        { "ControlCharacters", Card( "NOTE:a\x01\x02/ b\x03/" ), "control-characters 4:7 x3; " },
        { "NameBlanks", Card( "TEL :1/" ), "name-blanks 4:1; " },
        { "OddName", Card( "X_A:1/" ), "odd-name 4:1; " },
        { "OpenQuote", Card( "TEL;A=\"b:1/" ), "open-quote 4:1; " },
        { "OddParameter", Card( "TEL;A=b\"c:1/" ), "odd-parameter 4:1; " },
        { "EmptyParameter", Card( "TEL;;HOME:1/" ), "empty-parameter 4:1; " },
        { "UnknownEscape", Card( "NOTE:a\\b/" ), "unknown-escape 4:7; " },
        { "UnknownEscapesBehindAFold", Card( "NOTE:a/ \\b\\c/" ), "unknown-escape 5:2 x2; " },
        // Several of them.
        { "OfOneLineByPlace", Card( "NOTE:\\a\x01/" ), "unknown-escape 4:6; control-characters 4:8; " },
        { "OfOneLineByPlaceTurnedRound", Card( "NOTE:\x01\\a/" ), "control-characters 4:6; unknown-escape 4:7; " },
        { "OfOneLineAtOnePlace", Card( "TEL ;;A=b\"c/" ),
          "missing-colon 4:1; name-blanks 4:1; odd-parameter 4:1; empty-parameter 4:1; " },
        { "OfTwoLines", Card( "NOTE:a/b/TEL/" ), "line-joined 5:1; missing-colon 6:1; " },
        // Nested cards.
        { "NestedClean", Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ), "" },
        { "NestedLine", Card( "AGENT:/" + Card( "FN:b/TEL/" ) + "N/" ), "missing-colon 7:1; missing-colon 9:1; " },
        { "NestedCardsOwn", Card( "AGENT:/" + Card( "FN:\xE9/" ) ), "charset 5:1; " },
        { "NestedEndMissing", "BEGIN:VCARD/AGENT:/BEGIN:VCARD/FN:b/", "missing-end 7:1; missing-end 7:1; " } };
    return rows;
}

// Lines must be counted by line endings and not by their bytes.
const std::vector<std::string>& LineEnds()
{
    static const std::vector<std::string> lineEnds = { "\n", "\r", "\r\n", "\r\r\n" };
    return lineEnds;
}

class CardFindingsTest : public ::testing::TestWithParam<FindingsRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P( Cards, CardFindingsTest, ::testing::ValuesIn( Rows() ),
                          []( const ::testing::TestParamInfo<FindingsRow>& a_info )
                          { return std::string( a_info.param.m_name ); } );

TEST_P( CardFindingsTest, EachHasItsPlace )
{
    for ( const std::string& lineEnd : LineEnds() )
    {
        SCOPED_TRACE( ::testing::PrintToString( lineEnd ) );
        const SealedText text = Sealed( GetParam(), lineEnd );
        const CardReport report( text.Index(), text.Bytes(), GetParam().m_isEndOfFile, -1 );
        EXPECT_EQ( report.Findings(), GetParam().m_findings );
        for ( const PimContactDiagnostic& finding : report.Data().m_diagnostics )
            EXPECT_EQ( finding.Card(), s_kNumber );
    }
}

TEST_P( CardFindingsTest, CountingFindsTheSame )
{
    const SealedText text = Sealed( GetParam(), "\r\n" );
    const CardReport reported( text.Index(), text.Bytes(), GetParam().m_isEndOfFile, -1 );
    for ( const int kept : { 0, 1 } )
    {
        const CardReport counted( text.Index(), text.Bytes(), GetParam().m_isEndOfFile, kept, false );
        EXPECT_EQ( counted.Data().m_findings, reported.Data().m_findings ) << kept;
        EXPECT_EQ( counted.Data().m_extents, reported.Data().m_extents ) << kept;
        EXPECT_EQ( counted.Data().m_bytes, reported.Data().m_bytes ) << kept;
        EXPECT_EQ( counted.Data().m_cardsNested, reported.Data().m_cardsNested ) << kept;
        EXPECT_EQ( counted.Data().m_diagnostics, reported.Data().m_diagnostics.mid( 0, kept ) );
    }
}

TEST_P( CardFindingsTest, ExtentsAreTheCard )
{
    const SealedText text = Sealed( GetParam(), "\r\n" );
    const CardReport report( text.Index(), text.Bytes(), GetParam().m_isEndOfFile, -1 );
    qint64 bytes = -static_cast<qint64>( s_kBytesBefore );
    for ( const qint64 ofKind : report.Data().m_bytes )
        bytes += ofKind;
    EXPECT_EQ( bytes, static_cast<qint64>( text.Bytes().size() ) );
}

TEST( CardFindingsUseTest, ExtentsAreInTheOrderOfTheCard )
{
    PimContactOptions options;
    options.SetNames( { QByteArrayLiteral( "FN" ), QByteArrayLiteral( "AGENT" ) } );
    const SealedText text( "BEGIN:VCARD\nFN:a\n b\n\nTEL:1\n;\n" + s_kMark +
                               "FN:c\nAGENT:\nBEGIN:VCARD\nFN:d\n\nEND:VCARD\nFN:e\nEND:VCARD\n",
                           options );
    const CardReport report( text.Index(), text.Bytes(), false, -1 );
    EXPECT_EQ( report.Extents(),
               "boundary BEGIN:VCARD\n; line FN:a\n b\n; blank \n; filtered TEL:1\n; dropped ;\n; mark " + s_kMark +
                   "; line FN:c\n; line AGENT:\n; boundary BEGIN:VCARD\n; line FN:d\n; blank \n; "
                   "boundary END:VCARD\n; line FN:e\n; boundary END:VCARD\n; " );
    EXPECT_EQ( report.Data().m_cardsNested, 1 );
}

TEST( CardFindingsUseTest, EachReasonHasItsCode )
{
    IndexWriter writer;
    for ( const DropReason reason : { DropReason::NotAProperty, DropReason::Comment, DropReason::LineTooLong,
                                      DropReason::NestingTooDeep, DropReason::BoundaryText } )
        writer.AddDropped( reason, 2 );
    CardRecord record;
    record.m_length = 10;
    record.m_flags = CardRecord::HasBegin | CardRecord::HasEnd;
    CardIndex index;
    index.Set( record, writer.Bytes(), std::string_view() );
    const CardReport report( index, "a\nb\nc\nd\ne\n", false, -1 );
    EXPECT_EQ( report.Findings(),
               "not-a-property 3:1; comment 4:1; line-too-long 5:1; nesting-too-deep 6:1; boundary-text 7:1; " );
    EXPECT_EQ( report.Extents(), "dropped a\n; dropped b\n; dropped c\n; dropped d\n; dropped e\n; " );
}

// A nested card that begins on the line of its AGENT, and one whose END is on a line with text after it.
TEST( CardFindingsUseTest, ColumnCountsFromTheStartOfTheLine )
{
    const std::string bytes = "AGENT:BEGIN:VCARD\nEND:VCARD, b\n";
    IndexWriter writer;
    writer.AddPart( EntryKind::Blank, 6 );
    writer.AddBoundary( 12, true );
    writer.AddBoundary( 9, false );
    writer.AddDropped( DropReason::BoundaryText, 4 );
    CardRecord record;
    record.m_length = 31;
    record.m_flags = CardRecord::HasBegin | CardRecord::HasEnd;
    CardIndex index;
    index.Set( record, writer.Bytes(), std::string_view() );
    EXPECT_EQ( CardReport( index, bytes, false, -1 ).Findings(), "boundary-line 3:7; boundary-text 4:10; " );
}

} // namespace PimManager::Contacts
