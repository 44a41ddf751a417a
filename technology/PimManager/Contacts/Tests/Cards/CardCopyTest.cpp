#include "Cards/CardCopy.h"

#include "Cards/LineView.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

const QByteArray s_kInner =
    "BEGIN:VCARD\r\nFN:y\r\nAGENT:\r\nBEGIN:VCARD\r\nTEL:2\r\nEND:VCARD\r\nNOTE:z\r\nEND:VCARD\r\n";
const QByteArray s_kOuter = "BEGIN:VCARD\r\nFN:x\r\nAGENT:\r\n" + s_kInner + "TEL:1\r\nEND:VCARD\r\n";

/// Kinds and lengths of the entries, and the positions of nested cards, such as "1+5 6+20@12[ 0+5 ] ".
std::string EntriesIn( const uchar* a_base, quint32 a_record )
{
    std::string text;
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( a_base, a_record ); !reader.AtEnd(); )
    {
        reader.Next( entry );
        text += std::to_string( static_cast<int>( entry.m_kind ) ) + '+' + std::to_string( entry.m_length );
        if ( entry.m_kind == EntryKind::Nested )
            text += '@' + std::to_string( CardRecord::At( a_base + entry.m_indexBegin ).m_begin ) + "[ " +
                    EntriesIn( a_base, entry.m_indexBegin ) + ']';
        text += ' ';
    }
    return text;
}

PimContactCard Outer( const PimContactOptions& a_options = PimContactOptions() )
{
    return PimContactBook::FromBytes( s_kOuter, a_options ).CardAt( 0 );
}

} // namespace

TEST( CardCopyTest, CopyIsTheCard )
{
    const PimContactCard card = Outer();
    const CardView view = LineView::CardOf( card );
    CardCopy copy( view.m_index, view.m_bytes, 0 );
    const CardIndex index = copy.Copy( 0 );
    EXPECT_EQ( copy.Bytes(), s_kOuter );
    EXPECT_EQ( EntriesIn( index.Base(), 0 ), EntriesIn( view.m_index, 0 ) );
    EXPECT_EQ( index.Record().m_length, static_cast<quint32>( s_kOuter.size() ) );
}

TEST( CardCopyTest, NestedCardIsMovedToTheBegin )
{
    const PimContactCard card = Outer();
    auto line = card.begin();
    ++line;
    const PimContactCard nested = line->NestedCard();
    ASSERT_EQ( nested.Bytes(), s_kInner );
    const CardView view = LineView::CardOf( nested );
    CardCopy copy( view.m_index, view.m_bytes, view.m_record.m_begin );
    const CardIndex index = copy.Copy( view.m_place );
    EXPECT_EQ( copy.Bytes(), s_kInner );
    EXPECT_EQ( EntriesIn( index.Base(), 0 ),
               EntriesIn( LineView::CardOf( PimContactBook::FromBytes( s_kInner ).CardAt( 0 ) ).m_index, 0 ) );
}

TEST( CardCopyTest, SkippedAndAddedBytesMoveWhatFollows )
{
    const PimContactCard card = Outer();
    const CardView view = LineView::CardOf( card );
    CardCopy copy( view.m_index, view.m_bytes, 0 );
    IndexWriter writer;
    IndexEntry entry;
    copy.Add( "added" );
    for ( IndexReader reader = EntriesOf( view.m_index, 0 ); !reader.AtEnd(); )
    {
        reader.Next( entry );
        if ( entry.m_kind == EntryKind::Nested )
            copy.CopyNested( entry, writer );
        else
            copy.Skip( entry.m_length );
    }
    EXPECT_EQ( copy.Bytes(), "added" + s_kInner );
    CardIndex index;
    index.Set( CardRecord(), writer.Bytes(), std::string_view() );
    EXPECT_EQ( EntriesIn( index.Base(), 0 ).substr( 0, 8 ), "6+" + std::to_string( s_kInner.size() ) + "@5[ " );
}

} // namespace PimManager::Contacts
