#include "Lines/LineIndex.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

std::string Described( ByteRange a_range )
{
    return std::to_string( a_range.m_begin ) + '+' + std::to_string( a_range.m_length );
}

std::string Described( const LineJoin& a_join )
{
    static const std::array<const char*, 5> kinds = { "Fold", "Direct", "LineFeed", "SoftBreak", "SoftBreakAndBlank" };
    return Described( ByteRange{ a_join.m_begin, a_join.m_length } ) + ' ' +
           kinds[static_cast<size_t>( a_join.m_kind )] + ' ' + std::to_string( a_join.m_lineFeeds );
}

std::string Described( const IndexEntry& a_entry )
{
    std::string text = "kind " + std::to_string( static_cast<int>( a_entry.m_kind ) ) + " length " +
                       std::to_string( a_entry.m_length );
    if ( a_entry.m_kind == EntryKind::Dropped )
        text += " reason " + std::to_string( static_cast<int>( a_entry.m_reason ) );
    if ( a_entry.m_kind == EntryKind::Boundary && a_entry.m_isMended )
        text += " mended";
    if ( a_entry.m_kind != EntryKind::Line )
        return text;
    text += " group " + Described( a_entry.m_group ) + " name " + Described( a_entry.m_name );
    text += " parameters " + Described( a_entry.m_parameters ) + " value " + std::to_string( a_entry.m_valueBegin );
    text += a_entry.m_hasColon ? " colon" : "";
    text += a_entry.m_hasFolds ? " folds" : "";
    text += " encoding " + std::to_string( static_cast<int>( a_entry.m_encoding ) );
    text += " charset " + std::to_string( static_cast<int>( a_entry.m_charset ) );
    text += " oddities " + std::to_string( static_cast<int>( a_entry.m_oddities ) );
    text += a_entry.m_doSoftBreaksTakeBlank ? " takes blanks" : "";
    JoinReader joins( a_entry );
    for ( LineJoin join; joins.Next( join ); )
        text += ", " + Described( join );
    return text;
}

IndexEntry PartOf( EntryKind a_kind, quint32 a_length )
{
    IndexEntry entry;
    entry.m_kind = a_kind;
    entry.m_length = a_length;
    return entry;
}

IndexEntry DroppedFor( DropReason a_reason )
{
    IndexEntry entry = PartOf( EntryKind::Dropped, 5 );
    entry.m_reason = a_reason;
    return entry;
}

// Positions without a gap.
IndexEntry PlainLine( quint32 a_group, quint32 a_name, quint32 a_parameters, quint32 a_length )
{
    IndexEntry entry;
    entry.m_length = a_length;
    entry.m_group = { 0, a_group };
    entry.m_name = { a_group > 0 ? a_group + 1 : 0, a_name };
    entry.m_parameters = { entry.m_name.End(), a_parameters };
    entry.m_valueBegin = entry.m_parameters.End() + 1;
    entry.m_hasColon = true;
    return entry;
}

template <typename Change>
IndexEntry Changed( IndexEntry a_entry, Change a_change )
{
    a_change( a_entry );
    return a_entry;
}

struct EntryRow
{
    const char* m_name;
    IndexEntry m_entry;
    std::vector<LineJoin> m_joins;
};

std::vector<EntryRow> Entries()
{
    const IndexEntry line = PlainLine( 0, 4, 0, 20 );
    const IndexEntry encoded = Changed( PlainLine( 0, 4, 26, 300 ), []( IndexEntry& a_entry )
                                        { a_entry.m_encoding = PimContactEncoding::QuotedPrintable; } );
    return {
        { "plain line", line, {} },
        { "group and parameters", PlainLine( 5, 3, 12, 40 ), {} },
        { "length of two bytes", PlainLine( 0, 1, 0, 128 ), {} },
        { "lengths of three bytes", PlainLine( 127, 128, 16384, 16383 * 2 ), {} },
        { "length of five bytes", PlainLine( 0, 1, 0, 0xFFFFFFFFU ), {} },
        { "empty name", PlainLine( 0, 0, 3, 9 ), {} },
        { "without a colon",
          Changed( line,
                   []( IndexEntry& a_entry )
                   {
                       a_entry.m_hasColon = false;
                       a_entry.m_valueBegin = 4;
                   } ),
          {} },
        { "folds", Changed( line, []( IndexEntry& a_entry ) { a_entry.m_hasFolds = true; } ), {} },
        { "blanks before the name",
          Changed( line,
                   []( IndexEntry& a_entry )
                   {
                       a_entry.m_name.m_begin = 2;
                       a_entry.m_parameters.m_begin = 6;
                       a_entry.m_valueBegin = 7;
                   } ),
          {} },
        { "blanks before the colon", Changed( line, []( IndexEntry& a_entry ) { a_entry.m_valueBegin = 300; } ), {} },
        { "blanks round the group",
          Changed( PlainLine( 5, 3, 0, 40 ),
                   []( IndexEntry& a_entry )
                   {
                       a_entry.m_group.m_begin = 1;
                       a_entry.m_name.m_begin = 9;
                   } ),
          {} },
        { "every oddity and a character set",
          Changed( line,
                   []( IndexEntry& a_entry )
                   {
                       a_entry.m_oddities = PimContactOddities( 0x7FF );
                       a_entry.m_charset = LineCharset::Iso2022Jp;
                   } ),
          {} },
        { "BASE64",
          Changed( line, []( IndexEntry& a_entry ) { a_entry.m_encoding = PimContactEncoding::Base64; } ),
          {} },
        { "joins of every kind",
          encoded,
          { { 0, 1, PimContactJoin::Direct },
            { 1, 2, PimContactJoin::Fold },
            { 10, 15, PimContactJoin::LineFeed, 1 },
            { 25, 16, PimContactJoin::LineFeed, 3 },
            { 169, 3, PimContactJoin::SoftBreak },
            { 20000, 16384, PimContactJoin::Direct } } },
        { "soft breaks that take the blank",
          Changed( encoded, []( IndexEntry& a_entry ) { a_entry.m_doSoftBreaksTakeBlank = true; } ),
          { { 5, 3, PimContactJoin::SoftBreak },
            { 30, 2, PimContactJoin::Direct },
            { 40, 3, PimContactJoin::SoftBreak } } },
        { "blank", PartOf( EntryKind::Blank, 2 ), {} },
        { "mark", PartOf( EntryKind::Mark, 3 ), {} },
        { "filtered", PartOf( EntryKind::Filtered, 16384 ), {} },
        { "boundary", PartOf( EntryKind::Boundary, 13 ), {} },
        { "mended boundary",
          Changed( PartOf( EntryKind::Boundary, 13 ), []( IndexEntry& a_entry ) { a_entry.m_isMended = true; } ),
          {} },
        { "dropped text", DroppedFor( DropReason::NotAProperty ), {} },
        { "dropped comment", DroppedFor( DropReason::Comment ), {} },
        { "dropped long line", DroppedFor( DropReason::LineTooLong ), {} },
        { "dropped nested card", DroppedFor( DropReason::NestingTooDeep ), {} },
        { "dropped text of a boundary", DroppedFor( DropReason::BoundaryText ), {} },
    };
}

std::vector<uchar> Copied( IndexBytes a_bytes )
{
    return std::vector<uchar>( a_bytes.m_data, a_bytes.m_data + a_bytes.m_size );
}

IndexReader ReaderOf( IndexBytes a_bytes )
{
    return IndexReader( a_bytes.m_data, 0, a_bytes.m_size );
}

} // namespace

TEST( LineIndexTest, EntriesAreReadAsTheyWereWritten )
{
    // All in one index, so that an entry that is read too far spoils the next one.
    IndexWriter writer;
    std::vector<std::string> expected;
    const std::vector<EntryRow> rows = Entries();
    for ( EntryRow row : rows )
    {
        JoinWriter joins;
        for ( const LineJoin& join : row.m_joins )
            joins.Add( join );
        row.m_entry.m_joins = joins.Bytes();
        writer.Add( row.m_entry );
        expected.push_back( Described( row.m_entry ) );
    }
    IndexReader reader = ReaderOf( writer.Bytes() );
    IndexEntry entry;
    for ( size_t i = 0; i < rows.size(); ++i )
    {
        SCOPED_TRACE( rows[i].m_name );
        ASSERT_FALSE( reader.AtEnd() );
        const quint32 place = reader.Place();
        reader.Next( entry );
        EXPECT_EQ( Described( entry ), expected[i] );
        const quint32 end = reader.Place();
        reader.StepTo( place );
        reader.Next( entry, true );
        EXPECT_EQ( reader.Place(), end ) << "of a brief entry";
        EXPECT_EQ( entry.m_length, rows[i].m_entry.m_length );
        if ( entry.m_kind != EntryKind::Line )
            continue;
        EXPECT_EQ( entry.m_oddities, rows[i].m_entry.m_oddities );
        EXPECT_EQ( entry.m_encoding, rows[i].m_entry.m_encoding );
        EXPECT_EQ( entry.m_hasColon, rows[i].m_entry.m_hasColon );
        EXPECT_EQ( entry.m_hasFolds, rows[i].m_entry.m_hasFolds );
    }
    EXPECT_TRUE( reader.AtEnd() );
}

// A line is plain if nothing is lost when no more than the plain part of its entry is read.
TEST( LineIndexTest, PlainLinesAreReadInPart )
{
    IndexWriter writer;
    const std::vector<EntryRow> rows = Entries();
    for ( const EntryRow& row : rows )
        writer.Add( row.m_entry );
    IndexReader reader = ReaderOf( writer.Bytes() );
    for ( const EntryRow& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        IndexEntry entry;
        const quint32 place = reader.Place();
        const bool isPlain = reader.IsPlain();
        reader.Next( entry );
        const quint32 end = reader.Place();
        IndexEntry plain =
            PlainLine( entry.m_group.m_length, entry.m_name.m_length, entry.m_parameters.m_length, entry.m_length );
        plain.m_hasFolds = entry.m_hasFolds;
        EXPECT_EQ( isPlain, Described( plain ) == Described( entry ) );
        if ( !isPlain )
            continue;
        reader.StepTo( place );
        const IndexReader::PlainLine line = reader.SkipPlain();
        EXPECT_EQ( reader.Place(), end );
        EXPECT_EQ( line.m_length, entry.m_length );
        EXPECT_EQ( Described( line.m_name ), Described( entry.m_name ) );
        EXPECT_EQ( Described( line.m_parameters ), Described( entry.m_parameters ) );
        EXPECT_EQ( line.m_hasFolds, entry.m_hasFolds );
    }
    EXPECT_TRUE( reader.AtEnd() );
}

TEST( LineIndexTest, JoinsAreReadAsTheyWereWritten )
{
    JoinWriter joins;
    joins.Add( { 5, 3, PimContactJoin::SoftBreak } );
    joins.Add( { 8, 2, PimContactJoin::Direct } );
    joins.Add( { 200, 20, PimContactJoin::LineFeed, 2 } );
    joins.Add( { 220, 3, PimContactJoin::Fold } );
    IndexEntry entry;
    entry.m_joins = joins.Bytes();
    EXPECT_EQ( Described( entry ),
               "kind 0 length 0 group 0+0 name 0+0 parameters 0+0 value 0 encoding 0 charset 0 oddities 0"
               ", 5+3 SoftBreak 0, 8+2 Direct 0, 200+20 LineFeed 2, 220+3 Fold 0" );
}

TEST( LineIndexTest, SoftBreaksTakeOneBlankMore )
{
    JoinWriter joins;
    joins.Add( { 5, 3, PimContactJoin::SoftBreak } );
    joins.Add( { 12, 3, PimContactJoin::SoftBreak } );
    joins.Add( { 20, 1, PimContactJoin::Direct } );
    IndexEntry entry;
    entry.m_joins = joins.Bytes();
    entry.m_doSoftBreaksTakeBlank = true;
    std::vector<std::string> found;
    JoinReader reader( entry );
    for ( LineJoin join; reader.Next( join ); )
        found.push_back( Described( join ) );
    const std::vector<std::string> expected = { "5+4 SoftBreakAndBlank 0", "12+4 SoftBreakAndBlank 0",
                                                "20+1 Direct 0" };
    EXPECT_EQ( found, expected );
}

TEST( LineIndexTest, PropertyIsKept )
{
    for ( size_t number = 0; number <= s_kProperties; ++number )
    {
        LineHead head = LineHead::Of( "TEL;TYPE=home:1" );
        if ( number < s_kProperties )
            head.m_property = static_cast<PropertyId>( number );
        IndexWriter writer;
        writer.AddPlain( HeadEntry( head ), 15, false, {} );
        IndexEntry entry;
        ReaderOf( writer.Bytes() ).Next( entry );
        EXPECT_EQ( entry.m_property, head.m_property ) << number;
        EXPECT_EQ( ReaderOf( writer.Bytes() ).Skip().m_property, head.m_property ) << number;
    }
}

TEST( LineIndexTest, CleanLinesAreWrittenLikeOthers )
{
    for ( const char* const text :
          { "FN:a", "item1.TEL;TYPE=home:1", "NOTE;QUOTED-PRINTABLE:a", "X:", "PHOTO;BASE64:AAAA" } )
    {
        const LineHead head = LineHead::Of( text );
        JoinWriter joins;
        joins.Add( { 30, 3, PimContactJoin::SoftBreak } );
        for ( const IndexBytes bytes : { IndexBytes(), joins.Bytes() } )
        {
            IndexEntry entry =
                PlainLine( head.m_group.m_length, head.m_name.m_length, head.m_parameters.m_length, 200 );
            entry.m_encoding = head.m_encoding;
            entry.m_hasFolds = true;
            entry.m_joins = bytes;
            IndexWriter clean;
            IndexWriter other;
            clean.AddPlain( HeadEntry( head ), 200, true, bytes );
            other.Add( entry );
            EXPECT_EQ( Copied( clean.Bytes() ), Copied( other.Bytes() ) ) << text;
        }
    }
}

TEST( LineIndexTest, PlainValueIsFoundInEachWay )
{
    constexpr std::array s_kPlain = { "FN:a", "item1.TEL;TYPE=home:1", "X:" };
    constexpr std::array s_kOther = { "NOTE;QUOTED-PRINTABLE:a", "FN" };
    const auto placeIn = []( const char* a_text, bool a_hasFolds )
    {
        const auto length = static_cast<quint32>( std::string_view( a_text ).size() );
        IndexWriter writer;
        writer.AddPlain( HeadEntry( LineHead::Of( a_text ) ), length, a_hasFolds, {} );
        std::string_view value;
        const bool isFound = ReaderOf( writer.Bytes() ).FindValue( a_text, value );
        const quint32 place = ReaderOf( writer.Bytes() ).Skip().m_plainValue;
        EXPECT_EQ( isFound ? static_cast<quint32>( value.data() - a_text ) : 0, place ) << a_text;
        return place;
    };
    for ( const char* const text : s_kPlain )
    {
        EXPECT_EQ( placeIn( text, false ), std::string_view( text ).find( ':' ) + 1 ) << text;
        EXPECT_EQ( placeIn( text, true ), 0U ) << text;
    }
    for ( const char* const text : s_kOther )
        EXPECT_EQ( placeIn( text, false ), 0U ) << text;
}

TEST( LineIndexTest, BreakMayBeBeforeAPlaceBehindTheFirstJoin )
{
    JoinWriter joins;
    joins.Add( { 30, 3, PimContactJoin::SoftBreak } );
    joins.Add( { 60, 3, PimContactJoin::SoftBreak } );
    IndexEntry entry;
    EXPECT_FALSE( entry.MayHaveBreakBefore( 100 ) );
    entry.m_joins = joins.Bytes();
    EXPECT_FALSE( entry.MayHaveBreakBefore( 30 ) );
    EXPECT_TRUE( entry.MayHaveBreakBefore( 31 ) );
    entry.m_hasFolds = true;
    EXPECT_TRUE( entry.MayHaveBreakBefore( 30 ) );
}

TEST( LineIndexTest, NestedIndexIsSteppedOver )
{
    IndexWriter inner;
    for ( int i = 0; i < 50; ++i )
        inner.AddPart( EntryKind::Blank, 300 );
    IndexWriter writer;
    writer.AddPart( EntryKind::Blank, 1 );
    writer.AddNested( 15000, inner.Bytes() );
    writer.AddBoundary( 11, true );
    IndexReader reader = ReaderOf( writer.Bytes() );
    IndexEntry entry;
    reader.Next( entry );
    reader.Next( entry );
    EXPECT_EQ( entry.m_kind, EntryKind::Nested );
    EXPECT_EQ( entry.m_length, 15000U );
    ASSERT_EQ( entry.m_indexLength, inner.Bytes().m_size );
    const quint32 place = entry.m_indexBegin;
    const quint32 length = entry.m_indexLength;
    reader.Next( entry );
    EXPECT_EQ( entry.m_kind, EntryKind::Boundary );
    EXPECT_TRUE( entry.m_isMended );
    EXPECT_TRUE( reader.AtEnd() );
    int blanks = 0;
    for ( IndexReader nested( writer.Bytes().m_data, place, place + length ); !nested.AtEnd(); ++blanks )
    {
        nested.Next( entry );
        ASSERT_EQ( entry.m_kind, EntryKind::Blank ) << blanks;
        ASSERT_EQ( entry.m_length, 300U ) << blanks;
    }
    EXPECT_EQ( blanks, 50 );
}

TEST( LineIndexTest, EmptyPartsAreNotWritten )
{
    IndexWriter writer;
    writer.AddPart( EntryKind::Blank, 0 );
    writer.AddBoundary( 0, true );
    writer.AddDropped( DropReason::Comment, 0 );
    EXPECT_EQ( writer.Bytes().m_size, 0U );
}

} // namespace PimManager::Contacts
