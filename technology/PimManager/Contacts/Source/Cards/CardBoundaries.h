/// \file
/// The BEGIN and END lines of cards.

#pragma once

#include "Lines/LineHead.h"
#include "Lines/LineScanner.h"
#include "Text/Bytes.h"

#include <QtGlobal>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// The last byte of the word VCARD, and the bytes that are passed over behind it: of blanks, control characters and
/// byte order marks.
constexpr std::array<bool, 256> LastBytesOfBoundaries()
{
    std::array<bool, 256> bytes = {};
    for ( size_t byte = 0; byte <= ' '; ++byte )
        bytes[byte] = true;
    for ( const int byte : { 0x44, 0x64, 0xBF } )
        bytes[static_cast<size_t>( byte )] = true;
    return bytes;
}

/// What a physical line means for the bounds of cards.
struct CardBoundary
{
    enum class Kind
    {
        None,
        Begin,
        End,
        AgentBegin,  ///< `AGENT:BEGIN:VCARD`
        EndAndBegin, ///< `END:VCARDBEGIN:VCARD`, as files have it that were put together without a line ending
    };

    Kind m_kind = Kind::None;
    /// Where the second part of the line begins: the BEGIN of AgentBegin and EndAndBegin.
    quint32 m_beginPlace = 0;

    // Of Begin and End: what else is on the line. Places count from the start of the line.
    /// A byte order mark, at the start.
    ByteRange m_mark;
    /// A group with its dot, parameters, and what follows VCARD. Not blanks, control characters or byte order marks.
    ByteRange m_group;
    ByteRange m_parameters;
    ByteRange m_rest;
    /// There are blanks, control characters or byte order marks, but for a mark at the start.
    bool m_isMended = false;

    static constexpr std::array<bool, 256> s_kLastBytes = LastBytesOfBoundaries();

    /// The longest line that can be one.
    static constexpr qint64 s_kLongest = 1024;

    /// The line is longer than that, or its start was taken by LineScanner::TakeOpen().
    static bool IsTooLong( const PhysicalLine& a_line ) { return a_line.m_isLong || a_line.m_length > s_kLongest; }

    /// \return true for an AGENT line without a value: a BEGIN line that follows it begins a card inside.
    static bool IsOpenAgent( std::string_view a_line );

    /// The line begins as BEGIN or END and is longer.
    static bool BeginsAsOne( std::string_view a_line )
    {
        constexpr size_t s_kEndLength = 9;
        return a_line.size() > s_kEndLength && ( a_line[3] == ':' || a_line[5] == ':' ) &&
               ( Upper( a_line[0] ) == 'B' || Upper( a_line[0] ) == 'E' );
    }

    /// Almost every line fails this look: its last byte is that of the word, or one that is passed over.
    static bool MayBe( std::string_view a_line )
    {
        return !a_line.empty() && static_cast<qint64>( a_line.size() ) <= s_kLongest &&
               ( MayEndAsOne( a_line ) || BeginsAsOne( a_line ) );
    }

    /// \param a_line not empty.
    static bool MayEndAsOne( std::string_view a_line ) { return s_kLastBytes[static_cast<uchar>( a_line.back() )]; }

    /// The words may be followed by other text, if that begins with no byte of a name: `END:VCARD the end`.
    ///
    /// \param a_line a physical line without its line ending.
    static CardBoundary Of( std::string_view a_line );

    /// The same, and `BEGIN:VCARD` with anything behind it is a BEGIN too. For lines outside cards.
    static CardBoundary OfOutside( std::string_view a_line );
};

} // namespace PimManager::Contacts
