#include "Commands/CommandTable.h"

#include "Commands/LimitOptions.h"
#include "Commands/OutputFormat.h"

#include <PimManager/Contacts/PimContactCharset.h>

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

OptionInfo Flag( const QString& a_letter, const QString& a_name, const QString& a_help )
{
    return { a_letter, a_name, QString(), a_help, {} };
}

OptionInfo Valued( const QString& a_letter, const QString& a_name, const QString& a_argument, const QString& a_help,
                   const QStringList& a_words = {} )
{
    return { a_letter, a_name, a_argument, a_help, a_words };
}

// What the words behind the options of a command are, and what its exit status means.
struct Usage
{
    QString m_arguments;
    QStringList m_argumentsHelp;
    QString m_status;
};

QString ExitStatuses( const QString& a_zero, const QString& a_one )
{
    return QStringLiteral( "Exit status: 0 %1, 1 %2, 2 wrong usage, or a file that cannot be read or written, 130 "
                           "interrupted." )
        .arg( a_zero, a_one );
}

Usage Delivery()
{
    return { QStringLiteral( "BOOK..." ),
             { QStringLiteral( "Address books to read; - is standard input." ) },
             ExitStatuses( QStringLiteral( "everything is delivered whole or repaired" ),
                           QStringLiteral( "something is dropped or refused or a file contains no vCard" ) ) };
}

// \param a_name of the last argument.
Usage Searching( const QString& a_name, const QString& a_help )
{
    return { QStringLiteral( "BOOK... " ) + a_name, Delivery().m_argumentsHelp + QStringList( a_help ),
             ExitStatuses( QStringLiteral( "a contact is found" ), QStringLiteral( "none is found" ) ) };
}

// A command that reads address books. Its own options precede those that all of them have.
CommandInfo Reading( const QString& a_name, const QString& a_summary, const std::vector<OptionInfo>& a_options,
                     const QStringList& a_remarks, const Usage& a_usage = Delivery() )
{
    CommandInfo command;
    command.m_name = a_name;
    command.m_summary = a_summary;
    command.m_arguments = a_usage.m_arguments;
    command.m_argumentsHelp = a_usage.m_argumentsHelp;
    command.m_options = a_options;
    command.m_options.push_back(
        Valued( QStringLiteral( "c" ), s_kCharsetOption, QStringLiteral( "NAME" ),
                QStringLiteral( "The character set of cards that are not in UTF-8 and name none. Without this option "
                                "it is guessed from their letters. An unknown NAME lists the known ones." ),
                CharsetNames() ) );
    const std::vector<OptionInfo> limits = LimitOptions();
    command.m_options.insert( command.m_options.end(), limits.begin(), limits.end() );
    command.m_helpTail =
        a_remarks +
        QStringList{
            QStringLiteral( "A NUMBER may end in K, M or G for 1024, 1024 K or 1024 M. 0 means no limit. A line "
                            "beyond its limit is dropped, a card beyond one is refused, and the rest of the "
                            "file is read." ),
            a_usage.m_status };
    return command;
}

CommandInfo List()
{
    return Reading( QStringLiteral( "list" ), QStringLiteral( "Prints a table of the contacts." ), {},
                    { QStringLiteral( "\"pimvcard BOOK...\" does the same." ) } );
}

CommandInfo Show()
{
    return Reading( QStringLiteral( "show" ), QStringLiteral( "Prints everything that the cards hold, for reading." ),
                    { Flag( QStringLiteral( "F" ), s_kFullOption, QStringLiteral( "Prints long values whole." ) ) },
                    {} );
}

CommandInfo Check()
{
    return Reading(
        QStringLiteral( "check" ), QStringLiteral( "Reports what is wrong with address books, and where." ),
        { Flag( QStringLiteral( "e" ), s_kExtentsOption,
                QStringLiteral( "Prints what became of each byte instead of the findings: lines of OFFSET LENGTH KIND "
                                "CARD, from byte 0 to the end of the file." ) ),
          Flag( QStringLiteral( "S" ), s_kStandardOption,
                QStringLiteral( "Also reports what does not conform to the standard of each card's version, with the "
                                "section that says so." ) ),
          Flag( QStringLiteral( "s" ), s_kStrictOption,
                QStringLiteral( "Reads each file with the strict vCard component, and prints its log and how many "
                                "cards it returns." ) ) },
        { QStringLiteral( "Prints one line for each finding, FILE:LINE:COLUMN: SEVERITY: TEXT [WORD], and one for each "
                          "file." ),
          QStringLiteral(
              "Severities: note, delivered as written; repaired, what was meant is delivered; dropped, left "
              "out of a card; refused, a whole card or file left out; invalid, not as the standard demands "
              "(--standard). The exit status is 1 as well if anything is invalid." ) } );
}

CommandInfo Convert()
{
    const QString file = QStringLiteral( "FILE" );
    return Reading(
        QStringLiteral( "convert" ),
        QStringLiteral( "Writes the contacts in another format or version, and their pictures." ),
        { Valued( QStringLiteral( "t" ), s_kToOption, QStringLiteral( "FORMAT" ),
                  QStringLiteral( "2.1, 3.0 or 4.0, a vCard; jcard, vCards in JSON (RFC 7095); csv, a table; json, one "
                                  "array of all contacts with their decoded properties; json-lines, such an object a "
                                  "line; or html, a page for a browser. Without this option the ending of the output "
                                  "decides: .vcf is 3.0." ),
                  FormatNames() ),
          Valued( QStringLiteral( "o" ), s_kOutputOption, file,
                  QStringLiteral( "The output; standard output unless given." ) ),
          Valued( QStringLiteral( "d" ), s_kSplitOption, QStringLiteral( "DIR" ),
                  QStringLiteral( "Writes each contact into a file of its own in a folder, as a vCard or jCard; 3.0 "
                                  "without --to." ) ),
          Valued( QStringLiteral( "n" ), s_kFilterOption, QStringLiteral( "NAMES" ),
                  QStringLiteral( "Keeps only these properties of the contacts, such as FN,N,TEL." ) ),
          Flag( QStringLiteral( "s" ), s_kSortOption,
                QStringLiteral( "Sorts the contacts by name. All of them are then kept in memory." ) ),
          Valued(
              QStringLiteral( "C" ), s_kColumnsOption, QStringLiteral( "NAMES" ),
              QStringLiteral( "The columns of a csv table in their order, such as name,mobile. An unknown name lists "
                              "the known ones." ) ),
          Flag( QStringLiteral( "m" ), s_kMarkOption,
                QStringLiteral( "Begins a csv table with a byte order mark, so that spreadsheet programs read it as "
                                "UTF-8." ) ),
          Valued( QStringLiteral( "p" ), s_kPhotosOption, QStringLiteral( "DIR" ),
                  QStringLiteral( "Writes the pictures into a folder." ) ),
          Valued( QStringLiteral( "r" ), s_kRejectsOption, file,
                  QStringLiteral( "Writes what was refused or dropped, as it was found." ) ),
          Flag( QStringLiteral( "f" ), s_kForceOption,
                QStringLiteral( "Lets the outputs replace files that exist." ) ) },
        { QStringLiteral( "As FILE, - is standard output. A file appears only when it is complete. Several books are "
                          "joined. Contacts are written as they are read, so the size of the books does not matter, "
                          "unless --sort is given. A page is sorted by name. What the format cannot say is reported on "
                          "standard error." ) } );
}

OptionInfo Region()
{
    return Valued( QStringLiteral( "R" ), s_kRegionOption, QStringLiteral( "REGION" ),
                   QStringLiteral( "The region whose numbers are written without a country code: two letters "
                                   "(ISO 3166-1), such as DE. Nothing is assumed unless given." ) );
}

CommandInfo Find()
{
    return Reading(
        QStringLiteral( "find" ), QStringLiteral( "Finds contacts by their names, organisations and numbers." ),
        { Flag( QStringLiteral( "k" ), s_kKeysOption,
                QStringLiteral( "Takes TEXT for keys of a telephone: 686 finds Otmar. 0 and 1 part words." ) ),
          Valued( QStringLiteral( "l" ), s_kLimitOption, QStringLiteral( "NUMBER" ),
                  QStringLiteral( "The most contacts to print; no limit unless given." ) ),
          Region() },
        { QStringLiteral( "A contact is found if each word of TEXT begins a word of its name, nickname or "
                          "organisation, or is a part of a number. Letter case and accents do not count. Names come "
                          "before organisations, whole words before beginnings, and numbers last." ) },
        Searching( QStringLiteral( "TEXT" ),
                   QStringLiteral( "What to look for. Several words are one argument, in quotes." ) ) );
}

CommandInfo Who()
{
    return Reading(
        QStringLiteral( "who" ), QStringLiteral( "Tells who has a telephone number." ), { Region() },
        { QStringLiteral( "MATCH tells how certain it is that a number is the same: exact, equal in international "
                          "form; national, equal in the region; ending, only the last digits are equal. The most "
                          "certain contacts come first. If there are several, the number alone does not tell whose it "
                          "is." ) },
        Searching( QStringLiteral( "PHONE" ), QStringLiteral( "A telephone number, written in any way." ) ) );
}

CommandInfo Diff()
{
    const Usage usage = { QStringLiteral( "OLD NEW" ),
                          { QStringLiteral( "The address book as it was; - is standard input." ),
                            QStringLiteral( "The address book as it is; - is standard input." ) },
                          ExitStatuses( QStringLiteral( "the contacts are the same" ),
                                        QStringLiteral( "they differ, or something of a book is left out" ) ) };
    return Reading(
        QStringLiteral( "diff" ),
        QStringLiteral( "Shows what changed from one version of an address book to another." ),
        { Flag( QStringLiteral( "F" ), s_kFullOption, QStringLiteral( "Prints long values whole." ) ),
          Flag( QStringLiteral( "j" ), s_kJsonLinesOption,
                QStringLiteral( "Prints an object (JSON) for each contact that was added, removed or changed, on a "
                                "line of its own." ) ) },
        { QStringLiteral( "The order of the contacts and the way in which cards are written do not count." ) }, usage );
}

CommandInfo Help()
{
    CommandInfo command;
    command.m_name = QStringLiteral( "help" );
    command.m_summary = QStringLiteral( "Explains a command." );
    command.m_arguments = QStringLiteral( "[COMMAND]" );
    command.m_argumentsHelp = QStringList( QStringLiteral( "The command; without it, all of them." ) );
    return command;
}

} // namespace

const std::vector<CommandInfo>& Commands()
{
    static const std::vector<CommandInfo> s_kCommands = { List(), Show(),  Find(),    Who(),
                                                          Diff(), Check(), Convert(), Help() };
    return s_kCommands;
}

const std::vector<OptionInfo>& CommonOptions()
{
    static const std::vector<OptionInfo> s_kOptions = {
        Flag( QStringLiteral( "q" ), s_kQuietOption,
              QStringLiteral( "Prints no totals and remarks on standard error, only errors." ) ),
        Flag( QStringLiteral( "h" ), s_kHelpOption, QStringLiteral( "Shows this help and ends." ) ),
        Flag( QStringLiteral( "v" ), s_kVersionOption, QStringLiteral( "Shows the version and ends." ) ),
    };
    return s_kOptions;
}

QStringList CharsetNames()
{
    QStringList names;
    const QList<QByteArray> all = Contacts::PimContactCharset::Names();
    for ( const QByteArray& name : all )
        names << QString::fromLatin1( name );
    return names;
}

const CommandInfo* FindCommand( const QByteArray& a_name )
{
    const auto& commands = Commands();
    const auto found =
        std::find_if( commands.begin(), commands.end(),
                      [&a_name]( const CommandInfo& a_command ) { return a_command.m_name.toLatin1() == a_name; } );
    return found == commands.end() ? nullptr : &*found;
}

} // namespace PimManager::Tools
