#include "Lines/HeadSequence.h"

#include <algorithm>

namespace PimManager::Contacts
{

// All slots are searched, but only for lines that break the sequence.
void HeadSequence::Learn( std::string_view a_line, const LineHead& a_head )
{
    const std::string_view text = a_line.substr( 0, a_head.m_valueBegin );
    if ( text.size() > s_kLongest )
        return;
    const auto known = std::find_if( m_slots.begin() + 1, m_slots.end(),
                                     [text]( const Slot& a_slot ) { return a_slot.Text() == text; } );
    const auto place = known == m_slots.end() ? NextToFill() : static_cast<quint8>( known - m_slots.begin() );
    if ( known == m_slots.end() )
        m_slots[place].Set( text, a_head );
    m_slots[m_current].m_next = place;
    m_current = place;
}

quint8 HeadSequence::NextToFill()
{
    m_filled = m_filled + 1 == s_kSlots ? 1 : m_filled + 1;
    return static_cast<quint8>( m_filled );
}

void HeadSequence::Slot::Set( std::string_view a_text, const LineHead& a_head )
{
    std::copy( a_text.begin(), a_text.end(), m_text.begin() );
    m_length = static_cast<quint8>( a_text.size() );
    m_head = a_head;
}

} // namespace PimManager::Contacts
