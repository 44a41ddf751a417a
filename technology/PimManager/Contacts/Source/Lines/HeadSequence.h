/// \file
/// Predicts the heads of lines.

#pragma once

#include "Lines/LineHead.h"
#include "Lines/LineIndex.h"
#include "Text/EightBytes.h"

#include <QtGlobal>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// The head of a line, and its part of the entry of the line in the index.
struct KnownHead
{
    LineHead m_head;
    /// What LineHead::Read() returned.
    bool m_isPlain = false;
    /// Null if the head is not plain, or has not been remembered.
    HeadEntry m_entry;
};

/// The cards of a book have nearly the same heads in the same order, such as `N:`, `FN:`, `TEL;TYPE=CELL:`. A
/// comparison with the head that followed the last one before is faster than reading a head. So is one with the last
/// head that began with the same bytes, if the order changes.
class HeadSequence
{
public:
    /// Begins a card.
    void Restart() { m_current = s_kStart; }

    /// \return the head of the next line if it is an expected one; null if it must be read. Valid until the second line
    ///         after it.
    const KnownHead* Next( std::string_view a_line )
    {
        const quint8 expected = m_slots[m_current].m_next;
        if ( !m_slots[expected].Begins( a_line ) )
            return NextByStart( a_line );
        m_current = expected;
        return &m_slots[expected].m_head;
    }

    /// Remembers the head of a line that was not an expected one, if it is short and depends on nothing after its
    /// colon.
    /// \param a_isPlain what LineHead::Read() returned for it.
    void Learn( std::string_view a_line, const LineHead& a_head, bool a_isPlain );

private:
    static constexpr size_t s_kLongest = 48;
    static constexpr size_t s_kSlots = 32;
    static constexpr size_t s_kHashes = 128;
    // The slot before the first line. It has no head.
    static constexpr quint8 s_kStart = 0;

    struct Slot
    {
        bool Begins( std::string_view a_line ) const;
        void Set( std::string_view a_text, const LineHead& a_head, bool a_isPlain );
        std::string_view Text() const { return std::string_view( m_text.data(), m_length ); }

        // The first eight bytes of the head, and which bits of the first eight of a line they are compared with.
        // Without a head, no line is equal.
        quint64 m_word = 1;
        quint64 m_mask = 0;
        std::array<char, s_kLongest> m_text = {};
        // 0 if there is no head.
        quint8 m_length = 0;
        // The slot of the head that followed the last time.
        quint8 m_next = s_kStart;
        KnownHead m_head;
    };

    const KnownHead* NextByStart( std::string_view a_line );
    void StepTo( quint8 a_slot );
    quint8 SlotOf( std::string_view a_text, const LineHead& a_head, bool a_isPlain );
    quint8 NextToFill();

    std::array<Slot, s_kSlots> m_slots;
    quint8 m_current = s_kStart;
    // The slot that was filled last.
    size_t m_filled = s_kStart;
    // The last slots for the heads with a hash value, and for the lines with one of their first bytes.
    std::array<quint8, s_kHashes> m_byText = {};
    std::array<quint8, s_kHashes> m_byStart = {};
};

// Most lines differ in the first eight bytes or not at all. The last eight bytes overlap those before.
inline bool HeadSequence::Slot::Begins( std::string_view a_line ) const
{
    if ( a_line.size() < s_kWord )
        return m_length > 0 && a_line.substr( 0, m_length ) == Text();
    if ( ( WordAt( a_line.data() ) & m_mask ) != m_word )
        return false;
    if ( m_length <= s_kWord )
        return true;
    if ( a_line.size() < m_length )
        return false;
    const size_t last = m_length - s_kWord;
    for ( size_t place = s_kWord; place < last; place += s_kWord )
    {
        if ( WordAt( m_text.data() + place ) != WordAt( a_line.data() + place ) )
            return false;
    }
    return WordAt( m_text.data() + last ) == WordAt( a_line.data() + last );
}

} // namespace PimManager::Contacts
