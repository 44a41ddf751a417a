#include "Cards/CardDelivery.h"

#include "Cards/CardStack.h"
#include "LedgerText.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using Change = std::function<void( PimContactOptions& a_options )>;

const std::string s_kBegin = "BEGIN:VCARD/";
const std::string s_kEnd = "END:VCARD/";
const std::string s_kMark = "\xEF\xBB\xBF";

std::string Card( const std::string& a_lines )
{
    return s_kBegin + a_lines + s_kEnd;
}

// Delivers each card of a text. A card begins at BEGIN, and ends after END or before the next BEGIN.
class DeliveredText
{
public:
    DeliveredText( LedgerText& a_ledger, const std::string& a_text, const Change& a_change, bool a_isConverted = false )
    {
        PimContactOptions options;
        if ( a_change )
            a_change( options );
        CardDelivery delivery( m_scanner, a_ledger.Get(), options,
                               [this]( const PimContactCard& a_card ) { Take( a_card ); } );
        CardStack stack( m_scanner, options, delivery.IsDefaultKnown() );
        delivery.Reset( a_isConverted );
        AppendAll( m_scanner, a_text );
        for ( PhysicalLine line; m_scanner.Next( line ); )
            TakeLine( delivery, stack, line );
        delivery.EndText();
        if ( m_isOpen )
            Deliver( delivery, stack, m_scanner.NextOffset(), nullptr );
        m_isFull = delivery.IsFull();
    }
    Q_DISABLE_COPY( DeliveredText )

    // Number, position and bytes of each card.
    std::string m_cards;
    bool m_isFull = false;
    bool m_isLastConverted = false;

private:
    void Take( const PimContactCard& a_card )
    {
        m_cards += std::to_string( a_card.Number() ) + " at " + std::to_string( a_card.Offset() ) + " in line " +
                   std::to_string( a_card.FirstLine() ) + ' ' + Replaced( a_card.Bytes().toStdString(), '\n', '/' ) +
                   "; ";
        m_isLastConverted = a_card.IsConverted();
    }

    void TakeLine( CardDelivery& a_delivery, CardStack& a_stack, const PhysicalLine& a_line )
    {
        const std::string_view text = m_scanner.TextOf( a_line );
        if ( text == "END:VCARD" )
        {
            Deliver( a_delivery, a_stack, a_line.End(), &a_line );
            return;
        }
        if ( text != "BEGIN:VCARD" )
        {
            a_stack.Take( a_line );
            return;
        }
        if ( m_isOpen )
            Deliver( a_delivery, a_stack, a_line.m_offset, nullptr );
        m_begin = { a_line.m_offset, a_line.m_number, a_line.m_lineOffset };
        m_isOpen = true;
        a_stack.Begin( a_line, 0 );
        a_stack.AddBegin( a_line );
    }

    void Deliver( CardDelivery& a_delivery, CardStack& a_stack, qint64 a_end, const PhysicalLine* a_endLine )
    {
        CardIndex index;
        a_stack.Close( a_end, a_endLine, true, index );
        a_delivery.Deliver( index, a_stack.Lines().Facts(), m_begin );
        m_isOpen = false;
    }

    LineScanner m_scanner;
    TextPlace m_begin;
    bool m_isOpen = false;
};

// A card without END, and the lines after it.
void DeliverFirstLine( CardDelivery& a_delivery, LineScanner& a_scanner )
{
    PhysicalLine begin;
    a_scanner.Next( begin );
    CardStack stack( a_scanner, PimContactOptions(), true );
    stack.Begin( begin, 0 );
    stack.AddBegin( begin );
    CardIndex index;
    stack.Close( begin.End(), nullptr, true, index );
    for ( PhysicalLine line; a_scanner.Next( line ); )
        EXPECT_GT( line.m_number, begin.m_number );
    a_delivery.Deliver( index, stack.Lines().Facts(), { begin.m_offset, begin.m_number, begin.m_lineOffset } );
}

struct DeliveryRow
{
    const char* m_name;
    // "/" is a line feed.
    std::string m_text;
    std::string m_cards;
    std::string m_findings;
    // Cards: delivered whole, in part, and refused.
    std::string m_counts;
    Change m_change = nullptr;
};

std::ostream& operator<<( std::ostream& a_stream, const DeliveryRow& a_row )
{
    return a_stream << a_row.m_name;
}

std::string CountsOf( const ReportData& a_data )
{
    return std::to_string( a_data.m_cardsWhole ) + ' ' + std::to_string( a_data.m_cardsInPart ) + ' ' +
           std::to_string( a_data.m_cardsRefused );
}

class CardDeliveryTest : public ::testing::TestWithParam<DeliveryRow>
{
};

struct EvidenceRow
{
    const char* m_name;
    std::string m_text;
    PimContactEvidence m_evidence;
    const char* m_charset;
    const char* m_default = "windows-1252";
};

std::ostream& operator<<( std::ostream& a_stream, const EvidenceRow& a_row )
{
    return a_stream << a_row.m_name;
}

class CardEvidenceTest : public ::testing::TestWithParam<EvidenceRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Texts, CardDeliveryTest,
    ::testing::Values(
        DeliveryRow{ "OneCard", Card( "FN:a/" ), "1 at 0 in line 1 " + Card( "FN:a/" ) + "; ", "", "1 0 0" },
        DeliveryRow{ "TwoCards", Card( "FN:a/" ) + Card( "FN:b/" ),
                     "1 at 0 in line 1 " + Card( "FN:a/" ) + "; 2 at 27 in line 4 " + Card( "FN:b/" ) + "; ", "",
                     "2 0 0" },
        DeliveryRow{ "DroppedLine", Card( "TEL:1/;/" ), "1 at 0 in line 1 " + Card( "TEL:1/;/" ) + "; ",
                     "not-a-property 3; ", "0 1 0" },
        DeliveryRow{ "OddLine", Card( "FN :a/" ), "1 at 0 in line 1 " + Card( "FN :a/" ) + "; ", "name-blanks 2; ",
                     "1 0 0" },
        DeliveryRow{ "MarkInTheCard", Card( "FN:a/" + s_kMark + "N:b/" ),
                     "1 at 0 in line 1 " + Card( "FN:a/" + s_kMark + "N:b/" ) + "; ", "stray-byte-order-mark 3; ",
                     "1 0 0" },
        DeliveryRow{ "EndMissing", s_kBegin + "FN:a/" + Card( "FN:b/" ),
                     "1 at 0 in line 1 " + s_kBegin + "FN:a/; 2 at 17 in line 3 " + Card( "FN:b/" ) + "; ",
                     "missing-end 3; ", "1 1 0" },
        DeliveryRow{ "EndOfFile", Card( "FN:a/" ) + s_kBegin + "FN:b/",
                     "1 at 0 in line 1 " + Card( "FN:a/" ) + "; 2 at 27 in line 4 " + s_kBegin + "FN:b/; ",
                     "end-of-file 6; ", "1 1 0" },
        DeliveryRow{ "FilteredLine", Card( "N:a/FN:a/" ), "1 at 0 in line 1 " + Card( "FN:a/" ) + "; ", "", "1 0 0",
                     []( PimContactOptions& a_options ) { a_options.SetNames( { QByteArrayLiteral( "FN" ) } ); } },
        DeliveryRow{ "AsManyCards", Card( "FN:a/" ) + Card( "FN:b/" ),
                     "1 at 0 in line 1 " + Card( "FN:a/" ) + "; 2 at 27 in line 4 " + Card( "FN:b/" ) + "; ", "",
                     "2 0 0", []( PimContactOptions& a_options ) { a_options.SetCards( 2 ); } },
        DeliveryRow{ "MoreCards", Card( "FN:a/" ) + Card( "FN:b/" ) + Card( "" ),
                     "1 at 0 in line 1 " + Card( "FN:a/" ) + "; ", "too-many-cards 4; too-many-cards 7; ", "1 0 2",
                     []( PimContactOptions& a_options ) { a_options.SetCards( 1 ); } },
        DeliveryRow{ "MoreCardsInPart", Card( "TEL:1/;/" ) + Card( "FN:b/" ),
                     "1 at 0 in line 1 " + Card( "TEL:1/;/" ) + "; ", "not-a-property 3; too-many-cards 5; ", "0 1 1",
                     []( PimContactOptions& a_options ) { a_options.SetCards( 1 ); } },
        DeliveryRow{ "LongBook", Card( "FN:a/" ) + Card( "FN:bc/" ) + Card( "FN:d/" ),
                     "1 at 0 in line 1 " + Card( "FN:a/" ) + "; 3 at 55 in line 7 " + Card( "FN:d/" ) + "; ",
                     "book-too-long 4; ", "2 0 1",
                     []( PimContactOptions& a_options ) { a_options.SetBookBytes( 54 ); } } ),
    []( const ::testing::TestParamInfo<DeliveryRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CardDeliveryTest, CardsAreDeliveredOrRefused )
{
    LedgerText ledger;
    const DeliveredText text( ledger, GetParam().m_text, GetParam().m_change );
    EXPECT_EQ( text.m_cards, GetParam().m_cards );
    EXPECT_EQ( ledger.Findings(), GetParam().m_findings );
    EXPECT_EQ( CountsOf( ledger.Data() ), GetParam().m_counts );
    EXPECT_EQ( ledger.Get().Offset(), static_cast<qint64>( GetParam().m_text.size() ) );
}

// Without a handler the extents of most cards are added together, and so are findings that nobody receives.
TEST_P( CardDeliveryTest, CountsAreTheSameWithoutHandlers )
{
    LedgerText expected;
    const DeliveredText text( expected, GetParam().m_text, GetParam().m_change );
    for ( const int mostDiagnostics : { -1, 0 } )
    {
        SCOPED_TRACE( mostDiagnostics );
        LedgerText ledger( false, mostDiagnostics );
        EXPECT_EQ( DeliveredText( ledger, GetParam().m_text, GetParam().m_change ).m_cards, text.m_cards );
        EXPECT_EQ( CountsOf( ledger.Data() ), GetParam().m_counts );
        EXPECT_EQ( ledger.Data().m_bytes, expected.Data().m_bytes );
        EXPECT_EQ( ledger.Data().m_extents, expected.Data().m_extents );
        EXPECT_EQ( ledger.Data().m_findings, expected.Data().m_findings );
        EXPECT_EQ( ledger.Get().Offset(), expected.Get().Offset() );
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CardEvidenceTest,
    ::testing::Values(
        EvidenceRow{ "Ascii", Card( "FN:a/" ), PimContactEvidence::None, "UTF-8" },
        EvidenceRow{ "Utf8", Card( "FN:a/" ) + Card( "FN:\xC3\xA9/" ), PimContactEvidence::ValidUtf8, "UTF-8" },
        EvidenceRow{ "Default", Card( "FN:\xE9/" ), PimContactEvidence::Default, "windows-1252" },
        EvidenceRow{ "UnknownDefault", Card( "FN:\xE9/" ), PimContactEvidence::Default, "UTF-8", "NONE-1" },
        EvidenceRow{ "Named", Card( "FN;CHARSET=KOI8-R:\xE9/" ), PimContactEvidence::CharsetNamed, "KOI8-R" },
        EvidenceRow{ "NamedBehindUtf8", Card( "FN:\xC3\xA9/" ) + Card( "FN;CHARSET=KOI8-R:\xE9/" ),
                     PimContactEvidence::CharsetNamed, "KOI8-R" },
        EvidenceRow{ "FirstNamed", Card( "FN;CHARSET=KOI8-R:\xE9/" ) + Card( "FN;CHARSET=ISO-8859-5:\xE9/" ),
                     PimContactEvidence::CharsetNamed, "KOI8-R" },
        EvidenceRow{ "NamedBehindDefault", Card( "FN:\xE9/" ) + Card( "FN;CHARSET=KOI8-R:\xE9/" ),
                     PimContactEvidence::Default, "windows-1252" },
        EvidenceRow{ "Utf8BehindNamed", Card( "FN;CHARSET=KOI8-R:\xE9/" ) + Card( "FN:\xC3\xA9/" ),
                     PimContactEvidence::CharsetNamed, "KOI8-R" } ),
    []( const ::testing::TestParamInfo<EvidenceRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CardEvidenceTest, FirstCardThatIsNotUtf8Decides )
{
    LedgerText ledger;
    const DeliveredText text( ledger, GetParam().m_text,
                              []( PimContactOptions& a_options )
                              { a_options.SetDefaultCharset( QByteArray( GetParam().m_default ) ); } );
    EXPECT_EQ( ledger.Data().m_evidence, GetParam().m_evidence );
    EXPECT_EQ( ledger.Data().m_charset.toStdString(), GetParam().m_charset );
}

TEST( CardDeliveryUseTest, VersionsAreCounted )
{
    LedgerText ledger;
    const DeliveredText text( ledger, Card( "VERSION:2.1/" ) + Card( "VERSION:3.0/" ) + Card( "VERSION:3.0/" ),
                              nullptr );
    EXPECT_EQ( ledger.Data().m_versions[static_cast<size_t>( PimContactVersion::V21 )], 1 );
    EXPECT_EQ( ledger.Data().m_versions[static_cast<size_t>( PimContactVersion::V30 )], 2 );
}

TEST( CardDeliveryUseTest, ExtentsBelongToTheirCard )
{
    LedgerText ledger;
    const DeliveredText text( ledger, Card( "" ) + Card( "" ),
                              []( PimContactOptions& a_options ) { a_options.SetCards( 1 ); } );
    EXPECT_EQ( ledger.Extents(), "boundary 1 BEGIN:VCARD/; boundary 1 END:VCARD/; refused 2 " + Card( "" ) + "; " );
    EXPECT_TRUE( text.m_isFull );
}

TEST( CardDeliveryUseTest, CardsKnowWhetherTheTextWasConverted )
{
    LedgerText ledger;
    EXPECT_TRUE( DeliveredText( ledger, Card( "" ), nullptr, true ).m_isLastConverted );
    EXPECT_FALSE( DeliveredText( ledger, Card( "" ), nullptr, false ).m_isLastConverted );
}

TEST( CardDeliveryUseTest, FileIsCutOffIfTheLastCardHasNoEnd )
{
    struct Row
    {
        const char* m_text;
        bool m_isEndOfText;
        const char* m_findings;
    };
    constexpr std::array<Row, 3> rows = { { { "BEGIN:VCARD/", true, "end-of-file 2; " },
                                            { "BEGIN:VCARD/", false, "missing-end 2; " },
                                            { "BEGIN:VCARD/a/", true, "missing-end 2; " } } };
    for ( const Row& row : rows )
    {
        LineScanner scanner;
        AppendAll( scanner, row.m_text );
        LedgerText ledger;
        CardDelivery delivery( scanner, ledger.Get(), PimContactOptions(), []( const PimContactCard& ) {} );
        if ( row.m_isEndOfText )
            delivery.EndText();
        DeliverFirstLine( delivery, scanner );
        EXPECT_EQ( ledger.Findings(), row.m_findings );
    }
}

TEST( CardDeliveryUseTest, ResetForgetsTheText )
{
    LineScanner scanner;
    AppendAll( scanner, s_kBegin );
    LedgerText ledger;
    PimContactOptions options;
    options.SetBookBytes( static_cast<qint64>( s_kBegin.size() ) );
    int count = 0;
    CardDelivery delivery( scanner, ledger.Get(), options, [&count]( const PimContactCard& ) { ++count; } );
    delivery.EndText();
    DeliverFirstLine( delivery, scanner );
    delivery.Reset( false );
    scanner.Reset();
    AppendAll( scanner, s_kBegin );
    DeliverFirstLine( delivery, scanner );
    EXPECT_EQ( count, 2 );
    EXPECT_EQ( ledger.Findings(), "end-of-file 2; missing-end 2; " );
}

TEST( CardDeliveryUseTest, RefusedCardIsCountedAndReported )
{
    LineScanner scanner;
    LedgerText ledger;
    CardDelivery delivery( scanner, ledger.Get(), PimContactOptions(), nullptr );
    delivery.ReportRefused( PimContactDiagnosticCode::CardTooLong, { 20, 3, 20 } );
    EXPECT_EQ( ledger.Findings(), "card-too-long 3; " );
    EXPECT_EQ( ledger.Data().m_cards, 1 );
    EXPECT_EQ( ledger.Data().m_cardsRefused, 1 );
    EXPECT_EQ( ledger.Extents(), "" );
    EXPECT_FALSE( delivery.IsFull() );
}

} // namespace PimManager::Contacts
