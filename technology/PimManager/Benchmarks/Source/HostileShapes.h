/// \file
/// Texts that nobody writes by accident, each of them one piece repeated, to see how the work grows with their length.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::Benchmarks
{

/// How many cards a hostile text gives.
enum class CardsGiven
{
    None,
    One,
    /// One for each repetition.
    Each
};

/// A row: a head, a piece that is repeated, a tail.
struct HostileShape
{
    QByteArray m_name;
    QByteArray m_head;
    QByteArray m_piece;
    QByteArray m_tail;
    CardsGiven m_cards;

    /// \return the text with that many repetitions.
    QByteArray Text( int a_repetitions ) const { return m_head + m_piece.repeated( a_repetitions ) + m_tail; }

    /// \return the text with as many repetitions as make it about that long.
    QByteArray TextOfLength( int a_bytes ) const { return Text( a_bytes / m_piece.size() ); }
};

/// All rows; their names are different words of ASCII letters, digits and "-".
QList<HostileShape> HostileShapes();

} // namespace PimManager::vCard::Benchmarks
