/// \file
/// Hostile texts, each made of one repeated piece, and the expected results of the component.
///
/// The expectations were derived by hand from the rules of the grammar, never from the output of the component.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// A head, a repeated piece, and a tail.
struct RepeatedText
{
    QByteArray m_head;
    QByteArray m_piece;
    QByteArray m_tail;

    /// \return the text with that many repetitions.
    QByteArray Text( int a_repetitions ) const { return m_head + m_piece.repeated( a_repetitions ) + m_tail; }

    /// \return the number of pieces in this many bytes.
    int RepetitionsIn( int a_bytes ) const { return a_bytes / static_cast<int>( m_piece.size() ); }
};

/// A number that grows with the number of repetitions.
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
    /// The number of blocks on the critical log, several for each failure.
    GrowingCount m_blocks;

    /// The number of pieces in the text at its full size.
    int m_repetitions;

    /// \return the text with that many repetitions.
    QByteArray Text( int a_repetitions ) const { return m_text.Text( a_repetitions ); }

    /// \return the text with as many repetitions as needed for about this length.
    QByteArray TextOfLength( int a_bytes ) const { return Text( m_text.RepetitionsIn( a_bytes ) ); }
};

/// All rows; their names are different words of ASCII letters, digits and "-". Expectations are valid for three
/// repetitions and more.
QList<HostileShape> HostileShapes();

} // namespace PimManager::vCard::MadeTexts
