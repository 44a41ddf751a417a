#include "Cards/CardCopy.h"

namespace PimManager::Contacts
{

// Recursive for nested cards, so the nesting limit bounds the depth.
CardIndex CardCopy::Copy( quint32 a_record )
{
    CardRecord record = CardRecord::At( m_index + a_record );
    const auto begin = static_cast<quint32>( m_copied.size() );
    IndexWriter writer;
    IndexEntry entry;
    for ( IndexReader reader = EntriesOf( m_index, a_record ); !reader.AtEnd(); )
    {
        const quint32 from = reader.Place();
        reader.Next( entry, true );
        if ( entry.m_kind == EntryKind::Filtered )
            Skip( entry.m_length );
        else if ( entry.m_kind == EntryKind::Nested )
            CopyNested( entry, writer );
        else
            CopyPart( entry.m_length, { m_index + from, reader.Place() - from }, writer );
    }
    record.m_begin = begin;
    record.m_length = static_cast<quint32>( m_copied.size() ) - begin;
    CardIndex index;
    index.Set( record, writer.Bytes(), CharsetOf( m_index, a_record ) );
    return index;
}

void CardCopy::CopyPart( quint32 a_length, IndexBytes a_raw, IndexWriter& a_writer )
{
    a_writer.AddRaw( a_raw );
    Add( m_bytes.substr( m_place, a_length ) );
    Skip( a_length );
}

void CardCopy::CopyNested( const IndexEntry& a_entry, IndexWriter& a_writer )
{
    const auto begin = static_cast<quint32>( m_copied.size() );
    const CardIndex nested = Copy( a_entry.m_indexBegin );
    a_writer.AddNested( static_cast<quint32>( m_copied.size() ) - begin, nested.Bytes() );
}

} // namespace PimManager::Contacts
