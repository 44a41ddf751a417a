#include "Strict/CardName.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::vCard;
using namespace PimManager::Tools;

TEST( CardNameTest, NameIsTakenFromTheFirstPropertyThatHasOne )
{
    struct Row
    {
        const char* m_lines;
        const char* m_name;
    };
    const std::vector<Row> rows = {
        { "N:Brackwater;Nell;;;\r\nFN:Nell B.\r\n", "Nell B." },
        { "fn:lower case\r\n", "lower case" },
        { "item1.FN:grouped\r\n", "grouped" },
        { "FN:\r\nFN:second\r\n", "second" },
        { "FN:  \r\nN:Brackwater;Nell;;;\r\n", "Nell Brackwater" },
        { "FN:one;two\r\n", "one two" },
        { "N:Quillfeather;Tobias;F.;Dr.;jun.\r\n", "Dr. Tobias F. Quillfeather jun." },
        { "N:Mononym\r\n", "Mononym" },
        { "N:;;;;\r\nORG:Crumb & Kettle;Bread\r\n", "Crumb & Kettle Bread" },
        { "ORG:Crumb\r\nNICKNAME:Nellie\r\n", "Nellie" },
        { "TEL:555-0100\r\nEMAIL:a@example.com\r\n", "a@example.com" },
        { "TEL:555-0100\r\n", "555-0100" },
        { "NOTE:nothing else\r\n", "(no name)" },
        { "", "(no name)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( CardName( *OnlyCard( row.m_lines ) ) ), row.m_name ) << row.m_lines;
}

TEST( CardNameTest, NameIsAsWritten )
{
    EXPECT_EQ( Utf8( CardName( *OnlyCard( "FN;ENCODING=QUOTED-PRINTABLE:Siobh=C3=A1n\r\n" ) ) ), "Siobh=C3=A1n" );
}

TEST( CardNameTest, CardWithoutPropertyListHasNoName )
{
    EXPECT_EQ( Utf8( CardName( PimVCard( nullptr ) ) ), "(no name)" );
    EXPECT_EQ( Utf8( CardName( PimVCard( new QList<PimVCardProperty*>{ nullptr } ) ) ), "(no name)" );
}
