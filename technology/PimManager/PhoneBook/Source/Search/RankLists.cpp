#include "Search/RankLists.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

quint32 RankLists::SizeOf( quint32 a_distance )
{
    quint32 size = 1;
    for ( ; a_distance >= s_kMark; a_distance >>= s_kBits )
        ++size;
    return size;
}

void RankLists::Reserve()
{
    quint32 begin = 0;
    for ( quint32& place : m_begins )
    {
        const quint32 size = place;
        place = begin;
        begin += size;
    }
    m_bytes.resize( begin );
    std::fill( m_next.begin(), m_next.end(), 0U );
}

// Each list now ends where the next one began.
void RankLists::Finish()
{
    std::copy_backward( m_begins.begin(), m_begins.end() - 1, m_begins.end() );
    m_begins.front() = 0;
    m_next = {};
}

void RankLists::AddTo( ContactSet& a_ranks, size_t a_list ) const
{
    const char* place = m_bytes.data() + m_begins[a_list];
    const char* const end = m_bytes.data() + m_begins[a_list + 1];
    for ( quint32 rank = 0; place != end; ++rank )
    {
        uint shift = 0;
        for ( ; ( static_cast<uchar>( *place ) & s_kMark ) != 0; shift += s_kBits )
            rank += ( static_cast<uchar>( *place++ ) & ( s_kMark - 1 ) ) << shift;
        rank += static_cast<quint32>( static_cast<uchar>( *place++ ) ) << shift;
        a_ranks.Add( rank );
    }
}

} // namespace PimManager::PhoneBook
