/// \file
/// Texts that nobody writes by accident, each of them one piece repeated, and what the component gives for them.
///
/// What is expected is worked out by hand from the rules of the grammar, never by asking the component.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// A head, a piece that is repeated, a tail.
struct RepeatedText
{
    QByteArray m_head;
    QByteArray m_piece;
    QByteArray m_tail;

    /// \return the text with that many repetitions.
    QByteArray Text( int a_repetitions ) const { return m_head + m_piece.repeated( a_repetitions ) + m_tail; }

    /// \return how many pieces there are in that many bytes.
    int RepetitionsIn( int a_bytes ) const { return a_bytes / static_cast<int>( m_piece.size() ); }
};

/// A number that grows with the repetitions.
struct GrowingCount
{
    int m_once = 0;
    int m_each = 0;

    int For( int a_repetitions ) const { return m_once + m_each * a_repetitions; }
};

/// A row.
struct HostileShape
{
    QByteArray m_name;
    RepeatedText m_text;

    /// The cards, each written in one line: a property is its group with a dot, its name, each parameter as
    /// `{name=value}` and each value in brackets; a card ends with a line feed.
    RepeatedText m_cardLines;
    GrowingCount m_cards;
    /// The blocks on the critical log, several for each failure.
    GrowingCount m_blocks;

    /// How often the piece stands in the text at its full size.
    int m_repetitions;

    /// \return the text with that many repetitions.
    QByteArray Text( int a_repetitions ) const { return m_text.Text( a_repetitions ); }

    /// \return the text with as many repetitions as make it about that long.
    QByteArray TextOfLength( int a_bytes ) const { return Text( m_text.RepetitionsIn( a_bytes ) ); }
};

/// All rows; their names are different words of ASCII letters, digits and "-". Expectations hold from three repetitions
/// on.
QList<HostileShape> HostileShapes();

} // namespace PimManager::vCard::MadeTexts
