#include "Cards/EditedCard.h"

#include "Cards/LineView.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

PimContactCard CardIn( const QByteArray& a_bytes )
{
    const PimContactBook book = PimContactBook::FromBytes( a_bytes );
    EXPECT_GE( book.Size(), 1 ) << a_bytes.toStdString();
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

std::vector<PimContactLine> LinesOf( const PimContactCard& a_card )
{
    std::vector<PimContactLine> lines;
    for ( const PimContactLine& line : a_card )
        lines.push_back( line );
    return lines;
}

PimContactLine NewLine()
{
    return LinesOf( CardIn( "BEGIN:VCARD\r\nX-NEW:\xC3\xB6\r\nEND:VCARD\r\n" ) ).front();
}

/// The sum of the parts of a card and of its nested cards; 0 if it is not their length.
quint32 LengthOfParts( const CardView& a_card )
{
    quint32 length = 0;
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( a_card.m_index, a_card.m_place ); !reader.AtEnd(); )
    {
        reader.Next( entry );
        length += entry.m_length;
        if ( entry.m_kind != EntryKind::Nested )
            continue;
        CardView nested = a_card;
        nested.m_place = entry.m_indexBegin;
        nested.m_record = CardRecord::At( a_card.m_index + entry.m_indexBegin );
        EXPECT_EQ( LengthOfParts( nested ), entry.m_length );
        EXPECT_EQ( nested.m_record.m_begin, a_card.m_record.m_begin + length - entry.m_length );
    }
    EXPECT_EQ( length, a_card.m_record.m_length );
    return length;
}

/// What the lines say, and those of nested cards.
std::string TextsOf( const PimContactCard& a_card )
{
    std::string texts;
    for ( const PimContactLine& line : a_card )
    {
        texts += line.Name().toStdString() + ':' + line.Text().toStdString() + '\n';
        if ( !line.NestedCard().IsNull() )
            texts += '[' + TextsOf( line.NestedCard() ) + ']';
    }
    return texts;
}

struct Row
{
    const char* m_name;
    QByteArray m_bytes;
    // The first card in them can be read again from its bytes alone.
    bool m_isReread = true;
};

const std::vector<Row>& Rows()
{
    static const std::vector<Row> s_rows = {
        { "Plain", "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:x\r\nTEL:1\r\nEND:VCARD\r\n" },
        { "Folds", "BEGIN:VCARD\nVERSION:3.0\nNOTE:one\n  two\n\tthree\nTEL:1\nEND:VCARD\n" },
        { "KeptBlanks", "BEGIN:VCARD\r\nVERSION:2.1\r\nNOTE:one\r\n two\r\nTEL:1\r\nEND:VCARD\r\n" },
        { "FoldsByLength",
          "BEGIN:VCARD\r\nVERSION:2.1\r\nNOTE:" + QByteArray( 70, 'a' ) + "\r\n " + QByteArray( 74, 'b' ) +
              "\r\n c\r\nTITLE:" + QByteArray( 69, 'a' ) + "\r\n " + QByteArray( 74, 'b' ) +
              "\r\n c\r\nTEL:1\r\nEND:VCARD\r\n",
          false },
        { "BlankLines", "BEGIN:VCARD\r\n\r\nFN:x\r\n\r\n\r\nTEL:1\r\n\r\nEND:VCARD\r\n" },
        { "DroppedLines", "BEGIN:VCARD\r\n***\r\nFN:x\r\nPHOTO;ENCODING=b:AAAA\r\n***\r\nTEL:1\r\nEND:VCARD\r\n",
          false },
        { "MarkAtBegin", "\xEF\xBB\xBF"
                         "BEGIN:VCARD\r\nFN:x\r\nTEL:1\r\nEND:VCARD\r\n" },
        { "MarksInside", "BEGIN:VCARD\r\nFN:x\r\n\xEF\xBB\xBFTEL:1\r\n\xEF\xBB\xBF"
                         "END:VCARD\r\n" },
        { "Nested",
          "BEGIN:VCARD\r\nFN:x\r\nAGENT:\r\n\r\nBEGIN:VCARD\r\nFN:y\r\nAGENT:\r\nBEGIN:VCARD\r\nTEL:2\r\nEND:VCARD\r\n"
          "END:VCARD\r\nTEL:1\r\nEND:VCARD\r\n" },
        { "NoBegin", "FN:x\r\nTEL:1\r\nEND:VCARD\r\n", false },
        { "NoEnd", "BEGIN:VCARD\r\nFN:x\r\nTEL:1\r\n", false },
        { "NoLastLineEnding", "BEGIN:VCARD\r\nFN:x\r\nTEL:1", false },
        { "EndWithoutLineEnding", "BEGIN:VCARD\r\nFN:x\r\nTEL:1\r\nEND:VCARD" },
        { "Latin1", "BEGIN:VCARD\r\nFN:J\xF6rg\r\nTEL:1\r\nN:M\xFCller\r\nEND:VCARD\r\n" },
        { "NamedCharset",
          "BEGIN:VCARD\r\nFN;CHARSET=KOI8-R:\xD0\xC9\r\nTEL:1\r\nN;CHARSET=KOI8-R:\xD0\r\nEND:VCARD\r\n" },
        { "Iso2022Jp", "BEGIN:VCARD\r\nFN:\x1B$BF|K\\\x1B(B\r\nTEL:1\r\nEND:VCARD\r\n" },
        { "SoftBreaks", "BEGIN:VCARD\r\nVERSION:2.1\r\nNOTE;ENCODING=QUOTED-PRINTABLE:one=20=\r\ntwo=\r\n=C3=B6\r\nTEL:"
                        "1\r\nEND:VCARD\r\n" },
        { "CarriageReturns", "BEGIN:VCARD\rFN:x\rTEL:1\rEND:VCARD\r" },
        { "Indented", "  BEGIN:VCARD\r\n  FN:x\r\n   y\r\n  TEL:1\r\n  END:VCARD\r\n", false },
        { "NoLines", "BEGIN:VCARD\r\nEND:VCARD\r\n" },
    };
    return s_rows;
}

/// Expects the lines that were asked for, with all that was decided about them, in a card whose parts add up.
void ExpectLines( const PimContactCard& a_card, const std::vector<PimContactLine>& a_lines, const Row& a_row )
{
    EXPECT_EQ( LengthOfParts( LineView::CardOf( a_card ) ), static_cast<quint32>( a_card.Bytes().size() ) );
    const std::vector<PimContactLine> lines = LinesOf( a_card );
    ASSERT_EQ( lines.size(), a_lines.size() );
    EXPECT_EQ( a_card.LineCount(), static_cast<int>( lines.size() ) );
    for ( size_t i = 0; i < lines.size(); ++i )
    {
        EXPECT_EQ( lines[i].Bytes(), a_lines[i].Bytes() );
        EXPECT_EQ( lines[i].Text(), a_lines[i].Text() );
        EXPECT_EQ( lines[i].Oddities(), a_lines[i].Oddities() );
        EXPECT_EQ( lines[i].Charset(), a_lines[i].Charset() );
        EXPECT_EQ( a_card.Bytes().mid( static_cast<int>( lines[i].OffsetInCard() ), lines[i].Bytes().size() ),
                   lines[i].Bytes() );
    }
    if ( !a_row.m_isReread )
        return;
    const PimContactBook book = PimContactBook::FromBytes( a_card.Bytes() );
    ASSERT_EQ( book.Size(), 1 ) << a_card.Bytes().toStdString();
    EXPECT_EQ( TextsOf( book.CardAt( 0 ) ), TextsOf( a_card ) ) << a_card.Bytes().toStdString();
}

} // namespace

TEST( EditedCardTest, AllLinesMakeTheSameCard )
{
    for ( const Row& row : Rows() )
    {
        const PimContactCard card = CardIn( row.m_bytes );
        EXPECT_EQ( EditedCard( card, LinesOf( card ) ), card ) << row.m_name;
    }
}

TEST( EditedCardTest, LineIsAddedAtEachPlace )
{
    for ( const Row& row : Rows() )
    {
        SCOPED_TRACE( row.m_name );
        const PimContactCard card = CardIn( row.m_bytes );
        const std::vector<PimContactLine> lines = LinesOf( card );
        for ( size_t place = 0; place <= lines.size(); ++place )
        {
            SCOPED_TRACE( place );
            std::vector<PimContactLine> edited = lines;
            edited.insert( edited.begin() + static_cast<ptrdiff_t>( place ), NewLine() );
            edited.insert( edited.begin() + static_cast<ptrdiff_t>( place ), NewLine() );
            ExpectLines( EditedCard( card, edited ), edited, row );
        }
    }
}

TEST( EditedCardTest, EachLineIsLeftOut )
{
    for ( const Row& row : Rows() )
    {
        SCOPED_TRACE( row.m_name );
        const PimContactCard card = CardIn( row.m_bytes );
        const std::vector<PimContactLine> lines = LinesOf( card );
        for ( size_t place = 0; place < lines.size(); ++place )
        {
            SCOPED_TRACE( place );
            std::vector<PimContactLine> edited = lines;
            edited.erase( edited.begin() + static_cast<ptrdiff_t>( place ) );
            // VERSION and CHARSET say how other lines are read.
            Row changed = row;
            changed.m_isReread = row.m_isReread && !lines[place].IsNamed( QLatin1String( "VERSION" ) ) &&
                                 lines[place].Parameter( QLatin1String( "CHARSET" ) ).isEmpty();
            ExpectLines( EditedCard( card, edited ), edited, changed );
        }
        ExpectLines( EditedCard( card, {} ), {}, { row.m_name, row.m_bytes, false } );
    }
}

TEST( EditedCardTest, EachLineIsReplaced )
{
    for ( const Row& row : Rows() )
    {
        SCOPED_TRACE( row.m_name );
        const PimContactCard card = CardIn( row.m_bytes );
        const std::vector<PimContactLine> lines = LinesOf( card );
        for ( size_t place = 0; place < lines.size(); ++place )
        {
            std::vector<PimContactLine> edited = lines;
            edited[place] = NewLine();
            ExpectLines( EditedCard( card, edited ), edited, { row.m_name, row.m_bytes, false } );
        }
    }
}

TEST( EditedCardTest, BytesAreSplicedInPlace )
{
    const PimContactCard card = CardIn( "\xEF\xBB\xBF"
                                        "BEGIN:VCARD\nFN:x\n\n\xEF\xBB\xBFTEL:1\n\nEND:VCARD\n" );
    const std::vector<PimContactLine> lines = LinesOf( card );
    ASSERT_EQ( lines.size(), 2U );
    EXPECT_TRUE( EditedCard( card, { NewLine(), lines[0], NewLine(), lines[1], NewLine() } )
                     .Bytes()
                     .endsWith( "BEGIN:VCARD\nX-NEW:\xC3\xB6\r\nFN:x\n\nX-NEW:\xC3\xB6\r\n\xEF\xBB\xBFTEL:1\n\n"
                                "X-NEW:\xC3\xB6\r\nEND:VCARD\n" ) );
}

TEST( EditedCardTest, NestedCardKeepsItsPlaceInTheFile )
{
    const PimContactCard outer = CardIn( Rows()[8].m_bytes );
    const PimContactCard nested = LinesOf( outer ).at( 1 ).NestedCard();
    ASSERT_FALSE( nested.IsNull() );
    const PimContactCard edited = EditedCard( nested, LinesOf( nested ) );
    EXPECT_EQ( edited.Bytes(), nested.Bytes() );
    EXPECT_EQ( edited.Offset(), nested.Offset() );
    EXPECT_EQ( edited.FirstLine(), nested.FirstLine() );
    EXPECT_EQ( edited.Number(), nested.Number() );
    EXPECT_FALSE( edited.IsNested() );
    EXPECT_EQ( TextsOf( edited ), TextsOf( nested ) );
}

} // namespace PimManager::Contacts
