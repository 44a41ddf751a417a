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

/// The last byte of the word VCARD, and the bytes that are ignored after it: those of blanks, control characters and
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
        EndAndBegin, ///< `END:VCARDBEGIN:VCARD`, from files that were concatenated without a line ending
    };

    Kind m_kind = Kind::None;
    /// The position of the BEGIN in AgentBegin and EndAndBegin.
    quint32 m_beginPlace = 0;

    // For Begin and End: the other parts of the line, as positions from the start of the line. Examples:
    //
    //     item1.END;X=y:VCARD     m_group "item1.", m_parameters ";X=y"
    //     END:VCARD the end       m_rest "the end"; m_isMended because of the blank before it
    /// A byte order mark at the start.
    ByteRange m_mark;
    /// A group with its dot, parameters, and the text after VCARD, without blanks, control characters and byte order
    /// marks around them.
    ByteRange m_group;
    ByteRange m_parameters;
    ByteRange m_rest;
    /// There are blanks, control characters or byte order marks other than a mark at the start.
    bool m_isMended = false;

    static constexpr std::array<bool, 256> s_kLastBytes = LastBytesOfBoundaries();

    /// The longest line that can be a boundary.
    static constexpr qint64 s_kLongest = 1024;

    /// The line is longer than that, or LineScanner::TakeOpen() has already taken its start.
    static bool IsTooLong( const PhysicalLine& a_line ) { return a_line.m_isLong || a_line.m_length > s_kLongest; }

    /// \return true for an AGENT line without a value. A BEGIN line after it begins a nested card.
    static bool IsOpenAgent( std::string_view a_line );

    /// The line begins like a BEGIN or END line and is longer.
    static bool BeginsAsOne( std::string_view a_line )
    {
        constexpr size_t s_kEndLength = 9;
        return a_line.size() > s_kEndLength && ( a_line[3] == ':' || a_line[5] == ':' ) &&
               ( Upper( a_line[0] ) == 'B' || Upper( a_line[0] ) == 'E' );
    }

    /// A quick check that almost every line fails: the last byte must be that of the word, or one that is ignored after
    /// it.
    static bool MayBe( std::string_view a_line )
    {
        return !a_line.empty() && static_cast<qint64>( a_line.size() ) <= s_kLongest &&
               ( MayEndAsOne( a_line ) || BeginsAsOne( a_line ) );
    }

    /// \param a_line not empty.
    static bool MayEndAsOne( std::string_view a_line ) { return s_kLastBytes[static_cast<uchar>( a_line.back() )]; }

    /// Other text may follow the words if it does not begin with a name byte: `END:VCARD the end`.
    ///
    /// \param a_line a physical line without its line ending.
    static CardBoundary Of( std::string_view a_line );

    /// The same for lines outside cards. There, `BEGIN:VCARD` with any text after it is a BEGIN.
    static CardBoundary OfOutside( std::string_view a_line );
};

} // namespace PimManager::Contacts
