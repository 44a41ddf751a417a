#include "CommandLine.h"

#include "ToolsTestText.h"

#include <QCommandLineOption>

using namespace PimManager::vCard::Tools;

TEST( CommandLineTest, ArgumentsComeBackByteForByte )
{
    QByteArray allBytes;
    for ( int byte = 1; byte <= 255; ++byte )
        allBytes.append( static_cast<char>( byte ) );
    const QList<QByteArray> arguments = { allBytes, "-", "b\303\274cher.vcf", "\xFF\xFE", "" };
    CommandLine line( QString{} );
    ASSERT_TRUE( line.Parse( arguments ) ) << Utf8( line.ErrorText() );
    EXPECT_EQ( line.Arguments(), arguments );
}

TEST( CommandLineTest, OptionsAndArgumentsMix )
{
    CommandLine line( QString{} );
    line.AddOption( QCommandLineOption( QStringList{ QStringLiteral( "x" ), QStringLiteral( "extra" ) } ) );
    ASSERT_TRUE( line.Parse( { "a", "-x", "b", "--", "-h" } ) );
    EXPECT_TRUE( line.IsSet( QStringLiteral( "extra" ) ) );
    EXPECT_FALSE( line.WantsHelp() );
    EXPECT_EQ( line.Arguments(), ( QList<QByteArray>{ "a", "b", "-h" } ) );
}

TEST( CommandLineTest, HelpAndVersionAreKnownToAll )
{
    for ( const char* option : { "-h", "--help" } )
    {
        CommandLine line( QString{} );
        ASSERT_TRUE( line.Parse( { option } ) );
        EXPECT_TRUE( line.WantsHelp() && !line.WantsVersion() ) << option;
    }
    for ( const char* option : { "-v", "--version" } )
    {
        CommandLine line( QString{} );
        ASSERT_TRUE( line.Parse( { option } ) );
        EXPECT_TRUE( line.WantsVersion() && !line.WantsHelp() ) << option;
    }
}

TEST( CommandLineTest, UnknownOptionIsToldHarmlessly )
{
    CommandLine line( QString{} );
    EXPECT_FALSE( line.Parse( { "--\xC3\xA9\x1B[2J\xFF" } ) );
    EXPECT_EQ( Utf8( line.ErrorText() ), "Unknown option '\xC3\xA9\\x1b[2J\xEF\xBF\xBD'." );
}
