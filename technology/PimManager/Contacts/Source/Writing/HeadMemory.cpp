#include "Writing/HeadMemory.h"

#include "Contact/ContactLines.h"
#include "Lines/KnownNames.h"
#include "Writing/CleanLine.h"

#include <cstring>

namespace PimManager::Contacts
{

void WrittenHead::Set( std::string_view a_text )
{
    if ( a_text.size() > m_text.size() )
        return;
    m_length = static_cast<quint8>( a_text.size() );
    std::memcpy( m_text.data(), a_text.data(), a_text.size() );
}

HeadMemory& HeadMemory::OfThread()
{
    thread_local HeadMemory t_memory;
    return t_memory;
}

HeadMeaning& HeadMemory::OfOther( Slot& a_slot, std::string_view a_name, std::string_view a_head, VersionStep a_step )
{
    HeadMeaning meaning;
    meaning.m_property = PropertyNamed( a_name );
    meaning.m_isMedia = IsMediaProperty( meaning.m_property );
    meaning.m_isLegal = AreLegalParameters( a_head.substr( a_name.size() ), a_step.m_source );
    meaning.m_hasEscapedSemicolons =
        HasEscapedSemicolons( meaning.m_property, a_head.substr( a_name.size() ), a_step.m_source );
    meaning.m_rule = PlainChangeRule::Of( meaning.m_property, a_name, a_head.substr( a_name.size() ), a_step );
    if ( a_head.size() > s_kLongest )
        return m_long = meaning;
    ( &a_slot )[1] = a_slot;
    a_slot.m_length = a_head.size();
    a_slot.m_ends = HeadEnds( a_head );
    a_slot.m_step = a_step;
    a_slot.m_meaning = meaning;
    std::memcpy( a_slot.m_text.data(), a_head.data(), a_head.size() );
    return a_slot.m_meaning;
}

} // namespace PimManager::Contacts
