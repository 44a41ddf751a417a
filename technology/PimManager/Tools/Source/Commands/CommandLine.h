/// \file
/// What the user wrote behind the name of the program.

#pragma once

#include "Commands/CommandTable.h"

#include <QByteArray>
#include <QCommandLineParser>
#include <QList>
#include <QString>

namespace PimManager::Tools
{

/// The command line of one command. What the user wrote is bytes, and the name of a file need not be text in any
/// encoding: the bytes go through Qt's parser as Latin-1, where each byte is one character, and come out unchanged.
class CommandLine
{
public:
    /// \param a_command must outlive the object.
    explicit CommandLine( const CommandInfo& a_command );

    /// The command.
    const CommandInfo& Command() const { return m_command; }

    /// \param a_arguments without the names of the program and of the command.
    /// \return false if they are not understood, see ErrorText().
    bool Parse( const QList<QByteArray>& a_arguments );

    /// \return why Parse() failed, and what may have been meant; safe for a terminal.
    QString ErrorText() const;

    /// \param a_option its name.
    bool IsSet( const QString& a_option ) const;

    /// \return the value of an option, byte for byte; empty if the option is not set.
    QByteArray Value( const QString& a_option ) const;

    /// \return the arguments that are no options, byte for byte.
    QList<QByteArray> Arguments() const;

private:
    void AddOptions( const std::vector<OptionInfo>& a_options );

    const CommandInfo& m_command;
    QCommandLineParser m_parser;
    QStringList m_options;
};

} // namespace PimManager::Tools
