/// \file
/// Facts about a card that its lines determine.

#pragma once

#include "Lines/FoldEvidence.h"
#include "Lines/LineIndex.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QtAlgorithms>
#include <QtGlobal>

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

/// The number of oddities. Their flags are the lowest bits.
constexpr int s_kOddities = 11;
static_assert( static_cast<int>( PimContactOddity::UnknownEscape ) == 1 << ( s_kOddities - 1 ) );

/// Calls a_take( bit ) for each oddity, from the lowest bit up.
template <typename Take>
void ForEachOddity( PimContactOddities a_oddities, Take a_take )
{
    for ( auto left = static_cast<uint>( static_cast<int>( a_oddities ) ); left != 0; left &= left - 1 )
        a_take( static_cast<int>( qCountTrailingZeroBits( left ) ) );
}

/// Collected while the index of a card is written.
struct CardFacts
{
    void Count( EntryKind a_kind, quint32 a_length )
    {
        ++m_parts[static_cast<size_t>( a_kind )];
        m_bytes[static_cast<size_t>( a_kind )] += a_length;
    }

    void CountOddities( PimContactOddities a_oddities )
    {
        ForEachOddity( a_oddities, [this]( int a_bit ) { ++m_oddLines[static_cast<size_t>( a_bit )]; } );
    }

    quint32 Parts( EntryKind a_kind ) const { return m_parts[static_cast<size_t>( a_kind )]; }

    bool HasOddLines() const
    {
        return std::any_of( m_oddLines.begin(), m_oddLines.end(), []( quint32 a_lines ) { return a_lines != 0; } );
    }

    /// There are parts other than lines, boundaries and blank lines.
    bool HasOddParts() const
    {
        return Parts( EntryKind::Dropped ) + Parts( EntryKind::Filtered ) + Parts( EntryKind::Mark ) +
                   Parts( EntryKind::Nested ) !=
               0;
    }

    /// The number of parts of each kind, and of their bytes.
    std::array<quint32, s_kEntryKinds> m_parts = {};
    std::array<quint32, s_kEntryKinds> m_bytes = {};
    /// The number of lines with each oddity, by its bit.
    std::array<quint32, s_kOddities> m_oddLines = {};
    quint32 m_mendedBoundaries = 0;

    PimContactVersion m_version = PimContactVersion::Unknown;
    /// There are characters beyond ASCII.
    bool m_isWide = false;
    bool m_isValidUtf8 = true;
    /// A line may be in ISO-2022-JP.
    bool m_mayBeShifted = false;
    /// From the folded lines of text. Not collected if the version is known and not 2.1.
    FoldEvidence m_folds;
    /// A part of the card was left out, or a line was.
    bool m_isDropped = false;
    bool m_isFiltered = false;
};

} // namespace PimManager::Contacts
