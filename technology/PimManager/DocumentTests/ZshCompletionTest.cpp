// Tests the completion for zsh as a text, so that zsh is not required to build and test.

#include "DocumentFile.h"

#include "Commands/ZshCompletion.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace PimManager::vCard::Documents;
using namespace PimManager::Tools;

namespace
{

OptionInfo Option( const char* a_letter, const char* a_name, const char* a_argument, const char* a_help,
                   const QStringList& a_words = {} )
{
    return { QString::fromLatin1( a_letter ), QString::fromLatin1( a_name ), QString::fromLatin1( a_argument ),
             QString::fromLatin1( a_help ), a_words };
}

// The completion of a program with one command and one option.
std::string CompletionOf( const OptionInfo& a_option )
{
    CommandInfo command;
    command.m_name = QStringLiteral( "look" );
    command.m_summary = QStringLiteral( "Looks at it's [first] card: once." );
    command.m_arguments = QStringLiteral( "BOOK..." );
    command.m_options = { a_option };
    return ZshCompletion( { command }, {} ).toStdString();
}

// The lines of an array, without their indentation.
QStringList ArrayLines( const QString& a_script, const QString& a_name )
{
    const QRegularExpression array( QStringLiteral( "^  %1=\\(\\n(.*?)^  \\)" ).arg( a_name ),
                                    QRegularExpression::MultilineOption |
                                        QRegularExpression::DotMatchesEverythingOption );
    const QRegularExpressionMatch match = array.match( a_script );
    EXPECT_TRUE( match.hasMatch() ) << a_name.toStdString();
    QStringList lines = match.captured( 1 ).split( QLatin1Char( '\n' ), Qt::SkipEmptyParts );
    for ( QString& line : lines )
        line = line.trimmed();
    return lines;
}

// The start of the line of an array for an option.
QString StartOf( const OptionInfo& a_option )
{
    const bool hasValue = !a_option.m_argument.isEmpty();
    const QString name = QStringLiteral( "--" ) + a_option.m_name;
    const QString names = hasValue ? name + QLatin1Char( '=' ) : name;
    if ( a_option.m_letter.isEmpty() )
        return QLatin1Char( '\'' ) + names + QLatin1Char( '[' );
    const QString letter = QLatin1Char( '-' ) + a_option.m_letter;
    return QStringLiteral( "'(%1 %2)'{%3,%4}'[" )
        .arg( letter, name, hasValue ? letter + QLatin1Char( '+' ) : letter, names );
}

void ExpectOptions( const QStringList& a_lines, const std::vector<OptionInfo>& a_options )
{
    ASSERT_EQ( static_cast<size_t>( a_lines.size() ), a_options.size() );
    for ( size_t i = 0; i < a_options.size(); ++i )
    {
        const QString& line = a_lines.at( static_cast<int>( i ) );
        EXPECT_TRUE( line.startsWith( StartOf( a_options[i] ) ) ) << line.toStdString();
        EXPECT_TRUE( line.endsWith( QLatin1Char( '\'' ) ) ) << line.toStdString();
    }
}

TEST( ZshCompletionTest, OptionIsWrittenAsZshReadsIt )
{
    struct Row
    {
        OptionInfo m_option;
        const char* m_line;
    };
    const QStringList words = { QStringLiteral( "one" ), QStringLiteral( "two" ) };
    const std::vector<Row> rows = {
        { Option( "a", "all", "", "Shows all." ), "'(-a --all)'{-a,--all}'[Shows all]'" },
        { Option( "", "all", "", "Shows all." ), "'--all[Shows all]'" },
        { Option( "o", "out", "FILE", "The output." ), "'(-o --out)'{-o+,--out=}'[The output]:file:_files'" },
        { Option( "", "into", "DIR", "The folder." ), "'--into=[The folder]:dir:_files -/'" },
        { Option( "", "most", "NUMBER", "The limit." ), "'--most=[The limit]:number:'" },
        { Option( "", "to", "FORMAT", "The format.", words ), "'--to=[The format]:format:(one two)'" },
        { Option( "", "all", "", "It's [all] there. And more." ), "'--all[It'\\''s \\[all\\] there]'" },
        { Option( "", "all", "", "Shows all: lines." ), "'--all[Shows all]'" },
    };
    for ( const Row& row : rows )
    {
        const std::string script = CompletionOf( row.m_option );
        EXPECT_NE( script.find( std::string( "\n    " ) + row.m_line + '\n' ), std::string::npos ) << row.m_line << '\n'
                                                                                                   << script;
    }
}

TEST( ZshCompletionTest, CommandIsExplained )
{
    const std::string script = CompletionOf( Option( "", "all", "", "Shows all." ) );
    EXPECT_NE( script.find( "    'look:Looks at it'\\''s \\[first\\] card'\n" ), std::string::npos ) << script;
}

TEST( ZshCompletionTest, CommandsAndOptionsAreThoseOfTheProgram )
{
    const QString script = QString::fromUtf8( ZshCompletion( Commands(), CommonOptions() ) );
    const QStringList commands = ArrayLines( script, QStringLiteral( "commands" ) );
    ASSERT_EQ( static_cast<size_t>( commands.size() ), Commands().size() );
    ExpectOptions( ArrayLines( script, QStringLiteral( "common" ) ), CommonOptions() );
    for ( size_t i = 0; i < Commands().size(); ++i )
    {
        const QString& name = Commands()[i].m_name;
        EXPECT_TRUE(
            commands.at( static_cast<int>( i ) ).startsWith( QLatin1Char( '\'' ) + name + QLatin1Char( ':' ) ) );
        EXPECT_TRUE( script.contains( QStringLiteral( "\n        %1) _arguments " ).arg( name ) ) )
            << name.toStdString();
        ExpectOptions( ArrayLines( script, QStringLiteral( "options_of_" ) + name ), Commands()[i].m_options );
    }
}

TEST( ZshCompletionTest, FileIsMadeFromTheTable )
{
    const QString file = DocumentText( QStringLiteral( "technology/PimManager/Tools/Completion/_pimvcard" ) );
    EXPECT_TRUE( file.startsWith( QLatin1String( "#compdef pimvcard\n" ) ) );
    EXPECT_EQ( file.toStdString(), ZshCompletion( Commands(), CommonOptions() ).toStdString() )
        << "run scripts/update-completion";
}

} // namespace
