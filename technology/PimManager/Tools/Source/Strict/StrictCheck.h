/// \file
/// `pimvcard check --strict`.

#pragma once

#include "Reading/BookRun.h"
#include "Reading/BookTask.h"
#include "Terminal/Console.h"

#include <QByteArray>
#include <QList>

namespace PimManager::Tools
{

/// Reads files with the component and prints its log, how many cards it returns, and why there are not more of them.
class StrictCheck : private BookTask
{
public:
    /// \param a_console must outlive the object.
    explicit StrictCheck( Console& a_console );

    /// Runs once. Each file is read as a whole, because the component needs its whole text.
    /// \return the worst status of all files; SomeRefused if a card was lost.
    ExitStatus Run( const QList<QByteArray>& a_fileNames );

private:
    void BeginBook( const QString& a_source ) override;
    void ReadBook( InputDevice& a_input ) override;
    ExitStatus EndBook() override;

    void Examine( QByteArray&& a_bytes );
    void Write( const QString& a_text );

    Console& m_console;
    BookRun m_run;
    QString m_source;
    ExitStatus m_status = ExitStatus::AllGiven;
};

} // namespace PimManager::Tools
