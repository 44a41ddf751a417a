#include "Cards/CardRecord.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr std::array<CardRecord::Flag, 7> s_kFlags = {
    CardRecord::HasBegin,   CardRecord::HasEnd,        CardRecord::IsWhole,       CardRecord::IsFiltered,
    CardRecord::IsIndented, CardRecord::FoldsByLength, CardRecord::IsOtherCharset };

// Every member has another value, and those of several bytes have none that is zero.
CardRecord DistinctRecord()
{
    CardRecord record;
    record.m_begin = 0x01020304;
    record.m_length = 0x11121314;
    record.m_offset = 0x21222324;
    record.m_line = 0x31323334;
    record.m_indexLength = 0x41424344;
    record.m_lines = 0x51525354;
    record.m_charsetLength = 0x6162;
    record.m_version = static_cast<quint8>( PimContactVersion::V40 );
    record.m_foldStyle = static_cast<quint8>( PimContactFoldStyle::BlankKept );
    record.m_flags = CardRecord::HasEnd | CardRecord::IsIndented;
    return record;
}

void ExpectSame( const CardRecord& a_first, const CardRecord& a_second )
{
    EXPECT_EQ( a_first.m_begin, a_second.m_begin );
    EXPECT_EQ( a_first.m_length, a_second.m_length );
    EXPECT_EQ( a_first.m_offset, a_second.m_offset );
    EXPECT_EQ( a_first.m_line, a_second.m_line );
    EXPECT_EQ( a_first.m_indexLength, a_second.m_indexLength );
    EXPECT_EQ( a_first.m_lines, a_second.m_lines );
    EXPECT_EQ( a_first.m_charsetLength, a_second.m_charsetLength );
    EXPECT_EQ( a_first.m_version, a_second.m_version );
    EXPECT_EQ( a_first.m_foldStyle, a_second.m_foldStyle );
    EXPECT_EQ( a_first.m_flags, a_second.m_flags );
}

// The kinds and lengths of the entries of a card, such as "1+12 0+5 1+10 ".
std::string EntriesIn( const uchar* a_base, quint32 a_record )
{
    std::string text;
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( a_base, a_record ); !reader.AtEnd(); )
    {
        reader.Next( entry );
        text += std::to_string( static_cast<int>( entry.m_kind ) ) + '+' + std::to_string( entry.m_length ) + ' ';
    }
    return text;
}

std::string Copied( IndexBytes a_bytes )
{
    return std::string( a_bytes.m_data, a_bytes.m_data + a_bytes.m_size );
}

// A card with a card in it, with the parts of its bytes as they are written into the index.
class NestedIndex
{
public:
    NestedIndex()
    {
        IndexWriter inner;
        inner.AddBoundary( 12, false );
        inner.Add( LineOf( 2, 5, LineCharset::Card ) );
        inner.AddBoundary( 10, false );
        CardRecord nested;
        nested.m_begin = 19;
        nested.m_length = 27;
        nested.m_offset = 30;
        nested.m_line = 4;
        nested.m_lines = 1;
        nested.m_version = static_cast<quint8>( PimContactVersion::V21 );
        nested.m_foldStyle = static_cast<quint8>( PimContactFoldStyle::BlankKept );
        nested.m_flags = CardRecord::HasBegin | CardRecord::HasEnd | CardRecord::IsWhole;
        m_nested.Set( nested, inner.Bytes(), "KOI8-R" );

        IndexWriter outer;
        outer.AddBoundary( 12, false );
        outer.Add( LineOf( 5, 7, LineCharset::Utf8 ) );
        outer.AddNested( 27, m_nested.Bytes() );
        outer.Add( LineOf( 2, 5, LineCharset::Card ) );
        CardRecord record;
        record.m_length = 51;
        record.m_lines = 2;
        record.m_version = static_cast<quint8>( PimContactVersion::V30 );
        record.m_flags = CardRecord::HasBegin | CardRecord::IsFiltered;
        m_outer.Set( record, outer.Bytes(), "ISO-8859-1" );
    }

    const CardIndex& Outer() const { return m_outer; }
    const CardIndex& Inner() const { return m_nested; }
    static const std::string& Bytes()
    {
        static const std::string bytes = "BEGIN:VCARD\nAGENT:\nBEGIN:VCARD\nFN:b\nEND:VCARD\nFN:a\n";
        return bytes;
    }

private:
    static IndexEntry LineOf( quint32 a_name, quint32 a_length, LineCharset a_charset )
    {
        IndexEntry entry;
        entry.m_length = a_length;
        entry.m_name = { 0, a_name };
        entry.m_parameters = { a_name, 0 };
        entry.m_valueBegin = a_name + 1;
        entry.m_hasColon = true;
        entry.m_charset = a_charset;
        return entry;
    }

    CardIndex m_nested;
    CardIndex m_outer;
};

const PimContactCardPrivate::Origin s_kOrigin = { 3, 1000, 50, true, QByteArrayLiteral( "windows-1252" ) };

PimContactCard Created( const PimContactCardPrivate::Origin& a_origin = s_kOrigin )
{
    return PimContactCardPrivate::Create( a_origin, NestedIndex().Outer().Bytes(), NestedIndex::Bytes() );
}

} // namespace

TEST( CardRecordTest, FlagsAreIndependent )
{
    for ( const CardRecord::Flag flag : s_kFlags )
    {
        CardRecord none;
        CardRecord all;
        for ( const CardRecord::Flag each : s_kFlags )
            all.Set( each, true );
        none.Set( flag, true );
        all.Set( flag, false );
        for ( const CardRecord::Flag each : s_kFlags )
        {
            EXPECT_EQ( none.Has( each ), each == flag ) << flag << ' ' << each;
            EXPECT_EQ( all.Has( each ), each != flag ) << flag << ' ' << each;
        }
    }
}

TEST( CardRecordTest, AnyPlaceWillDo )
{
    const CardRecord record = DistinctRecord();
    EXPECT_EQ( record.Version(), PimContactVersion::V40 );
    EXPECT_EQ( record.FoldStyle(), PimContactFoldStyle::BlankKept );
    for ( size_t place = 0; place < sizeof( quint64 ); ++place )
    {
        SCOPED_TRACE( place );
        std::vector<uchar> bytes( place + sizeof( CardRecord ) + 1, uchar( 0xA5 ) );
        record.WriteTo( bytes.data() + place );
        ExpectSame( CardRecord::At( bytes.data() + place ), record );
        EXPECT_EQ( bytes.back(), 0xA5 );
    }
}

TEST( CardIndexTest, RecordEntriesAndCharsetFollowEachOther )
{
    IndexWriter writer;
    writer.AddBoundary( 12, false );
    writer.AddPart( EntryKind::Blank, 2 );
    CardIndex index;
    index.Set( DistinctRecord(), writer.Bytes(), "Shift_JIS" );
    CardRecord expected = DistinctRecord();
    expected.m_indexLength = writer.Bytes().m_size;
    expected.m_charsetLength = 9;
    ExpectSame( index.Record(), expected );
    EXPECT_EQ( index.Bytes().m_size, sizeof( CardRecord ) + writer.Bytes().m_size + 9 );
    EXPECT_EQ( Copied( index.Bytes() ).substr( sizeof( CardRecord ) ), Copied( writer.Bytes() ) + "Shift_JIS" );
    EXPECT_EQ( EntriesIn( index.Base(), 0 ), "1+12 2+2 " );
    EXPECT_EQ( CharsetOf( index.Base(), 0 ), "Shift_JIS" );
}

TEST( CardIndexTest, SecondCardReplacesTheFirst )
{
    IndexWriter writer;
    writer.AddBoundary( 12, false );
    writer.AddBoundary( 10, false );
    CardIndex index;
    index.Set( DistinctRecord(), writer.Bytes(), "Shift_JIS" );
    writer.Clear();
    writer.AddPart( EntryKind::Dropped, 1 );
    index.Set( CardRecord(), writer.Bytes(), std::string_view() );
    EXPECT_EQ( EntriesIn( index.Base(), 0 ), "3+1 " );
    EXPECT_EQ( CharsetOf( index.Base(), 0 ), "" );
    EXPECT_EQ( index.Bytes().m_size, sizeof( CardRecord ) + writer.Bytes().m_size );
    EXPECT_EQ( index.Record().m_begin, 0U );
}

TEST( CardIndexTest, NestedCardHasItsOwnEntriesAndCharset )
{
    const NestedIndex index;
    EXPECT_EQ( EntriesIn( index.Outer().Base(), 0 ), "1+12 0+7 6+27 0+5 " );
    EXPECT_EQ( CharsetOf( index.Outer().Base(), 0 ), "ISO-8859-1" );
    IndexReader reader = EntriesOf( index.Outer().Base(), 0 );
    IndexEntry entry;
    for ( int i = 0; i < 3; ++i )
        reader.Next( entry );
    EXPECT_EQ( entry.m_indexLength, index.Inner().Bytes().m_size );
    EXPECT_EQ( EntriesIn( index.Outer().Base(), entry.m_indexBegin ), "1+12 0+5 1+10 " );
    EXPECT_EQ( CharsetOf( index.Outer().Base(), entry.m_indexBegin ), "KOI8-R" );
}

TEST( CardCreationTest, CardHasWhatItWasCreatedFrom )
{
    const PimContactCard card = Created();
    EXPECT_FALSE( card.IsNull() );
    EXPECT_EQ( card.Bytes().toStdString(), NestedIndex::Bytes() );
    EXPECT_EQ( card.Number(), 3 );
    EXPECT_EQ( card.Offset(), 1000 );
    EXPECT_EQ( card.FirstLine(), 50 );
    EXPECT_TRUE( card.IsConverted() );
    EXPECT_EQ( card.DefaultCharset(), "windows-1252" );
    EXPECT_EQ( card.LineCount(), 2 );
    EXPECT_EQ( card.Version(), PimContactVersion::V30 );
    EXPECT_EQ( card.FoldStyle(), PimContactFoldStyle::BlankRemoved );
    EXPECT_TRUE( card.HasBegin() );
    EXPECT_FALSE( card.HasEnd() );
    EXPECT_FALSE( card.IsWhole() );
    EXPECT_TRUE( card.IsFiltered() );
    EXPECT_FALSE( card.IsNested() );
    auto line = card.begin();
    EXPECT_EQ( line->Name(), "AGENT" );
    EXPECT_EQ( line->Charset(), "UTF-8" );
    ++line;
    EXPECT_EQ( line->Value(), "a" );
    EXPECT_EQ( line->Charset(), "ISO-8859-1" );
    EXPECT_EQ( line->OffsetInCard(), 46 );
    EXPECT_TRUE( ++line == card.end() );
}

TEST( CardCreationTest, NestedCardIsASlice )
{
    const PimContactCard card = Created().begin()->NestedCard();
    ASSERT_FALSE( card.IsNull() );
    EXPECT_EQ( card.Bytes(), "BEGIN:VCARD\nFN:b\nEND:VCARD\n" );
    EXPECT_EQ( card.Number(), 3 );
    EXPECT_EQ( card.Offset(), 1030 );
    EXPECT_EQ( card.FirstLine(), 54 );
    EXPECT_EQ( card.LineCount(), 1 );
    EXPECT_EQ( card.Version(), PimContactVersion::V21 );
    EXPECT_EQ( card.FoldStyle(), PimContactFoldStyle::BlankKept );
    EXPECT_TRUE( card.HasEnd() );
    EXPECT_TRUE( card.IsWhole() );
    EXPECT_FALSE( card.IsFiltered() );
    EXPECT_TRUE( card.IsNested() );
    EXPECT_TRUE( card.IsConverted() );
    EXPECT_EQ( card.begin()->Value(), "b" );
    EXPECT_EQ( card.begin()->Charset(), "KOI8-R" );
    EXPECT_EQ( card.begin()->OffsetInCard(), 12 );
}

TEST( CardCreationTest, IndexAndBytesAreCopied )
{
    std::string bytes = NestedIndex::Bytes();
    std::string index = Copied( NestedIndex().Outer().Bytes() );
    const PimContactCard card = PimContactCardPrivate::Create(
        s_kOrigin, { reinterpret_cast<const uchar*>( index.data() ), static_cast<quint32>( index.size() ) }, bytes );
    bytes.assign( bytes.size(), 'x' );
    index.assign( index.size(), 'x' );
    EXPECT_TRUE( card == Created() );
    EXPECT_EQ( card.Bytes().toStdString(), NestedIndex::Bytes() );
}

TEST( CardCreationTest, CardMayBeEmpty )
{
    CardIndex index;
    index.Set( CardRecord(), IndexBytes(), std::string_view() );
    const PimContactCard card = PimContactCardPrivate::Create( s_kOrigin, index.Bytes(), std::string_view() );
    EXPECT_FALSE( card.IsNull() );
    EXPECT_TRUE( card.Bytes().isEmpty() );
    EXPECT_TRUE( card.begin() == card.end() );
    EXPECT_FALSE( card == PimContactCard() );
}

TEST( CardCreationTest, PlaceInTheFileIsNotCompared )
{
    PimContactCardPrivate::Origin other = s_kOrigin;
    other.m_number = 4;
    other.m_offset = 1001;
    other.m_firstLine = 51;
    EXPECT_TRUE( Created() == Created( other ) );
    other.m_defaultCharset = QByteArrayLiteral( "KOI8-R" );
    EXPECT_TRUE( Created() != Created( other ) );
}

} // namespace PimManager::Contacts
