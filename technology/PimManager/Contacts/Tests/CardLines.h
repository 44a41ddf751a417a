/// \file
/// The lines of a card, for tests of the classes that read them.

#pragma once

#include "Lines/LineScanner.h"
#include "Lines/LogicalLines.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Takes all physical lines of a text that is a part of a card.
///
/// \param a_bytes the card up to the end of that part; must outlive the lines.
/// \param a_begin where the part begins.
inline void TakeAllLines( LogicalLines& a_lines, std::string_view a_bytes, quint32 a_begin = 0 )
{
    LineScanner scanner;
    scanner.Append( a_bytes );
    scanner.Finish();
    scanner.Pass( a_begin );
    for ( PhysicalLine line; scanner.Next( line ); )
    {
        a_lines.SetBytes( a_bytes.data() );
        a_lines.Take( { static_cast<quint32>( line.m_offset ), static_cast<quint32>( line.TextEnd() ),
                        static_cast<quint32>( line.End() ), line.m_isWide, line.m_hasControls } );
    }
    a_lines.Close();
}

} // namespace PimManager::Contacts
