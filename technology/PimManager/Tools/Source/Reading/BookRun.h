/// \file
/// One way through the files of a command line.

#pragma once

#include "ExitStatus.h"
#include "Terminal/Console.h"
#include "Terminal/Interrupt.h"
#include "Terminal/Progress.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QString>

namespace PimManager::Tools
{

class BookTask;
class InputDevice;

/// Opens files one after the other for a task, and reports those that cannot be read. Ctrl-C ends the reading. If
/// standard output and standard error are terminals, a line on standard error shows the progress.
class BookRun
{
public:
    /// When to stop early.
    enum class WithoutReader
    {
        Stop, ///< when nobody reads standard output any more
        GoOn  ///< never: files are written, too
    };

    /// \param a_console must outlive the run.
    BookRun( Console& a_console, WithoutReader a_withoutReader );
    ~BookRun();
    Q_DISABLE_COPY( BookRun )

    /// Reads the files until IsOver().
    /// \return the worst status of all files.
    ExitStatus Read( const QList<QByteArray>& a_fileNames, BookTask& a_task );

    /// Reports an interruption. Call it when all output has been written.
    /// \return Interrupted after Ctrl-C; otherwise a_status.
    ExitStatus Finish( ExitStatus a_status );

    /// Adds one to the cards that the progress shows.
    void CountCard() { ++m_cards; }

    /// True if nobody reads standard output any more and nothing else is made.
    bool IsReaderGone() const;

    /// True if nothing more is to be read: the reader is gone, or Ctrl-C was pressed.
    bool IsOver() const;

    /// The time since the run was created.
    qint64 Milliseconds() const { return m_timer.elapsed(); }

private:
    ExitStatus ReadFile( const QByteArray& a_fileName, BookTask& a_task );
    // Returns why the file could be read only in part; empty otherwise.
    QString ReadInput( InputDevice& a_input, BookTask& a_task );
    ExitStatus RefuseFile( const QString& a_source, const QString& a_reason );
    void ShowProgress( const InputDevice& a_input );

    Console& m_console;
    const bool m_stopsWithoutReader;
    const Interrupt m_interrupt;
    Progress m_progress;
    QElapsedTimer m_timer;
    qint64 m_cards = 0;
    // Of the files before this one, and of all files; 0 if that is not known.
    qint64 m_bytesBefore = 0;
    qint64 m_allBytes = 0;
};

} // namespace PimManager::Tools
