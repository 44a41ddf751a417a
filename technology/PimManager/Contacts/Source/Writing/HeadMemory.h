/// \file
/// Caches the meanings of the heads of lines for a writer.

#pragma once

#include "Lines/PropertyTable.h"
#include "Writing/PlainChangeRule.h"

#include <QtGlobal>

#include <array>
#include <cstring>
#include <string_view>

namespace PimManager::Contacts
{

/// How a head is written in the target.
class WrittenHead
{
public:
    bool IsKnown() const { return m_length > 0; }
    std::string_view Text() const { return std::string_view( m_text.data(), m_length ); }
    /// A long head remains unknown.
    void Set( std::string_view a_text );

private:
    std::array<char, 63> m_text = {};
    quint8 m_length = 0;
};

/// The meaning of the name and the parameters of a line.
struct HeadMeaning
{
    PropertyId m_property = PropertyId::Other;
    /// The version of the line has all of its parameters, and they are written in its form.
    bool m_isLegal = false;
    /// See HasEscapedSemicolons().
    bool m_hasEscapedSemicolons = false;
    /// The property is a picture, a sound or a key.
    bool m_isMedia = false;
    /// For a line that is written in another version.
    PlainChangeRule m_rule;
    /// The head in that version, once a line has been written.
    WrittenHead m_written;
};

/// The first and the last eight bytes of a head, usually most of it. They may overlap.
struct HeadEnds
{
    explicit HeadEnds( std::string_view a_head )
    {
        if ( a_head.size() >= sizeof( quint64 ) )
            Read<quint64>( a_head );
        else if ( a_head.size() >= sizeof( quint32 ) )
            Read<quint32>( a_head );
        else if ( a_head.size() >= sizeof( quint16 ) )
            Read<quint16>( a_head );
        else
            m_first = a_head.empty() ? 0 : static_cast<uchar>( a_head.front() );
    }

    bool operator==( const HeadEnds& a_other ) const { return m_first == a_other.m_first && m_last == a_other.m_last; }

    quint64 m_first = 0;
    quint64 m_last = 0;

private:
    template <typename Bytes>
    void Read( std::string_view a_head )
    {
        Bytes bytes = 0;
        std::memcpy( &bytes, a_head.data(), sizeof( Bytes ) );
        m_first = bytes;
        std::memcpy( &bytes, a_head.data() + a_head.size() - sizeof( Bytes ), sizeof( Bytes ) );
        m_last = bytes;
    }
};

/// The lines of a book have one of a few heads, such as `TEL;TYPE=HOME,VOICE`. Determining the meaning of a head takes
/// longer than copying its line, so each thread caches the last ones.
class HeadMemory
{
public:
    /// \return the memory of this thread.
    static HeadMemory& OfThread();

    /// \param a_head the name and the parameters, without the group and without the colon.
    /// \return the meaning of the head. Valid until the next call.
    HeadMeaning& Of( std::string_view a_name, std::string_view a_head, VersionStep a_step )
    {
        const HeadEnds ends( a_head );
        Slot* const first = &m_slots[SlotOf( ends, a_head.size() )];
        Slot* const second = first + 1;
        if ( first->IsFor( a_head, ends, a_step ) )
            return first->m_meaning;
        return second->IsFor( a_head, ends, a_step ) ? second->m_meaning : OfOther( *first, a_name, a_head, a_step );
    }

private:
    static constexpr size_t s_kLongest = 48;
    static constexpr size_t s_kSlots = 128;
    static constexpr size_t s_kEnd = sizeof( quint64 );
    static constexpr size_t s_kBothEnds = 2 * s_kEnd;

    struct Slot
    {
        bool IsFor( std::string_view a_head, const HeadEnds& a_ends, VersionStep a_step ) const
        {
            return m_length == a_head.size() && m_ends == a_ends && m_step == a_step &&
                   ( m_length <= s_kBothEnds || IsSameMiddle( a_head ) );
        }
        bool IsSameMiddle( std::string_view a_head ) const
        {
            return std::memcmp( m_text.data() + s_kEnd, a_head.data() + s_kEnd, m_length - s_kBothEnds ) == 0;
        }

        // No head has this length.
        size_t m_length = s_kLongest + 1;
        HeadEnds m_ends = HeadEnds( {} );
        VersionStep m_step;
        HeadMeaning m_meaning;
        std::array<char, s_kLongest> m_text = {};
    };

    // The first of two slots for the same heads, so that two heads do not replace each other in turn.
    static size_t SlotOf( const HeadEnds& a_ends, size_t a_length )
    {
        constexpr uint s_kUnused = 64 - 6;
        const quint64 bytes = a_ends.m_first * 0x9E3779B97F4A7C15ULL + a_ends.m_last + a_length;
        return static_cast<size_t>( ( bytes * 0xD6E8FEB86659FD93ULL ) >> s_kUnused ) * 2;
    }
    // Replaces the entry of a slot or of its neighbour.
    HeadMeaning& OfOther( Slot& a_slot, std::string_view a_name, std::string_view a_head, VersionStep a_step );

    std::array<Slot, s_kSlots> m_slots;
    // For a head that is too long to be cached.
    HeadMeaning m_long;
};

} // namespace PimManager::Contacts
