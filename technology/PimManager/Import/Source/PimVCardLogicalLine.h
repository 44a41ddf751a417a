/// \file
/// A content line, put together from physical lines.

#pragma once

#include "PimVCardDecoding.h"
#include "PimVCardKnownNames.h"
#include "PimVCardRawCard.h"

#include <QByteArray>

#include <vector>

namespace PimManager::vCardImport
{

/// The text of one content line without folds and soft line breaks, in the encoding in which it came.
struct PimVCardLogicalLine
{
    struct Piece
    {
        /// Where the piece begins in m_text.
        int m_place = 0;
        /// The physical line, and where in it the piece begins.
        int m_line = 0;
        int m_placeInLine = 0;
    };

    QByteArray m_text;
    std::vector<Piece> m_pieces;
    /// The text of the card inside, its lines ended by line feeds.
    QByteArray m_nested;
    bool m_isProperty = true;

    /// Byte order marks that stood at the start.
    int m_marks = 0;
    bool m_isFolded = false;
    bool m_isJoined = false;
    bool m_isColonAdded = false;
    bool m_isSoftBreakMended = false;
    bool m_isEncodedBreakKept = false;
    bool m_areBase64LinesJoined = false;

    /// The place in the file of a byte of the text.
    PimVCardPosition PositionOf( const PimVCardRawCard& a_card, int a_place ) const;
    /// Where the line begins.
    PimVCardPosition Position( const PimVCardRawCard& a_card ) const { return PositionOf( a_card, 0 ); }
};

/// All content lines of a card between its BEGIN and END lines.
struct PimVCardLogicalLines
{
    std::vector<PimVCardLogicalLine> m_lines;
    /// For each physical line of the card the index of its content line, or one of these.
    std::vector<int> m_owners;
    static constexpr int s_kBlank = -1;
    static constexpr int s_kBoundary = -2;
    bool m_isIndented = false;

    /// Puts the physical lines of a card together:
    ///
    /// - an indented line goes on with the line before, without its blanks;
    /// - behind the "=" of a QUOTED-PRINTABLE value the next line goes on with it, unless it is clearly a property;
    /// - a line that is no property goes on with the value before, where that is text: directly when it was folded
    ///   without indentation, else behind a line feed. Behind BASE64 a line of BASE64 goes on directly;
    /// - what is left is no property.
    ///
    /// Linear in the length of the card.
    static PimVCardLogicalLines Of( const PimVCardRawCard& a_card );
};

} // namespace PimManager::vCardImport
