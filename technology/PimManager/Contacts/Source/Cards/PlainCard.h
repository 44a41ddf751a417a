/// \file
/// The fast path for plain cards.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Lines/HeadSequence.h"
#include "Lines/LineIndex.h"
#include "Lines/LineScanner.h"
#include "Lines/LogicalLines.h"
#include "Text/Utf8Census.h"

#include <PimManager/Contacts/PimContactReport.h>

#include <QtGlobal>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// Reads a card in which no decision depends on neighbouring lines, and writes the index that LogicalLines would write.
/// Most cards are plain, and this path needs a third of the instructions.
///
/// A plain card consists of BEGIN, properties, folds, soft line breaks, empty lines and END, with one kind of line
/// ending and without nested cards. Its lines may have oddities that do not affect other lines, such as blanks before
/// the colon, empty parameters, control characters or unknown escapes. The class may reject a card that is plain; then
/// the slow path reads it. With a limit for lines the slow path is always used, so tests can compare the two.
class PlainCard
{
public:
    PlainCard() = default;
    Q_DISABLE_COPY( PlainCard )

    /// \param a_text the text, at a position where a card may begin.
    /// \return true if its first line is the BEGIN of what may be a plain card.
    bool Begin( std::string_view a_text );

    /// The line ending of the BEGIN line.
    PimContactLineEnd LineEnd() const { return m_lineEnd; }

    /// The state of the card.
    enum class Result
    {
        Open,     ///< its END has not been read yet
        Whole,    ///< it has been read
        NotPlain, ///< the part after the closed lines is not plain
    };

    /// Reads the card that has begun, or continues when more bytes are available.
    /// \param a_text the same bytes as in Begin() and in the last call, possibly at another address, and all bytes
    ///               after them.
    Result Read( std::string_view a_text );

    /// The bytes of the lines before the open property, or those of the whole card. At least the BEGIN line.
    quint32 BytesClosed() const { return m_isOpen ? m_begin : m_written; }
    qint64 LinesClosed() const { return m_linesClosed; }
    /// The facts from these lines.
    CardFacts FactsClosed() const;
    IndexWriter& Writer() { return m_index; }

    IndexBytes Index() const { return m_index.Bytes(); }
    const CardFacts& Facts() const { return m_facts; }
    /// The number of physical lines.
    qint64 Lines() const { return m_physicalLines; }

private:
    enum class Step
    {
        Next,
        Stop, ///< not plain
        End,  ///< END was read
    };

    // A physical line. Positions count from the first byte of the card.
    struct Line
    {
        std::string_view m_text;
        quint32 m_begin = 0;
        quint32 m_end = 0;
        bool m_isWide = false;
        bool m_hasControls = false;
    };

    Q_ALWAYS_INLINE Step TakeLine( const Line& a_line );
    Q_ALWAYS_INLINE Step TakeContinuation( const Line& a_line );
    Step TakeSoftBreak( const Line& a_line );
    Q_ALWAYS_INLINE Step TakeProperty( const Line& a_line );
    Q_ALWAYS_INLINE const KnownHead* ReadHead( std::string_view a_line );
    Step TakeEnd( const Line& a_line, bool a_isMended );
    Q_ALWAYS_INLINE bool EndsPlainly( std::string_view a_line );
    void WaitForLineEnd( const LineEndSearch& a_search, size_t a_next, size_t a_searched );
    const LineHead& Head() const { return m_head->m_head; }
    bool HoldsFoldEvidence() const
    {
        return Head().m_encoding == PimContactEncoding::None && MayFoldByLength( m_facts.m_version );
    }
    void NoteFold( const Line& a_line );
    Q_ALWAYS_INLINE void CloseLine();
    void CloseCharacters();
    void NoteOddity( PimContactOddity a_oddity );
    void WriteEntry();
    IndexEntry Entry() const;
    void WriteBlankUpTo( quint32 a_place )
    {
        if ( a_place > m_written )
            WriteBlank( a_place - m_written );
    }
    void WriteBlank( quint32 a_length );
    void WriteBoundary( quint32 a_length, bool a_isMended )
    {
        m_index.AddBoundary( a_length, a_isMended );
        Wrote( EntryKind::Boundary, a_length );
        m_facts.m_mendedBoundaries += a_isMended ? 1U : 0U;
    }
    void Wrote( EntryKind a_kind, quint32 a_length )
    {
        m_written += a_length;
        m_facts.Count( a_kind, a_length );
    }

    std::string_view m_text;
    PimContactLineEnd m_lineEnd = PimContactLineEnd::CrLf;
    int m_endLength = 0;
    qint64 m_physicalLines = 0;
    qint64 m_linesClosed = 0;
    quint32 m_written = 0;
    // The first line whose end has not been found, and the position up to which it was searched.
    size_t m_next = 0;
    size_t m_searched = 0;
    LineEndSearch m_search;
    CardFacts m_facts;
    IndexWriter m_index;

    // The open property. Example:
    //
    //     FN:a                                     m_isOpen; the lines before it are closed
    //     NOTE;ENCODING=QUOTED-PRINTABLE:b=        m_isOpen for NOTE, m_isSoftBreakOpen; FN is closed
    //     c                                        m_isSoftBreakOpen is cleared
    //                                              m_isBehindEmptyLine; an indented line after it is not plain
    bool m_isOpen = false;
    quint32 m_begin = 0;
    // The last physical line of the property, without the blank of a fold.
    quint32 m_lastBegin = 0;
    quint32 m_lastTextEnd = 0;
    quint32 m_end = 0;
    bool m_isSoftBreakOpen = false;
    bool m_isBehindEmptyLine = false;
    bool m_isWide = false;
    bool m_hasControls = false;
    bool m_hasFolds = false;
    // The head of the line is in m_sequence or one of these: two for heads that are not known, because that of the next
    // line is read before the line is closed, and one for a head with oddities of the value.
    std::array<KnownHead, 2> m_heads;
    KnownHead m_oddHead;
    HeadSequence m_sequence;
    const KnownHead* m_head = m_heads.data();
    JoinWriter m_joins;
    FoldEvidence m_foldsClosed;
    Utf8Census m_census;
};

} // namespace PimManager::Contacts
