/// \file
/// `pimvcard check`.

#pragma once

#include "Console.h"
#include "ExitStatus.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace PimManager::vCard::Tools
{

/// Reports everything that the reader repairs, drops or refuses in address books, and what kinds of files they are.
class CheckCommand
{
public:
    /// What the command does, in a few words.
    static QString Summary();

    /// \param a_console must outlive the command.
    explicit CheckCommand( Console& a_console );

    /// Runs the command once.
    /// \param a_arguments what the user wrote, without the name of the program and of the command.
    ExitStatus Run( const QList<QByteArray>& a_arguments );

private:
    Console& m_console;
};

} // namespace PimManager::vCard::Tools
