#include "Commands/Suggestion.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Tools;

TEST( SuggestionTest, ClosestWordIsSuggested )
{
    struct Row
    {
        const char* m_word;
        const char* m_suggestion;
    };
    const QStringList words = { QStringLiteral( "list" ), QStringLiteral( "show" ), QStringLiteral( "check" ),
                                QStringLiteral( "convert" ) };
    const std::vector<Row> rows = {
        { "lst", "list" },
        { "lits", "list" },
        { "lists", "list" },
        { "chek", "check" },
        { "cehck", "check" },
        { "konvert", "convert" },
        { "convrt", "convert" },
        { "covnertt", "convert" },
        { "sho", "show" },
        { "import", "" },
        { "print", "" },
        { "", "" },
        { "x", "" },
        { "l", "" },
        { "lt", "" },
        { "checkcheck", "" },
    };
    for ( const Row& row : rows )
    {
        const std::string expected =
            *row.m_suggestion == '\0' ? "" : std::string( " Did you mean \"" ) + row.m_suggestion + "\"?";
        EXPECT_EQ( Utf8( SuggestionFor( QString::fromLatin1( row.m_word ), words ) ), expected ) << row.m_word;
    }
}

TEST( SuggestionTest, NothingIsSuggestedWithoutWords )
{
    EXPECT_EQ( Utf8( SuggestionFor( QStringLiteral( "list" ), {} ) ), "" );
    EXPECT_EQ( Utf8( SuggestionFor( QString( 1000000, QLatin1Char( 'x' ) ), { QStringLiteral( "list" ) } ) ), "" );
}
