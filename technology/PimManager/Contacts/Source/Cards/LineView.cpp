#include "Cards/LineView.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

// A join of the head has a line ending, and most heads have none.
std::string_view IndexedLine::Unfolded( std::string_view a_part, ByteRange a_range, QByteArray& a_buffer ) const
{
    if ( a_part.find( '\n' ) == std::string_view::npos && a_part.find( '\r' ) == std::string_view::npos )
        return a_part;
    a_buffer = PimManager::Contacts::Unfolded( m_text, m_entry, m_card.m_record.FoldStyle(), a_range );
    return ViewOf( a_buffer );
}

namespace
{

// The line before the next entry. Blank lines may follow it.
bool FindNested( IndexReader a_reader, IndexEntry& a_nested )
{
    while ( !a_reader.AtEnd() && a_reader.NextKind() == EntryKind::Blank )
        a_reader.Next( a_nested );
    if ( a_reader.AtEnd() || a_reader.NextKind() != EntryKind::Nested )
        return false;
    a_reader.Next( a_nested );
    return true;
}

} // namespace

CardView PimContactCardPrivate::LineView::ViewOf( const PimContactCardPrivate* a_private, quint32 a_record )
{
    CardView view;
    view.m_index = a_private->Index();
    view.m_place = a_record;
    view.m_record = CardRecord::At( view.m_index + a_record );
    view.m_bytes = a_private->Bytes();
    view.m_defaultCharset = PimManager::Contacts::ViewOf( a_private->m_origin.m_defaultCharset );
    return view;
}

CardView PimContactCardPrivate::LineView::CardOf( const PimContactCard& a_card )
{
    return a_card.d ? ViewOf( a_card.d.data(), a_card.m_record ) : CardView();
}

PimContactCard PimContactCardPrivate::LineView::CardAt( const PimContactCard& a_outermost, const CardView& a_card )
{
    return a_outermost.d ? PimContactCardPrivate::CardAt( a_outermost.d.data(), a_card.m_place ) : PimContactCard();
}

IndexedLine PimContactCardPrivate::LineView::LineOf( const PimContactLine& a_line )
{
    IndexedLine line;
    if ( a_line.IsNull() )
        return line;
    line.m_card = ViewOf( a_line.d.data(), a_line.m_record );
    Read( PlaceOf( a_line ), line );
    return line;
}

void PimContactCardPrivate::LineView::Read( LinePlace a_place, IndexedLine& a_line )
{
    IndexReader::ReadLine( a_line.m_card.m_index + a_place.m_entry, a_line.m_entry );
    a_line.m_bytes = std::string_view( a_line.m_card.m_bytes.data() + a_place.m_begin, a_line.m_entry.m_length );
    a_line.m_text = WithoutLineEnd( a_line.m_bytes );
}

bool PimContactCardPrivate::LineView::FindPlainValue( const PimContactLine& a_line, std::string_view& a_value )
{
    const uchar* const index = a_line.d->Index();
    const IndexReader reader( index, a_line.m_entry, a_line.m_entry );
    if ( !reader.FindValue( a_line.d->Bytes().data() + a_line.m_begin, a_value ) )
        return false;
    a_value = WithoutLineEnd( a_value );
    return !CardRecord::At( index + a_line.m_record ).Has( CardRecord::IsOtherCharset );
}

bool PimContactCardPrivate::LineView::FindNested( const PimContactLine& a_line, IndexEntry& a_nested )
{
    if ( a_line.IsNull() )
        return false;
    IndexReader reader = EntriesOf( a_line.d->Index(), a_line.m_record );
    reader.StepTo( a_line.m_entry );
    reader.Next( a_nested, true );
    return PimManager::Contacts::FindNested( reader, a_nested );
}

LineCursor::LineCursor( const PimContactCard& a_card ) :
    LineCursor( PimContactCardPrivate::LineView::CardOf( a_card ) )
{
}

LineCursor::LineCursor( const CardView& a_card ) :
    m_reader( nullptr, 0, 0 )
{
    if ( a_card.m_index == nullptr )
        return;
    m_line.m_card = a_card;
    m_reader = EntriesOf( a_card.m_index, a_card.m_place );
    m_begin = a_card.m_record.m_begin;
}

bool LineCursor::FindAnyNested( CardView& a_nested ) const
{
    IndexEntry entry;
    if ( !PimManager::Contacts::FindNested( m_reader, entry ) )
        return false;
    a_nested = m_line.m_card;
    a_nested.m_place = entry.m_indexBegin;
    a_nested.m_record = CardRecord::At( a_nested.m_index + a_nested.m_place );
    return true;
}

bool LineCursor::Next()
{
    while ( NextPart() )
    {
        if ( m_line.m_entry.m_kind == EntryKind::Line )
            return true;
    }
    return false;
}

bool LineCursor::NextPart()
{
    if ( m_reader.AtEnd() )
        return false;
    m_reader.Next( m_line.m_entry );
    m_line.m_bytes = m_line.m_card.m_bytes.substr( m_begin, m_line.m_entry.m_length );
    m_line.m_text = WithoutLineEnd( m_line.m_bytes );
    m_begin += m_line.m_entry.m_length;
    return true;
}

std::string_view LineCursor::Name()
{
    return m_line.Name( m_name );
}

} // namespace PimManager::Contacts
