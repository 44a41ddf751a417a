/// \file
/// Options and file names from the shell.

#pragma once

#include <QByteArray>
#include <QCommandLineParser>
#include <QList>
#include <QString>

class QCommandLineOption;

namespace PimManager::vCard::Tools
{

/// The command line of one command. What the user wrote is bytes, and a file's name need not be text in any encoding:
/// the bytes go through Qt's parser as Latin-1, where each byte is one character, and come out unchanged.
class CommandLine
{
public:
    /// Starts with the options that every command has, `--help` and `--version`.
    /// \param a_description what the command does, for the help.
    explicit CommandLine( const QString& a_description );

    void AddOption( const QCommandLineOption& a_option );

    /// Tells the help about an argument that is no option. `a_syntax` is how the usage line shows it.
    void AddArgument( const QString& a_name, const QString& a_description, const QString& a_syntax );

    /// \param a_arguments without the program's name.
    /// \return false when they are not understood, see ErrorText().
    bool Parse( const QList<QByteArray>& a_arguments );

    /// \return why Parse() failed, safe for a terminal.
    QString ErrorText() const;

    bool WantsHelp() const;
    bool WantsVersion() const;

    /// \param a_option one of its names.
    bool IsSet( const QString& a_option ) const;

    /// \return what stands behind an option, byte for byte; empty when the option is not set.
    QByteArray Value( const QString& a_option ) const;

    /// \return the arguments that are no options, byte for byte.
    QList<QByteArray> Arguments() const;

    /// \return usage and options. Needs a QCoreApplication, after whose first argument the program is called.
    QString HelpText() const;

private:
    QCommandLineParser m_parser;
};

} // namespace PimManager::vCard::Tools
