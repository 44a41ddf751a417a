#include "Cards/CardStack.h"

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

const std::string s_kBegin = "BEGIN:VCARD/";
const std::string s_kEnd = "END:VCARD/";

std::string Card( const std::string& a_lines )
{
    return s_kBegin + a_lines + s_kEnd;
}

struct StackRow
{
    const char* m_name;
    // "/" is a line feed. The first line is that of the card.
    std::string m_text;
    // The parts of the card. A card inside is in braces, with the lines before it.
    std::string m_parts;
    Change m_change = nullptr;
    quint32 m_indentation = 0;
};

std::ostream& operator<<( std::ostream& a_stream, const StackRow& a_row )
{
    return a_stream << a_row.m_name;
}

std::string NameOfKind( const IndexEntry& a_entry )
{
    switch ( a_entry.m_kind )
    {
    case EntryKind::Line:
        return "line ";
    case EntryKind::Boundary:
        return a_entry.m_isMended ? "mended " : "boundary ";
    case EntryKind::Blank:
        return "blank ";
    case EntryKind::Filtered:
        return "filtered ";
    case EntryKind::Mark:
        return "mark ";
    default:
        return a_entry.m_reason == DropReason::NestingTooDeep ? "too deep " : "dropped ";
    }
}

std::string FlagsOf( const CardRecord& a_record )
{
    std::string text = a_record.Has( CardRecord::HasBegin ) ? "" : " without begin";
    text += a_record.Has( CardRecord::HasEnd ) ? "" : " without end";
    text += a_record.Has( CardRecord::IsWhole ) ? "" : " in part";
    text += a_record.Has( CardRecord::IsFiltered ) ? " filtered" : "";
    text += a_record.Has( CardRecord::IsIndented ) ? " indented" : "";
    return text + ( a_record.Has( CardRecord::IsOtherCharset ) ? " other" : "" );
}

std::string Described( const CardIndex& a_index, const std::string& a_bytes, quint32 a_record = 0 )
{
    const CardRecord record = CardRecord::At( a_index.Base() + a_record );
    std::string text = "{" + std::to_string( record.m_line ) + FlagsOf( record ) + ": ";
    size_t place = record.m_begin;
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( a_index.Base(), a_record ); !reader.AtEnd(); place += entry.m_length )
    {
        reader.Next( entry, true );
        text += entry.m_kind == EntryKind::Nested
                    ? Described( a_index, a_bytes, entry.m_indexBegin )
                    : NameOfKind( entry ) + Replaced( a_bytes.substr( place, entry.m_length ), '\n', '/' ) + "; ";
    }
    EXPECT_EQ( place, record.m_begin + record.m_length );
    return text + "} ";
}

void BeginCard( CardStack& a_stack, const PhysicalLine& a_begin )
{
    a_stack.Begin( a_begin, 0 );
    a_stack.AddBegin( a_begin );
}

// Each BEGIN begins a card inside.
CardBoundary::Kind TakeLine( CardStack& a_stack, const LineScanner& a_scanner, const PhysicalLine& a_line )
{
    const CardBoundary boundary = CardBoundary::Of( a_scanner.TextOf( a_line ) );
    a_stack.RefreshBytes();
    if ( boundary.m_kind == CardBoundary::Kind::Begin )
    {
        EXPECT_TRUE( a_stack.IsBehindAgent() );
        a_stack.BeginNested( a_line );
    }
    else if ( boundary.m_kind == CardBoundary::Kind::End )
        a_stack.EndNested( a_line, boundary );
    else
        a_stack.Take( a_line );
    return boundary.m_kind;
}

// Passes the lines of a card. A BEGIN line that is not after an AGENT line ends all cards.
class StackedText
{
public:
    explicit StackedText( const StackRow& a_row ) :
        m_text( Replaced( a_row.m_text, '/', '\n' ) )
    {
        PimContactOptions options;
        if ( a_row.m_change )
            a_row.m_change( options );
        CardStack stack( m_scanner, options, true );
        m_scanner.Append( m_text );
        m_scanner.Finish();
        PhysicalLine line;
        m_scanner.Next( line );
        stack.Begin( line, a_row.m_indentation );
        m_hasBegin = KindOf( line ) == CardBoundary::Kind::Begin;
        if ( m_hasBegin )
            stack.AddBegin( line );
        else
            stack.Take( line );
        while ( !m_isClosed && m_scanner.Next( line ) )
            Take( stack, line );
        if ( !m_isClosed )
            stack.Close( m_scanner.NextOffset(), nullptr, m_hasBegin, m_index );
    }
    Q_DISABLE_COPY( StackedText )

    std::string Parts() const { return Described( m_index, m_text ); }

private:
    CardBoundary::Kind KindOf( const PhysicalLine& a_line ) const
    {
        return CardBoundary::Of( m_scanner.TextOf( a_line ) ).m_kind;
    }

    void Take( CardStack& a_stack, const PhysicalLine& a_line )
    {
        const CardBoundary boundary = CardBoundary::Of( m_scanner.TextOf( a_line ) );
        a_stack.RefreshBytes();
        if ( boundary.m_kind == CardBoundary::Kind::Begin && a_stack.IsBehindAgent() )
            a_stack.BeginNested( a_line );
        else if ( boundary.m_kind == CardBoundary::Kind::Begin )
            Close( a_stack, a_line.m_offset, nullptr );
        else if ( boundary.m_kind != CardBoundary::Kind::End )
            a_stack.Take( a_line );
        else if ( !a_stack.IsOutermost() )
            a_stack.EndNested( a_line, boundary );
        else
            Close( a_stack, a_line.End(), &a_line );
    }

    void Close( CardStack& a_stack, qint64 a_end, const PhysicalLine* a_endLine )
    {
        a_stack.Close( a_end, a_endLine, m_hasBegin, m_index );
        m_isClosed = true;
    }

    std::string m_text;
    LineScanner m_scanner;
    CardIndex m_index;
    bool m_hasBegin = false;
    bool m_isClosed = false;
};

void SetNesting1( PimContactOptions& a_options )
{
    a_options.SetNesting( 1 );
}

void SetNames( PimContactOptions& a_options )
{
    a_options.SetNames( { QByteArrayLiteral( "FN" ) } );
}

class CardStackTest : public ::testing::TestWithParam<StackRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, CardStackTest,
    ::testing::Values(
        StackRow{ "OneCard", Card( "FN:a/ b//" ),
                  "{0: boundary BEGIN:VCARD/; line FN:a/ b/; blank /; boundary "
                  "END:VCARD/; } " },
        StackRow{ "BeginMissing", "FN:a/" + s_kEnd, "{0 without begin in part: line FN:a/; boundary END:VCARD/; } " },
        StackRow{ "EndMissing", s_kBegin + "FN:a//",
                  "{0 without end in part: boundary BEGIN:VCARD/; line FN:a/; blank /; } " },
        StackRow{
            "PartsOfTheBoundaries",
            "\xEF\xBB\xBF"
            "BEGIN:VCARD /"
            "END:VCARD, all/",
            "{0 in part: mark \xEF\xBB\xBF; mended BEGIN:VCARD /; boundary END:VCARD; dropped , all; boundary /; } " },
        StackRow{ "TextsOnOneBoundary", "a.BEGIN;X=1:VCARD/ END;X=1:VCARD/",
                  "{0 in part: dropped a.; boundary BEGIN; dropped ;X=1; boundary :VCARD/; mended  END; dropped ;X=1; "
                  "boundary :VCARD/; } " },
        StackRow{ "IndentedCard", " BEGIN:VCARD/ FN:a/  b/ END:VCARD/",
                  "{0 indented: mended  BEGIN:VCARD/; line  FN:a/  b/; mended  END:VCARD/; } ", nullptr, 1 } ),
    []( const ::testing::TestParamInfo<StackRow>& a_info ) { return std::string( a_info.param.m_name ); } );

INSTANTIATE_TEST_SUITE_P(
    CardsInside, CardStackTest,
    ::testing::Values(
        StackRow{ "Agent", Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ),
                  "{0: boundary BEGIN:VCARD/; line AGENT:/; {2: boundary BEGIN:VCARD/; line FN:b/; boundary "
                  "END:VCARD/; } line FN:a/; boundary END:VCARD/; } " },
        StackRow{ "BlankLinesBefore", Card( "AGENT:///" + Card( "" ) ),
                  "{0: boundary BEGIN:VCARD/; line AGENT:/; blank //; {4: boundary BEGIN:VCARD/; boundary "
                  "END:VCARD/; } boundary END:VCARD/; } " },
        StackRow{ "TwoLevels", Card( "AGENT:/" + Card( "AGENT:/" + Card( "FN:c/" ) ) ),
                  "{0: boundary BEGIN:VCARD/; line AGENT:/; {2: boundary BEGIN:VCARD/; line AGENT:/; {4: boundary "
                  "BEGIN:VCARD/; line FN:c/; boundary END:VCARD/; } boundary END:VCARD/; } boundary END:VCARD/; } " },
        StackRow{ "BothEndsMissing", s_kBegin + "AGENT:/" + s_kBegin + "FN:b/",
                  "{0 without end in part: boundary BEGIN:VCARD/; line AGENT:/; {2 without end in part: boundary "
                  "BEGIN:VCARD/; line "
                  "FN:b/; } } " },
        StackRow{ "BeginOfAnotherCard", s_kBegin + "AGENT:/" + s_kBegin + "FN:b/" + Card( "FN:c/" ),
                  "{0 without end in part: boundary BEGIN:VCARD/; line AGENT:/; {2 without end in part: boundary "
                  "BEGIN:VCARD/; line "
                  "FN:b/; } } " },
        StackRow{ "DroppedLineInside", Card( "AGENT:/" + Card( "TEL:1/;/" ) ),
                  "{0 in part: boundary BEGIN:VCARD/; line AGENT:/; {2 in part: boundary BEGIN:VCARD/; line TEL:1/; "
                  "dropped ;/; boundary END:VCARD/; } boundary END:VCARD/; } " },
        StackRow{ "FilteredLineInside", Card( "FN:a/AGENT:/" + Card( "N:b/" ) ),
                  "{0 filtered: boundary BEGIN:VCARD/; line FN:a/; line AGENT:/; {3 filtered: boundary BEGIN:VCARD/; "
                  "filtered N:b/; boundary END:VCARD/; } boundary END:VCARD/; } ",
                  []( PimContactOptions& a_options ) {
                      a_options.SetNames( { QByteArrayLiteral( "FN" ), QByteArrayLiteral( "AGENT" ) } );
                  } } ),
    []( const ::testing::TestParamInfo<StackRow>& a_info ) { return std::string( a_info.param.m_name ); } );

INSTANTIATE_TEST_SUITE_P(
    CardsLeftOut, CardStackTest,
    ::testing::Values(
        StackRow{ "FilteredAgent", Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ),
                  "{0 filtered: boundary BEGIN:VCARD/; filtered AGENT:/BEGIN:VCARD/FN:b/END:VCARD/; line FN:a/; "
                  "boundary END:VCARD/; } ",
                  SetNames },
        StackRow{ "FilteredAgentWithoutEnd", s_kBegin + "AGENT:/" + s_kBegin + "FN:b/",
                  "{0 without end in part filtered: boundary BEGIN:VCARD/; filtered AGENT:/BEGIN:VCARD/FN:b/; } ",
                  SetNames },
        StackRow{ "LongAgent", Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ),
                  "{0 in part: boundary BEGIN:VCARD/; dropped AGENT:/BEGIN:VCARD/FN:b/END:VCARD/; line FN:a/; "
                  "boundary END:VCARD/; } ",
                  []( PimContactOptions& a_options ) { a_options.SetLineBytes( 6 ); } },
        StackRow{ "TooDeep", Card( "AGENT:/" + Card( "FN:b/AGENT:/" + Card( "FN:c/" ) + "N:b/" ) + "FN:a/" ),
                  "{0 in part: boundary BEGIN:VCARD/; line AGENT:/; {2 in part: boundary BEGIN:VCARD/; line FN:b/; "
                  "too deep AGENT:/BEGIN:VCARD/FN:c/END:VCARD/; line N:b/; boundary END:VCARD/; } line FN:a/; boundary "
                  "END:VCARD/; } ",
                  SetNesting1 },
        StackRow{ "TooDeepWithACardInside",
                  Card( "AGENT:/" + Card( "AGENT:/" + Card( "AGENT://" + Card( "FN:d/" ) ) + "N:b/" ) ),
                  "{0 in part: boundary BEGIN:VCARD/; line AGENT:/; {2 in part: boundary BEGIN:VCARD/; too deep "
                  "AGENT:/BEGIN:VCARD/AGENT://BEGIN:VCARD/FN:d/END:VCARD/END:VCARD/; line N:b/; boundary END:VCARD/; } "
                  "boundary END:VCARD/; } ",
                  SetNesting1 },
        StackRow{ "BeginBehindACardInsideOneTooDeep",
                  s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/" + s_kEnd +
                      s_kBegin,
                  "{0 without end in part: boundary BEGIN:VCARD/; line AGENT:/; {2 without end in part: boundary "
                  "BEGIN:VCARD/; too deep AGENT:/BEGIN:VCARD/AGENT:/BEGIN:VCARD/AGENT:/END:VCARD/; } } ",
                  SetNesting1 },
        StackRow{ "TooDeepWithoutEnd",
                  s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/FN:c/" + s_kBegin + "FN:d/",
                  "{0 without end in part: boundary BEGIN:VCARD/; line AGENT:/; {2 without end in part: boundary "
                  "BEGIN:VCARD/; too deep AGENT:/BEGIN:VCARD/AGENT:/FN:c/; } } ",
                  SetNesting1 } ),
    []( const ::testing::TestParamInfo<StackRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CardStackTest, PartsAreWritten )
{
    EXPECT_EQ( StackedText( GetParam() ).Parts(), GetParam().m_parts );
}

TEST( CardStackUseTest, CardsInsideMakeTheCardDeeper )
{
    LineScanner scanner;
    AppendAll( scanner, s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/" + s_kBegin + s_kEnd + s_kEnd );
    PimContactOptions options;
    SetNesting1( options );
    CardStack stack( scanner, options, true );
    PhysicalLine line;
    scanner.Next( line );
    BeginCard( stack, line );
    std::string depths;
    while ( scanner.Next( line ) )
    {
        const CardBoundary::Kind kind = TakeLine( stack, scanner, line );
        depths += std::to_string( stack.Depth() ) + ( stack.IsTooDeep() ? "! " : " " );
        EXPECT_EQ( stack.IsOutermost(), stack.Depth() == 0 ) << depths;
        EXPECT_EQ( stack.MayFold(), kind == CardBoundary::Kind::None ) << depths;
    }
    EXPECT_EQ( depths, "0 1 1 2! 1 0 " );
}

TEST( CardStackUseTest, CloseAndBeginLeaveNoCardInside )
{
    LineScanner scanner;
    AppendAll( scanner, s_kBegin + "AGENT:/" + s_kBegin + "AGENT:/" + s_kBegin );
    PimContactOptions options;
    SetNesting1( options );
    CardStack stack( scanner, options, true );
    PhysicalLine first;
    scanner.Next( first );
    for ( PhysicalLine line; scanner.Next( line ); )
        ASSERT_GT( line.m_number, first.m_number );
    for ( const bool isClosed : { true, false } )
    {
        BeginCard( stack, first );
        EXPECT_TRUE( stack.IsOutermost() ) << isClosed;
        for ( qint64 place = first.End(), number = 2; place < scanner.NextOffset(); ++number )
        {
            const PhysicalLine line = scanner.LineAt( place, scanner.NextOffset(), number );
            TakeLine( stack, scanner, line );
            place = line.End();
        }
        EXPECT_EQ( stack.Depth(), 2 ) << isClosed;
        CardIndex index;
        if ( isClosed )
            stack.Close( scanner.NextOffset(), nullptr, true, index );
        else
            BeginCard( stack, first );
        EXPECT_TRUE( stack.IsOutermost() ) << isClosed;
    }
}

TEST( CardStackUseTest, WideLinesInsideMakeTheCardWide )
{
    LineScanner scanner;
    AppendAll( scanner, s_kBegin + "AGENT:/" + s_kBegin + "FN:\xE9/" );
    CardStack stack( scanner, PimContactOptions(), true );
    PhysicalLine line;
    scanner.Next( line );
    BeginCard( stack, line );
    while ( scanner.Next( line ) )
        TakeLine( stack, scanner, line );
    CardIndex index;
    stack.Close( line.End(), nullptr, true, index );
    EXPECT_TRUE( stack.Lines().Facts().m_isWide );
}

} // namespace PimManager::Contacts
