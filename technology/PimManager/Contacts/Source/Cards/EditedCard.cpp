#include "Cards/EditedCard.h"

#include "Cards/CardCopy.h"
#include "Cards/LineView.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

constexpr std::string_view s_kLineEnding = "\r\n";

class Editor
{
public:
    Editor( const CardView& a_card, const std::vector<PimContactLine>& a_lines ) :
        m_card( a_card ),
        m_lines( a_lines ),
        m_copy( a_card.m_index, a_card.m_bytes, a_card.m_record.m_begin ),
        m_isInside( !a_card.m_record.Has( CardRecord::HasBegin ) )
    {
    }

    PimContactCard Edited( const PimContactCardPrivate::Origin& a_origin )
    {
        IndexEntry entry;
        quint32 begin = m_card.m_record.m_begin;
        for ( IndexReader reader = EntriesOf( m_card.m_index, m_card.m_place ); !reader.AtEnd(); )
        {
            const quint32 from = reader.Place();
            reader.Next( entry, true );
            TakePart( entry, { from, begin }, { m_card.m_index + from, reader.Place() - from } );
            begin += entry.m_length;
        }
        AddOthers();
        CardRecord record = m_card.m_record;
        record.m_begin = 0;
        record.m_length = static_cast<quint32>( m_copy.Bytes().size() );
        record.m_lines = static_cast<quint32>( m_lines.size() );
        CardIndex index;
        index.Set( record, m_writer.Bytes(), m_card.Charset() );
        return PimContactCardPrivate::Create( a_origin, index.Bytes(), ViewOf( m_copy.Bytes() ) );
    }

private:
    void TakePart( const IndexEntry& a_entry, LinePlace a_place, IndexBytes a_raw )
    {
        if ( a_entry.m_kind == EntryKind::Line )
            TakeLine( a_entry, a_place, a_raw );
        else if ( a_entry.m_kind == EntryKind::Nested && m_isLineKept )
            m_copy.CopyNested( a_entry, m_writer );
        else if ( a_entry.m_kind == EntryKind::Nested )
            m_copy.Skip( a_entry.m_length );
        else
        {
            if ( DoOthersPrecede( a_entry.m_kind ) )
                AddOthers();
            m_copy.CopyPart( a_entry.m_length, a_raw, m_writer );
        }
    }

    // Other lines precede END, and byte order marks, which are on the line that follows them.
    bool DoOthersPrecede( EntryKind a_kind )
    {
        const bool isInside = m_isInside;
        m_isInside = m_isInside || a_kind == EntryKind::Boundary;
        return isInside && ( a_kind == EntryKind::Boundary || a_kind == EntryKind::Mark );
    }

    void TakeLine( const IndexEntry& a_entry, LinePlace a_place, IndexBytes a_raw )
    {
        AddOthers();
        m_isLineKept = m_next < m_lines.size() && LineView::PlaceOf( m_lines[m_next] ).m_entry == a_place.m_entry;
        if ( m_isLineKept )
        {
            ++m_next;
            m_copy.CopyPart( a_entry.m_length, a_raw, m_writer );
        }
        else
            m_copy.Skip( a_entry.m_length );
    }

    // The remaining lines of other cards.
    void AddOthers()
    {
        while ( m_next < m_lines.size() && !LineView::IsOf( m_lines[m_next], m_card ) )
        {
            const IndexedLine line = LineView::LineOf( m_lines[m_next] );
            EndLine();
            m_copy.Add( line.m_bytes );
            m_writer.Add( line.m_entry );
            ++m_next;
        }
    }

    // The last line of a card without END may have no line ending.
    void EndLine()
    {
        const QByteArray& bytes = m_copy.Bytes();
        if ( bytes.isEmpty() || IsLineEndByte( bytes.back() ) )
            return;
        m_copy.Add( s_kLineEnding );
        m_writer.AddPart( EntryKind::Blank, static_cast<quint32>( s_kLineEnding.size() ) );
    }

    const CardView m_card;
    const std::vector<PimContactLine>& m_lines;
    CardCopy m_copy;
    IndexWriter m_writer;
    size_t m_next = 0;
    // Whether the last line of the card is kept. Its nested card is treated like the line.
    bool m_isLineKept = false;
    // After BEGIN.
    bool m_isInside;
};

} // namespace

PimContactCard EditedCard( const PimContactCard& a_card, const std::vector<PimContactLine>& a_lines )
{
    return Editor( LineView::CardOf( a_card ), a_lines ).Edited( LineView::OriginOf( a_card ) );
}

} // namespace PimManager::Contacts
