#include "Commands/CommandLine.h"

#include "ToolsTestText.h"

using namespace PimManager::Tools;

namespace
{

// A command with a flag -x and an option --name.
const CommandInfo& Command()
{
    static const CommandInfo s_kCommand = []
    {
        CommandInfo command;
        command.m_name = QStringLiteral( "frob" );
        command.m_arguments = QStringLiteral( "BOOK..." );
        command.m_options = {
            { QStringLiteral( "x" ), QStringLiteral( "extra" ), {}, QStringLiteral( "More." ), {} },
            { {}, QStringLiteral( "name" ), QStringLiteral( "NAME" ), QStringLiteral( "Who." ), {} } };
        return command;
    }();
    return s_kCommand;
}

} // namespace

TEST( CommandLineTest, ArgumentsComeBackByteForByte )
{
    QByteArray allBytes;
    for ( int byte = 1; byte <= 255; ++byte )
        allBytes.append( static_cast<char>( byte ) );
    const QList<QByteArray> arguments = { allBytes, "-", "b\303\274cher.vcf", "\xFF\xFE", "" };
    CommandLine line( Command() );
    ASSERT_TRUE( line.Parse( arguments ) ) << Utf8( line.ErrorText() );
    EXPECT_EQ( line.Arguments(), arguments );
}

TEST( CommandLineTest, OptionsAndArgumentsMix )
{
    CommandLine line( Command() );
    ASSERT_TRUE( line.Parse( { "a", "-x", "b", "--", "-h" } ) );
    EXPECT_TRUE( line.IsSet( QStringLiteral( "extra" ) ) );
    EXPECT_FALSE( line.IsSet( s_kHelpOption ) );
    EXPECT_EQ( line.Arguments(), ( QList<QByteArray>{ "a", "b", "-h" } ) );
}

TEST( CommandLineTest, HelpAndVersionAreKnownToAll )
{
    for ( const char* option : { "-h", "--help" } )
    {
        CommandLine line( Command() );
        ASSERT_TRUE( line.Parse( { option } ) );
        EXPECT_TRUE( line.IsSet( s_kHelpOption ) && !line.IsSet( s_kVersionOption ) ) << option;
    }
    for ( const char* option : { "-v", "--version" } )
    {
        CommandLine line( Command() );
        ASSERT_TRUE( line.Parse( { option } ) );
        EXPECT_TRUE( line.IsSet( s_kVersionOption ) && !line.IsSet( s_kHelpOption ) ) << option;
    }
}

TEST( CommandLineTest, UnknownOptionIsReportedHarmlessly )
{
    CommandLine line( Command() );
    EXPECT_FALSE( line.Parse( { "--\xC3\xA9\x1B[2J\xFF" } ) );
    EXPECT_EQ( Utf8( line.ErrorText() ), "Unknown option '\xC3\xA9\\x1b[2J\xEF\xBF\xBD'." );
}

TEST( CommandLineTest, CloseOptionIsSuggested )
{
    CommandLine line( Command() );
    EXPECT_FALSE( line.Parse( { "--extar" } ) );
    EXPECT_EQ( Utf8( line.ErrorText() ), "Unknown option 'extar'. Did you mean \"--extra\"?" );
}

TEST( CommandLineTest, ValueComesBackByteForByte )
{
    CommandLine line( Command() );
    ASSERT_TRUE( line.Parse( { "--name", "\xFF\xC3\xA9" } ) );
    EXPECT_EQ( line.Value( QStringLiteral( "name" ) ), QByteArray( "\xFF\xC3\xA9" ) );
}
