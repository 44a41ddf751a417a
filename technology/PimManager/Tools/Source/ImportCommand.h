/// \file
/// `pimvcard import`.

#pragma once

#include "Console.h"
#include "ExitStatus.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace PimManager::vCard::Tools
{

/// Gets every contact out of address books that can be had: as a table, as JSON, as a page, with pictures and rejects
/// as files.
class ImportCommand
{
public:
    /// What the command does, in a few words.
    static QString Summary();

    /// \param a_console must outlive the command.
    explicit ImportCommand( Console& a_console );

    /// Runs the command once.
    /// \param a_arguments what the user wrote, without the name of the program and of the command.
    ExitStatus Run( const QList<QByteArray>& a_arguments );

private:
    Console& m_console;
};

} // namespace PimManager::vCard::Tools
