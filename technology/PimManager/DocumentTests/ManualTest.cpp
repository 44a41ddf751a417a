// docs/man/pimvcard.1: a page that man shows without a warning, and that names what the program has.

#include "DocumentFile.h"
#include "ProgramOptions.h"
#include "ShellRun.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace PimManager::vCard::Documents;

namespace
{

const QString s_kPage = QStringLiteral( PIMVCARD_PROJECT "/docs/man/pimvcard.1" );

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

QStringList OptionsNamedIn( const QString& a_text )
{
    static const QRegularExpression s_kOption(
        QStringLiteral( "^ +(?:(-[a-zA-Z])(?: [A-Z]+)?, )?(--[a-z-]+)(?: [A-Z]+)?$" ),
        QRegularExpression::MultilineOption );
    QStringList options;
    QRegularExpressionMatchIterator matches = s_kOption.globalMatch( a_text );
    while ( matches.hasNext() )
        options += matches.next().capturedTexts().mid( 1 );
    options.removeAll( QString() );
    options.sort();
    return options;
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
    const QStringList common = OptionsNamedIn( Below( page, QStringLiteral( "Of every command" ) ) );
    EXPECT_EQ( common, ProgramOptions( QString() ) );
    for ( const QString& command : ProgramCommands() )
    {
        QStringList options = common + OptionsNamedIn( Below( page, QStringLiteral( "Of " ) + command ) );
        options.sort();
        EXPECT_EQ( options.join( QLatin1Char( ' ' ) ).toStdString(),
                   ProgramOptions( command ).join( QLatin1Char( ' ' ) ).toStdString() )
            << command.toStdString();
    }
}

TEST( ManualTest, DefaultsOfLimitsAreThoseOfTheProgram )
{
    static const QRegularExpression s_kLimit( QStringLiteral( "(--max-[a-z-]+) <NUMBER> ([^;]+; [^.]+\\.)" ) );
    const QString page = ShownPage().simplified();
    QRegularExpressionMatchIterator limits =
        s_kLimit.globalMatch( RunInShell( QStringLiteral( "pimvcard check --help" ) ).m_out.simplified() );
    int count = 0;
    for ( ; limits.hasNext(); ++count )
    {
        const QRegularExpressionMatch limit = limits.next();
        const QString shown = limit.captured( 1 ) + QStringLiteral( " NUMBER " ) + limit.captured( 2 );
        EXPECT_TRUE( page.contains( shown ) ) << shown.toStdString();
    }
    EXPECT_EQ( count, 6 );
}

TEST( ManualTest, CommandsStandInTheSynopsis )
{
    const QString synopsis = Below( ShownPage(), QStringLiteral( "SYNOPSIS" ) );
    for ( const QString& command : ProgramCommands() )
        EXPECT_TRUE( synopsis.contains( QStringLiteral( "pimvcard %1 [options] FILE..." ).arg( command ) ) )
            << command.toStdString();
}

TEST( ManualTest, VersionIsThatOfTheProgram )
{
    const ShellRun version = RunInShell( QStringLiteral( "pimvcard --version" ) );
    const QString page = DocumentText( QStringLiteral( "docs/man/pimvcard.1" ) );
    EXPECT_TRUE( page.contains( QLatin1Char( '"' ) + version.m_out.trimmed() + QLatin1Char( '"' ) ) );
}

} // namespace
