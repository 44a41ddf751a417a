/// \file
/// Where the bytes and lines of a card are in the file.

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
    /// Of the card that the line belongs to.
    PimContactFoldStyle m_style = PimContactFoldStyle::BlankRemoved;
    /// Its first byte in the bytes of the outermost card.
    qint64 m_place = 0;
};

/// The extents of one outermost card.
class CardPlaces
{
public:
    /// \param a_extents all extents of the file, in the order of their offsets.
    /// \param a_card    an outermost card.
    CardPlaces( const std::vector<PimContactExtent>& a_extents, const PimContactCard& a_card );

    /// All extents of the card in their order.
    const std::vector<PimContactExtent>& All() const { return m_all; }
    /// Those of its properties.
    const std::vector<PimContactExtent>& Lines() const { return m_lines; }

    /// \return the bytes of all extents but filtered ones.
    QByteArray Bytes() const;

    /// \param a_offset a position in the file.
    /// \return how many bytes of Bytes() are before that position.
    qint64 InCard( qint64 a_offset ) const;

    /// \return the lines of the card and of nested cards, in their order.
    std::vector<PlacedLine> LinesOf( const PimContactCard& a_card ) const;

private:
    void AppendLines( const PimContactCard& a_card, std::vector<PlacedLine>& a_lines ) const;

    std::vector<PimContactExtent> m_all;
    // For each of them, its first byte in Bytes().
    std::vector<qint64> m_places;
    std::vector<PimContactExtent> m_lines;
};

} // namespace PimManager::Contacts::Checks
