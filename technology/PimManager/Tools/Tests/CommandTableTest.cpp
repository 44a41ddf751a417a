#include "Commands/CommandTable.h"

#include "ToolsTestText.h"

#include <set>

using namespace PimManager::Tools;

TEST( CommandTableTest, EveryNameAndLetterIsUniqueInItsCommand )
{
    for ( const CommandInfo& command : Commands() )
    {
        std::set<QString> names;
        std::vector<OptionInfo> options = command.m_options;
        options.insert( options.end(), CommonOptions().begin(), CommonOptions().end() );
        for ( const OptionInfo& option : options )
        {
            EXPECT_TRUE( names.insert( option.m_name ).second ) << Utf8( command.m_name + option.m_name );
            EXPECT_TRUE( option.m_letter.isEmpty() || names.insert( option.m_letter ).second )
                << Utf8( command.m_name + option.m_letter );
            EXPECT_TRUE( option.m_help.endsWith( QLatin1Char( '.' ) ) ) << Utf8( option.m_name );
        }
    }
}

// Options may precede the command, so whether the next word is a value must not depend on it.
TEST( CommandTableTest, OptionOfOneNameOrLetterIsOfOneKindInAllCommands )
{
    std::set<QString> flags;
    std::set<QString> valued;
    for ( const CommandInfo& command : Commands() )
    {
        for ( const OptionInfo& option : command.m_options )
        {
            std::set<QString>& names = option.m_argument.isEmpty() ? flags : valued;
            names.insert( option.m_name );
            names.insert( option.m_letter );
        }
    }
    for ( const OptionInfo& option : CommonOptions() )
        flags.insert( { option.m_name, option.m_letter } );
    flags.erase( QString() );
    for ( const QString& name : flags )
        EXPECT_EQ( valued.count( name ), 0U ) << Utf8( name );
}

TEST( CommandTableTest, CommandIsFoundByItsWholeName )
{
    ASSERT_NE( FindCommand( "check" ), nullptr );
    EXPECT_EQ( Utf8( FindCommand( "check" )->m_name ), "check" );
    for ( const char* name : { "", "chec", "checks", "Check", "check\xFF" } )
        EXPECT_EQ( FindCommand( name ), nullptr ) << name;
}
