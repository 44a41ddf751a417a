/// \file
/// The positions of the bytes and lines of a card in the file.

#pragma once

#include "Checks/Subject.h"

#include <QByteArray>
#include <QtGlobal>

#include <vector>

namespace PimManager::Contacts::Checks
{

/// A line of a card or of a card nested in it.
struct PlacedLine
{
    PimContactLine m_line;
    /// The record of the card that the line belongs to.
    PimContactFoldStyle m_style = PimContactFoldStyle::BlankRemoved;
    /// The offset of its first byte in the bytes of the outermost card.
    qint64 m_place = 0;
};

/// The extents of one outermost card.
class CardPlaces
{
public:
    /// \param a_extents all extents of the file, in the order of their offsets.
    /// \param a_card    an outermost card.
    CardPlaces( const std::vector<PimContactExtent>& a_extents, const PimContactCard& a_card );

    /// All extents of the card, in their order.
    const std::vector<PimContactExtent>& All() const { return m_all; }
    /// The extents of its properties.
    const std::vector<PimContactExtent>& Lines() const { return m_lines; }

    /// \return the bytes of all extents except filtered ones.
    QByteArray Bytes() const;

    /// \param a_offset a position in the file.
    /// \return the number of bytes in Bytes() before that position.
    qint64 InCard( qint64 a_offset ) const;

    /// \return the lines of the card and of nested cards, in their order.
    std::vector<PlacedLine> LinesOf( const PimContactCard& a_card ) const;

private:
    void AppendLines( const PimContactCard& a_card, std::vector<PlacedLine>& a_lines ) const;

    std::vector<PimContactExtent> m_all;
    // The offset of the first byte of each of them in Bytes().
    std::vector<qint64> m_places;
    std::vector<PimContactExtent> m_lines;
};

} // namespace PimManager::Contacts::Checks
