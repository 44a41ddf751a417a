/// \file
/// The text outside cards.

#pragma once

#include "Cards/Ledger.h"
#include "Lines/LineScanner.h"
#include "Text/FileSignature.h"

namespace PimManager::Contacts
{

/// Adds the lines outside cards to the ledger. The lines of text between two cards are reported as one finding, with
/// the position of the first line and their number. Blank lines are separate extents and are not counted.
class OutsideText
{
public:
    /// Both must outlive this object.
    /// \param a_longestLine lines longer than this are added in pieces.
    OutsideText( LineScanner& a_scanner, Ledger& a_ledger, qint64 a_longestLine );

    /// Forgets the text.
    void Reset();

    /// Adds a line of text, a blank line, or a line of byte order marks.
    void Add( const PhysicalLine& a_line );
    /// Adds a line that is an END without a card.
    void AddEnd( const PhysicalLine& a_line );
    /// Adds byte order marks.
    /// \param a_line   the line that begins with them.
    /// \param a_length their length in bytes.
    void AddMarks( const PhysicalLine& a_line, size_t a_length );

    /// Reports the lines of text that were added since the last call. Called before a card and at the end of the text.
    void End();

    /// The kind of the text in all lines together.
    PimContactFileKind Kind() const { return m_kind.Kind(); }

private:
    void AddLineOf( PimContactExtentKind a_kind, const PhysicalLine& a_line );

    LineScanner& m_scanner;
    Ledger& m_ledger;
    qint64 m_longestLine;
    // The first of the lines of text that are not yet reported, and their number. Example:
    //
    //     END:VCARD
    //     hello           m_begin, m_lines 1
    //                     a blank line is not counted
    //     world           m_lines 2; the next BEGIN reports both lines
    TextPlace m_begin;
    qint64 m_lines = 0;
    TextKind m_kind;
};

} // namespace PimManager::Contacts
