#include "Cards/CardSeal.h"

#include "SealedText.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

// In texts, "/" is LF.
std::string WithLineEnds( std::string a_text )
{
    std::replace( a_text.begin(), a_text.end(), '/', '\n' );
    return a_text;
}

std::string Card( const std::string& a_lines )
{
    return "BEGIN:VCARD/" + a_lines + "END:VCARD/";
}

PimContactOptions OnlyNames( const QList<QByteArray>& a_names )
{
    PimContactOptions options;
    options.SetNames( a_names );
    return options;
}

// A folded line whose folds are at 75.
std::string Folded()
{
    return "NOTE:" + std::string( 70, 'a' ) + "/ b/";
}

// Such as "3.0 removed whole; lines 2; sets 03; card KOI8-R". The sets are the numbers of the lines' character sets.
std::string Described( const uchar* a_base, quint32 a_record )
{
    static const std::array<const char*, s_kPimContactVersions> versions = { "none", "2.1", "3.0", "4.0" };
    const CardRecord record = CardRecord::At( a_base + a_record );
    std::string text = versions[static_cast<size_t>( record.m_version )];
    text += record.FoldStyle() == PimContactFoldStyle::BlankKept ? " kept" : " removed";
    text += record.Has( CardRecord::IsWhole ) ? " whole" : "";
    text += record.Has( CardRecord::IsFiltered ) ? " filtered" : "";
    text += record.Has( CardRecord::FoldsByLength ) ? " by length" : "";
    text += record.Has( CardRecord::IsOtherCharset ) ? " other" : "";
    text += "; lines " + std::to_string( record.m_lines ) + "; sets ";
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( a_base, a_record ); !reader.AtEnd(); )
    {
        reader.Next( entry );
        if ( entry.m_kind == EntryKind::Line )
            text += std::to_string( static_cast<int>( entry.m_charset ) );
    }
    const std::string_view charset = CharsetOf( a_base, a_record );
    return charset.empty() ? text : text + "; card " + std::string( charset );
}

struct SealRow
{
    const char* m_name;
    std::string m_text;
    const char* m_expected;
    bool m_isDefaultKnown = true;
    PimContactOptions m_options = PimContactOptions();
};

std::ostream& operator<<( std::ostream& a_stream, const SealRow& a_row )
{
    return a_stream << a_row.m_name;
}

class CardSealTest : public ::testing::TestWithParam<SealRow>
{
};

struct FilterRow
{
    const char* m_name;
    std::string m_text;
    std::string m_expected;
};

std::ostream& operator<<( std::ostream& a_stream, const FilterRow& a_row )
{
    return a_stream << a_row.m_name;
}

// Filtered lines are those that are not FN, NOTE or AGENT.
SealedText Filtered( const std::string& a_text )
{
    return SealedText( WithLineEnds( a_text ), OnlyNames( { QByteArrayLiteral( "FN" ), QByteArrayLiteral( "NOTE" ),
                                                            QByteArrayLiteral( "AGENT" ) } ) );
}

PimContactCard CardOf( const FilteredCard& a_card )
{
    return PimContactCardPrivate::Create( { 1, 1000, 50, false, QByteArrayLiteral( "windows-1252" ) },
                                          a_card.m_index.Bytes(), ViewOf( a_card.m_bytes ) );
}

// The name and the value of each line, and the lines of nested cards.
std::string LinesOf( const PimContactCard& a_card )
{
    std::string text;
    for ( const PimContactLine& line : a_card )
    {
        const PimContactCard nested = line.NestedCard();
        text += line.Name().toStdString() + '=' + line.Value().toStdString();
        text += nested.IsNull() ? "; " : '{' + LinesOf( nested ) + "}; ";
    }
    return text;
}

class FilteredCardTest : public ::testing::TestWithParam<FilterRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Versions, CardSealTest,
    ::testing::Values(
        SealRow{ "BareWordIsACharset", Card( "FN;HOME;SHIFT_JIS:\x83\x5C/NOTE:\xE9/" ),
                 "none removed whole other; lines 2; sets 32; card SHIFT_JIS" },
        SealRow{ "CharsetWithoutAsciiIsNotThatOfTheCard", Card( "FN:\xE9/NOTE;CHARSET=ISO-2022-JP:a/" ),
                 "none removed whole other; lines 2; sets 10" },
        SealRow{ "Empty", Card( "" ), "none removed whole; lines 0; sets " },
        SealRow{ "NoVersion", Card( "FN:a/" ), "none removed whole; lines 1; sets 0" },
        SealRow{ "Version21", Card( "VERSION:2.1/" ), "2.1 kept whole; lines 1; sets 0" },
        SealRow{ "Version30", Card( "VERSION:3.0/" ), "3.0 removed whole; lines 1; sets 0" },
        SealRow{ "Version40", Card( "VERSION:4.0/" ), "4.0 removed whole; lines 1; sets 0" },
        SealRow{ "OtherVersion", Card( "VERSION:5.0/" ), "none removed whole; lines 1; sets 0" },
        SealRow{ "VersionBehindLines", Card( "FN:a/VERSION:2.1/" ), "2.1 kept whole; lines 2; sets 00" },
        SealRow{ "FirstVersionCounts", Card( "VERSION:2.1/VERSION:3.0/" ), "2.1 kept whole; lines 2; sets 00" },
        SealRow{ "FoldsByLength21", Card( "VERSION:2.1/" + Folded() ),
                 "2.1 removed whole by length; lines 2; sets 00" },
        SealRow{ "FoldsElsewhere21", Card( "VERSION:2.1/NOTE:a/ b/" ), "2.1 kept whole; lines 2; sets 00" },
        SealRow{ "FoldsByLength30", Card( "VERSION:3.0/" + Folded() ), "3.0 removed whole; lines 2; sets 00" },
        SealRow{ "FoldsByLengthNoVersion", Card( Folded() ), "none removed whole; lines 1; sets 0" } ),
    []( const ::testing::TestParamInfo<SealRow>& a_info ) { return std::string( a_info.param.m_name ); } );

INSTANTIATE_TEST_SUITE_P(
    Flags, CardSealTest,
    ::testing::Values( SealRow{ "BeginMissing", "FN:a/END:VCARD/", "none removed; lines 1; sets 0" },
                       SealRow{ "EndMissing", "BEGIN:VCARD/FN:a/", "none removed; lines 1; sets 0" },
                       SealRow{ "DroppedLine", Card( "TEL:1/garbage/" ), "none removed; lines 1; sets 0" },
                       SealRow{ "BlankLine", Card( "TEL:1///" ), "none removed whole; lines 1; sets 0" },
                       SealRow{ "FilteredLine", Card( "FN:a/TEL:1/" ), "none removed whole filtered; lines 1; sets 0",
                                true, OnlyNames( { QByteArrayLiteral( "FN" ) } ) },
                       SealRow{ "FilterThatLeavesNothingOut", Card( "FN:a/" ), "none removed whole; lines 1; sets 0",
                                true, OnlyNames( { QByteArrayLiteral( "FN" ) } ) } ),
    []( const ::testing::TestParamInfo<SealRow>& a_info ) { return std::string( a_info.param.m_name ); } );

INSTANTIATE_TEST_SUITE_P(
    Charsets, CardSealTest,
    ::testing::Values(
        SealRow{ "Utf8", Card( "FN:\xC3\xA9/" ), "none removed whole; lines 1; sets 0" },
        SealRow{ "Utf8WithCharset", Card( "FN;CHARSET=ISO-8859-1:\xC3\xA9/" ), "none removed whole; lines 1; sets 0" },
        SealRow{ "DefaultOfWideLines", Card( "FN:\xE9/TEL:1/N:\xE9/" ), "none removed whole other; lines 3; sets 101" },
        SealRow{ "DefaultNotKnown", Card( "FN:\xE9/" ), "none removed whole other; lines 1; sets 0", false },
        SealRow{ "CharsetOfTheLine", Card( "FN:\xE9/N;CHARSET=KOI8-R:\xE9/NOTE:\xE9/" ),
                 "none removed whole other; lines 3; sets 232; card KOI8-R" },
        SealRow{ "CharsetOfTheCardWithoutDefault", Card( "FN:\xE9/N;CHARSET=KOI8-R:\xE9/" ),
                 "none removed whole other; lines 2; sets 23; card KOI8-R", false },
        SealRow{ "FirstCharsetIsThatOfTheCard", Card( "N;CHARSET=KOI8-R:b/NOTE;CHARSET=ISO-8859-1:\xE9/FN:\xE9/" ),
                 "none removed whole other; lines 3; sets 032; card KOI8-R" },
        SealRow{ "UnknownCharsetIsPassedOver", Card( "FN;CHARSET=NONE-1:\xE9/N;CHARSET=KOI8-R:\xE9/" ),
                 "none removed whole other; lines 2; sets 23; card KOI8-R" },
        SealRow{ "OnlyAnUnknownCharset", Card( "FN;CHARSET=NONE-1:\xE9/" ),
                 "none removed whole other; lines 1; sets 1" },
        SealRow{ "CharsetOfAFilteredLine", Card( "NOTE;CHARSET=KOI8-R:b/FN:\xE9/" ),
                 "none removed whole filtered other; lines 1; sets 2; card KOI8-R", true,
                 OnlyNames( { QByteArrayLiteral( "FN" ) } ) },
        SealRow{ "FoldedCharsetIsThatOfItsLineOnly", Card( "N;CHAR/ SET=KOI8-R:\xE9/FN:\xE9/" ),
                 "none removed whole other; lines 2; sets 31" },
        SealRow{ "DamagedUtf8", Card( "FN:\xC3\xA9\xC3\xA9\xE9/N:\xE9/" ),
                 "none removed whole other; lines 2; sets 01" },
        SealRow{ "ShiftedLine", Card( "FN:\x1B$B$\"\x1B(B/N:b/" ), "none removed whole; lines 2; sets 40" },
        SealRow{ "DroppedLineWithCharset", Card( "TEL:1/;CHARSET=KOI8-R/FN:\xE9/" ),
                 "none removed other; lines 2; sets 01" } ),
    []( const ::testing::TestParamInfo<SealRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( CardSealTest, RecordAndCharsetsFollowFromTheLines )
{
    const SealedText text( WithLineEnds( GetParam().m_text ), GetParam().m_options, GetParam().m_isDefaultKnown );
    EXPECT_EQ( Described( text.Index().Base(), 0 ), GetParam().m_expected );
}

TEST( CardSealUseTest, NestedCardsKeepTheirCharsets )
{
    const std::string nested = Card( "VERSION:2.1/N;CHARSET=KOI8-R:\xE9/FN:\xE9/" );
    const SealedText text( WithLineEnds( Card( "FN:\xE9/AGENT:/" + nested + "NOTE:\xE9/" ) ) );
    EXPECT_EQ( Described( text.Index().Base(), 0 ), "none removed whole other; lines 3; sets 101" );
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( text.Index().Base(), 0 ); entry.m_kind != EntryKind::Nested; )
    {
        ASSERT_FALSE( reader.AtEnd() );
        reader.Next( entry );
    }
    EXPECT_EQ( entry.m_length, nested.size() );
    EXPECT_EQ( Described( text.Index().Base(), entry.m_indexBegin ),
               "2.1 kept whole other; lines 3; sets 032; card KOI8-R" );
}

TEST( CardSealUseTest, WhatTheLinesDoNotKnowIsKept )
{
    CardFacts facts;
    facts.m_isValidUtf8 = false;
    CardRecord record;
    record.m_begin = 7;
    record.m_length = 5;
    record.m_offset = 8;
    record.m_line = 2;
    record.m_flags = CardRecord::HasBegin | CardRecord::HasEnd | CardRecord::IsIndented;
    const std::string bytes = "BEGIN:\nTEL:1";
    IndexWriter writer;
    writer.AddPart( EntryKind::Blank, 5 );
    CardIndex index;
    SealCard( facts, writer.Bytes(), record, bytes, true, index );
    const CardRecord sealed = index.Record();
    EXPECT_EQ( sealed.m_begin, 7U );
    EXPECT_EQ( sealed.m_length, 5U );
    EXPECT_EQ( sealed.m_offset, 8U );
    EXPECT_EQ( sealed.m_line, 2U );
    EXPECT_EQ( sealed.m_flags, record.m_flags | CardRecord::IsWhole | CardRecord::IsOtherCharset );
}

TEST( CardSealUseTest, FlagsOfAnEarlierSealAreReplaced )
{
    CardRecord record;
    record.m_flags = CardRecord::IsWhole | CardRecord::IsFiltered | CardRecord::FoldsByLength |
                     CardRecord::IsOtherCharset | CardRecord::HasBegin;
    CardIndex index;
    SealCard( CardFacts(), IndexBytes(), record, std::string_view(), true, index );
    EXPECT_EQ( index.Record().m_flags, CardRecord::HasBegin );
}

INSTANTIATE_TEST_SUITE_P(
    Cards, FilteredCardTest,
    ::testing::Values( FilterRow{ "Nothing", Card( "FN:a/NOTE:b/" ), Card( "FN:a/NOTE:b/" ) },
                       FilterRow{ "FirstLine", Card( "TEL:1/FN:a/" ), Card( "FN:a/" ) },
                       FilterRow{ "LineBetween", Card( "FN:a/TEL:1/NOTE:b/" ), Card( "FN:a/NOTE:b/" ) },
                       FilterRow{ "LastLine", Card( "FN:a/TEL:1/" ), Card( "FN:a/" ) },
                       FilterRow{ "AllLines", Card( "N:a/TEL:1/" ), Card( "" ) },
                       FilterRow{ "FoldedLine", Card( "ORG:a/ b/FN:a/ b/" ), Card( "FN:a/ b/" ) },
                       FilterRow{ "BlankAndDroppedLinesStay", Card( "/TEL:1//;/FN:a/" ), Card( "//;/FN:a/" ) },
                       FilterRow{ "BeforeANestedCard", Card( "TEL:1/AGENT:/" + Card( "FN:b/" ) + "FN:a/" ),
                                  Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ) },
                       FilterRow{ "InANestedCard", Card( "AGENT:/" + Card( "TEL:1/FN:b/TEL:1/" ) + "FN:a/" ),
                                  Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ) },
                       FilterRow{ "BehindANestedCard", Card( "AGENT:/" + Card( "FN:b/" ) + "TEL:1/FN:a/" ),
                                  Card( "AGENT:/" + Card( "FN:b/" ) + "FN:a/" ) },
                       FilterRow{ "OnEachLevel",
                                  Card( "TEL:1/AGENT:/" +
                                        Card( "TEL:2/AGENT:/" + Card( "TEL:3/FN:c/" ) + "TEL:4/FN:b/" ) + "FN:a/" ),
                                  Card( "AGENT:/" + Card( "AGENT:/" + Card( "FN:c/" ) + "FN:b/" ) + "FN:a/" ) } ),
    []( const ::testing::TestParamInfo<FilterRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( FilteredCardTest, OtherLinesStayAsTheyAre )
{
    const SealedText text = Filtered( GetParam().m_text );
    const FilteredCard filtered = WithoutFilteredLines( text.Index(), text.Bytes() );
    EXPECT_EQ( filtered.m_bytes.toStdString(), WithLineEnds( GetParam().m_expected ) );
    const SealedText expected = Filtered( GetParam().m_expected );
    const PimContactCard card = CardOf( filtered );
    EXPECT_EQ( LinesOf( card ), LinesOf( CardOf( WithoutFilteredLines( expected.Index(), expected.Bytes() ) ) ) );
    EXPECT_EQ( card.Bytes(), filtered.m_bytes );
}

TEST( FilteredCardUseTest, NestedCardHasItsPlaceInTheFileAndInTheBytesThatAreLeft )
{
    const std::string nested = Card( "TEL:2/FN:b/" );
    const std::string before = "BEGIN:VCARD/TEL:1/AGENT:/";
    const SealedText text = Filtered( before + nested + "END:VCARD/" );
    const FilteredCard filtered = WithoutFilteredLines( text.Index(), text.Bytes() );
    const PimContactCard card = CardOf( filtered ).begin()->NestedCard();
    EXPECT_EQ( card.Bytes().toStdString(), WithLineEnds( Card( "FN:b/" ) ) );
    EXPECT_EQ( card.Offset(), 1000 + static_cast<qint64>( before.size() ) );
    EXPECT_TRUE( card.IsFiltered() );
    EXPECT_EQ( card.LineCount(), 1 );
}

TEST( FilteredCardUseTest, CharsetsAreKept )
{
    const std::string nested = Card( "TEL;CHARSET=ISO-8859-5:1/FN:\xE9/" );
    const SealedText text = Filtered( Card( "TEL;CHARSET=KOI8-R:1/FN:\xE9/AGENT:/" + nested ) );
    const FilteredCard filtered = WithoutFilteredLines( text.Index(), text.Bytes() );
    const PimContactCard card = CardOf( filtered );
    auto line = card.begin();
    EXPECT_EQ( line->Charset(), "KOI8-R" );
    EXPECT_EQ( ( ++line )->NestedCard().begin()->Charset(), "ISO-8859-5" );
}

} // namespace PimManager::Contacts
