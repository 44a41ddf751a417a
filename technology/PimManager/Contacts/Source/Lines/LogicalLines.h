/// \file
/// Assembles content lines from the physical lines of a card.

#pragma once

#include "Lines/CardFacts.h"
#include "Lines/LineFilter.h"
#include "Lines/LineHead.h"
#include "Lines/LineIndex.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace PimManager::Contacts
{

/// A physical line of a card. Positions count from the first byte of the outermost card.
struct CardLine
{
    quint32 m_begin = 0;
    /// The end without the line ending.
    quint32 m_textEnd = 0;
    quint32 m_end = 0;
    bool m_isWide = false;
    bool m_hasControls = false;
};

/// \return the version that a VERSION line names. Unknown for any other line and any other version.
/// \param a_value the value as written, on one line.
PimContactVersion VersionOf( std::string_view a_name, std::string_view a_value );

/// Assembles the content lines of one card and writes their index. The first rule that applies decides:
///
/// - An empty line is blank, and so is a line of white space that does not follow a property directly.
/// - After the "=" of a QUOTED-PRINTABLE value, the next line continues the value, indented or not, unless it is
///   clearly a property.
/// - An indented line continues the line before it.
/// - A line that is not a property continues the text before it: directly if the line before it was folded without
///   indentation, otherwise after a line feed. After BASE64, a line of BASE64 continues directly.
/// - Any other line that is not a property is dropped.
///
/// Whether a line is a property is known only after its folds have been read. So two lines are open at a time: the
/// current property, which text may continue, and a candidate, which is not settled yet:
///
///     NOTE:first part         the current property
///     second: part            a candidate; a fold may follow. It is settled when the next line begins another one
///
/// Each byte is read a constant number of times.
class LogicalLines
{
public:
    /// \param a_filter must outlive this object.
    LogicalLines( const LineFilter& a_filter, qint64 a_mostLineBytes );
    Q_DISABLE_COPY( LogicalLines )

    /// Begins a card.
    /// \param a_begin       the position of its first byte.
    /// \param a_indentation the number of blanks before each line of an indented card.
    void Begin( quint32 a_begin, quint32 a_indentation );

    /// Continues for another reader of the card, which has closed all lines up to a_written.
    /// \param[in,out] a_index the entries up to there. Receives other memory in exchange.
    void Continue( IndexWriter& a_index, const CardFacts& a_facts, quint32 a_written );

    /// Sets the bytes of the outermost card, from its first byte to the end of the line that is taken next. They must
    /// be valid until the next call.
    void SetBytes( const char* a_bytes ) { m_bytes = a_bytes; }

    /// Takes the next line between BEGIN and END.
    void Take( const CardLine& a_line );

    /// Ends all open lines, so that IndexWriter entries can be added for what follows.
    void Close();

    /// \return true if the current property is an AGENT without a value. Settles the candidate.
    bool IsBehindOpenAgent();
    /// The kind as which the current property will be written: Line, Filtered or Dropped.
    EntryKind FateOfCurrent() const { return m_isEveryLineWanted ? EntryKind::Line : FateOf( *m_current ); }
    /// Forgets the current property. The caller writes its bytes, from Written() on.
    void LeaveCurrent();

    /// True if an indented line would be a fold: no empty line precedes it, and there is a line to continue.
    bool MayFold() const { return m_emptyLines == 0 && ( m_candidate->m_isOpen || m_current->m_isOpen ); }

    /// The position up to which the index has been written, and functions that write more of it.
    quint32 Written() const { return m_written; }
    void WriteBlankUpTo( quint32 a_place );
    void WriteBoundary( quint32 a_length, bool a_isMended );
    void WritePart( EntryKind a_kind, quint32 a_length );
    void WriteDropped( DropReason a_reason, quint32 a_length );
    void WriteNested( quint32 a_length, IndexBytes a_index );

    const IndexWriter& Index() const { return m_index; }
    /// The index is no longer needed. Its memory is freed if it is large.
    void ReleaseIndex() { m_index.Release(); }
    const CardFacts& Facts() const { return m_facts; }
    CardFacts& Facts() { return m_facts; }

private:
    // A content line that may still continue. Positions count from the first byte of the outermost card. Examples:
    //
    //     NOTE;ENCODING=QUOTED-PRINTABLE:one=     m_isOpen
    //      two=                                   m_softBreaks 1, m_blankBreaks 1
    //      three                                  m_softBreaks 2, m_blankBreaks 2
    //
    //     NOTE;LANGUA                             no colon yet
    //      GE=de:text                             m_hasFolds, m_isHeadFolded
    struct OpenLine
    {
        void Begin( const CardLine& a_line, quint32 a_marks, int a_emptyLinesBefore );
        void Extend( const CardLine& a_line );

        bool m_isOpen = false;
        quint32 m_begin = 0;
        // The length of the byte order marks before it.
        quint32 m_marks = 0;
        quint32 m_firstTextEnd = 0;
        quint32 m_end = 0;
        // The last physical line.
        quint32 m_lastBegin = 0;
        quint32 m_lastTextEnd = 0;
        bool m_hasFolds = false;
        bool m_isWide = false;
        bool m_hasControls = false;
        bool m_isJoined = false;
        int m_emptyLinesBefore = 0;
        LineHead m_head;
        bool m_isHeadRead = false;
        // There are folds before its colon, so m_looks and m_foldedName are read from the unfolded text.
        bool m_isHeadFolded = false;
        LineLooks m_looks = LineLooks::Text;
        QByteArray m_foldedName;
        // The colon is not searched again below this length, so that all searches together are linear.
        quint32 m_nextLook = 0;
        PimContactOddities m_oddities;
        JoinWriter m_joins;
        // The number of soft line breaks, the number of those before exactly one blank, and whether all lines before
        // them have the length of folded lines.
        int m_softBreaks = 0;
        int m_blankBreaks = 0;
        bool m_areBreaksAtFoldLength = true;
    };

    std::string_view View( quint32 a_begin, quint32 a_end ) const
    {
        return std::string_view( m_bytes + a_begin, a_end - a_begin );
    }
    std::string_view TextOf( const OpenLine& a_line ) const { return View( a_line.m_begin, a_line.m_lastTextEnd ); }
    std::string_view NameOf( const OpenLine& a_line ) const;
    static quint32 ValueBegin( const OpenLine& a_line )
    {
        return std::min( a_line.m_head.m_valueBegin, a_line.m_lastTextEnd - a_line.m_begin );
    }
    quint32 ContentBegin( const CardLine& a_line ) const;

    void Start( const CardLine& a_line );
    void TakeFold( OpenLine& a_line, const CardLine& a_by ) const;

    void ReadHead( OpenLine& a_line ) const;
    void ReadFoldedHead( OpenLine& a_line ) const;
    bool HasColonSoFar( OpenLine& a_line ) const;
    void JoinFoldsOfHead( OpenLine& a_line ) const;

    bool EndsInEquals( const OpenLine& a_line ) const;
    bool TakeBehindEquals( const CardLine& a_line, bool a_isFold );
    bool IsSoftBreakOpen() const;
    bool ContinuesSoftBreak( std::string_view a_text ) const;
    void TakeBehindSoftBreak( const CardLine& a_line );

    void Settle();
    bool IsCandidateProperty() const;
    bool IsCandidateData() const;
    LineLooks LooksOfCandidate() const;
    bool MayJoin() const;
    bool MayJoinComment() const;
    bool IsFoldOfData( std::string_view a_text );
    bool IsLostFold() const;
    bool HoldsBase64() const;
    bool IsFoldBehindEmptyLine( quint32 a_blanks ) const;
    LineJoin JoinOfCandidate( bool a_isData ) const;
    void JoinCandidate();
    void DropCandidate();

    void Wrote( EntryKind a_kind, quint32 a_length );
    void WriteCurrent();
    void WriteLine( const OpenLine& a_line, IndexEntry& a_entry );
    static IndexEntry EntryOf( const OpenLine& a_line );
    EntryKind FateOf( const OpenLine& a_line ) const;
    void CloseSoftBreaks( OpenLine& a_line ) const;
    void InspectCharacters( const OpenLine& a_line, IndexEntry& a_entry );
    bool HasUnknownEscape( const OpenLine& a_line, const IndexEntry& a_entry ) const;

    const LineFilter& m_filter;
    qint64 m_mostLineBytes;
    // There is no filter and no limit.
    bool m_isEveryLineWanted;
    const char* m_bytes = nullptr;
    quint32 m_indentation = 0;
    quint32 m_written = 0;
    // Empty lines since the last other line. Example:
    //
    //     NOTE:one
    //                  m_emptyLines 1
    //     two          m_emptyLinesBefore 1: joined to the NOTE with two line feeds, m_isJoined
    int m_emptyLines = 0;
    std::array<OpenLine, 2> m_lines;
    OpenLine* m_current = m_lines.data();
    OpenLine* m_candidate = m_lines.data() + 1;
    CardFacts m_facts;
    IndexWriter m_index;
};

} // namespace PimManager::Contacts
