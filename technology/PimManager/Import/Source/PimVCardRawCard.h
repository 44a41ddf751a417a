/// \file
/// A card as it was cut out of the text.

#pragma once

#include "PimVCardDiagnostic.h"
#include "PimVCardUtf8.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::vCardImport
{

/// The lines of one card, from BEGIN to END, in the encoding in which they came.
struct PimVCardRawCard
{
    struct Line
    {
        /// In m_bytes.
        int m_begin = 0;
        int m_length = 0;
        int m_endLength = 0;
        /// Of the first byte.
        PimVCardPosition m_position;
        /// Of a card inside the card, its BEGIN and END lines among them.
        bool m_isNested = false;
        /// False for the second half of a line that two cards share.
        bool m_isCounted = true;
    };

    QByteArray m_bytes;
    std::vector<Line> m_lines;
    qint64 m_index = 0;
    /// The index of the END line; -1 if it is missing. Nothing but blank lines follows it.
    int m_endLine = -1;
    /// The component reads the bytes as import would.
    bool m_isClean = true;
    /// A clean card has characters beyond ASCII.
    bool m_isWide = false;
    bool m_isTooDeep = false;
    /// Places count UTF-16 units of two bytes.
    bool m_isUtf16 = false;
    /// BEGIN lines of cards inside.
    int m_nestedCards = 0;

    bool HasEnd() const { return m_endLine >= 0; }

    const PimVCardPosition& Position() const { return m_lines.front().m_position; }

    std::string_view TextOf( const Line& a_line ) const
    {
        return std::string_view( m_bytes.constData() + a_line.m_begin, static_cast<size_t>( a_line.m_length ) );
    }

    /// The place of a byte of a line in the file.
    PimVCardPosition PositionIn( const Line& a_line, size_t a_place ) const
    {
        const std::string_view before = TextOf( a_line ).substr( 0, a_place );
        const qint64 units = m_isUtf16 ? Utf16Units( before ) : static_cast<qint64>( before.size() );
        PimVCardPosition position = a_line.m_position;
        position.m_column += units;
        position.m_offset += m_isUtf16 ? 2 * units : units;
        return position;
    }

    /// With its line end.
    std::string_view BytesOf( const Line& a_line ) const
    {
        return std::string_view( m_bytes.constData() + a_line.m_begin,
                                 static_cast<size_t>( a_line.m_length + a_line.m_endLength ) );
    }
};

} // namespace PimManager::vCardImport
