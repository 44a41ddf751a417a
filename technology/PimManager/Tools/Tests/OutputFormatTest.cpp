#include "Commands/OutputFormat.h"

#include "ToolsTestText.h"

using namespace PimManager::Tools;

namespace
{

int Number( std::optional<OutputFormat> a_format )
{
    return a_format ? static_cast<int>( *a_format ) : -1;
}

} // namespace

TEST( OutputFormatTest, EveryNameIsAFormat )
{
    int number = 0;
    for ( const QString& name : FormatNames() )
        EXPECT_EQ( Number( FormatNamed( name.toLatin1() ) ), number++ ) << Utf8( name );
    EXPECT_EQ( number, 3 );
    for ( const char* name : { "", "JSON", "json ", "xml" } )
        EXPECT_EQ( Number( FormatNamed( name ) ), -1 ) << name;
}

TEST( OutputFormatTest, EndingOfTheFileNameIsAFormat )
{
    struct Row
    {
        const char* m_name;
        int m_format;
    };
    for ( const Row& row : { Row{ "a.json", 0 }, Row{ "a.JSON", 0 }, Row{ "dir.html/a.jsonl", 1 }, Row{ "a.ndjson", 1 },
                             Row{ "a.html", 2 }, Row{ "a.b.Htm", 2 }, Row{ "a", -1 }, Row{ "-", -1 }, Row{ "", -1 },
                             Row{ "json", -1 }, Row{ "a.json.vcf", -1 } } )
        EXPECT_EQ( Number( FormatByEnding( row.m_name ) ), row.m_format ) << row.m_name;
}
