#include "Lines/HeadSequence.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

size_t HashOf( std::string_view a_text )
{
    constexpr uint s_kShift = 64 - 7; // for s_kHashes
    return static_cast<size_t>( HashOfEnds( a_text ) >> s_kShift );
}

// Most heads that begin alike differ in the second eight bytes, as `TEL;TYPE=HOME:` and `TEL;TYPE=CELL:`.
bool FindHashOfStart( std::string_view a_line, size_t& a_hash )
{
    if ( a_line.size() < 2 * s_kWord )
        return false;
    a_hash = HashOf( a_line.substr( 0, 2 * s_kWord ) );
    return true;
}

} // namespace

const KnownHead* HeadSequence::NextByStart( std::string_view a_line )
{
    size_t hash = 0;
    if ( !FindHashOfStart( a_line, hash ) || !m_slots[m_byStart[hash]].Begins( a_line ) )
        return nullptr;
    StepTo( m_byStart[hash] );
    return &m_slots[m_current].m_head;
}

// A quote may end far behind the colon.
void HeadSequence::Learn( std::string_view a_line, const LineHead& a_head, bool a_isPlain )
{
    const std::string_view text = a_line.substr( 0, a_head.m_valueBegin );
    if ( text.size() > s_kLongest || !a_head.m_hasColon || text.find( '"' ) != std::string_view::npos )
        return;
    StepTo( SlotOf( text, a_head, a_isPlain ) );
    size_t hash = 0;
    if ( FindHashOfStart( a_line, hash ) )
        m_byStart[hash] = m_current;
}

void HeadSequence::StepTo( quint8 a_slot )
{
    m_slots[m_current].m_next = a_slot;
    m_current = a_slot;
}

quint8 HeadSequence::SlotOf( std::string_view a_text, const LineHead& a_head, bool a_isPlain )
{
    quint8& slot = m_byText[HashOf( a_text )];
    if ( m_slots[slot].Text() == a_text )
        return slot;
    slot = NextToFill();
    m_slots[slot].Set( a_text, a_head, a_isPlain );
    return slot;
}

// The head of the line before is still in use.
quint8 HeadSequence::NextToFill()
{
    do
        m_filled = m_filled + 1 == s_kSlots ? 1 : m_filled + 1;
    while ( m_filled == m_current );
    return static_cast<quint8>( m_filled );
}

void HeadSequence::Slot::Set( std::string_view a_text, const LineHead& a_head, bool a_isPlain )
{
    std::copy( a_text.begin(), a_text.end(), m_text.begin() );
    m_length = static_cast<quint8>( a_text.size() );
    const size_t missing = s_kWord - std::min( a_text.size(), s_kWord );
    m_mask = ~quint64( 0 ) >> ( 8 * missing );
    m_word = FirstEight( a_text );
    m_head = { a_head, a_isPlain, a_isPlain ? HeadEntry( a_head ) : HeadEntry() };
}

} // namespace PimManager::Contacts
