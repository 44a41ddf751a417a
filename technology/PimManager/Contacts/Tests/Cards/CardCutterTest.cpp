#include "Cards/CardCutter.h"

#include "LedgerText.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using Change = std::function<void( PimContactOptions& a_options )>;

// In texts, "/" is LF.
struct CutRow
{
    const char* m_name;
    std::string m_text;
    // Each card with its position, and what is not of a delivered card or was left out of it.
    std::string m_cards;
    std::string m_others;
    std::string m_findings;
    Change m_change = nullptr;
};

std::ostream& operator<<( std::ostream& a_stream, const CutRow& a_row )
{
    return a_stream << a_row.m_name;
}

const std::string s_kBegin = "BEGIN:VCARD/";
const std::string s_kEnd = "END:VCARD/";

// A text that was cut.
class CutText
{
public:
    CutText( const CutRow& a_row, bool a_arePlainCardsTaken )
    {
        PimContactOptions options;
        if ( a_row.m_change )
            a_row.m_change( options );
        LineScanner scanner;
        Ledger ledger;
        ledger.Reset( -1 );
        ledger.SetExtentHandler( [this]( const PimContactExtent& a_extent ) { Take( a_extent ); } );
        CardCutter cutter( scanner, ledger, options, [this]( const PimContactCard& a_card ) { Take( a_card ); } );
        cutter.Reset( false );
        scanner.Append( Replaced( a_row.m_text, '/', '\n' ) );
        scanner.Finish();
        for ( PhysicalLine line;; )
        {
            if ( a_arePlainCardsTaken && cutter.TakePlainCard() == CardCutter::PlainStep::Taken )
                continue;
            if ( !scanner.Next( line ) )
                break;
            cutter.Take( line );
        }
        cutter.Finish();
        for ( const PimContactDiagnostic& finding : ledger.Data().m_diagnostics )
            m_findings += NameOf( finding.Code() ).data() + ( ' ' + std::to_string( finding.Line() ) ) + "; ";
        EXPECT_EQ( ledger.Offset(), static_cast<qint64>( a_row.m_text.size() ) );
    }

    std::string m_cards;
    std::string m_others;
    std::string m_findings;

private:
    // Neighbours of one kind are one part here: how a part is divided into extents is not the matter of this test.
    void Take( const PimContactExtent& a_extent )
    {
        const PimContactExtentKind kind = a_extent.Kind();
        const bool isNeighbour = kind == m_lastKind;
        m_lastKind = kind;
        if ( kind == PimContactExtentKind::Line || kind == PimContactExtentKind::Boundary )
            return;
        if ( isNeighbour )
            m_others.resize( m_others.size() - 2 );
        else
            m_others += NameOf( kind ).data() + std::string( " " );
        m_others += Replaced( a_extent.Bytes().toStdString(), '\n', '/' ) + "; ";
    }

    void Take( const PimContactCard& a_card )
    {
        m_cards += std::to_string( a_card.Offset() ) + ' ' + Replaced( a_card.Bytes().toStdString(), '\n', '/' ) + "; ";
    }

    PimContactExtentKind m_lastKind = PimContactExtentKind::Line;
};

class CardCutterTest : public ::testing::TestWithParam<CutRow>
{
};

std::string Card( const std::string& a_lines )
{
    return s_kBegin + a_lines + s_kEnd;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Texts, CardCutterTest,
    ::testing::Values(
        CutRow{ "Nothing", "", "", "", "" },
        CutRow{ "TwoCards", Card( "FN:a/" ) + Card( "FN:b/" ),
                "0 " + Card( "FN:a/" ) + "; 27 " + Card( "FN:b/" ) + "; ", "", "" },
        CutRow{ "EndMissing", s_kBegin + "FN:a/" + Card( "FN:b/" ),
                "0 " + s_kBegin + "FN:a/; 17 " + Card( "FN:b/" ) + "; ", "", "missing-end 3; " },
        CutRow{ "EndOfFile", s_kBegin + "FN:a/", "0 " + s_kBegin + "FN:a/; ", "", "end-of-file 3; " },
        CutRow{ "TextOutside", "hello/" + Card( "FN:a/" ) + "bye/", "6 " + Card( "FN:a/" ) + "; ",
                "outside hello/; outside bye/; ", "text-outside 1; text-outside 5; " },
        CutRow{ "BlankOutside", "/ /" + Card( "FN:a/" ), "3 " + Card( "FN:a/" ) + "; ", "blank / /; ", "" },
        CutRow{ "BeginMissing", "FN:a/TEL:1/" + s_kEnd, "0 FN:a/TEL:1/" + s_kEnd + "; ", "", "missing-begin 1; " },
        CutRow{ "NoContactBeforeEnd", "NOTE:a/" + s_kEnd, "", "outside NOTE:a/END:VCARD/; ",
                "text-outside 1; end-without-begin 2; " },
        CutRow{ "AgentWithOneEnd", s_kBegin + "AGENT:BEGIN:VCARD/FN:a/" + s_kEnd + Card( "FN:b/" ),
                "0 " + Card( "AGENT:BEGIN:VCARD/FN:a/" ) + "; 45 " + Card( "FN:b/" ) + "; ", "", "" },
        CutRow{ "AgentWithBothEnds", Card( "AGENT:/" + Card( "FN:a/" ) + "FN:b/" ),
                "0 " + Card( "AGENT:/" + Card( "FN:a/" ) + "FN:b/" ) + "; ", "", "" },
        CutRow{ "IndentedEndThatIsMeant", s_kBegin + "FN:a/ END:VCARD/" + Card( "FN:b/" ),
                "0 " + s_kBegin + "FN:a/ END:VCARD/; 28 " + Card( "FN:b/" ) + "; ", "", "boundary-line 3; " },
        CutRow{ "IndentedEndThatIsAFold", Card( "FN:a/ END:VCARD/" ), "0 " + Card( "FN:a/ END:VCARD/" ) + "; ", "",
                "" },
        CutRow{ "EndAndBeginOnOneLine", s_kBegin + "FN:a/END:VCARD" + Card( "FN:b/" ),
                "0 " + s_kBegin + "FN:a/END:VCARD; 26 " + Card( "FN:b/" ) + "; ", "", "" },
        CutRow{ "IndentedBeginBehindAProperty", "NOTE:see/ BEGIN:VCARD/ FN:a/ END:VCARD/Regards/",
                "9 " + std::string( " BEGIN:VCARD/ FN:a/ END:VCARD/; " ), "outside NOTE:see/; outside Regards/; ",
                "text-outside 1; indented-card 2; text-outside 5; " },
        CutRow{ "IndentedBeginBehindAPropertyWithoutEnd", "N:a/ BEGIN:VCARD/FN:b/TEL:1/",
                "4 " + std::string( " BEGIN:VCARD/FN:b/TEL:1/; " ), "outside N:a/; ",
                "text-outside 1; boundary-line 2; end-of-file 5; " },
        CutRow{ "IndentedEndAndBeginBehindAProperty", "FN:a/ END:VCARDBEGIN:VCARD/FN:b/END:VCARD/",
                "0 FN:a/ END:VCARD; 15 BEGIN:VCARD/FN:b/END:VCARD/; ", "", "missing-begin 1; boundary-line 2; " },
        CutRow{ "ByteOrderMarkBeforeAnAgent",
                Card( "\xEF\xBB\xBF"
                      "AGENT:BEGIN:VCARD/FN:a/END:VCARD/FN:b/" ),
                "0 " +
                    Card( "\xEF\xBB\xBF"
                          "AGENT:BEGIN:VCARD/FN:a/END:VCARD/FN:b/" ) +
                    "; ",
                "mark \xEF\xBB\xBF; ", "stray-byte-order-mark 2; " },
        CutRow{ "LineOfByteOrderMarks", Card( "FN:a/" ) + "more/\xEF\xBB\xBF\xEF\xBB\xBF /" + Card( "FN:b/" ),
                "0 " + Card( "FN:a/" ) + "; 40 " + Card( "FN:b/" ) + "; ",
                "outside more/; mark \xEF\xBB\xBF\xEF\xBB\xBF; blank  /; ",
                "text-outside 4; stray-byte-order-mark 5; " },
        CutRow{ "TextInTheCard", Card( "TEL:1/garbage/" ), "0 " + Card( "TEL:1/garbage/" ) + "; ", "dropped garbage/; ",
                "not-a-property 3; " },
        CutRow{ "TextBehindEnd", s_kBegin + "FN:a/END:VCARD, all/", "0 " + s_kBegin + "FN:a/END:VCARD, all/; ",
                "dropped , all; ", "boundary-text 3; " },
        CutRow{ "CardAtTheLimit", Card( "FN:a/" ), "0 " + Card( "FN:a/" ) + "; ", "", "",
                []( PimContactOptions& a_options ) { a_options.SetCardBytes( 27 ); } },
        CutRow{ "CardBeyondTheLimit", Card( "FN:ab/" ) + Card( "FN:c/" ), "28 " + Card( "FN:c/" ) + "; ",
                "refused " + Card( "FN:ab/" ) + "; ", "card-too-long 1; ",
                []( PimContactOptions& a_options ) { a_options.SetCardBytes( 27 ); } },
        CutRow{ "CardWithAsManyLines", Card( "FN:a/" ), "0 " + Card( "FN:a/" ) + "; ", "", "",
                []( PimContactOptions& a_options ) { a_options.SetCardLines( 3 ); } },
        CutRow{ "CardsBeyondTheLimit", Card( "FN:a/" ) + Card( "FN:b/" ), "0 " + Card( "FN:a/" ) + "; ",
                "refused " + Card( "FN:b/" ) + "; ", "too-many-cards 4; ",
                []( PimContactOptions& a_options ) { a_options.SetCards( 1 ); } },
        CutRow{ "BookAtTheLimit", Card( "FN:a/" ) + Card( "FN:bc/" ) + Card( "/" ),
                "0 " + Card( "FN:a/" ) + "; 55 " + Card( "/" ) + "; ", "refused " + Card( "FN:bc/" ) + "; blank /; ",
                "book-too-long 4; ", []( PimContactOptions& a_options ) { a_options.SetBookBytes( 50 ); } } ),
    []( const ::testing::TestParamInfo<CutRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CardCutterTest, CardsAreCutOutOfTheText )
{
    for ( const bool arePlainCardsTaken : { false, true } )
    {
        SCOPED_TRACE( arePlainCardsTaken ? "the short road" : "line by line" );
        const CutText text( GetParam(), arePlainCardsTaken );
        EXPECT_EQ( text.m_cards, GetParam().m_cards );
        EXPECT_EQ( text.m_others, GetParam().m_others );
        EXPECT_EQ( text.m_findings, GetParam().m_findings );
    }
}

} // namespace PimManager::Contacts
