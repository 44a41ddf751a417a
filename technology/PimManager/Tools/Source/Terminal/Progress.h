/// \file
/// How far long work is.

#pragma once

#include <QString>
#include <QtGlobal>

namespace PimManager::Tools
{

class OutputDevice;

/// How far the work is.
struct ProgressState
{
    qint64 m_milliseconds = 0;
    qint64 m_cards = 0;
    qint64 m_bytes = 0;
    /// 0 when it cannot be told.
    qint64 m_allBytes = 0;
};

/// \param a_columns the most columns that the text may have.
/// \return the state in a line, such as `45 %, 12 MB of 27 MB, 3456 cards, about 8 s left`; without a share and a time
///         when it is not known how many bytes there are. Where that is too wide, the number of cards is left out, then
///         the bytes, then the time.
QString ProgressText( const ProgressState& a_state, int a_columns );

/// Keeps one line with the state of the work at the bottom of a terminal.
class Progress
{
public:
    /// \param a_terminal where the line goes; null for no line. Must outlive the progress.
    explicit Progress( OutputDevice* a_terminal );

    /// Takes the line away.
    ~Progress();
    Q_DISABLE_COPY( Progress )

    /// Shows the state when the work has taken a second, and from then on five times a second.
    /// \param a_columns the present width of the terminal. The last column stays empty.
    /// \return true if it did.
    bool Show( const ProgressState& a_state, int a_columns );

    /// Takes the line away until the next Show().
    void Hide();

private:
    OutputDevice* const m_terminal;
    bool m_isShown = false;
    qint64 m_next = 1000;
};

} // namespace PimManager::Tools
