/// \file
/// What text is shown on.

#pragma once

#include <QString>

namespace PimManager::Tools
{

/// What a part of a text is, for its colour.
enum class Ink
{
    Heading,
    Warning,
    Error
};

/// A terminal, or what is none: a file or a pipe gets text as it is, without colours and without characters that are
/// not part of it.
struct Screen
{
    /// The width of the terminal; 0 if there is none.
    int m_columns = 0;
    /// False unless the terminal shows colours and the user wants them.
    bool m_isColoured = false;

    bool IsTerminal() const { return m_columns > 0; }

    /// \return the text in the colour of its ink.
    QString Painted( const QString& a_text, Ink a_ink ) const;

    /// \return the text in lines that fit, all but the first one indented by so many columns; without a terminal as it
    /// is.
    QString Wrapped( const QString& a_text, int a_indent ) const;

    /// Keeps text that is written from right to left from reordering what is next to it on the line.
    /// \param a_text safe for a terminal.
    /// \return such a text between U+2068 and U+2069; any other text as it is.
    QString Isolated( const QString& a_text ) const;
};

/// \return what is behind a descriptor. The user's variables COLUMNS, NO_COLOR and TERM count if it is a terminal; a
///         terminal that does not report its width has 80 columns.
Screen ScreenOf( int a_descriptor );

/// \return true if the terminal can clear a line, so that a line can be rewritten in place.
bool CanRewriteLines();

} // namespace PimManager::Tools
