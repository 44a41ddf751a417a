#include "Outputs/CsvText.h"

#include "Outputs/CsvColumns.h"
#include "ToolsTestText.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <map>
#include <string>
#include <vector>

using namespace PimManager::Tools;
using namespace PimManager::Contacts;

TEST( CsvTextTest, FieldsAreQuotedWhereTheyMustBe )
{
    struct Row
    {
        const char* m_text;
        const char* m_field;
    };
    const std::vector<Row> rows = {
        { "", "" },
        { "plain text", "plain text" },
        { "a,b", "\"a,b\"" },
        { "a;b", "a;b" },
        { "say \"x\"", "\"say \"\"x\"\"\"" },
        { "a\nb\r\nc\rd", "\"a\nb\nc\nd\"" },
        { " a", "\" a\"" },
        { "a ", "\"a \"" },
        { "=1+1", "'=1+1" },
        { "=\"a\",b", "\"'=\"\"a\"\",b\"" },
        { "@sum", "'@sum" },
        { "+cmd|' /C calc'!A0", "'+cmd|' /C calc'!A0" },
        { "-1+A1", "'-1+A1" },
        { "\t=1", "'\t=1" },
        { "\r=1", "\"\n=1\"" },
        { "+1 (555) 0100-5/6.7*8#", "+1 (555) 0100-5/6.7*8#" },
        { "-5", "-5" },
        { "+", "'+" },
        { "-", "'-" },
        { "+-()", "'+-()" },
        { "+1+1", "'+1+1" },
        { "555-0100", "555-0100" },
        { "a=b", "a=b" },
        { "a\x1B[2J\x7F", "a\xEF\xBF\xBD[2J\xEF\xBF\xBD" },
        { "\xC3\xA9\xF0\x9F\x98\x80", "\xC3\xA9\xF0\x9F\x98\x80" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( CsvFieldOf( QString::fromUtf8( row.m_text ) ).toStdString(), row.m_field ) << row.m_text;
}

TEST( CsvTextTest, ColumnsHoldEachValueOnce )
{
    const PimContactBook book = PimContactBook::FromBytes(
        CardText( "VERSION:3.0\r\nFN:Dr. Mara Vell\r\nN:Vell;Mara;Ann;Dr.;M.Sc.\r\nNICKNAME:M,Mar\r\n"
                  "ORG:Quern;Mills;North\r\nTITLE:Miller\r\nROLE:Grinds\r\n"
                  "TEL;TYPE=CELL:1\r\nTEL;TYPE=CELL,WORK:2\r\nTEL;TYPE=HOME:3\r\nTEL;TYPE=WORK:4\r\nTEL:5\r\n"
                  "TEL;TYPE=FAX,WORK:6\r\nEMAIL;TYPE=HOME:a@x\r\nEMAIL;TYPE=WORK:b@x\r\nEMAIL:c@x\r\n"
                  "ADR;TYPE=HOME:box;ext;Street 1;Town;Land;123;Isle\r\nADR;TYPE=HOME:;;Street 2;;;;Main\r\n"
                  "ADR;TYPE=WORK:;;Street 3;;;;\r\nADR:;;Street 4;;;;\r\nURL:https://example.com\r\n"
                  "BDAY:1985-04-12\r\nCATEGORIES:a,b\r\nNOTE:n\r\nUID:u\r\n" ) );
    ASSERT_EQ( book.Size(), 1 );
    const std::map<std::string, std::string> expected = {
        { "name", "Dr. Mara Vell" },
        { "prefix", "Dr." },
        { "given-name", "Mara" },
        { "middle-name", "Ann" },
        { "family-name", "Vell" },
        { "suffix", "M.Sc." },
        { "nickname", "M; Mar" },
        { "organisation", "Quern" },
        { "unit", "Mills, North" },
        { "title", "Miller" },
        { "role", "Grinds" },
        { "mobile", "1; 2" },
        { "home-phone", "3" },
        { "work-phone", "4" },
        { "other-phone", "5" },
        { "fax", "6" },
        { "home-mail", "a@x" },
        { "work-mail", "b@x" },
        { "other-mail", "c@x" },
        { "home-street", "box, ext, Street 1; Street 2" },
        { "home-locality", "Town; " },
        { "home-region", "Land; " },
        { "home-postal-code", "123; " },
        { "home-country", "Isle; Main" },
        { "work-street", "Street 3" },
        { "other-street", "Street 4" },
        { "url", "https://example.com" },
        { "birthday", "1985-04-12" },
        { "categories", "a; b" },
        { "note", "n" },
        { "uid", "u" },
    };
    for ( const CsvColumn* const column : AllCsvColumns() )
    {
        const auto found = expected.find( column->m_name );
        EXPECT_EQ( Utf8( column->m_field( CsvContact( book.At( 0 ) ) ) ), found == expected.end() ? "" : found->second )
            << column->m_name;
        EXPECT_EQ( FindCsvColumn( column->m_name ), column );
    }
    EXPECT_EQ( FindCsvColumn( "Name" ), nullptr );
}
