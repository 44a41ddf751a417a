// Checks that man shows docs/man/pimvcard.1 without a warning, and that the page has the commands and options of the
// program.

#include "DocumentFile.h"
#include "ShellRun.h"

#include "Commands/CommandTable.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace PimManager::vCard::Documents;
using namespace PimManager::Tools;

namespace
{

const QString s_kPage = QStringLiteral( PIMVCARD_PROJECT "/docs/man/pimvcard.1" );
const QString s_kOfEveryCommand = QStringLiteral( "Of every command" );

// The page as text, without bold and underlined characters, each line with its indentation.
QString ShownPage()
{
    const ShellRun run = RunInShell(
        QStringLiteral( "MANWIDTH=200 man --local-file --encoding=UTF-8 \"$1\" | col -bx" ), QString(), { s_kPage } );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err.toStdString();
    return run.m_out;
}

// The lines below a heading, up to the next heading of the same or a higher level.
QString Below( const QString& a_page, const QString& a_heading )
{
    const QRegularExpression section(
        QStringLiteral( "^( *)%1\\n((?:(?!\\1\\S).*\\n)*)" ).arg( QRegularExpression::escape( a_heading ) ),
        QRegularExpression::MultilineOption );
    return section.match( a_page ).captured( 2 );
}

// The lines that name an option, such as `-o FILE, --output FILE`, sorted.
QStringList OptionsNamedIn( const QString& a_text )
{
    static const QRegularExpression s_kOption(
        QStringLiteral( "^ +((?:-[a-zA-Z](?: [A-Z]+)?, )?--[a-z-]+(?: [A-Z]+)?)$" ),
        QRegularExpression::MultilineOption );
    QStringList options;
    QRegularExpressionMatchIterator matches = s_kOption.globalMatch( a_text );
    while ( matches.hasNext() )
        options << matches.next().captured( 1 );
    options.sort();
    return options;
}

// The name of an option on the page.
QString NameOf( const OptionInfo& a_option )
{
    const QString value = a_option.m_argument.isEmpty() ? QString() : QLatin1Char( ' ' ) + a_option.m_argument;
    const QString letter =
        a_option.m_letter.isEmpty() ? QString() : QStringLiteral( "-%1%2, " ).arg( a_option.m_letter, value );
    return letter + QStringLiteral( "--" ) + a_option.m_name + value;
}

QStringList NamesOf( const std::vector<OptionInfo>& a_options )
{
    QStringList names;
    for ( const OptionInfo& option : a_options )
        names << NameOf( option );
    names.sort();
    return names;
}

std::string Joined( const QStringList& a_texts )
{
    return a_texts.join( QLatin1Char( '\n' ) ).toStdString();
}

bool ReadsBooks( const CommandInfo& a_command )
{
    return std::any_of( a_command.m_options.begin(), a_command.m_options.end(),
                        []( const OptionInfo& a_option ) { return a_option.m_name == s_kCharsetOption; } );
}

// The heading of the options of all commands that read books, such as `Of list, show and check`.
QString HeadingOfReading()
{
    QStringList names;
    for ( const CommandInfo& command : Commands() )
    {
        if ( ReadsBooks( command ) )
            names << command.m_name;
    }
    const QString last = names.takeLast();
    return QStringLiteral( "Of %1 and %2" ).arg( names.join( QStringLiteral( ", " ) ), last );
}

TEST( ManualTest, PageHasNoWarnings )
{
    const ShellRun run = RunInShell(
        QStringLiteral( "man --warnings --local-file --encoding=UTF-8 --troff-device=utf8 --ditroff \"$1\" | wc -l" ),
        QString(), { s_kPage } );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_err.toStdString(), "" );
    EXPECT_GT( run.m_out.toInt(), 100 );
}

TEST( ManualTest, OptionsAreThoseOfTheProgram )
{
    const QString page = ShownPage();
    EXPECT_EQ( Joined( OptionsNamedIn( Below( page, s_kOfEveryCommand ) ) ), Joined( NamesOf( CommonOptions() ) ) );
    const QStringList reading = OptionsNamedIn( Below( page, HeadingOfReading() ) );
    EXPECT_GT( reading.size(), 1 );
    for ( const CommandInfo& command : Commands() )
    {
        QStringList options = OptionsNamedIn( Below( page, QStringLiteral( "Of " ) + command.m_name ) );
        options += ReadsBooks( command ) ? reading : QStringList();
        options.sort();
        EXPECT_EQ( Joined( options ), Joined( NamesOf( command.m_options ) ) ) << command.m_name.toStdString();
    }
}

TEST( ManualTest, TextNamesNoOtherOptions )
{
    QSet<QString> known;
    for ( const CommandInfo& command : Commands() )
    {
        for ( const OptionInfo& option : command.m_options )
            known.insert( option.m_name );
    }
    for ( const OptionInfo& option : CommonOptions() )
        known.insert( option.m_name );
    static const QRegularExpression s_kName( QStringLiteral( "--([a-z][a-z-]*)" ) );
    QRegularExpressionMatchIterator names = s_kName.globalMatch( ShownPage() );
    int count = 0;
    for ( ; names.hasNext(); ++count )
    {
        const QString name = names.next().captured( 1 );
        EXPECT_TRUE( known.contains( name ) ) << name.toStdString();
    }
    EXPECT_GT( count, known.size() );
}

TEST( ManualTest, DefaultsOfLimitsAreThoseOfTheProgram )
{
    const QString page = ShownPage().simplified();
    int count = 0;
    for ( const CommandInfo& command : Commands() )
    {
        for ( const OptionInfo& option : command.m_options )
        {
            if ( option.m_argument != QLatin1String( "NUMBER" ) )
                continue;
            const QString shown = NameOf( option ) + QLatin1Char( ' ' ) + option.m_help;
            EXPECT_TRUE( page.contains( shown ) ) << shown.toStdString();
            ++count;
        }
    }
    EXPECT_GT( count, 5 );
}

TEST( ManualTest, FormatsAreThoseOfTheProgram )
{
    const QString section = Below( ShownPage(), QStringLiteral( "-t FORMAT, --to FORMAT" ) );
    const CommandInfo* const convert = FindCommand( "convert" );
    ASSERT_NE( convert, nullptr );
    int count = 0;
    for ( const OptionInfo& option : convert->m_options )
    {
        if ( option.m_argument != QLatin1String( "FORMAT" ) )
            continue;
        for ( const QString& word : option.m_words )
        {
            const QRegularExpression line( QStringLiteral( "^ +%1(?: |$)" ).arg( word ),
                                           QRegularExpression::MultilineOption );
            EXPECT_TRUE( section.contains( line ) ) << word.toStdString();
            ++count;
        }
    }
    EXPECT_GT( count, 1 );
}

TEST( ManualTest, CommandsAreThoseOfTheProgram )
{
    const QString page = ShownPage();
    QStringList synopsis = Below( page, QStringLiteral( "SYNOPSIS" ) ).split( QLatin1Char( '\n' ), Qt::SkipEmptyParts );
    QStringList expected( QStringLiteral( "pimvcard [options] BOOK..." ) );
    for ( const CommandInfo& command : Commands() )
    {
        const QString options = command.m_options.empty() ? QString() : QStringLiteral( " [options]" );
        expected << QStringLiteral( "pimvcard " ) + command.m_name + options + QLatin1Char( ' ' ) + command.m_arguments;
        const QRegularExpression entry( QStringLiteral( "^ +%1(?: |$)" ).arg( command.m_name ),
                                        QRegularExpression::MultilineOption );
        EXPECT_TRUE( Below( page, QStringLiteral( "DESCRIPTION" ) ).contains( entry ) ) << command.m_name.toStdString();
    }
    for ( QString& line : synopsis )
        line = line.trimmed();
    EXPECT_EQ( Joined( synopsis ), Joined( expected ) );
}

TEST( ManualTest, VersionIsThatOfTheProgram )
{
    const ShellRun version = RunInShell( QStringLiteral( "pimvcard --version" ) );
    const QString page = DocumentText( QStringLiteral( "docs/man/pimvcard.1" ) );
    EXPECT_TRUE( page.contains( QLatin1Char( '"' ) + version.m_out.trimmed() + QLatin1Char( '"' ) ) );
}

} // namespace
