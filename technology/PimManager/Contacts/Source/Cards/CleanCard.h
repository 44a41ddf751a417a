/// \file
/// The short road for clean cards.

#pragma once

#include "Lines/LineIndex.h"
#include "Lines/LogicalLines.h"
#include "Text/Utf8Census.h"

#include <PimManager/Contacts/PimContactReport.h>

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Reads a card in which nothing has to be decided, and writes the index that LogicalLines would write. Most cards are
/// clean, and this takes a third of the instructions.
///
/// A clean card has BEGIN, properties, folds, soft line breaks, empty lines and END as the standards want them, with
/// one kind of line ending, in valid UTF-8, and no card inside. It may say no to a card that is clean; then the longer
/// road is taken. A text that comes byte by byte always takes the longer road, so the tests that compare pieces with
/// the whole compare the two.
class CleanCard
{
public:
    /// \param a_text    begins with a BEGIN line.
    /// \param a_lineEnd how the BEGIN line ends.
    /// \return the length of the card; 0 if it is not clean, or its END has not come.
    quint32 Read( std::string_view a_text, PimContactLineEnd a_lineEnd );

    IndexBytes Index() const { return m_index.Bytes(); }
    const CardFacts& Facts() const { return m_facts; }
    /// Physical lines.
    qint64 Lines() const { return m_physicalLines; }

private:
    enum class Step
    {
        Next,
        Stop, ///< not clean
        End,  ///< END has come
    };

    Q_ALWAYS_INLINE Step TakeLine( std::string_view a_line, quint32 a_begin, quint32 a_end, bool a_isWide );
    Q_ALWAYS_INLINE Step TakeContinuation( std::string_view a_line, quint32 a_end, bool a_isWide );
    Step TakeSoftBreak( std::string_view a_line, quint32 a_begin, quint32 a_end, bool a_isWide );
    Q_ALWAYS_INLINE Step TakeProperty( std::string_view a_line, quint32 a_begin, quint32 a_end, bool a_isWide );
    Q_ALWAYS_INLINE bool EndsCleanly( std::string_view a_line );
    bool CloseLine();
    bool IsValidUtf8();
    IndexEntry Entry() const;
    void WriteBlankUpTo( quint32 a_place )
    {
        if ( a_place > m_written )
            WriteBlank( a_place - m_written );
    }
    void WriteBlank( quint32 a_length );
    void Wrote( EntryKind a_kind, quint32 a_length );

    std::string_view m_text;
    qint64 m_physicalLines = 0;
    quint32 m_written = 0;
    CardFacts m_facts;
    IndexWriter m_index;

    // The property that is open.
    bool m_isOpen = false;
    quint32 m_begin = 0;
    quint32 m_lastTextEnd = 0;
    quint32 m_end = 0;
    bool m_isSoftBreakOpen = false;
    bool m_isWide = false;
    bool m_hasFolds = false;
    LineHead m_head;
    JoinWriter m_joins;
    Utf8Census m_census;
};

} // namespace PimManager::Contacts
