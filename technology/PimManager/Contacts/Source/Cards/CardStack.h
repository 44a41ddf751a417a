/// \file
/// The lines of a card and of its nested cards.

#pragma once

#include "Cards/CardBoundaries.h"
#include "Cards/CardRecord.h"
#include "Lines/LineFilter.h"
#include "Lines/LineScanner.h"
#include "Lines/LogicalLines.h"

#include <PimManager/Contacts/PimContactOptions.h>

#include <memory>
#include <vector>

namespace PimManager::Contacts
{

/// Writes the index of the open card, with one LogicalLines for the card and one for each nested card that is open. It
/// makes no decisions about boundaries: the caller passes lines, BEGIN and END.
///
/// A nested card is left out, together with the property that contains it, if it is nested deeper than the limit or if
/// the property is filtered or too long. The lines of cards that are nested too deeply are not read at all.
class CardStack
{
public:
    /// \param a_scanner has the bytes of the card; must outlive this object.
    /// \param a_isDefaultKnown as for SealCard().
    CardStack( const LineScanner& a_scanner, const PimContactOptions& a_options, bool a_isDefaultKnown );

    /// Begins a card and forgets the previous one.
    /// \param a_first       its first line. If it is a BEGIN, the caller passes it to AddBegin().
    /// \param a_indentation as for LogicalLines::Begin().
    void Begin( const PhysicalLine& a_first, quint32 a_indentation );
    /// Adds the BEGIN line of the outermost card, with the rules for lines outside cards.
    void AddBegin( const PhysicalLine& a_line );
    /// Must be called before a line is passed if the scanner has received bytes since, because that moves the bytes.
    void RefreshBytes()
    {
        for ( size_t depth = 0; depth <= m_depth; ++depth )
            m_levels[depth]->m_lines.SetBytes( m_scanner.At( m_offset ) );
    }

    /// Takes a line that is not a boundary.
    void Take( const PhysicalLine& a_line )
    {
        if ( m_tooDeep == 0 )
            Lines().Take( CardLineOf( a_line ) );
        else
            TakeTooDeep( a_line );
    }
    /// Begins a card nested in the innermost one.
    /// \param a_begin its BEGIN line. The line before it must be an AGENT line, and IsBehindAgent() must have been
    ///                called.
    void BeginNested( const PhysicalLine& a_begin );
    /// Ends the innermost card, which must not be the outermost one.
    void EndNested( const PhysicalLine& a_end, const CardBoundary& a_boundary );
    /// Ends all open cards.
    ///
    /// \param a_end   the position in the text where they end.
    /// \param a_endLine the END line of the outermost card; null if it is missing.
    /// \param a_hasBegin true if the outermost card has a BEGIN line.
    /// \param[out] a_index the record and the index of the outermost card.
    void Close( qint64 a_end, const PhysicalLine* a_endLine, bool a_hasBegin, CardIndex& a_index );

    /// No nested card is open.
    bool IsOutermost() const { return m_depth == 0 && m_tooDeep == 0; }
    /// The innermost card is nested too deeply.
    bool IsTooDeep() const { return m_tooDeep > 0; }
    /// The number of open nested cards.
    int Depth() const { return static_cast<int>( m_depth ) + m_tooDeep; }
    /// The last line is an AGENT line without a value. Settles that line.
    bool IsBehindAgent() { return IsTooDeep() ? m_isBehindAgentTooDeep : Lines().IsBehindOpenAgent(); }
    /// An indented line continues the line before it. Cards that are nested too deeply have no such lines.
    bool MayFold() const { return !IsTooDeep() && m_levels[m_depth]->m_lines.MayFold(); }

    /// The lines of the innermost card that is not nested too deeply.
    LogicalLines& Lines() { return m_levels[m_depth]->m_lines; }

private:
    struct Level
    {
        Level( const LineFilter& a_filter, qint64 a_mostLineBytes ) :
            m_lines( a_filter, a_mostLineBytes )
        {
        }
        LogicalLines m_lines;
        quint32 m_begin = 0;
        // The number of lines before it in the outermost card.
        quint32 m_line = 0;
        // The kind of it and of the property that contains it: Line, Filtered or Dropped.
        EntryKind m_fate = EntryKind::Line;
    };

    quint32 InCard( qint64 a_offset ) const { return static_cast<quint32>( a_offset - m_offset ); }
    CardLine CardLineOf( const PhysicalLine& a_line ) const
    {
        return { InCard( a_line.m_offset ), InCard( a_line.TextEnd() ), InCard( a_line.End() ), a_line.m_isWide,
                 a_line.m_hasControls };
    }
    void AddLevel();
    void BeginLevel( quint32 a_begin );
    void WriteBoundary( const PhysicalLine& a_line, const CardBoundary& a_boundary );
    void TakeTooDeep( const PhysicalLine& a_line );
    void BeginTooDeep();
    void EndTooDeep( qint64 a_end );
    void EndLevel( qint64 a_end, bool a_hasEnd );
    void LeaveOut( qint64 a_end, EntryKind a_fate );
    void AddToOuter( const CardFacts& a_facts, const CardIndex& a_index );
    void Seal( const Level& a_level, CardRecord a_record, qint64 a_end, CardIndex& a_index ) const;

    const LineScanner& m_scanner;
    LineFilter m_filter;
    qint64 m_mostLineBytes;
    size_t m_mostNesting;
    bool m_isDefaultKnown;

    // For the outermost card.
    qint64 m_offset = 0;
    qint64 m_number = 1;
    quint32 m_indentation = 0;
    // The outermost card first. Levels are kept to reuse their memory.
    std::vector<std::unique_ptr<Level>> m_levels;
    // The level of the innermost card that is not nested too deeply. Example with a limit of one nested card:
    //
    //     BEGIN:VCARD           m_depth 0
    //     AGENT:BEGIN:VCARD     m_depth 1
    //     AGENT:BEGIN:VCARD     m_depth 1, m_tooDeep 1: its lines are not read
    //     END:VCARD             m_depth 1, m_tooDeep 0
    size_t m_depth = 0;
    // The number of open cards that are nested too deeply.
    int m_tooDeep = 0;
    bool m_isBehindAgentTooDeep = false;
};

} // namespace PimManager::Contacts
