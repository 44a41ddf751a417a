/// \file
/// Checks the physical lines of a card.

#pragma once

#include "Cards/LineView.h"
#include "Conformance/Violations.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Checks the parts of a card one after the other, and counts their physical lines.
class LayoutCheck
{
public:
    /// \param a_line the line of the file in which the card begins.
    LayoutCheck( PimContactVersion a_version, qint64 a_line, Violations& a_violations ) :
        m_version( a_version ),
        m_line( a_line ),
        m_violations( a_violations )
    {
    }

    /// The line in which the next part begins.
    qint64 Line() const { return m_line; }

    /// Checks a part.
    void Check( const IndexedLine& a_part );

private:
    void CheckPiece( const IndexedLine& a_part, std::string_view a_text );
    void CheckLineEnd( std::string_view a_lineEnd );
    void Flush();

    PimContactVersion m_version;
    qint64 m_line;
    Violations& m_violations;
    bool m_isLineEndReported = false;

    // For the current part.
    std::string_view m_piece;
    bool m_isFirst = true;
    bool m_isLong = false;
    bool m_isDivided = false;
};

} // namespace PimManager::Contacts
