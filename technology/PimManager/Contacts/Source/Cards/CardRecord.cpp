#include "Cards/CardRecord.h"

#include <algorithm>
#include <new>

namespace PimManager::Contacts
{

void CardIndex::Set( const CardRecord& a_record, IndexBytes a_entries, std::string_view a_charset )
{
    CardRecord record = a_record;
    record.m_indexLength = a_entries.m_size;
    record.m_charsetLength = static_cast<quint16>( a_charset.size() );
    m_bytes.resize( sizeof( CardRecord ) + a_entries.m_size + a_charset.size() );
    record.WriteTo( m_bytes.data() );
    uchar* const entries = m_bytes.data() + sizeof( CardRecord );
    std::copy( a_entries.m_data, a_entries.m_data + a_entries.m_size, entries );
    std::copy( a_charset.begin(), a_charset.end(), entries + a_entries.m_size );
}

IndexReader EntriesOf( const uchar* a_base, quint32 a_record )
{
    const quint32 begin = a_record + static_cast<quint32>( sizeof( CardRecord ) );
    return IndexReader( a_base, begin, begin + CardRecord::At( a_base + a_record ).m_indexLength );
}

std::string_view CharsetOf( const uchar* a_base, quint32 a_record )
{
    const CardRecord record = CardRecord::At( a_base + a_record );
    const uchar* const name = a_base + a_record + sizeof( CardRecord ) + record.m_indexLength;
    return std::string_view( reinterpret_cast<const char*>( name ), record.m_charsetLength );
}

PimContactCardPrivate::PimContactCardPrivate( const Origin& a_origin, quint32 a_indexLength, quint32 a_bytesLength ) :
    m_origin( a_origin ),
    m_indexLength( a_indexLength ),
    m_bytesLength( a_bytesLength )
{
}

PimContactCard PimContactCardPrivate::Create( const Origin& a_origin, IndexBytes a_index, std::string_view a_bytes )
{
    void* const block = ::operator new( sizeof( PimContactCardPrivate ) + a_index.m_size + a_bytes.size() );
    auto* const data =
        new ( block ) PimContactCardPrivate( a_origin, a_index.m_size, static_cast<quint32>( a_bytes.size() ) );
    auto* const index = reinterpret_cast<uchar*>( data + 1 );
    std::copy( a_index.m_data, a_index.m_data + a_index.m_size, index );
    std::copy( a_bytes.begin(), a_bytes.end(), reinterpret_cast<char*>( index + a_index.m_size ) );
    return PimContactCard( data, 0 );
}

} // namespace PimManager::Contacts
