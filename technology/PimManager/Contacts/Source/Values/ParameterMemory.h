/// \file
/// Caches the meanings of plain parameters.

#pragma once

#include "Text/Bytes.h"
#include "Text/EightBytes.h"

#include <QtGlobal>

#include <array>
#include <cstring>
#include <string_view>

namespace PimManager::Contacts
{

/// The lines of a book have one of a few lists of parameters, such as `;TYPE=HOME,VOICE`. Reading them takes longer
/// than reading the number after them, so each thread remembers what the last ones have meant.
///
/// \tparam Meaning must not own memory.
template <class Meaning>
class ParameterMemory
{
public:
    /// Distinguishes readers that find different meanings; null if there is only one.
    using Reader = quint32 ( * )( std::string_view );

    /// \return the meaning of the parameters for the reader; null if they are not cached.
    const Meaning* Find( std::string_view a_parameters, Reader a_reader ) const
    {
        const Slot* const first = &m_slots[SlotOf( a_parameters, a_reader )];
        if ( first->IsFor( a_parameters, a_reader ) )
            return &first->m_meaning;
        const Slot* const second = first + 1;
        return second->IsFor( a_parameters, a_reader ) ? &second->m_meaning : nullptr;
    }

    /// Long parameters are not cached.
    void Remember( std::string_view a_parameters, Reader a_reader, const Meaning& a_meaning )
    {
        if ( a_parameters.size() > s_kLongest )
            return;
        const size_t first = SlotOf( a_parameters, a_reader );
        Slot& slot = m_slots[first];
        m_slots[first + 1] = slot;
        slot.m_length = a_parameters.size();
        slot.m_reader = a_reader;
        slot.m_meaning = a_meaning;
        std::memcpy( slot.m_text.data(), a_parameters.data(), a_parameters.size() );
    }

private:
    static constexpr size_t s_kLongest = 48;
    static constexpr size_t s_kSlots = 64;

    struct Slot
    {
        bool IsFor( std::string_view a_parameters, Reader a_reader ) const
        {
            return m_length == a_parameters.size() && m_reader == a_reader &&
                   std::memcmp( m_text.data(), a_parameters.data(), a_parameters.size() ) == 0;
        }

        size_t m_length = 0;
        Reader m_reader = nullptr;
        Meaning m_meaning;
        std::array<char, s_kLongest> m_text = {};
    };

    // The first of two slots for the same lists, so that two lists do not replace each other in turn. The parameters
    // are not empty. Phones, mails and addresses have the same parameters, but each has its own reader.
    static size_t SlotOf( std::string_view a_parameters, Reader a_reader )
    {
        constexpr uint s_kShift = 64 - 5; // for half of the slots
        const quint64 hash = HashOfEnds( a_parameters, reinterpret_cast<quintptr>( a_reader ) );
        return static_cast<size_t>( hash >> s_kShift ) * 2;
    }

    std::array<Slot, s_kSlots> m_slots;
};

} // namespace PimManager::Contacts
