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
    EXPECT_EQ( number, 8 );
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
    for ( const Row& row : { Row{ "a.vcf", 1 }, Row{ "a.VCARD", 1 }, Row{ "a.jcard", 3 }, Row{ "a.jcf", 3 },
                             Row{ "a.csv", 4 }, Row{ "a.json", 5 }, Row{ "a.JSON", 5 }, Row{ "dir.html/a.jsonl", 6 },
                             Row{ "a.ndjson", 6 }, Row{ "a.html", 7 }, Row{ "a.b.Htm", 7 }, Row{ "a", -1 },
                             Row{ "-", -1 }, Row{ "", -1 }, Row{ "json", -1 }, Row{ "a.json.xml", -1 } } )
        EXPECT_EQ( Number( FormatByEnding( row.m_name ) ), row.m_format ) << row.m_name;
}
