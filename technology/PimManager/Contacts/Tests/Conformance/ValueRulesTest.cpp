#include "FindingText.h"

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_version;
    const char* m_line;
    // Empty for a valid value.
    const char* m_section;
};

void ExpectInvalid( const std::vector<Row>& a_rows, const std::string& a_word )
{
    for ( const Row& row : a_rows )
    {
        const std::string section = row.m_section;
        EXPECT_EQ( FindingsOfLine( row.m_line, row.m_version ),
                   section.empty() ? "" : "5 " + a_word + " (" + section + ")" )
            << row.m_version << ' ' << row.m_line;
    }
}

} // namespace

TEST( ValueRulesTest, DatesHaveTheFormOfTheirVersion )
{
    ExpectInvalid(
        {
            { "2.1", "BDAY:19840229", "" },
            { "2.1", "BDAY:1984-02-29", "" },
            { "2.1", "BDAY:1984", "vCard 2.1, section 2.2.4" },
            { "2.1", "BDAY:29.2.1984", "vCard 2.1, section 2.2.4" },
            { "2.1", "REV:19840229", "vCard 2.1, section 2.6.2" },
            { "3.0", "BDAY:1984-02-29", "" },
            { "3.0", "BDAY:--02-29", "RFC 2426, section 3.1.5" },
            { "3.0", "BDAY:1985-02-29", "RFC 2426, section 3.1.5" },
            { "3.0", "REV:1984-02-29T10:00:00Z", "" },
            { "3.0", "REV:yesterday", "RFC 2426, section 3.6.4" },
            { "4.0", "BDAY:19840229", "" },
            { "4.0", "BDAY:--0229", "" },
            { "4.0", "BDAY:T10", "" },
            { "4.0", "BDAY:1984-02-29", "RFC 6350, section 6.2.5" },
            { "4.0", "BDAY:19850229", "RFC 6350, section 6.2.5" },
            { "4.0", "BDAY:circa 1800", "RFC 6350, section 6.2.5" },
            { "4.0", "BDAY:", "RFC 6350, section 6.2.5" },
            { "4.0", "REV:19951031T222710Z", "" },
            { "4.0", "REV:19951031", "RFC 6350, section 6.7.4" },
            { "4.0", "DEATHDATE:1996-04-15", "RFC 6474, section 2.3" },
            { "4.0", "CREATED:now", "RFC 9554, section 3.1" },
        },
        "invalid-value" );
}

TEST( ValueRulesTest, OtherTypesHaveTheirForms )
{
    ExpectInvalid(
        {
            { "2.1", "URL:www.example.org", "vCard 2.1, section 2.6.4" },
            { "2.1", "PHOTO;VALUE=URL:ada.gif", "vCard 2.1, section 2.2.3" },
            { "2.1", "TZ:EST", "vCard 2.1, section 2.4.5" },
            { "2.1", "TZ:+05", "" },
            { "2.1", "GEO:37.24;-17.87", "vCard 2.1, section 2.4.6" },
            { "2.1", "AGENT:Bo", "vCard 2.1, section 2.5.4" },
            { "2.1", "AGENT;VALUE=URL:http://example.org/bo.vcf", "" },
            { "2.1", "PHOTO;ENCODING=BASE64:R0lGODlhAQ*A", "vCard 2.1, section 2.2.3" },
            { "3.0", "URL:www.example.org", "RFC 2426, section 3.6.8" },
            { "3.0", "PHOTO:http://example.org/a.gif", "RFC 2426, section 3.1.4" },
            { "3.0", "PHOTO;ENCODING=b:R0lGODlhAQ*A", "RFC 2426, section 3.1.4" },
            { "3.0", "KEY;VALUE=text:abc", "" },
            { "3.0", "TZ:-0500", "RFC 2426, section 3.4.1" },
            { "3.0", "TZ:-25:00", "RFC 2426, section 3.4.1" },
            { "3.0", "GEO:37.386013;-182.082932", "RFC 2426, section 3.4.2" },
            { "3.0", "GEO:37.386013; -122.082932", "RFC 2426, section 3.4.2" },
            { "3.0", "AGENT:Bo", "RFC 2426, section 3.5.4" },
            { "3.0", "AGENT;VALUE=text:Bo", "" },
            { "4.0", "URL:www.example.org", "RFC 6350, section 6.7.8" },
            { "4.0", "URL:", "RFC 6350, section 6.7.8" },
            { "4.0", "URL:http://example.org/a b", "RFC 6350, section 6.7.8" },
            { "4.0", "GEO:37.386013;-122.082932", "RFC 6350, section 6.5.2" },
            { "4.0", "GEO:geo:97.386013,-122.082932", "RFC 6350, section 6.5.2" },
            { "4.0", "RELATED:Bo", "RFC 6350, section 6.6.6" },
            { "4.0", "UID:123", "RFC 6350, section 6.7.6" },
            { "4.0", "LANG:fr_CA", "RFC 6350, section 6.4.4" },
            { "4.0", "LANGUAGE:the German one", "RFC 9554, section 3.3" },
            { "4.0", "TZ;VALUE=utc-offset:-05:00", "RFC 6350, section 6.5.1" },
            { "4.0", "TZ:-05:00", "" },
            { "4.0", "PHOTO:R0lGODlhAQABAAAAACw=", "RFC 6350, section 6.2.4" },
            { "4.0", "TEL;VALUE=uri:+1 555", "RFC 6350, section 6.4.1" },
        },
        "invalid-value" );
}

TEST( ValueRulesTest, SomePropertiesRestrictTheirValues )
{
    ExpectInvalid(
        {
            { "3.0", "PROFILE:CALENDAR", "RFC 2426, section 2.1.3" },
            { "4.0", "GENDER:X", "RFC 6350, section 6.2.7" },
            { "4.0", "GENDER:Male", "RFC 6350, section 6.2.7" },
            { "4.0", "KIND:an office", "RFC 6350, section 6.1.4" },
            { "4.0", "KIND:", "RFC 6350, section 6.1.4" },
            { "4.0", "CLIENTPIDMAP:a;urn:uuid:1", "RFC 6350, section 6.7.7" },
            { "4.0", "CLIENTPIDMAP:1;uuid", "RFC 6350, section 6.7.7" },
        },
        "forbidden-value" );
}

TEST( ValueRulesTest, ExtensionsHaveTheTypeThatTheyName )
{
    ExpectInvalid(
        {
            { "4.0", "X-A;VALUE=integer:-1", "" },
            { "4.0", "X-A;VALUE=integer:1,2,3", "" },
            { "4.0", "X-A;VALUE=integer:1,two", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=integer:1,", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=integer:1.5", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=float:1.5", "" },
            { "4.0", "X-A;VALUE=float:1.", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=boolean:true", "" },
            { "4.0", "X-A;VALUE=boolean:yes", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=time:102200Z", "" },
            { "4.0", "X-A;VALUE=time:10:22:00", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=uri:a,b", "RFC 6350, section 4" },
            { "4.0", "X-A;VALUE=text:a\\qb", "" },
            { "3.0", "X-A;VALUE=time:10:22:00", "" },
            { "3.0", "X-A;VALUE=float:one", "RFC 2425, section 5.8.4" },
        },
        "invalid-value" );
}

TEST( ValueRulesTest, ComponentsAreCounted )
{
    ExpectInvalid(
        {
            { "2.1", "ADR:;;12 Mill Lane", "" },
            { "2.1", "ADR:;;;;;;;", "vCard 2.1, section 2.3.1" },
            { "3.0", "ADR:;;12 Mill Lane", "" },
            { "3.0", "ADR:;;;;;;;", "RFC 2426, section 3.2.1" },
            { "3.0", "ORG:a;b;c;d;e;f;g;h;i;j", "" },
            { "4.0", "ADR:;;12 Mill Lane", "RFC 6350, section 6.3.1" },
            { "4.0", "ADR:;;a\\;b;;;;", "" },
            { "4.0", "ADR:;;;;;;;;;;;;;;;;;;", "RFC 6350, section 6.3.1" },
            { "4.0", "GENDER:M;a;b", "RFC 6350, section 6.2.7" },
        },
        "component-count" );
}

TEST( ValueRulesTest, EscapesMustBeKnown )
{
    ExpectInvalid(
        {
            { "2.1", "NOTE:C:\\temp", "" },
            { "3.0", "NOTE:a\\n\\N\\,\\;\\\\\\:", "" },
            { "3.0", "NOTE:C:\\temp", "RFC 2426, section 4" },
            { "3.0", "NOTE:a\\", "RFC 2426, section 4" },
            { "4.0", "NOTE:a\\n\\N\\,\\;\\\\", "" },
            { "4.0", "NOTE:a\\:b", "RFC 6350, section 3.4" },
            { "4.0", "NOTE:C:\\temp", "RFC 6350, section 3.4" },
            { "4.0", "ORG:a;\\q", "RFC 6350, section 3.4" },
        },
        "bad-escape" );
}

} // namespace PimManager::Contacts
