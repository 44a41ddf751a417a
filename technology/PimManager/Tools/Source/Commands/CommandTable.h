/// \file
/// The commands of the program and their options, in one table. Help, the reading of command lines, completion and the
/// check of the manual use it.

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace PimManager::Tools
{

/// An option of the command line.
struct OptionInfo
{
    /// One letter; empty without a short form.
    QString m_letter;
    QString m_name;
    /// What the value is called, such as `FILE`; empty if the option takes none.
    QString m_argument;
    QString m_help;
    /// The values that can be given, if they are few.
    QStringList m_words;
};

/// A command, the first word behind the name of the program.
struct CommandInfo
{
    QString m_name;
    QString m_summary;
    /// What follows the options, as the usage line shows it.
    QString m_arguments;
    /// Without those of CommonOptions().
    std::vector<OptionInfo> m_options;
    /// What help says below the options, in paragraphs.
    QStringList m_helpTail;
    /// What help says about each word of m_arguments.
    QStringList m_argumentsHelp;
};

/// \return all commands. The first one is used if the user names none.
const std::vector<CommandInfo>& Commands();

/// \return the options that every command has.
const std::vector<OptionInfo>& CommonOptions();

/// \return the command of this name; null if there is none.
const CommandInfo* FindCommand( const QByteArray& a_name );

/// \return the names of the character sets that the reader knows.
QStringList CharsetNames();

// The names of the options. Those of the limits are in LimitOptions.cpp.
inline const QString s_kHelpOption = QStringLiteral( "help" );
inline const QString s_kVersionOption = QStringLiteral( "version" );
inline const QString s_kQuietOption = QStringLiteral( "quiet" );
inline const QString s_kCharsetOption = QStringLiteral( "charset" );
inline const QString s_kFullOption = QStringLiteral( "full" );
inline const QString s_kExtentsOption = QStringLiteral( "extents" );
inline const QString s_kStandardOption = QStringLiteral( "standard" );
inline const QString s_kStrictOption = QStringLiteral( "strict" );
inline const QString s_kToOption = QStringLiteral( "to" );
inline const QString s_kOutputOption = QStringLiteral( "output" );
inline const QString s_kPhotosOption = QStringLiteral( "photos" );
inline const QString s_kRejectsOption = QStringLiteral( "rejects" );
inline const QString s_kSplitOption = QStringLiteral( "split" );
inline const QString s_kFilterOption = QStringLiteral( "filter" );
inline const QString s_kSortOption = QStringLiteral( "sort" );
inline const QString s_kColumnsOption = QStringLiteral( "columns" );
inline const QString s_kMarkOption = QStringLiteral( "mark" );
inline const QString s_kForceOption = QStringLiteral( "force" );
inline const QString s_kKeysOption = QStringLiteral( "keys" );
inline const QString s_kLimitOption = QStringLiteral( "limit" );
inline const QString s_kRegionOption = QStringLiteral( "region" );
inline const QString s_kJsonLinesOption = QStringLiteral( "json-lines" );

} // namespace PimManager::Tools
